#include "platform/linux/menus/source/MenuShortcut.h"

#include <algorithm>
#include <array>
#include <utility>

#include <unicode/unistr.h>

#include "platform/linux/keyboard/KeyNames.h"

namespace tovrel {
namespace {

enum Modifier : unsigned { shift = 1, option = 2, control = 4, noCommand = 8, command = 16 };

using ModifierName = std::pair<std::string_view, unsigned>;

/// The names that gtk_accelerator_parse knows, in lower case. com.canonical.dbusmenu has no others.
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

/// The names that QKeySequence writes; "Num" marks a key of the number pad.
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

std::optional<unsigned> modifierNamed(std::string_view name) {
    const std::string lower = asciiLowercased(name);
    const auto* const known = std::find_if(gtkModifiers.begin(), gtkModifiers.end(),
                                           [&](const ModifierName& entry) { return entry.first == lower; });
    return known == gtkModifiers.end() ? std::nullopt : std::optional(known->second);
}

} // namespace

std::optional<MenuShortcut> shortcutOfGtkAccelerator(std::string_view accelerator) {
    unsigned modifiers = 0;
    while (accelerator.size() > 1 && accelerator.front() == '<') {
        const std::size_t end = accelerator.find('>');
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        const auto modifier = modifierNamed(accelerator.substr(1, end - 1));
        if (!modifier) {
            return std::nullopt;
        }
        modifiers |= *modifier;
        accelerator.remove_prefix(end + 1);
    }
    const auto character = characterOfKeysymName(accelerator);
    return character ? std::optional(shortcut(*character, modifiers)) : std::nullopt;
}

std::optional<MenuShortcut> shortcutOfKeySequence(std::string_view sequence) {
    unsigned modifiers = 0;
    while (true) {
        const std::string lower = asciiLowercased(sequence);
        const auto* const known =
            std::find_if(qtModifiers.begin(), qtModifiers.end(), [&](const ModifierName& entry) {
                return lower.size() > entry.first.size() && lower.starts_with(entry.first);
            });
        if (known == qtModifiers.end()) {
            break;
        }
        modifiers |= known->second;
        sequence.remove_prefix(known->first.size());
    }
    // Qt writes a comma and a space between the strokes of a sequence; no single stroke contains them.
    if (sequence.find(", ") != std::string_view::npos) {
        return std::nullopt;
    }
    const auto character = characterOfQtKeyName(sequence);
    return character ? std::optional(shortcut(*character, modifiers)) : std::nullopt;
}

std::optional<MenuShortcut> shortcutOfKeyNames(const std::vector<std::string>& names) {
    unsigned modifiers = 0;
    for (std::size_t index = 0; index + 1 < names.size(); ++index) {
        const auto modifier = modifierNamed(names[index]);
        if (!modifier) {
            return std::nullopt;
        }
        modifiers |= *modifier;
    }
    if (names.empty()) {
        return std::nullopt;
    }
    // Some applications write X names, some Qt names.
    const auto known = characterOfKeysymName(names.back());
    const auto character = known ? known : characterOfQtKeyName(names.back());
    return character ? std::optional(shortcut(*character, modifiers)) : std::nullopt;
}

} // namespace tovrel
