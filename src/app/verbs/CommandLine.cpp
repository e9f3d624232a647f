#include "app/verbs/CommandLine.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <string_view>

#include <CLI/CLI.hpp>

#include "support/Fatal.h"

namespace tovrel::command_line {
namespace {

/// The parsing library takes "[a,b]" apart, ends a verb at "++", takes the next argument for the value of
/// "--string=", and loses arguments after "--". So arguments that are no options get this character in front,
/// which makes the library take them literally; it is removed when the value arrives.
constexpr char literalMark = '\x01';

std::vector<std::string> protectedArguments(int argc, const char* const* argv) {
    std::vector<std::string> arguments;
    bool isAfterDashes = false;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i]; // NOLINT(cppcoreguidelines-pro-bounds-pointer-arithmetic)
        const bool isMistaken =
            !argument.empty() && std::string_view("[+\x01").find(argument.front()) != std::string_view::npos;
        if (isAfterDashes || isMistaken) {
            arguments.push_back(literalMark + std::string(argument));
        } else if (argument == "--") {
            isAfterDashes = true;
        } else if (argument.starts_with("--") && argument.back() == '=') {
            arguments.emplace_back(argument.substr(0, argument.size() - 1));
            arguments.emplace_back(1, literalMark);
        } else {
            arguments.emplace_back(argument);
        }
    }
    return arguments;
}

std::string withoutMark(const std::string& argument) {
    return !argument.empty() && argument.front() == literalMark ? argument.substr(1) : argument;
}

using Assign = std::function<void(const std::string&)>;

/// An option or, without dashes, an argument that takes one value.
CLI::Option* addValue(CLI::App& app, const std::string& name, const std::string& typeName,
                      const Assign& assign, const std::string& description) {
    return app
        .add_option_function<std::string>(
            name, [assign](const std::string& value) { assign(withoutMark(value)); }, description)
        ->type_name(typeName);
}

/// The value of an option as a whole number from `lowest` to the largest of the type.
template <typename Number>
Number numberFrom(const std::string& option, const std::string& text, Number lowest) {
    Number number = 0;
    const char* end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stopped != end || number < lowest) {
        throw CLI::ValidationError(option, "\"" + text + "\" is not a whole number from " +
                                               std::to_string(lowest) + " up");
    }
    return number;
}

std::string requiredText(const std::string& option, const std::string& text) {
    if (text.empty()) {
        throw CLI::ValidationError(option, "the value is empty");
    }
    return text;
}

bool takesSource(Verb verb) {
    switch (verb) {
    case Verb::menus:
    case Verb::commands:
    case Verb::search:
    case Verb::press:
    case Verb::record:
        return true;
    case Verb::run:
    case Verb::toggle:
    case Verb::settings:
    case Verb::quit:
    case Verb::status:
    case Verb::preferences:
        return false;
    }
    noSuchValue("Verb");
}

class Parser {
  public:
    Parser() {
        app_.require_subcommand(0, 1);
        app_.set_version_flag("--version", "tovrel " TOVREL_VERSION);
        addSharedOptions(app_);
        addMenus();
        addCommands();
        addSearch();
        addPress();
        addRecord();
        addVerb("toggle", Verb::toggle, "Open the running program's palette, or close it");
        addVerb("settings", Verb::settings, "Open the running program's settings");
        addVerb("quit", Verb::quit, "End the running program");
        addJsonFlag(*addVerb("status", Verb::status, "Show what the running program is doing"));
        addPreferences();
    }

    ~Parser() = default;
    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;

    Parsed parse(int argc, const char* const* argv) {
        std::vector<std::string> arguments = protectedArguments(argc, argv);
        std::reverse(arguments.begin(), arguments.end()); // the library expects this order
        try {
            app_.parse(std::move(arguments));
        } catch (const CLI::CallForHelp&) {
            return Information{app_.help()};
        } catch (const CLI::CallForAllHelp&) {
            return Information{app_.help("", CLI::AppFormatMode::All)};
        } catch (const CLI::CallForVersion& version) {
            return Information{std::string(version.what()) + "\n"};
        } catch (const CLI::ExtrasError&) {
            return wrongUsage("unknown argument \"" + withoutMark(app_.remaining(true).front()) + "\"");
        } catch (const CLI::ArgumentMismatch& mismatch) {
            const std::string_view what = mismatch.what();
            return wrongUsage(std::string(what.substr(0, what.find(':'))) + " takes one value, once");
        } catch (const CLI::ParseError& error) {
            return wrongUsage(error.what());
        }
        return checked();
    }

