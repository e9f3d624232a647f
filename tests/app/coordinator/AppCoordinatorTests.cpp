#include "app/coordinator/AppCoordinator.h"

#include <cerrno>
#include <sstream>

#include <gtest/gtest.h>

#include "platform/memory/ManualQueue.h"
#include "platform/memory/MemoryAccessibility.h"
#include "platform/memory/MemoryApplication.h"
#include "platform/memory/MemoryElement.h"
#include "platform/memory/MemoryHotKeyCenter.h"
#include "platform/memory/MemoryKeyEventPoster.h"
#include "platform/memory/MemoryPalettePanel.h"
#include "platform/memory/MemoryProcessRunner.h"
#include "platform/memory/MemorySettingsWindow.h"
#include "platform/memory/MemoryUserInterface.h"
#include "platform/memory/MemoryUserNotifications.h"
#include "platform/memory/MemoryWorkspace.h"
#include "stores/FailingPreferencesDomain.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

constexpr Shortcut standard{35, 768};
constexpr PointInTime start{800'000'000};

/// An application with one menu of the given items, each with a shortcut, so that an empty query lists it.
struct Application {
    Application(std::int32_t process, std::optional<Text> identifier, const std::vector<Text>& titles)
        : running(std::make_shared<MemoryApplication>(process, std::move(identifier), std::nullopt)) {
        std::vector<MemoryElement::Element> children;
        for (const Text& title : titles) {
            items.push_back(std::make_shared<MemoryElement>(MemoryElement::Attributes{
                {"AXTitle", title}, {"AXMenuItemCmdChar", Text(title.view().substr(0, 1))}}));
            children.push_back(items.back());
        }
        const auto menu = std::make_shared<MemoryElement>(
            MemoryElement::Attributes{{"AXTitle", Text("File")}, {"AXChildren", children}});
        const auto bar = std::make_shared<MemoryElement>(
            MemoryElement::Attributes{{"AXChildren", std::vector<MemoryElement::Element>{menu}}});
        root = std::make_shared<MemoryElement>(
            MemoryElement::Attributes{{"AXMenuBar", MemoryElement::Element(bar)}});
    }

    std::shared_ptr<MemoryApplication> running;
    std::vector<std::shared_ptr<MemoryElement>> items;
    std::shared_ptr<MemoryElement> root;
};

class AppCoordinatorTest : public testing::Test {
  protected:
    AppCoordinatorTest() {
        add(editor_);
        add(browser_);
        add(nameless_);
        workspace_.bringToFront(editor_.running);
        coordinator_->start();
        queue_.runDue();
    }

    void add(const Application& application) {
        accessibility_.setApplicationElement(application.running->processIdentifier(), application.root);
    }

    std::shared_ptr<AppCoordinator> makeCoordinator() {
        return AppCoordinator::make(
            Platform{.accessibility = accessibility_,
                     .workspace = workspace_,
                     .hotKeyCenter = center_,
                     .keyEventPoster = poster_,
                     .mainQueue = queue_,
                     .processRunner = runner_,
                     .userInterface = userInterface_,
                     .notifications = notifications_,
                     .preferences = preferences_,
                     .shortcuts = shortcuts_,
                     .textServices = textServices_,
                     .ownBundleIdentifier = Text("org.tovrel.Tovrel"),
                     .makePalettePanel =
                         [this](const PaletteViewContext& context) {
                             model_ = &context.viewModel;
                             auto panel = std::make_unique<MemoryPalettePanel>();
                             panel_ = panel.get();
                             return panel;
                         },
                     .now = [this] { return now_; },
                     .uptime = [this] { return uptime_; },
                     .openURL = [this](const Url& url) { opened_.push_back(url.text()); },
                     .fileExists = [](const Text&) { return false; },
                     .localized = [](const char*, const char* key) { return Text(key); },
                     .settingsWindowController = settings_});
    }

    void pressHotKey() {
        center_.press(standard);
        center_.release(standard);
    }

    std::vector<std::string> titles() const {
        std::vector<std::string> titles;
        for (std::size_t row = 0; row < model_->results().get().size(); ++row) {
            titles.push_back(model_->results().get()[row].command.title.utf8());
        }
        return titles;
    }

    bool returnKey() { return panel_->type({KeyEventType::keyDown, 36, "\r", 0}); }
    CommandHistoryStore history() { return {preferences_, "Tovrel.commandHistory", textServices_}; }

