#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/Text.h"

namespace tovrel {

/// The parts of a desktop entry (Desktop Entry Specification 1.5) that this program uses.
struct DesktopEntry {
    Text identifier;            ///< Desktop-file id without ".desktop", such as "org.xfce.mousepad".
    Text name;                  ///< In the user's language if the entry has it.
    std::string icon;           ///< Icon name or absolute path; may be empty.
    std::string startupWMClass; ///< WM_CLASS of the application's windows; may be empty.
    std::string exec;           ///< Command line, unexpanded; may be empty.
    std::string tryExec; ///< Program that must exist for the application to count as installed; may be empty.
    bool terminal = false;  ///< Runs inside a terminal, without windows of its own.
    bool noDisplay = false; ///< Not meant for menus.
    bool hidden = false;    ///< The user or administrator deleted it and all entries with the same id.
    std::optional<std::vector<std::string>> onlyShowIn; ///< The desktops whose menus show it; absent: all.
    std::vector<std::string> notShowIn;                 ///< The desktops whose menus do not show it.
};

/// Reads the text of a desktop-entry file. `locale` is a POSIX locale such as "de_AT.UTF-8@euro", which
/// chooses the name. Absent unless the text is the entry of an application with a name, or hidden. Invalid
/// lines are skipped.
std::optional<DesktopEntry> parseDesktopEntry(std::string_view text, std::string_view locale);

/// The program that an Exec line starts: the last part of its path, after "env" and assignments. Empty when
/// there is none.
std::string executableName(std::string_view exec);

/// Whether the Exec line has arguments of its own, apart from the field codes for files and the like (%U).
bool hasOwnArguments(std::string_view exec);

} // namespace tovrel
