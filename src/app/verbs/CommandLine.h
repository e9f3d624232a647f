#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "app/verbs/PreferencesCommands.h"

/// Parses the command line. Nothing here opens a file or runs anything.
namespace tovrel::command_line {

enum class Verb {
    run, ///< No verb: become the resident program.
    menus,
    commands,
    search,
    press,
    record,
    toggle,
    settings,
    quit,
    status,
    preferences
};

/// Names the application whose menus to use. At most one member is set; without any, it is the front
/// application.
struct MenuSourceOptions {
    std::optional<std::string> recordingFile; ///< "-" for standard input.
    std::optional<std::int32_t> processIdentifier;
    std::optional<std::string> bundleIdentifier;
};

enum class PreferencesVerb { read, write, remove, list, exportAll, importAll };

struct PreferencesArguments {
    PreferencesVerb verb = PreferencesVerb::list;
    std::string key;
    preferences_commands::NewValue value;
};

struct Invocation {
    Verb verb = Verb::run;
    MenuSourceOptions source;
    std::optional<std::string> preferencesFile;
    std::string localeIdentifier; ///< Empty for the locale of the environment.
    bool asJson = false;
    bool showsIDs = false;            ///< In tables for people; JSON always has them.
    std::optional<std::size_t> limit; ///< The most results for each query.
    std::vector<std::string> queries; ///< At least one for `search`; each may be empty.
    std::string commandID;
    PreferencesArguments preferences;
};

/// Help or the version, to be printed as it is.
struct Information {
    std::string text;
};

/// One line that says what is wrong and where to find help.
struct WrongUsage {
    std::string message;
};

using Parsed = std::variant<Invocation, Information, WrongUsage>;

/// Takes the arguments as main() gets them, with the program's own name first.
Parsed parse(int argc, const char* const* argv);

} // namespace tovrel::command_line