    static CustomCommand customCommand(const Text& title, CustomCommandKind kind) {
        CustomCommand command;
        command.id = title;
        command.title = title;
        command.kind = kind;
        command.payload = "payload";
        return command;
    }

    TextServices textServices_{"en"};
    MemoryAccessibility accessibility_;
    MemoryWorkspace workspace_;
    MemoryHotKeyCenter center_;
    MemoryKeyEventPoster poster_;
    ManualQueue queue_;
    MemoryProcessRunner runner_{queue_};
    MemoryUserInterface userInterface_;
    MemoryUserNotifications notifications_;
    FailingPreferencesDomain stored_;
    LastKnownPreferences preferences_{stored_};
    std::ostringstream output_;
    KeyboardShortcuts shortcuts_{preferences_, center_, userInterface_, textServices_, output_};
    PointInTime now_ = start;
    Uptime uptime_{};
    std::vector<Text> opened_;
    MemorySettingsWindow* settingsWindow_ = nullptr; // owned by the controller
    SettingsWindowController settings_{[this] {
        auto window = std::make_unique<MemorySettingsWindow>();
        settingsWindow_ = window.get();
        return window;
    }};
    MemoryPalettePanel* panel_ = nullptr; // owned by the coordinator, as the model is
    PaletteViewModel* model_ = nullptr;
    Application editor_{10, "org.editor", {"Open", "Save"}};
    Application browser_{20, "org.browser", {"Reload"}};
    Application nameless_{30, std::nullopt, {"Turn"}};
    std::shared_ptr<AppCoordinator> coordinator_ = makeCoordinator();
};

using Titles = std::vector<std::string>;
using Actions = std::vector<std::string>;

TEST_F(AppCoordinatorTest, TheHotKeyOpensAndClosesThePalette) {
    pressHotKey();
    ASSERT_TRUE(panel_->isVisible());
    EXPECT_EQ(titles(), (Titles{"Open", "Save"}));
    EXPECT_EQ(model_->appName().get(), Text("org.editor")) << "the identifier, as it has no name";
    model_->setQuery("sav");
    pressHotKey();
    EXPECT_FALSE(panel_->isVisible());
    pressHotKey();
    EXPECT_EQ(model_->query().get(), "");
    EXPECT_EQ(panel_->showings(), 2);
    EXPECT_EQ(userInterface_.activations(), 3);
    for (int repeat = 0; repeat < 10; ++repeat) {
        center_.press(standard);
    }
    EXPECT_FALSE(panel_->isVisible()) << "holding the key is one press";
}

TEST_F(AppCoordinatorTest, AnotherApplicationTakesTheOpenPaletteOver) {
    pressHotKey();
    workspace_.bringToFront(std::make_shared<MemoryApplication>(1, "org.tovrel.Tovrel", std::nullopt));
    pressHotKey();
    EXPECT_FALSE(panel_->isVisible()) << "while this program is in front the target stays the editor";
    workspace_.bringToFront(browser_.running);
    pressHotKey();
    EXPECT_EQ(titles(), Titles{"Reload"});
    // A reported activation would have closed the palette.
    workspace_.bringToFrontUntold(nameless_.running);
    EXPECT_TRUE(panel_->isVisible());
    pressHotKey();
    EXPECT_TRUE(panel_->isVisible());
    EXPECT_EQ(titles(), Titles{"Turn"});
    EXPECT_EQ(coordinator_->currentApplication(), nameless_.running);
}

TEST_F(AppCoordinatorTest, AMenuCommandIsPressedOnceItsApplicationIsInFrontAgain) {
    pressHotKey();
    model_->setQuery("save");
    EXPECT_TRUE(returnKey());
    EXPECT_FALSE(panel_->isVisible());
    EXPECT_EQ(workspace_.activated(), std::vector<std::int32_t>{10});
    EXPECT_EQ(history().rankSignals("menu:org.editor:File/Save").usageCount, 1);
    queue_.advance(199ms);
    EXPECT_EQ(editor_.items[1]->performedActions(), Actions{});
    // A list that is prepared meanwhile for another application does not change which item is pressed.
    workspace_.bringToFront(browser_.running);
    pressHotKey();
    queue_.advance(1ms);
    EXPECT_EQ(editor_.items[1]->performedActions(), Actions{"AXPress"});
    EXPECT_EQ(editor_.items[0]->performedActions(), Actions{});
}