  private:
    void addMenus() {
        CLI::App* verb = addVerb("menus", Verb::menus, "Show an application's menus as a tree");
        addSharedOptions(*verb);
        addJsonFlag(*verb);
    }

    void addCommands() {
        CLI::App* verb =
            addVerb("commands", Verb::commands, "List an application's menu commands and your own commands");
        addSharedOptions(*verb);
        addJsonFlag(*verb);
        addIDsFlag(*verb);
    }

    void addSearch() {
        CLI::App* verb = addVerb("search", Verb::search, "Find commands, best matches first");
        verb->add_option_function<std::vector<std::string>>(
                "QUERY",
                [this](const std::vector<std::string>& queries) {
                    std::transform(queries.begin(), queries.end(), std::back_inserter(invocation_.queries),
                                   withoutMark);
                },
                "What to find. An empty one lists the most useful commands. Any that begin with a dash "
                "follow after --.")
            ->type_name("")
            ->required();
        addSharedOptions(*verb);
        addJsonFlag(*verb);
        addIDsFlag(*verb);
        addValue(
            *verb, "--limit", "N",
            [this](const std::string& text) {
                invocation_.limit = numberFrom<std::size_t>("--limit", text, 0);
            },
            "Show at most so many commands for each query");
    }

    void addPress() {
        CLI::App* verb = addVerb("press", Verb::press, "Press a menu item in a running application");
        addValue(
            *verb, "ID", "", [this](const std::string& text) { invocation_.commandID = text; },
            "The command's id, as `tovrel search --ids` prints it")
            ->required();
        addSharedOptions(*verb);
    }

    void addRecord() {
        CLI::App* verb =
            addVerb("record", Verb::record,
                    "Write an application's menus as a recording, which --recording reads in its place");
        addSharedOptions(*verb);
        addJsonFlag(*verb); // accepted for consistency: the verb always prints JSON
    }

    void addPreferences() {
        CLI::App* preferences =
            addVerb("preferences", Verb::preferences, "Read and change the stored preferences");
        preferences->require_subcommand(0, 1);
        addPreferencesOption(*preferences);
        preferences_ = preferences;

        CLI::App* read = addPreferencesVerb("read", PreferencesVerb::read, "Print the value under a key");
        addKey(*read);
        addJsonFlag(*read);

        CLI::App* write = addPreferencesVerb("write", PreferencesVerb::write, "Store a value under a key");
        addKey(*write);
        preferences_commands::NewValue& value = invocation_.preferences.value;
        const auto into = [](std::optional<std::string>& target) {
            return [&target](const std::string& text) { target = text; };
        };
        addValue(*write, "--json", "TEXT", into(value.json), "A JSON document, stored as data");
        addValue(*write, "--string", "TEXT", into(value.string), "A string");
        addValue(*write, "--bool", "true|false", into(value.boolean), "A boolean");
        addValue(*write, "--data", "TEXT", into(value.data), "Data, stored as it is");

        CLI::App* remove = addPreferencesVerb("delete", PreferencesVerb::remove, "Remove a key");
        addKey(*remove);

        CLI::App* list = addPreferencesVerb("list", PreferencesVerb::list, "List keys, types and sizes");
        addJsonFlag(*list);

        addPreferencesVerb("export", PreferencesVerb::exportAll, "Print all preferences as JSON");
        addPreferencesVerb("import", PreferencesVerb::importAll,
                           "Store what `tovrel preferences export` printed, read from standard input");
    }

    CLI::App* addVerb(const std::string& name, Verb verb, const std::string& description) {
        CLI::App* app = app_.add_subcommand(name, description);
        app->callback([this, verb] { invocation_.verb = verb; });
        return app;
    }

