#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "app/coordinator/ShortcutNotice.h"
#include "execution/CommandExecutor.h"
#include "hotkeys/FrontmostAppMonitor.h"
#include "hotkeys/HotKeyManager.h"
#include "menus/AccessibilityPermissionService.h"
#include "menus/MenuCache.h"
#include "menus/MenuScanner.h"
#include "menus/ScannedMenuItem.h"
#include "model/Command.h"
#include "palette/PaletteWindowController.h"
#include "platform/Accessibility.h"
#include "platform/HotKeyCenter.h"
#include "platform/KeyEventPoster.h"
#include "platform/MainQueue.h"
#include "platform/ProcessRunner.h"
#include "platform/StatusItem.h"
#include "platform/UserInterface.h"
#include "platform/UserNotifications.h"
#include "platform/Workspace.h"
#include "settings/SettingsWindowController.h"
#include "stores/CommandHistoryStore.h"
#include "stores/CustomCommandStore.h"
#include "stores/FirstLaunchOnboardingStore.h"
#include "stores/LastKnownPreferences.h"
#include "stores/NotificationSettingsStore.h"
#include "stores/PaletteSettingsStore.h"
#include "stores/RulesStore.h"
#include "support/LocalizedString.h"
#include "support/PointInTime.h"
#include "support/TextServices.h"
#include "support/Uptime.h"

namespace tovrel {

/// The platform as the program sees it. Everything outlives the coordinator and the queue's tasks.
struct Platform {
    Accessibility& accessibility;
    Workspace& workspace;
    HotKeyCenter& hotKeyCenter;
    KeyEventPoster& keyEventPoster;
    MainQueue& mainQueue;
    ProcessRunner& processRunner;
    UserInterface& userInterface;
    UserNotifications& notifications;
    LastKnownPreferences& preferences;
    KeyboardShortcuts& shortcuts;
    const TextServices& textServices;
    std::optional<Text> ownBundleIdentifier;
    PalettePanelFactory makePalettePanel;
    std::function<PointInTime()> now;
    std::function<Uptime()> uptime;
    CommandExecutor::UrlOpener openURL;
    CommandExecutor::FileExists fileExists;
    LocalizedString localized;
    SettingsWindowController& settingsWindowController;
};

/// Owns every store and service, prepares the palette for the application in front when the global shortcut
/// fires, and runs the command that the user picks.
class AppCoordinator : public std::enable_shared_from_this<AppCoordinator> {
  public:
    /// Only made as shared: callbacks hold it weakly.
    explicit AppCoordinator(Platform platform);

    /// Status item, watch over the front application, global shortcut, onboarding. Called once.
    void start();

    /// Does ahead of time what the first use would wait for.
    void warmUp();

    /// Opens the palette for the application in front, closes it when it is already open for that, or lets
    /// the application have the shortcut.
    void handleTogglePalette();

    /// Opens the palette unless it is open.
    void showPalette();

    /// Opens the settings, or brings them forward, for the application in front as it is now.
    void showSettings();

    /// Takes the target and its menus anew; the commands to offer for it.
    std::vector<Command> refreshCommands();

    /// Runs a chosen command and closes the palette. A menu item is pressed 200 ms later, when its
    /// application is in front again; a custom command is confirmed first, unless it only opens something,
    /// and then goes on by itself: any number may run at once, and this program's end is not theirs. One that
    /// fails is told by a notification, unless the user wants none.
    void execute(const Command& command);

    [[nodiscard]] bool isPaletteVisible() const {
        return paletteWindowController_ && paletteWindowController_->isVisible();
    }

    /// The application the palette was last prepared for; null when there was none.
    [[nodiscard]] const std::shared_ptr<RunningApplication>& currentApplication() const {
        return currentApplication_;
    }

    [[nodiscard]] bool isAccessibilityTrusted() const { return accessibilityPermissionService_.isTrusted(); }

    /// The global shortcut; absent when the user has none.
    [[nodiscard]] std::optional<Shortcut> toggleShortcut() const {
        return platform_.shortcuts.getShortcut(togglePalette_);
    }

    /// What the user presses for the palette: the desktop's words where it has its own, else the global
    /// shortcut spelled out. Empty when the user has none.
    [[nodiscard]] Text toggleShortcutForPeople() const;

    /// Why the last change of the preferences could not be stored; absent when it could.
    [[nodiscard]] const std::optional<PreferencesFailure>& unstoredChange() const {
        return platform_.preferences.unstoredChange().get();
    }

    /// Why the global shortcut does not work; absent while it does.
    [[nodiscard]] std::optional<HotKeyError> shortcutRefusal() const {
        return platform_.shortcuts.refusal(togglePalette_);
    }

    /// By which the global shortcut is known.
    [[nodiscard]] const KeyboardShortcuts::Name& togglePalette() const { return togglePalette_; }

  private:
    struct PaletteTarget {
        std::optional<Text> name;
        std::optional<ApplicationIcon> icon;
        std::optional<Text> identifier;
    };

    [[nodiscard]] bool shouldForwardToggleShortcut();
    void forwardToggleShortcut();
    [[nodiscard]] Text forPeople(const Shortcut& shortcut) const;
    [[nodiscard]] PaletteTarget paletteTarget() const;
    PaletteWindowController& paletteWindowController();
    void clearTarget();
    [[nodiscard]] std::vector<ScannedMenuItem>
    menuItems(const std::shared_ptr<RunningApplication>& application);
    void executeCustom(const Command& command, const CustomCommand& custom);
    void tellOfFailure(const Text& title, const CommandExecutionResult& result);
    void executeMenu(const Command& command, const MenuAction& action);
    [[nodiscard]] bool confirmCustomCommand(const CustomCommand& command);
    void addStatusItem();
    void addShortcutNotice();
    /// Whether a question of ours waits for its answer. It comes forward, and nothing else is to be opened.
    [[nodiscard]] bool isAsking();
    [[nodiscard]] StatusMenuItem statusMenuItem(Text title, std::optional<Text> keyEquivalent, Text symbol,
                                                void (AppCoordinator::*action)());
    void quit();
    [[nodiscard]] std::vector<ScannedMenuItem>
    settingsMenuItems(const std::shared_ptr<RunningApplication>& application);
    void showAccessibilityOnboardingIfNeeded();
    void storeDefaultShortcut();

    Platform platform_;
    KeyboardShortcuts::Name togglePalette_;
    std::shared_ptr<HotKeyManager> hotKeyManager_;
    AccessibilityPermissionService accessibilityPermissionService_;
    FrontmostAppMonitor frontmostAppMonitor_;
    MenuScanner menuScanner_;
    CommandExecutor commandExecutor_;
    MenuCache menuCache_;
    CommandHistoryStore commandHistoryStore_;
    CustomCommandStore customCommandStore_;
    RulesStore rulesStore_;
    PaletteSettingsStore paletteSettingsStore_;
    FirstLaunchOnboardingStore firstLaunchOnboardingStore_;
    NotificationSettingsStore notificationSettingsStore_;
    std::unique_ptr<StatusItem> statusItem_;
    std::unique_ptr<ShortcutNotice> shortcutNotice_;
    std::set<Text> toldOfLostShortcut_; ///< Applications of which the user knows that they do not get it.
    std::shared_ptr<RunningApplication> currentApplication_;
    std::vector<ScannedMenuItem> currentMenuItems_;
    std::unique_ptr<PaletteWindowController> paletteWindowController_;
};

} // namespace tovrel