TEST_F(AppCoordinatorTest, ACommandThatIsGoneClosesThePaletteAndCountsForNothing) {
    pressHotKey();
    Command gone;
    gone.id = "menu:org.editor:File/Gone";
    gone.action = MenuAction{{"File", "Gone"}};
    coordinator_->execute(gone);
    EXPECT_FALSE(panel_->isVisible());
    queue_.advance(1s);
    EXPECT_EQ(history().entries().size(), 0U);
    EXPECT_TRUE(workspace_.activated().empty());
}

TEST_F(AppCoordinatorTest, MenusAreReadAgainAfterHalfAMinute) {
    pressHotKey();
    editor_.root->set("AXMenuBar", MemoryElement::Element(std::make_shared<MemoryElement>()));
    uptime_ += 30s;
    now_.secondsSinceReferenceDate -= 3600; // a clock set back makes nothing younger
    EXPECT_EQ(coordinator_->refreshCommands().size(), 2U);
    uptime_ += 1ms;
    EXPECT_EQ(coordinator_->refreshCommands().size(), 0U);
    EXPECT_EQ(coordinator_->currentApplication(), editor_.running);
}

TEST_F(AppCoordinatorTest, ADisabledApplicationReceivesTheShortcutItself) {
    pressHotKey();
    RulesStore(preferences_, textServices_).setBehavior(AppBehaviorRule::disabled, "org.editor");
    center_.press(standard);
    EXPECT_FALSE(panel_->isVisible());
    queue_.advance(200ms);
    EXPECT_EQ(poster_.presses().size(), 1U);
    EXPECT_TRUE(coordinator_->refreshCommands().empty());
    EXPECT_EQ(coordinator_->currentApplication(), nullptr);

    workspace_.bringToFront(browser_.running);
    pressHotKey();
    EXPECT_TRUE(panel_->isVisible());
    RulesStore(preferences_, textServices_).setDefaultBehavior(AppBehaviorRule::disabled);
    workspace_.bringToFront(nameless_.running);
    pressHotKey();
    EXPECT_EQ(poster_.presses().size(), 1U) << "an application without an identifier has no rule";
}

TEST_F(AppCoordinatorTest, AShortcutThatCannotBeForwardedIsNotSwallowedSilently) {
    poster_.setCanPost(false);
    pressHotKey();
    RulesStore(preferences_, textServices_).setBehavior(AppBehaviorRule::disabled, "org.editor");
    center_.press(standard);
    center_.press(standard); // the key repeats
    EXPECT_FALSE(panel_->isVisible());
    EXPECT_EQ(center_.registrations(standard), 1U);
    EXPECT_EQ(userInterface_.beeps(), 1);
    const std::vector<MemoryUserNotifications::Notification> told{
        {"Tovrel is disabled in this app",
         "The app does not receive Ctrl+Shift+P either: on this desktop no program can pass it on."}};
    EXPECT_EQ(notifications_.shown(), told);
    center_.release(standard);
    pressHotKey();
    EXPECT_EQ(userInterface_.beeps(), 2);
    EXPECT_EQ(notifications_.shown(), told) << "once an application";
    queue_.advance(200ms);
    EXPECT_TRUE(poster_.presses().empty());

    workspace_.bringToFront(browser_.running);
    pressHotKey();
    EXPECT_TRUE(panel_->isVisible());
}

TEST_F(AppCoordinatorTest, WithoutATargetThePaletteIsEmptyAndTogglesAllTheSame) {
    workspace_.bringToFront(nullptr);
    CustomCommandStore(preferences_, "customCommands")
        .saveCustomCommand(customCommand("Mine", CustomCommandKind::open));
    pressHotKey();
    EXPECT_TRUE(panel_->isVisible());
    EXPECT_EQ(titles(), Titles{});
    pressHotKey();
    EXPECT_FALSE(panel_->isVisible());
}

TEST_F(AppCoordinatorTest, WithoutAccessibilityOnlyTheWayToAllowItIsOffered) {
    accessibility_.setTrusted(false);
    RulesStore(preferences_, textServices_).setBehavior(AppBehaviorRule::disabled, "org.editor");
    pressHotKey();
    EXPECT_EQ(titles(), Titles{"Open Accessibility Settings"});
    returnKey();
    EXPECT_EQ(userInterface_.alerts().size(), 0U);
    EXPECT_EQ(opened_, (std::vector<Text>{"x-apple.systempreferences:com.apple.preference."
                                          "security?Privacy_Accessibility"}));
    EXPECT_EQ(history().rankSignals("custom.accessibility").usageCount, 1);
    EXPECT_FALSE(panel_->isVisible());
}

