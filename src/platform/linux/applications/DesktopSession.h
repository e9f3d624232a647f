#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/linux/applications/DesktopEntryFile.h"

namespace tovrel {

/// The session whose menus show entries.
struct DesktopSession {
    std::vector<std::string> desktops;                 ///< The session's names, the most specific one first.
    std::vector<std::filesystem::path> programFolders; ///< The folders to search for programs, in this order.

    /// The session of this process's environment: XDG_CURRENT_DESKTOP, and PATH or else the system's folders.
    static DesktopSession ofEnvironment();
};

/// Whether the session's menus show the entry (Desktop Entry Specification 1.5): it is neither hidden nor
/// NoDisplay, OnlyShowIn and NotShowIn allow it for the first desktop that either names, and the program of
/// TryExec is installed.
[[nodiscard]] bool isShownInMenus(const DesktopEntry& entry, const DesktopSession& session);

} // namespace tovrel
