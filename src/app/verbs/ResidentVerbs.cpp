#include "app/verbs/ResidentVerbs.h"

#include <nlohmann/json.hpp>

#include "app/seat/ResidentClient.h"
#include "app/terminal/JsonOutput.h"
#include "support/PrintableText.h"

namespace tovrel::verbs {
namespace {

json::Value textOrNull(const std::string& text) {
    return text.empty() ? json::Value() : json::toJson(Text(text));
}

std::string textOr(const std::string& text, const char* ifEmpty) {
    return text.empty() ? ifEmpty : printable(text);
}

} // namespace

int toggle() {
    ResidentClient().toggle();
    return 0;
}

int settings() {
    ResidentClient().settings();
    return 0;
}

int quit() {
    ResidentClient().quit();
    return 0;
}

int status(bool asJson, const Console& console) {
    const ResidentStatus status = ResidentClient().status();
    if (asJson) {
        printJson(console.output, {{"version", json::toJson(Text(status.version))},
                                   {"processIdentifier", status.processIdentifier},
                                   {"paletteVisible", status.isPaletteVisible},
                                   {"accessibilityTrusted", status.isAccessibilityTrusted},
                                   {"shortcut", textOrNull(status.shortcut)},
                                   {"shortcutProblem", textOrNull(status.shortcutProblem)},
                                   {"target", textOrNull(status.target)},
                                   {"unstoredChange", textOrNull(status.unstoredChange)}});
        console.output << '\n';
        return 0;
    }
    const std::string problem =
        status.shortcutProblem.empty()
            ? ""
            : "               not available: " + printable(status.shortcutProblem) + '\n';
    console.output << "tovrel " << printable(status.version) << " runs as process "
                   << status.processIdentifier << '\n'
                   << "Palette:       " << (status.isPaletteVisible ? "open" : "closed") << '\n'
                   << "Shortcut:      " << textOr(status.shortcut, "none") << '\n'
                   << problem << "Accessibility: " << (status.isAccessibilityTrusted ? "on" : "off") << '\n'
                   << "Target:        " << textOr(status.target, "none yet") << '\n';
    if (!status.unstoredChange.empty()) {
        console.output << "Preferences:   the last change could not be stored: "
                       << printable(status.unstoredChange) << '\n';
    }
    return 0;
}

} // namespace tovrel::verbs