TEST_F(AppCoordinatorTest, PreferencesThatCannotBeReadAreAsTheyWereKnownLast) {
    const Text mine = "Mine";
    CustomCommandStore(preferences_, "customCommands")
        .saveCustomCommand(customCommand(mine, CustomCommandKind::open));
    const auto openAndClose = [this] {
        pressHotKey();
        EXPECT_TRUE(panel_->isVisible());
        Titles shown = titles();
        pressHotKey();
        return shown;
    };
    const Titles known = openAndClose();
    stored_.refusesReads = true;
    EXPECT_EQ(openAndClose(), known);
    EXPECT_FALSE(coordinator_->unstoredChange());
    pressHotKey();
    model_->setQuery("mine");
    returnKey();
    EXPECT_EQ(coordinator_->unstoredChange(), stored_.failure) << "a use that could not be counted";
    stored_.refusesReads = false;
    EXPECT_TRUE(history().entries().empty());
    pressHotKey();
    model_->setQuery("mine");
    returnKey();
    EXPECT_EQ(history().entries().size(), 1U);
    EXPECT_FALSE(coordinator_->unstoredChange());
}

TEST_F(AppCoordinatorTest, TheDefaultShortcutIsStoredWhenThatBecomesPossible) {
    constexpr const char* key = "KeyboardShortcuts_togglePalette";
    coordinator_.reset();
    stored_.remove(key);
    stored_.refusesReads = true;
    coordinator_ = makeCoordinator();
    coordinator_->start();
    pressHotKey();
    EXPECT_TRUE(panel_->isVisible());
    queue_.advance(10s);
    stored_.refusesReads = false;
    EXPECT_EQ(stored_.value(key), std::nullopt);
    queue_.advance(5s);
    EXPECT_TRUE(stored_.value(key));
}

TEST_F(AppCoordinatorTest, CustomCommandsAreConfirmedRunAndCounted) {
    CustomCommandStore store(preferences_, "customCommands");
    store.saveCustomCommand(customCommand("Backup", CustomCommandKind::shellScript));
    pressHotKey();
    model_->setQuery("backup");
    userInterface_.setAnswer(AlertAnswer::secondButton);
    returnKey();
    EXPECT_FALSE(panel_->isVisible());
    EXPECT_TRUE(runner_.requests().empty());
    EXPECT_TRUE(history().entries().empty());
    ASSERT_EQ(userInterface_.alerts().size(), 1U);
    const Alert& alert = userInterface_.alerts().front();
    EXPECT_EQ(alert.messageText, "Run “Backup”?");
    EXPECT_EQ(alert.informativeText, "This shell command can run actions on your Mac.");
    EXPECT_EQ(std::pair(alert.firstButton, alert.secondButton), (std::pair<Text, Text>("Run", "Cancel")));

    userInterface_.setAnswer(AlertAnswer::firstButton);
    pressHotKey();
    model_->setQuery("backup");
    returnKey();
    EXPECT_EQ(runner_.requests().size(), 1U);
    EXPECT_EQ(history().rankSignals("custom:Backup").usageCount, 1) << "counted while it still runs";
    EXPECT_FALSE(panel_->isVisible());
}

TEST_F(AppCoordinatorTest, CustomCommandsThatFailAreToldByTheirTitles) {
    const auto execute = [&](const Text& title, CustomCommandKind kind) {
        Command command;
        command.id = Text("custom:" + title.utf8());
        command.action = customCommand(title, kind);
        coordinator_->execute(command);
        return runner_.requests().size() - 1;
    };
    const auto slow = execute("slow", CustomCommandKind::shellScript);
    const auto quick = execute("quick", CustomCommandKind::shellScript);
    const auto good = execute("good", CustomCommandKind::shortcut);
    runner_.end(quick, ProcessEnd{3, false});
    runner_.end(good, ProcessEnd{});
    queue_.runDue();
    runner_.end(slow, ProcessEnd{9, true});
    runner_.refuse(ENOENT);
    execute("script", CustomCommandKind::appleScript);
    execute("place", CustomCommandKind::open);
    Command nowhere;
    nowhere.action = customCommand("nowhere", CustomCommandKind::open);
    std::get<CustomCommand>(nowhere.action).payload = "";
    coordinator_->execute(nowhere);
    queue_.runDue();
    std::vector<Text> told;
    for (const auto& [title, body] : notifications_.shown()) {
        EXPECT_EQ(title, "Custom command failed");
        told.push_back(body);
    }
    EXPECT_EQ(told, (std::vector<Text>{
                        "quick\nIt ended with status 3.", "slow\nIt was ended by signal 9.",
                        "script\n/usr/bin/osascript could not be started: No such file or directory.",
                        "nowhere\nThere is nothing to open."}));

    NotificationSettingsStore(preferences_, "notifications.commandFailures").setCommandFailures(false);
    execute("script", CustomCommandKind::appleScript);
    queue_.runDue();
    EXPECT_EQ(notifications_.shown().size(), told.size());
}

