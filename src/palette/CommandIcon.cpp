#include "palette/CommandIcon.h"

#include <algorithm>
#include <array>
#include <string>

namespace tovrel {
namespace {

/// The text of the command in which a rule looks for its word.
enum class Place { title, menu };

struct IconRule {
    Place place;
    std::string_view word;
    CommandIcon icon;
};

// The order matters: a word may be part of another ("cut" of "execute"), and a title may have several.
constexpr std::array rules{
    IconRule{Place::title, "copy", {"doc.on.doc", colour_pairs::blue}},
    IconRule{Place::title, "cut", {"scissors", colour_pairs::red}},
    IconRule{Place::title, "paste", {"clipboard", colour_pairs::green}},
    IconRule{Place::title, "close", {"xmark.circle", colour_pairs::red}},
    IconRule{Place::title, "quit", {"xmark.circle", colour_pairs::red}},
    IconRule{Place::title, "print", {"printer", colour_pairs::purple}},
    IconRule{Place::title, "save", {"square.and.arrow.down", colour_pairs::blue}},
    IconRule{Place::title, "download", {"square.and.arrow.down", colour_pairs::blue}},
    IconRule{Place::title, "open", {"folder", colour_pairs::amber}},
    IconRule{Place::title, "import", {"folder", colour_pairs::amber}},
    IconRule{Place::title, "back", {"arrow.left", colour_pairs::blue}},
    IconRule{Place::title, "forward", {"arrow.right", colour_pairs::blue}},
    IconRule{Place::title, "chat", {"bubble.left.and.bubble.right", colour_pairs::purple}},
    IconRule{Place::title, "developer", {"hammer", colour_pairs::purple}},
    IconRule{Place::title, "settings", {"gearshape", colour_pairs::taupe}},
    IconRule{Place::title, "preferences", {"gearshape", colour_pairs::taupe}},
    IconRule{Place::menu, "bookmarks", {"bookmark", colour_pairs::amber}},
    IconRule{Place::title, "bookmark", {"bookmark", colour_pairs::amber}},
    IconRule{Place::menu, "tabs", {"rectangle.on.rectangle", colour_pairs::slate}},
    IconRule{Place::title, "tab", {"rectangle.on.rectangle", colour_pairs::slate}},
    IconRule{Place::menu, "help", {"questionmark.circle", colour_pairs::amber}},
    IconRule{Place::menu, "view", {"eye", colour_pairs::green}},
    IconRule{Place::menu, "window", {"macwindow", colour_pairs::slate}},
    IconRule{Place::menu, "edit", {"pencil", colour_pairs::blue}},
    IconRule{Place::menu, "file", {"doc.text", colour_pairs::taupe}},
};

constexpr CommandIcon customCommandIcon{"sparkles", colour_pairs::purple};
constexpr CommandIcon otherIcon{"command", colour_pairs::teal};

std::string_view menuText(const Command& command) {
    if (!command.menuPath.empty()) {
        return command.menuPath.front().view();
    }
    return command.subtitle ? command.subtitle->view() : std::string_view();
}

} // namespace

CommandIcon commandIcon(const Command& command, const TextServices& textServices) {
    if (command.source == CommandSource::custom) {
        return customCommandIcon;
    }
    const std::string title = textServices.localizedLowercased(command.title.view());
    const std::string menu = textServices.localizedLowercased(menuText(command));
    const auto* rule = std::find_if(rules.begin(), rules.end(), [&](const IconRule& candidate) {
        const std::string& text = candidate.place == Place::title ? title : menu;
        return text.find(candidate.word) != std::string::npos;
    });
    return rule == rules.end() ? otherIcon : rule->icon;
}

} // namespace tovrel
