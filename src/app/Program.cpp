#include "app/Program.h"

#include <exception>
#include <new>

#include "app/desktop/PreferencesFile.h"
#include "app/terminal/DescriptorBuffer.h"
#include "app/terminal/ErrorLine.h"
#include "app/terminal/Failure.h"
#include "app/verbs/CommandLine.h"
#include "app/verbs/ResidentVerbs.h"
#include "app/verbs/Verbs.h"
#include "platform/preferences/SqlitePreferencesDomain.h"
#include "support/Fatal.h"

namespace tovrel {
namespace {

using command_line::Invocation;
using command_line::Verb;

constexpr int failure = 1;
constexpr int wrongUsage = 2;

/// Runs a verb about the menus of an application.
int runMenuVerb(int (*verb)(const verbs::Context&), const Invocation& invocation, const Console& console) {
    SqlitePreferencesDomain preferences(preferencesFile(invocation.preferencesFile));
    const MenuSource source = resolveMenuSource(invocation.source, console.input);
    const TextServices textServices(invocation.localeIdentifier);
    return verb({invocation, console, source, preferences, textServices});
}

int runPreferences(const Invocation& invocation, const Console& console) {
    SqlitePreferencesDomain preferences(preferencesFile(invocation.preferencesFile));
    return verbs::preferences(invocation.preferences, invocation.asJson, preferences, console);
}

int runVerb(const Invocation& invocation, const Console& console, const RunResident& runResident) {
    switch (invocation.verb) {
    case Verb::run:
        return runResident(invocation, console);
    case Verb::menus:
        return runMenuVerb(verbs::menus, invocation, console);
    case Verb::commands:
        return runMenuVerb(verbs::commands, invocation, console);
    case Verb::search:
        return runMenuVerb(verbs::search, invocation, console);
    case Verb::press:
        return runMenuVerb(verbs::press, invocation, console);
    case Verb::record:
        return runMenuVerb(verbs::record, invocation, console);
    case Verb::toggle:
        return verbs::toggle();
    case Verb::settings:
        return verbs::settings();
    case Verb::quit:
        return verbs::quit();
    case Verb::status:
        return verbs::status(invocation.asJson, console);
    case Verb::preferences:
        return runPreferences(invocation, console);
    }
    noSuchValue("Verb");
}

int runParsed(const command_line::Parsed& parsed, const Console& console, const RunResident& runResident) {
    if (const auto* usage = std::get_if<command_line::WrongUsage>(&parsed)) {
        printErrorLine(console.error, usage->message);
        return wrongUsage;
    }
    if (const auto* information = std::get_if<command_line::Information>(&parsed)) {
        console.output << information->text;
        return 0;
    }
    return runVerb(std::get<Invocation>(parsed), console, runResident);
}

} // namespace

int runProgram(int argc, const char* const* argv, const Console& console, const RunResident& runResident) {
    try {
        const int status = runParsed(command_line::parse(argc, argv), console, runResident);
        if (!console.output.flush()) {
            throw Failure("the output cannot be written");
        }
        return status;
    } catch (const OutputError& error) {
        if (error.code() != std::errc::broken_pipe) {
            printErrorLine(console.error, "the output cannot be written: " + error.code().message());
        }
    } catch (const std::bad_alloc&) {
        printErrorLine(console.error, "out of memory");
    } catch (const std::exception& error) {
        printErrorLine(console.error, error.what());
    }
    return failure;
}

} // namespace tovrel
