#include "settings/SettingsText.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace tovrel::settings_text {
namespace {

constexpr std::string_view customPrefix = "custom:";
constexpr std::string_view menuPrefix = "menu:";

Text withArrows(std::string_view path) {
    std::string title;
    for (const char character : path) {
        title += character == '/' ? std::string(" > ") : std::string(1, character);
    }
    return title;
}

} // namespace

std::vector<Text> separated(const Text& text, char separator) {
    std::vector<Text> pieces;
    std::string_view rest = text.view();
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(separator), rest.size());
        if (Text piece = trimmed(rest.substr(0, end)); !piece.empty()) {
            pieces.push_back(std::move(piece));
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return pieces;
}

Text historyRowTitle(const Text& commandID, const std::vector<CustomCommand>& customCommands) {
    const std::string_view id = commandID.view();
    if (id.starts_with(customPrefix)) {
        const Text customID = id.substr(customPrefix.size());
        const auto found = std::find_if(customCommands.begin(), customCommands.end(),
                                        [&](const CustomCommand& command) { return command.id == customID; });
        return found == customCommands.end() ? commandID : found->title;
    }
    if (id.starts_with(menuPrefix)) {
        const std::size_t scopeEnd = id.find(':', menuPrefix.size());
        if (scopeEnd != std::string_view::npos) {
            return withArrows(id.substr(scopeEnd + 1));
        }
    }
    return commandID;
}

} // namespace tovrel::settings_text
