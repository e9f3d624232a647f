#include "platform/linux/keyboard/KeyNames.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <utility>

#include <unicode/uchar.h>
#include <xkbcommon/xkbcommon.h>

#include "support/Utf8.h"

namespace tovrel {
namespace {

/// Keys whose menu character is not their text. The platform that defined the menu attributes uses the
/// characters U+F700…; U+F704 is F1, and the other function keys follow in order.
constexpr std::array<std::pair<std::uint32_t, char32_t>, 31> charactersOfKeysyms{{
    {XKB_KEY_Up, 0xF700},        {XKB_KEY_KP_Up, 0xF700},        {XKB_KEY_Down, 0xF701},
    {XKB_KEY_KP_Down, 0xF701},   {XKB_KEY_Left, 0xF702},         {XKB_KEY_KP_Left, 0xF702},
    {XKB_KEY_Right, 0xF703},     {XKB_KEY_KP_Right, 0xF703},     {XKB_KEY_Insert, 0xF727},
    {XKB_KEY_KP_Insert, 0xF727}, {XKB_KEY_Delete, 0xF728},       {XKB_KEY_KP_Delete, 0xF728},
    {XKB_KEY_Home, 0xF729},      {XKB_KEY_KP_Home, 0xF729},      {XKB_KEY_End, 0xF72B},
    {XKB_KEY_KP_End, 0xF72B},    {XKB_KEY_Page_Up, 0xF72C},      {XKB_KEY_KP_Page_Up, 0xF72C},
    {XKB_KEY_Page_Down, 0xF72D}, {XKB_KEY_KP_Page_Down, 0xF72D}, {XKB_KEY_Help, 0xF746},
    {XKB_KEY_BackSpace, 0x7F},   {XKB_KEY_Escape, 0x1B},         {XKB_KEY_Tab, 0x09},
    {XKB_KEY_KP_Tab, 0x09},      {XKB_KEY_ISO_Left_Tab, 0x09},   {XKB_KEY_Return, 0x0D},
    {XKB_KEY_KP_Enter, 0x0D},    {XKB_KEY_ISO_Enter, 0x0D},      {XKB_KEY_space, 0x20},
    {XKB_KEY_KP_Space, 0x20},
}};

/// X names of keys, each with the name that QKeySequence writes or the longer form that programs write into
/// titles themselves.
constexpr std::array<std::pair<std::string_view, const char*>, 27> keysymNamesOfQtNames{{
    {"Esc", "Escape"},
    {"Escape", "Escape"},
    {"Tab", "Tab"},
    {"Backtab", "ISO_Left_Tab"},
    {"Return", "Return"},
    {"Backspace", "BackSpace"},
    {"Enter", "KP_Enter"},
    {"Ins", "Insert"},
    {"Insert", "Insert"},
    {"Del", "Delete"},
    {"Delete", "Delete"},
    {"Home", "Home"},
    {"End", "End"},
    {"Left", "Left"},
    {"Up", "Up"},
    {"Right", "Right"},
    {"Down", "Down"},
    {"PgUp", "Page_Up"},
    {"PageUp", "Page_Up"},
    {"Page Up", "Page_Up"},
    {"PgDown", "Page_Down"},
    {"PageDown", "Page_Down"},
    {"Page Down", "Page_Down"},
    {"PgDn", "Page_Down"},
    {"Help", "Help"},
    {"Space", "space"},
    {"PgDwn", "Page_Down"},
}};

/// The text's only character; absent when there are none or several, or it is a control character.
std::optional<char32_t> onlyCharacter(std::string_view text) {
    if (text.empty()) {
        return std::nullopt;
    }
    std::size_t position = 0;
    const char32_t character = nextCodePoint(text, position);
    if (position != text.size() || character == illFormedSequence || character < 0x20 || character == 0x7F) {
        return std::nullopt;
    }
    return character;
}

char32_t lowercased(char32_t character) {
    return static_cast<char32_t>(u_tolower(static_cast<UChar32>(character)));
}

std::optional<char32_t> characterOfKeysym(xkb_keysym_t keysym) {
    const auto* const found = std::find_if(charactersOfKeysyms.begin(), charactersOfKeysyms.end(),
                                           [&](const auto& entry) { return entry.first == keysym; });
    if (found != charactersOfKeysyms.end()) {
        return found->second;
    }
    if (keysym >= XKB_KEY_F1 && keysym <= XKB_KEY_F35) {
        return 0xF704 + (keysym - XKB_KEY_F1);
    }
    const char32_t character = xkb_keysym_to_utf32(keysym);
    return character < 0x20 || character == 0x7F ? std::nullopt : std::optional(lowercased(character));
}

} // namespace

std::optional<char32_t> characterOfKeysymName(std::string_view name) {
    if (const auto character = onlyCharacter(name)) {
        return lowercased(*character);
    }
    return characterOfKeysym(xkb_keysym_from_name(std::string(name).c_str(), XKB_KEYSYM_NO_FLAGS));
}

std::optional<char32_t> characterOfQtKeyName(std::string_view name) {
    if (const auto character = onlyCharacter(name)) {
        return lowercased(*character);
    }
    const auto* const found = std::find_if(keysymNamesOfQtNames.begin(), keysymNamesOfQtNames.end(),
                                           [&](const auto& entry) { return entry.first == name; });
    if (found != keysymNamesOfQtNames.end()) {
        return characterOfKeysymName(found->second);
    }
    // Qt and X use the same names for function keys; no other name of several letters is a Qt key with a
    // character.
    return name.substr(0, 1) == "F" ? characterOfKeysymName(name) : std::nullopt;
}

} // namespace tovrel
