#include "palette/PaletteViewModel.h"

#include <gtest/gtest.h>

#include "commands/CommandSamples.h"

namespace tovrel {
namespace {

using samples::menuCommand;

class PaletteViewModelTest : public testing::Test {
  protected:
    static std::vector<Command> fiveSaves() {
        return {menuCommand({"File", "Save"}, "⌘S"), menuCommand({"File", "Save As"}, "⌘⇧S"),
                menuCommand({"File", "Save All"}, "⌘⌥S"), menuCommand({"File", "Save Copy"}, "⌘⌃S"),
                menuCommand({"File", "Save Later"}, "⌃S")};
    }

    TextServices services_{"en_US"};
    PaletteViewModel model_{{}, services_};
};

TEST_F(PaletteViewModelTest, TheSelectionStopsAtBothEnds) {
    model_.moveSelection(1);
    EXPECT_EQ(model_.selectedIndex().get(), 0);
    EXPECT_EQ(model_.selectedCommand(), std::nullopt);
    model_.updateCommands(fiveSaves(), std::nullopt, std::nullopt);
    ASSERT_EQ(model_.results().get().size(), 5U);
    model_.moveSelection(-1);
    EXPECT_EQ(model_.selectedIndex().get(), 0);
    model_.moveSelection(100);
    EXPECT_EQ(model_.selectedIndex().get(), 4);
    EXPECT_EQ(model_.selectedCommand(), model_.results().get()[4].command);
    EXPECT_DEATH(model_.moveSelection(INT64_MAX), "overflow");
}

TEST_F(PaletteViewModelTest, ADifferentQueryGoesToTheFirstRowTheSameOneKeepsIt) {
    model_.updateCommands(fiveSaves(), std::nullopt, std::nullopt);
    model_.setQuery("sa");
    model_.moveSelection(3);
    model_.setQuery("sa");
    EXPECT_EQ(model_.selectedIndex().get(), 3);
    model_.setQuery("sav");
    EXPECT_EQ(model_.selectedIndex().get(), 0);
    model_.setQuery("nothing like it");
    EXPECT_TRUE(model_.results().get().empty());
    EXPECT_EQ(model_.selectedCommand(), std::nullopt);

    int notified = 0;
    const Subscription subscription = model_.results().subscribe([&] { ++notified; });
    model_.setQuery("nothing like it");
    EXPECT_EQ(notified, 1);
}

TEST_F(PaletteViewModelTest, ANewListStartsAnew) {
    model_.updateCommands(fiveSaves(), Text("Editor"), ApplicationIcon{"editor"});
    model_.setQuery("sav");
    model_.moveSelection(2);
    model_.updateCommands({menuCommand({"View", "Zoom"}, "⌘+")}, std::nullopt, std::nullopt);
    EXPECT_EQ(model_.query().get(), "");
    EXPECT_EQ(model_.selectedIndex().get(), 0);
    EXPECT_EQ(model_.results().get()[0].command.title, "Zoom");
    EXPECT_EQ(model_.appName().get(), std::nullopt);
    EXPECT_EQ(model_.appIcon().get(), std::nullopt);
}

TEST_F(PaletteViewModelTest, AShortcutFindsTheFirstEnabledCommandEvenIfNotShown) {
    std::vector<Command> commands{menuCommand({"Old", "Disabled"}, "⌘S")};
    commands.front().isEnabled = false;
    for (const Command& command : fiveSaves()) {
        commands.push_back(command);
    }
    model_.updateCommands(commands, std::nullopt, std::nullopt);
    model_.setQuery("later");
    EXPECT_EQ(model_.commandForShortcut("⌘S").value().title, "Save");
    EXPECT_EQ(model_.commandForShortcut("⌘s"), std::nullopt);
    EXPECT_EQ(model_.commandForShortcut(""), std::nullopt);
}

} // namespace
} // namespace tovrel
