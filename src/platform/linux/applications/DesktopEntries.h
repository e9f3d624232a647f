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
/// them has changed; a file is read once, when an answer needs it.
class DesktopEntries {
  public:
    /// Looks in the folder "applications" of each directory, the most important one first. `locale` (POSIX)
    /// chooses the names; `session` decides which entries menus show.
    DesktopEntries(std::vector<std::filesystem::path> dataDirectories, std::string locale,
                   DesktopSession session);
    /// Makes the entries from this process's environment: the XDG data directories, LC_ALL, LC_MESSAGES or
    /// LANG, and the session's variables.
    static DesktopEntries ofEnvironment();

    /// The entry with this id (without ".desktop"). Here and below, the result is null when there is none,
    /// and valid until the next call.
    const DesktopEntry* withIdentifier(std::string_view identifier);
    /// The entry that declares this window class; letter case does not matter, as on desktops.
    const DesktopEntry* withStartupWMClass(std::string_view windowClass);
    /// The entry whose id is the window class, or ends with a dot and the class ("org.gnome.gedit" for
    /// "gedit"); letter case does not matter.
    const DesktopEntry* named(std::string_view windowClass);
    /// The entry that starts this program (the last part of its path), but not in a terminal. Of several
    /// entries, one that menus show and that gives the program no arguments is preferred, then the first by
    /// id.
    const DesktopEntry* withExecutable(std::string_view executable);
    /// The entries that the session's menus show, sorted by id.
    std::vector<DesktopEntry> forMenus();

  private:
    struct File {
        std::filesystem::path path;
        bool isRead = false;
        std::optional<DesktopEntry> entry;
    };

    void listAnewIfChanged();
    void list(const std::filesystem::path& directory);
    /// Returns null when the file is no usable entry.
    const DesktopEntry* read(const std::string& identifier, File& file);
    const DesktopEntry* first(const std::function<bool(const DesktopEntry&)>& isWanted);

    std::vector<std::filesystem::path> directories_;
    std::string locale_;
    DesktopSession session_;
    std::vector<std::filesystem::file_time_type> listedAt_;
    std::map<std::string, File, std::less<>> files_; ///< The files by id.
};

} // namespace tovrel