    CLI::App* addPreferencesVerb(const std::string& name, PreferencesVerb verb,
                                 const std::string& description) {
        CLI::App* app = preferences_->add_subcommand(name, description);
        app->callback([this, verb] { invocation_.preferences.verb = verb; });
        addPreferencesOption(*app);
        return app;
    }

    void addKey(CLI::App& app) {
        addValue(
            app, "KEY", "", [this](const std::string& text) { invocation_.preferences.key = text; },
            "The name it is stored under")
            ->required();
    }

    /// Adds the options that all verbs about menus share; they are also accepted before the verb.
    void addSharedOptions(CLI::App& app) {
        addSourceOptions(app);
        addPreferencesOption(app);
        addLocaleOption(app);
    }

    void addSourceOptions(CLI::App& app) {
        MenuSourceOptions& source = invocation_.source;
        const auto add = [&app](const std::string& name, const std::string& typeName, const Assign& assign,
                                const std::string& description) {
            addValue(app, name, typeName, assign, description)
                ->group("Which application (the one in front if none is given)");
        };
        add(
            "--recording", "FILE",
            [&source](const std::string& text) { source.recordingFile = requiredText("--recording", text); },
            "The application recorded in a file, - for standard input");
        add(
            "--pid", "N",
            [&source](const std::string& text) {
                source.processIdentifier = numberFrom<std::int32_t>("--pid", text, 1);
            },
            "The running application with this process identifier");
        add(
            "--app", "ID",
            [&source](const std::string& text) { source.bundleIdentifier = requiredText("--app", text); },
            "The running application with this identifier, such as org.xfce.mousepad");
    }

    void addPreferencesOption(CLI::App& app) {
        addValue(
            app, "--preferences", "FILE",
            [this](const std::string& text) {
                invocation_.preferencesFile = requiredText("--preferences", text);
            },
            "The preferences database (also the environment variable TOVREL_PREFERENCES)");
    }

    void addLocaleOption(CLI::App& app) {
        addValue(
            app, "--locale", "ID", [this](const std::string& text) { invocation_.localeIdentifier = text; },
            "The locale by whose rules texts are compared, such as de_DE");
    }

    void addJsonFlag(CLI::App& app) {
        app.add_flag("--json", invocation_.asJson, "Print JSON, and nothing else");
    }

    void addIDsFlag(CLI::App& app) {
        app.add_flag("--ids", invocation_.showsIDs, "Show each command's id, by which it can be pressed");
    }

    /// Checks the options against each other.
    Parsed checked() {
        const MenuSourceOptions& source = invocation_.source;
        const int sources = static_cast<int>(source.recordingFile.has_value()) +
                            static_cast<int>(source.processIdentifier.has_value()) +
                            static_cast<int>(source.bundleIdentifier.has_value());
        if (sources > 0 && !takesSource(invocation_.verb)) {
            return wrongUsage("none of --recording, --pid and --app is taken here");
        }
        if (sources > 1) {
            return wrongUsage("give only one of --recording, --pid and --app");
        }
        if (invocation_.verb == Verb::preferences) {
            if (preferences_->get_subcommands().empty()) {
                return wrongUsage("one of read, write, delete, list, export and import is missing");
            }
        }
        return std::move(invocation_);
    }

    [[nodiscard]] WrongUsage wrongUsage(const std::string& what) const {
        std::string path = "tovrel";
        for (const CLI::App* app = &app_; !app->get_subcommands().empty();) {
            app = app->get_subcommands().front();
            path += " " + app->get_name();
        }
        return {what + "; see " + path + " --help"};
    }

    Invocation invocation_;
    CLI::App app_{
        "A keyboard-driven command palette over any application. Without a verb it starts and stays, and "
        "a second start opens the palette.",
        "tovrel"};
    CLI::App* preferences_ = nullptr;
};

} // namespace

Parsed parse(int argc, const char* const* argv) {
    return Parser().parse(argc, argv);
}

} // namespace tovrel::command_line