TEST_F(AppCoordinatorTest, NothingIsOpenedOverAQuestionAndNoneIsAskedTwice) {
    CustomCommandStore store(preferences_, "customCommands");
    store.saveCustomCommand(customCommand("Backup", CustomCommandKind::shellScript));
    pressHotKey();
    model_->setQuery("backup");
    const Command command = model_->results().get()[0].command;
    const int activations = userInterface_.activations();
    userInterface_.duringAlert = [&] {
        pressHotKey();
        coordinator_->execute(command);
        coordinator_->showSettings();
        EXPECT_TRUE(panel_->isVisible());
    };
    returnKey();
    EXPECT_EQ(userInterface_.alerts().size(), 1U);
    EXPECT_EQ(runner_.requests().size(), 1U);
    EXPECT_EQ(settingsWindow_, nullptr);
    EXPECT_EQ(userInterface_.activations(), activations + 3) << "the question comes forward";
    EXPECT_FALSE(panel_->isVisible());
}

TEST_F(AppCoordinatorTest, TheHotKeyClosesTheStatusMenuBeforeItOpensThePalette) {
    userInterface_.setMenuOpen(true);
    center_.press(standard);
    EXPECT_TRUE(panel_->isVisible());
    EXPECT_EQ(center_.registrations(standard), 1U) << "the menu is closed";
    center_.rawKey({KeyEventType::keyUp, 35, std::nullopt, 0});
    pressHotKey();
    EXPECT_FALSE(panel_->isVisible()) << "the next press counts";
}

TEST_F(AppCoordinatorTest, AShortcutThatCannotBeHadIsToldOnceAndTriedAgain) {
    const auto names = std::vector{coordinator_->togglePalette()};
    EXPECT_EQ(userInterface_.statusItem()->toolTip, Text("Tovrel"));
    shortcuts_.disable(names);
    center_.refuse(standard);
    shortcuts_.enable(names);
    coordinator_->showSettings();
    EXPECT_EQ(coordinator_->shortcutRefusal(), HotKeyError::takenByAnother);
    const Text headline = "The shortcut Ctrl+Shift+P is not available";
    const Text reason = "Another program uses this shortcut.";
    EXPECT_EQ(notifications_.shown(),
              (std::vector<MemoryUserNotifications::Notification>{{headline, reason}}));
    EXPECT_EQ(userInterface_.statusItem()->toolTip,
              Text("Tovrel\n" + headline.utf8() + "\n" + reason.utf8()));
    center_.allow(standard);
    coordinator_->showSettings();
    EXPECT_EQ(coordinator_->shortcutRefusal(), std::nullopt);
    EXPECT_EQ(userInterface_.statusItem()->toolTip, Text("Tovrel"));
    pressHotKey();
    EXPECT_TRUE(panel_->isVisible());
    EXPECT_EQ(notifications_.shown().size(), 1U);
}

TEST_F(AppCoordinatorTest, ALateAnswerAboutTheShortcutIsToldWhenItComes) {
    const auto names = std::vector{coordinator_->togglePalette()};
    EXPECT_EQ(coordinator_->toggleShortcutForPeople(), Text("Ctrl+Shift+P"));
    center_.setAnswersLate(true);
    center_.refuse(standard);
    shortcuts_.disable(names);
    shortcuts_.enable(names);
    EXPECT_TRUE(notifications_.shown().empty());
    center_.answer();
    EXPECT_EQ(coordinator_->shortcutRefusal(), HotKeyError::takenByAnother);
    EXPECT_EQ(notifications_.shown().size(), 1U);
    center_.allow(standard);
    center_.setDesktopTrigger(standard, "Super+Space");
    coordinator_->showSettings();
    center_.answer();
    EXPECT_EQ(userInterface_.statusItem()->toolTip, Text("Tovrel"));
    EXPECT_EQ(coordinator_->toggleShortcutForPeople(), Text("Super+Space"));
    pressHotKey();
    EXPECT_TRUE(panel_->isVisible());
    shortcuts_.setShortcut(std::nullopt, names.front());
    EXPECT_EQ(coordinator_->toggleShortcutForPeople(), Text());
}

