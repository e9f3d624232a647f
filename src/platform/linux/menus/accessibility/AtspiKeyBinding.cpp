#include "platform/linux/menus/accessibility/AtspiKeyBinding.h"

#include "support/Utf8.h"

namespace tovrel {
namespace {

/// The accelerator of "mnemonic;path;accelerator"; empty when the text has no such part.
std::string_view thirdPart(std::string_view binding) {
    const std::size_t first = binding.find(';');
    const std::size_t second =
        first == std::string_view::npos ? std::string_view::npos : binding.find(';', first + 1);
    return second == std::string_view::npos ? std::string_view() : binding.substr(second + 1);
}

/// Whether the text is "Alt+" and one character.
bool isQtMnemonic(std::string_view binding) {
    constexpr std::string_view alt = "Alt+";
    if (!binding.starts_with(alt) || binding.size() == alt.size()) {
        return false;
    }
    std::size_t position = alt.size();
    return nextCodePoint(binding, position) != illFormedSequence && position == binding.size();
}

std::optional<MenuShortcut> fromBinding(std::string_view binding, AtspiToolkit toolkit) {
    const bool isInParts = toolkit == AtspiToolkit::gtk || toolkit == AtspiToolkit::gecko ||
                           (toolkit == AtspiToolkit::other && binding.find(';') != std::string_view::npos);
    if (isInParts) {
        return shortcutOfGtkAccelerator(thirdPart(binding));
    }
    return isQtMnemonic(binding) ? std::nullopt : shortcutOfKeySequence(binding);
}

} // namespace

std::optional<MenuShortcut> menuShortcut(std::string_view keyBinding, AtspiToolkit toolkit,
                                         std::string_view nameAfterTab) {
    const auto bound = fromBinding(keyBinding, toolkit);
    return bound ? bound : shortcutOfKeySequence(nameAfterTab);
}

} // namespace tovrel
