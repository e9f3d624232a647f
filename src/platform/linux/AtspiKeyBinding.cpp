#include "platform/linux/AtspiKeyBinding.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include <unicode/unistr.h>

#include "platform/linux/KeyNames.h"
#include "support/Utf8.h"

namespace tovrel {
namespace {

enum Modifier : unsigned { shift = 1, option = 2, control = 4, noCommand = 8, command = 16 };

using ModifierName = std::pair<std::string_view, unsigned>;

/// As gtk_accelerator_parse knows them, in lower case.
constexpr std::array<ModifierName, 12> gtkModifiers{{
    {"primary", command},
    {"control", command},
    {"ctrl", command},
    {"ctl", command},
    {"shift", shift},
    {"shft", shift},
    {"alt", option},
    {"mod1", option},
    {"super", control},
    {"mod4", control},
    {"meta", control},
    {"release", 0},
}};

/// As QKeySequence writes them; "Num" marks a key of the number pad.
constexpr std::array<ModifierName, 5> qtModifiers{{
    {"ctrl+", command},
    {"shift+", shift},
    {"alt+", option},
    {"meta+", control},
    {"num+", 0},
}};

std::string asciiLowercased(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char byte) {
        return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte;
    });
    return lower;
}

std::string utf8Of(char32_t character) {
    std::string bytes;
    icu::UnicodeString(static_cast<UChar32>(character)).toUTF8String(bytes);
    return bytes;
}

MenuShortcut shortcut(char32_t character, unsigned modifiers) {
    const bool hasCommand = (modifiers & command) != 0;
    const unsigned others = modifiers & (shift | option | control);
    return {Text(utf8Of(character)), static_cast<std::int64_t>(hasCommand ? others : others | noCommand)};
}

/// "<Primary><Shift>s", as GTK and, with "<Control>", Gecko write it.
std::optional<MenuShortcut> fromAngleBrackets(std::string_view accelerator) {
    unsigned modifiers = 0;
    while (accelerator.size() > 1 && accelerator.front() == '<') {
        const std::size_t end = accelerator.find('>');
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        const std::string name = asciiLowercased(accelerator.substr(1, end - 1));
        const auto* const known =
            std::find_if(gtkModifiers.begin(), gtkModifiers.end(),
                         [&](const ModifierName& entry) { return entry.first == name; });
        if (known == gtkModifiers.end()) {
            return std::nullopt;
        }
        modifiers |= known->second;
        accelerator.remove_prefix(end + 1);
    }
    const auto character = characterOfKeysymName(accelerator);
    return character ? std::optional(shortcut(*character, modifiers)) : std::nullopt;
}

/// "Ctrl+Shift+S", as Qt and people write it.
std::optional<MenuShortcut> fromPlusSigns(std::string_view accelerator) {
    unsigned modifiers = 0;
    while (true) {
        const std::string lower = asciiLowercased(accelerator);
        const auto* const known =
            std::find_if(qtModifiers.begin(), qtModifiers.end(), [&](const ModifierName& entry) {
                return lower.size() > entry.first.size() && lower.starts_with(entry.first);
            });
        if (known == qtModifiers.end()) {
            break;
        }
        modifiers |= known->second;
        accelerator.remove_prefix(known->first.size());
    }
    // Between the strokes of a sequence Qt writes a comma and a space, which no single stroke contains.
    if (accelerator.find(", ") != std::string_view::npos) {
        return std::nullopt;
    }
    const auto character = characterOfQtKeyName(accelerator);
    return character ? std::optional(shortcut(*character, modifiers)) : std::nullopt;
}

/// The accelerator of "mnemonic;path;accelerator"; empty when the text has no such part.
std::string_view thirdPart(std::string_view binding) {
    const std::size_t first = binding.find(';');
    const std::size_t second =
        first == std::string_view::npos ? std::string_view::npos : binding.find(';', first + 1);
    return second == std::string_view::npos ? std::string_view() : binding.substr(second + 1);
}

/// "Alt+" and one character.
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
        return fromAngleBrackets(thirdPart(binding));
    }
    return isQtMnemonic(binding) ? std::nullopt : fromPlusSigns(binding);
}

} // namespace

std::optional<MenuShortcut> menuShortcut(std::string_view keyBinding, AtspiToolkit toolkit,
                                         std::string_view nameAfterTab) {
    const auto bound = fromBinding(keyBinding, toolkit);
    return bound ? bound : fromPlusSigns(nameAfterTab);
}

} // namespace tovrel
