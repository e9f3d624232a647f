#include "palette/PaletteWindowController.h"

#include <gtest/gtest.h>

#include "palette/PalettePolicies.h"
#include "platform/memory/MemoryApplication.h"
#include "platform/memory/MemoryPalettePanel.h"
#include "platform/memory/MemoryPreferencesDomain.h"
#include "platform/memory/MemoryUserInterface.h"
#include "platform/memory/MemoryWorkspace.h"

namespace tovrel {
namespace {

Command menuCommand(const Text& title, std::optional<Text> shortcut, bool isEnabled = true) {
    Command command;
    command.id = "menu:org.editor:" + title.utf8();
    command.title = title;
    command.menuPath = {title};
    command.shortcut = std::move(shortcut);
    command.isEnabled = isEnabled;
    command.action = MenuAction{{title}};
    return command;
}

class PaletteWindowControllerTest : public testing::Test {
  protected:
    PaletteWindowControllerTest() {
        controller_.viewModel().updateCommands(
            {menuCommand("Paste", "⌘V", false), menuCommand("Paste Plain", "⌘V"), menuCommand("Quit", "⌘Q")},
            "Editor", std::nullopt);
    }

    void show() {
        controller_.positionWindow();
        controller_.startKeyboardMonitoring();
        controller_.showWindowAndMakeKey();
    }

    bool type(std::uint32_t keyCode, std::optional<Text> characters, ModifierFlags flags = 0) {
        return panel_->type({KeyEventType::keyDown, keyCode, std::move(characters), flags});
    }

    TextServices textServices_{"en"};
    MemoryPreferencesDomain preferences_;
    PaletteSettingsStore settings_{preferences_, "paletteSettings"};
    MemoryUserInterface userInterface_;
    MemoryWorkspace workspace_;
    MemoryPalettePanel* panel_ = nullptr; // owned by the controller
    std::function<void()> dismiss_;
    std::vector<std::string> executed_;
    PaletteWindowController controller_{
        {userInterface_, workspace_, settings_, textServices_, Text("org.tovrel.Tovrel"),
         [this](PaletteViewContext context) {
             dismiss_ = std::move(context.onDismiss);
             auto panel = std::make_unique<MemoryPalettePanel>();
             panel_ = panel.get();
             return panel;
         }},
        [this](const Command& command) { executed_.push_back(command.title.utf8()); }};
};

TEST_F(PaletteWindowControllerTest, KeysAreActedOnWhileThePanelIsShown) {
    show();
    EXPECT_TRUE(panel_->isKey());
    EXPECT_FALSE(type(1, "s"));
    EXPECT_TRUE(type(9, "v", modifier_flags::command));
    EXPECT_TRUE(type(125, std::nullopt));
    EXPECT_TRUE(type(36, "\r"));
    EXPECT_TRUE(type(7, "x", modifier_flags::command)) << "used up although no command has it";
    EXPECT_EQ(executed_, (std::vector<std::string>{"Paste Plain", "Quit"}));
    controller_.viewModel().setQuery("nothing like it");
    EXPECT_TRUE(type(36, "\r"));
    EXPECT_EQ(executed_.size(), 2U);
    EXPECT_TRUE(panel_->isVisible());
    EXPECT_TRUE(type(53, "\x1B"));
    EXPECT_FALSE(panel_->isVisible());
    EXPECT_FALSE(panel_->hasKeyHandler());
}

TEST_F(PaletteWindowControllerTest, EveryWayOfTurningToSomethingElseClosesThePalette) {
    const std::vector<std::function<void()>> ways{
        [&] { panel_->resignKey(); },
        [&] { userInterface_.resignActive(); },
        [&] { workspace_.bringToFront(std::make_shared<MemoryApplication>(2, "org.editor", std::nullopt)); },
        [&] { workspace_.bringToFront(std::make_shared<MemoryApplication>(2, std::nullopt, std::nullopt)); },
        [&] { workspace_.bringToFront(nullptr); },
        [&] { dismiss_(); },
        [&] { type(13, "w", modifier_flags::command); },
    };
    for (const auto& way : ways) {
        show();
        workspace_.bringToFront(std::make_shared<MemoryApplication>(1, "org.tovrel.Tovrel", std::nullopt));
        EXPECT_TRUE(panel_->isVisible()) << "its own activation changes nothing";
        way();
        EXPECT_FALSE(panel_->isVisible());
        EXPECT_FALSE(panel_->hasKeyHandler());
        panel_->resignKey(); // the window system reports this again after closing
        controller_.close();
    }
    EXPECT_EQ(panel_->showings(), static_cast<int>(ways.size()));
}

TEST_F(PaletteWindowControllerTest, ThePanelIsCentredAboveTheMiddleOfTheMainScreen) {
    show();
    EXPECT_EQ(panel_->placement(), (PalettePlacement{std::nullopt, {380, 300}})) << "without a screen";
    const auto offsetOn = [&](const Screen& screen) {
        userInterface_.setMainScreen(screen);
        controller_.positionWindow();
        EXPECT_EQ(panel_->placement().screen, screen.identifier);
        return panel_->placement().offset;
    };
    EXPECT_EQ(offsetOn({"left", {1280, 700}}), (Point{300, 200}));
    // With less room, the search field at the top stays visible.
    EXPECT_EQ(offsetOn({"low", {960, 540}}), (Point{(960 - 680) / 2.0, 540 - 460}));
    EXPECT_EQ(offsetOn({"small", {400, 300}}), (Point{0, 300 - 460}));
}

TEST(PaletteDismissalPolicyTest, WithoutAnOwnIdentifierEveryActivationDismisses) {
    EXPECT_TRUE(PaletteDismissalPolicy::shouldDismiss("org.tovrel.Tovrel", std::nullopt));
    EXPECT_TRUE(PaletteDismissalPolicy::shouldDismiss(std::nullopt, std::nullopt));
}

} // namespace
} // namespace tovrel
