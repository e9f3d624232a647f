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

/// The platform as the program sees it. Every member outlives the coordinator and the queue's tasks.
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
    /// Lets only `make` call the constructor.
    class Key {
        friend AppCoordinator;
        Key() = default;
    };

  public:
    /// Returns a shared coordinator, because callbacks hold it weakly.
    [[nodiscard]] static std::shared_ptr<AppCoordinator> make(Platform platform);
    AppCoordinator(Key key, Platform platform);
    ~AppCoordinator() = default;
    AppCoordinator(const AppCoordinator&) = delete;
    AppCoordinator& operator=(const AppCoordinator&) = delete;

    /// Starts the status item, the monitor of the front application, the global shortcut and the onboarding.
    /// Called once.
    void start();

    /// Does work ahead that the first use would otherwise wait for.
    void warmUp();

    /// Opens the palette for the application in front, closes the palette when it is already open for that
    /// application, or forwards the shortcut to the application.
    void handleTogglePalette();

    /// Opens the palette unless it is open.
    void showPalette();

    /// Opens the settings for the application in front, or brings them forward.
    void showSettings();

    /// Determines the target and its menus again, and returns the commands to offer for it.
    std::vector<Command> refreshCommands();

    /// Runs a chosen command and closes the palette. A menu item is pressed 200 ms later, when its
    /// application is in front again. A custom command is confirmed first, unless it only opens something,
    /// and then runs independently: any number may run at once, and they outlive this program. A notification
    /// reports a failed one, unless the user wants none.
    void execute(const Command& command);

    [[nodiscard]] bool isPaletteVisible() const {
        return paletteWindowController_ && paletteWindowController_->isVisible();
    }

    /// The application for which the palette was last prepared; null when there was none.
    [[nodiscard]] const std::shared_ptr<RunningApplication>& currentApplication() const {
        return currentApplication_;
    }

    [[nodiscard]] bool isAccessibilityTrusted() const { return accessibilityPermissionService_.isTrusted(); }

    /// The global shortcut; absent when the user has none.
    [[nodiscard]] std::optional<Shortcut> toggleShortcut() const {
        return platform_.shortcuts.getShortcut(togglePalette_);
    }

    /// What the user presses for the palette: the desktop's own words if it has any, else the global shortcut
    /// spelled out. Empty without a global shortcut.
    [[nodiscard]] Text toggleShortcutForPeople() const;

    /// Why the last change of the preferences could not be stored; absent when it could.
    [[nodiscard]] const std::optional<PreferencesFailure>& unstoredChange() const {
        return platform_.preferences.unstoredChange().get();
    }

    /// Why the global shortcut does not work; absent while it does.
    [[nodiscard]] std::optional<HotKeyError> shortcutRefusal() const {
        return platform_.shortcuts.refusal(togglePalette_);
    }

    /// The name of the global shortcut.
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
    /// Whether a question of ours waits for its answer. If so, brings it forward; nothing else may be opened.
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
    std::set<Text> toldOfLostShortcut_; ///< Applications whose lost shortcut the user has been told about.
    std::shared_ptr<RunningApplication> currentApplication_;
    std::vector<ScannedMenuItem> currentMenuItems_;
    std::unique_ptr<PaletteWindowController> paletteWindowController_;
};

} // namespace tovrel
