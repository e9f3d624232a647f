#include "palette/CommandIcon.h"

#include <gtest/gtest.h>

#include "commands/CommandSamples.h"

namespace tovrel {
namespace {

using samples::menuCommand;

TEST(CommandIconTest, TheFirstFittingRuleDecides) {
    struct Case {
        std::vector<Text> path;
        CommandIcon icon;
    };
    const std::vector<Case> cases{
        {{"Edit", "Copy"}, {"doc.on.doc", colour_pairs::blue}},
        {{"Edit", "Execute"}, {"scissors", colour_pairs::red}},
        {{"Edit", "Paste and Match Style"}, {"clipboard", colour_pairs::green}},
        {{"File", "Close Tab"}, {"xmark.circle", colour_pairs::red}},
        {{"File", "QUIT"}, {"xmark.circle", colour_pairs::red}},
        {{"File", "Print…"}, {"printer", colour_pairs::purple}},
        {{"Bookmarks", "Save Bookmark"}, {"square.and.arrow.down", colour_pairs::blue}},
        {{"Tools", "Downloads"}, {"square.and.arrow.down", colour_pairs::blue}},
        {{"File", "Import"}, {"folder", colour_pairs::amber}},
        {{"History", "Back"}, {"arrow.left", colour_pairs::blue}},
        {{"History", "Forward"}, {"arrow.right", colour_pairs::blue}},
        {{"Talk", "New Chat"}, {"bubble.left.and.bubble.right", colour_pairs::purple}},
        {{"View", "Developer Tools"}, {"hammer", colour_pairs::purple}},
        {{"Edit", "Preferences"}, {"gearshape", colour_pairs::taupe}},
        {{"Bookmarks", "Show All Tabs"}, {"bookmark", colour_pairs::amber}},
        {{"View", "Show All Tabs"}, {"rectangle.on.rectangle", colour_pairs::slate}},
        {{"Tabs", "Next"}, {"rectangle.on.rectangle", colour_pairs::slate}},
        {{"Help", "About"}, {"questionmark.circle", colour_pairs::amber}},
        {{"View", "Zoom In"}, {"eye", colour_pairs::green}},
        {{"Window", "Minimize"}, {"macwindow", colour_pairs::slate}},
        {{"Edit", "Undo"}, {"pencil", colour_pairs::blue}},
        {{"File", "New"}, {"doc.text", colour_pairs::taupe}},
        {{"Format", "File"}, {"command", colour_pairs::teal}}, // only the first title is the menu
    };
    const TextServices services("en_US");
    for (const Case& each : cases) {
        EXPECT_EQ(commandIcon(menuCommand(each.path), services), each.icon) << joined(each.path, " > ");
    }
}

TEST(CommandIconTest, CustomCommandsAndCommandsWithoutPath) {
    const TextServices services("en_US");
    EXPECT_EQ(commandIcon(samples::shellCommand("Copy link", "true"), services),
              (CommandIcon{"sparkles", colour_pairs::purple}));
    Command command = menuCommand({"File", "New"});
    command.menuPath.clear();
    command.subtitle = "View › Zoom";
    EXPECT_EQ(commandIcon(command, services).symbol, "eye");
    command.subtitle.reset();
    EXPECT_EQ(commandIcon(command, services).symbol, "command");
}

TEST(CommandIconTest, WordsAreComparedInTheLettersOfTheLocale) {
    const Command command = menuCommand({"Format", "PRINT"});
    EXPECT_EQ(commandIcon(command, TextServices("en_US")).symbol, "printer");
    EXPECT_EQ(commandIcon(command, TextServices("tr_TR")).symbol, "command"); // prınt
}

} // namespace
} // namespace tovrel
