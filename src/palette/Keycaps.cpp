#include "palette/Keycaps.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace tovrel {
namespace {

constexpr std::array<std::string_view, 4> modifierGlyphs{"⌘", "⇧", "⌥", "⌃"};

} // namespace

std::vector<Text> keycaps(const Text& shortcut, const TextServices& textServices) {
    std::vector<Text> caps;
    std::string key;
    for (const std::string_view character : textServices.graphemeClusters(shortcut.view())) {
        if (std::find(modifierGlyphs.begin(), modifierGlyphs.end(), character) != modifierGlyphs.end()) {
            caps.emplace_back(character);
        } else {
            key.append(character);
        }
    }
    if (!key.empty()) {
        caps.emplace_back(std::move(key));
    }
    return caps;
}

} // namespace tovrel