TEST_F(AppCoordinatorTest, CallbacksDoNothingOnceTheCoordinatorIsGone) {
    pressHotKey();
    model_->setQuery("save");
    returnKey();
    Command command;
    command.action = customCommand("Mine", CustomCommandKind::shellScript);
    coordinator_->execute(command);
    const auto open = userInterface_.statusItem()->menu.front().action;
    coordinator_.reset();
    runner_.end(0, ProcessEnd{1, false});
    EXPECT_TRUE(center_.press(standard)) << "still ours, to no effect";
    open();
    workspace_.bringToFront(browser_.running);
    queue_.advance(1s);
    EXPECT_EQ(editor_.items[1]->performedActions(), Actions{"AXPress"}) << "what was chosen is still done";
    EXPECT_TRUE(notifications_.shown().empty());
}

TEST_F(AppCoordinatorTest, TheOnboardingIsShownOnceAndOnlyWithoutAccessibility) {
    EXPECT_EQ(settingsWindow_, nullptr);
    accessibility_.setTrusted(false);
    for (int launch = 0; launch < 2; ++launch) {
        coordinator_ = makeCoordinator();
        coordinator_->start();
        queue_.runDue();
    }
    ASSERT_NE(settingsWindow_, nullptr);
    EXPECT_EQ(settingsWindow_->showings(), 1);
    EXPECT_FALSE(settingsWindow_->state().viewModel().isAccessibilityTrusted().get());
    EXPECT_EQ(preferences_.value("firstLaunchOnboarding.accessibilityOnboardingShown"),
              PreferenceValue(true));
}

TEST_F(AppCoordinatorTest, TheSettingsAreThoseOfTheApplicationInFrontWhenTheyWereOpened) {
    coordinator_->showSettings();
    ASSERT_NE(settingsWindow_, nullptr);
    EXPECT_EQ(userInterface_.activations(), 1);
    SettingsViewState& state = settingsWindow_->state();
    SettingsViewModel& model = state.viewModel();
    EXPECT_EQ(model.currentApplication().get(), (CurrentApplicationContext{"org.editor", "org.editor"}));
    ASSERT_EQ(model.menuRuleCandidates().get().size(), 3U) << "File, Open, Save";
    EXPECT_EQ(coordinator_->currentApplication(), nullptr) << "the palette's target is another matter";

    // Edits apply to the palette that is opened next.
    workspace_.bringToFront(browser_.running);
    model.reload();
    EXPECT_EQ(model.currentApplication().get()->bundleID, Text("org.editor"));
    model.addMenuBlacklistRule(model.menuRuleCandidates().get()[1].id, MenuBlacklistMode::excludeSelf);
    model.setShowCheckedStatus(false);
    workspace_.bringToFront(editor_.running);
    pressHotKey();
    EXPECT_EQ(titles(), Titles{"Save"});

    workspace_.bringToFront(nameless_.running);
    coordinator_->showSettings();
    EXPECT_EQ(settingsWindow_->showings(), 2);
    SettingsViewModel& second = settingsWindow_->state().viewModel();
    EXPECT_EQ(second.currentApplication().get(), std::nullopt);
    EXPECT_EQ(second.menuCommandSettings().get().size(), 1U) << "menus need no identifier";
    accessibility_.setTrusted(false);
    coordinator_->showSettings();
    EXPECT_TRUE(settingsWindow_->state().viewModel().menuCommandSettings().get().empty());
}

TEST_F(AppCoordinatorTest, TheStatusMenuOpensAndQuits) {
    const std::vector<StatusMenuItem>& menu = userInterface_.statusItem()->menu;
    ASSERT_EQ(menu.size(), 4U);
    menu.front().action();
    EXPECT_TRUE(panel_->isVisible());
    EXPECT_EQ(menu[1].keyEquivalent, Text(","));
    menu[1].action();
    EXPECT_NE(settingsWindow_, nullptr);
    EXPECT_EQ(menu[2].title, Text()) << "a separator";
    menu.back().action();
    EXPECT_TRUE(userInterface_.isTerminated());
}

} // namespace
} // namespace tovrel
