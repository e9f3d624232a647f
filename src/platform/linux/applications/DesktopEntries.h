#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/applications/DesktopEntryFile.h"
#include "platform/linux/applications/DesktopSession.h"

namespace tovrel {

/// The desktop entries installed for the user. Directories are listed when first needed and again when one of
/// them has changed; a file is read once, when an answer depends on it.
class DesktopEntries {
  public:
    /// Looks in the folder "applications" of each of the directories, the first being the most important one;
    /// `locale` (POSIX) chooses the names, and `session` what menus show.
    DesktopEntries(std::vector<std::filesystem::path> dataDirectories, std::string locale,
                   DesktopSession session);
    /// Those of this process's environment: the XDG data directories, LC_ALL, LC_MESSAGES or LANG, and the
    /// session's variables.
    static DesktopEntries ofEnvironment();

    /// The entry of this id (without ".desktop"). Null when there is none; a result stays valid until the
    /// next question.
    const DesktopEntry* withIdentifier(std::string_view identifier);
    /// The entry that declares this window class; letter case does not count, as it does not for desktops.
    const DesktopEntry* withStartupWMClass(std::string_view windowClass);
    /// The entry whose id is the window class, or ends with it behind a dot ("org.gnome.gedit" for "gedit");
    /// letter case does not count.
    const DesktopEntry* named(std::string_view windowClass);
    /// The entry that starts this program (the last part of its path), other than in a terminal. Of several
    /// one that is shown in menus and gives the program no arguments is preferred, then the first by id.
    const DesktopEntry* withExecutable(std::string_view executable);
    /// Those that the session's menus show, by id.
    std::vector<DesktopEntry> forMenus();

  private:
    struct File {
        std::filesystem::path path;
        bool isRead = false;
        std::optional<DesktopEntry> entry;
    };

    void listAnewIfChanged();
    void list(const std::filesystem::path& directory);
    /// Null when the file is no usable entry.
    const DesktopEntry* read(const std::string& identifier, File& file);
    const DesktopEntry* first(const std::function<bool(const DesktopEntry&)>& isWanted);

    std::vector<std::filesystem::path> directories_;
    std::string locale_;
    DesktopSession session_;
    std::vector<std::filesystem::file_time_type> listedAt_;
    std::map<std::string, File, std::less<>> files_; ///< By id.
};

} // namespace tovrel
