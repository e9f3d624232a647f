#include "app/verbs/PreferencesCommands.h"
#include "app/verbs/Verbs.h"
#include "support/Fatal.h"

namespace tovrel::verbs {
namespace {

preferences_commands::ValueForm formOf(bool asJson, const OutputStyle& style) {
    using preferences_commands::ValueForm;
    if (asJson) {
        return ValueForm::json;
    }
    return style.isTerminal ? ValueForm::terminal : ValueForm::plain;
}

} // namespace

int preferences(const command_line::PreferencesArguments& arguments, bool asJson,
                PreferencesDomain& preferences, const Console& console) {
    using command_line::PreferencesVerb;
    switch (arguments.verb) {
    case PreferencesVerb::read:
        return preferences_commands::read(preferences, arguments.key, formOf(asJson, console.style),
                                          console.output, console.error);
    case PreferencesVerb::write:
        return preferences_commands::write(preferences, arguments.key, arguments.value, console.error);
    case PreferencesVerb::remove:
        return preferences_commands::remove(preferences, arguments.key);
    case PreferencesVerb::list:
        return preferences_commands::list(preferences, asJson, console.output, console.error);
    case PreferencesVerb::exportAll:
        return preferences_commands::exportAll(preferences, console.output, console.error);
    case PreferencesVerb::importAll:
        return preferences_commands::importAll(preferences, console.input, console.error);
    }
    noSuchValue("PreferencesVerb");
}

} // namespace tovrel::verbs
