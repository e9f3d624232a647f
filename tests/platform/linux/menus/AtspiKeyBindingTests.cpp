#include "platform/linux/menus/accessibility/AtspiKeyBinding.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tovrel {
namespace {

/// "character modifiers", or "none".
std::string shortcutIn(std::string_view binding, AtspiToolkit toolkit, std::string_view nameAfterTab = "") {
    const auto shortcut = menuShortcut(binding, toolkit, nameAfterTab);
    return shortcut ? shortcut->character.utf8() + " " + std::to_string(shortcut->modifiers) : "none";
}

struct Case {
    const char* binding;
    const char* expected;
};

void expectAll(AtspiToolkit toolkit, const std::vector<Case>& cases) {
    for (const Case& each : cases) {
        EXPECT_EQ(shortcutIn(each.binding, toolkit), each.expected) << each.binding;
    }
}

TEST(AtspiKeyBinding, Gtk) {
    expectAll(AtspiToolkit::gtk, {
                                     {"n;<Alt>f:n;<Primary>n", "n 0"},
                                     {"a;<Alt>f:a;<Primary><Shift>s", "s 1"},
                                     {";;<Primary>comma", ", 0"},
                                     {"d;<Alt>e:d;Delete", "\uF728 8"},
                                     {"l;<Alt>e:m:l;<Alt>Left", "\uF702 10"},
                                     {"f;<Alt>v:f;F11", "\uF70E 8"},
                                     {"n;<Alt>d:n;<Primary>Page_Down", "\uF72D 0"},
                                     {"u;<Alt>f:u;<Super>k", "k 12"},
                                     {"m;<Alt>f:m;<Primary><Shift><Alt>F4", "\uF707 3"},
                                     {"p;<Alt>f:p;<Primary>plus", "+ 0"},
                                     {"w;<Alt>e:w;<Primary>semicolon", "; 0"},
                                     {"q;<Alt>s:q;<Shift>q", "q 9"},
                                     {"2;<Alt>v:z:2;2", "2 8"},
                                     {"y;<Alt>ey;<Control>c", "c 0"},
                                     {";;<Primary>KP_Add", "+ 0"},
                                     {";;<Shift>F13", "\uF710 9"},
                                     {";;<Shift>ISO_Left_Tab", "\t 9"},
                                     {";;BackSpace", "\x7F 8"},
                                     {";;<Primary>Cyrillic_YA", "\u044F 0"},
                                     {"<Alt>f;<Alt>f;", "none"},
                                     {"m;<Alt>f:m;", "none"},
                                     {"", "none"},
                                     {";;<Primary>", "none"},
                                     {";;<Primary", "none"},
                                     {";;<Hyper>k", "none"},
                                     {";;XF86AudioPlay", "none"},
                                     {";;<Primary>NoSuchKey", "none"},
                                     {";;VoidSymbol", "none"},
                                 });
    expectAll(AtspiToolkit::gecko, {
                                       {"T;<Alt>F:T;<Control>T", "t 0"},
                                       {"R;<Alt>E:R;<Control><Shift>Z", "z 1"},
                                       {"I;<Alt>V:Z:I;<Control>+", "+ 0"},
                                       {";;<Control><Alt>X", "x 2"},
                                       {";;<Control>;", "; 0"},
                                       {";;", "none"},
                                       {"<Alt>F;", "none"},
                                   });
    EXPECT_EQ(shortcutIn("<VoidSymbol>", AtspiToolkit::other), "none");
}

TEST(AtspiKeyBinding, Qt) {
    expectAll(AtspiToolkit::qt, {
                                    {"Ctrl+S", "s 0"},
                                    {"Ctrl+Shift+S", "s 1"},
                                    {"Ctrl+,", ", 0"},
                                    {"Ctrl++", "+ 0"},
                                    {"Del", "\uF728 8"},
                                    {"F11", "\uF70E 8"},
                                    {"Alt+Left", "\uF702 10"},
                                    {"Ctrl+PgUp", "\uF72C 0"},
                                    {"Ctrl+Return", "\r 0"},
                                    {"Ctrl+Num+Enter", "\r 0"},
                                    {"Meta+K", "k 12"},
                                    {"Ctrl+Alt+P", "p 2"},
                                    {"Alt+F4", "\uF707 10"},
                                    {"Ctrl+Space", "  0"},
                                    {"+", "+ 8"},
                                    {"Media Play", "none"},
                                    {"Ctrl+K, Ctrl+C", "none"},
                                    {"Ctrl+,, Ctrl+C", "none"},
                                    {"Alt+F", "none"},
                                    {"Alt+n", "none"},
                                    {"Alt+ü", "none"},
                                    {"Alt+", "none"},
                                    {"Ctrl+", "none"},
                                    {"Strg+S", "none"},
                                    {"", "none"},
                                });
    // A shortcut in the name counts when there is no binding; Alt+T is no mnemonic there.
    EXPECT_EQ(shortcutIn("", AtspiToolkit::qt, "Ctrl+T"), "t 0");
    EXPECT_EQ(shortcutIn("Alt+T", AtspiToolkit::qt, "Alt+T"), "t 10");
    EXPECT_EQ(shortcutIn("Ctrl+U", AtspiToolkit::qt, "Ctrl+T"), "u 0");
    EXPECT_EQ(shortcutIn("", AtspiToolkit::gtk, "Ctrl+Page Down"), "\uF72D 0");
}

} // namespace
} // namespace tovrel
