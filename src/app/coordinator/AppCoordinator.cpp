#include "app/coordinator/AppCoordinator.h"

#include <chrono>
#include <string>
#include <utility>

#include "app/coordinator/CommandFailureForPeople.h"
#include "app/coordinator/ShortcutForPeople.h"
#include "app/coordinator/StorageKeys.h"
#include "commands/CommandIndex.h"
#include "hotkeys/PaletteHotKeyRoutingPolicy.h"
#include "menus/MenuCommandPerformer.h"
#include "model/VirtualKeyCodes.h"
#include "support/Fatal.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

/// The time after which preferences that could not be stored are tried again.
constexpr auto beforeNextAttempt = 5s;

/// The time that the application needs to come to the front again before its menu item is pressed.
constexpr auto beforePress = 200ms;

constexpr Shortcut defaultToggleShortcut{key_codes::p, carbon_modifiers::command | carbon_modifiers::shift};

/// The kind's name in the question before such a command runs; absent when no question is asked.
std::optional<Text> confirmationLabel(CustomCommandKind kind) {
    switch (kind) {
    case CustomCommandKind::shellScript:
        return "shell";
    case CustomCommandKind::appleScript:
        return "AppleScript";
    case CustomCommandKind::shortcut:
        return "Shortcut";
    case CustomCommandKind::open:
        return std::nullopt;
    }
    noSuchValue("CustomCommandKind");
}

} // namespace

std::shared_ptr<AppCoordinator> AppCoordinator::make(Platform platform) {
    return std::make_shared<AppCoordinator>(Key(), std::move(platform));
}

AppCoordinator::AppCoordinator(Key /*key*/, Platform platform)
    : platform_(std::move(platform)),
      togglePalette_(platform_.shortcuts.makeName("togglePalette", defaultToggleShortcut)),
      hotKeyManager_(HotKeyManager::make(platform_.shortcuts, togglePalette_, platform_.keyEventPoster,
                                         platform_.mainQueue)),
      accessibilityPermissionService_(platform_.accessibility),
      frontmostAppMonitor_(platform_.workspace, FrontmostAppResolver{platform_.ownBundleIdentifier}),
      menuScanner_(platform_.accessibility, platform_.textServices),
      commandExecutor_(platform_.processRunner, platform_.mainQueue, platform_.openURL, platform_.fileExists),
      commandHistoryStore_(platform_.preferences, storage_keys::commandHistory, platform_.textServices),
      customCommandStore_(platform_.preferences, storage_keys::customCommands),
      rulesStore_(platform_.preferences, platform_.textServices),
      paletteSettingsStore_(platform_.preferences, storage_keys::paletteSettings),
      firstLaunchOnboardingStore_(platform_.preferences, storage_keys::accessibilityOnboardingShown),
      notificationSettingsStore_(platform_.preferences, storage_keys::commandFailureNotifications) {}

void AppCoordinator::start() {
    addStatusItem();
    frontmostAppMonitor_.start();
    hotKeyManager_->onTogglePalette = [weak = weak_from_this()] {
        if (const auto coordinator = weak.lock()) {
            coordinator->handleTogglePalette();
        }
    };
    const std::weak_ptr<HotKeyManager> weakManager = hotKeyManager_;
    platform_.shortcuts.onKeyDown(togglePalette_, [weakManager] {
        if (const auto manager = weakManager.lock()) {
            manager->handleKeyDown();
        }
    });
    platform_.shortcuts.onKeyUp(togglePalette_, [weakManager] {
        if (const auto manager = weakManager.lock()) {
            manager->handleKeyUp();
        }
    });
    storeDefaultShortcut();
    addShortcutNotice();
    showAccessibilityOnboardingIfNeeded();
}

void AppCoordinator::warmUp() {
    paletteWindowController();
    // The transliteration rules of each script are loaded at its first use.
    for (const char* sample : {"Ж", "あ", "ア", "漢", "한", "α", "א", "ع"}) {
        static_cast<void>(platform_.textServices.transliteratedToLatin(sample));
    }
}

void AppCoordinator::handleTogglePalette() {
    platform_.userInterface.closeMenu();
    if (isAsking()) {
        return;
    }
    if (shouldForwardToggleShortcut()) {
        paletteWindowController().close();
        forwardToggleShortcut();
        return;
    }
    std::vector<Command> commands = refreshCommands();
    PaletteTarget target = paletteTarget();
    platform_.userInterface.activate();
    PaletteWindowController& controller = paletteWindowController();
    if (controller.isVisible() && controller.presentedTargetIdentifier == target.identifier) {
        controller.close();
        return;
    }
    controller.presentedTargetIdentifier = std::move(target.identifier);
    controller.viewModel().updateCommands(std::move(commands), std::move(target.name),
                                          std::move(target.icon));
    controller.positionWindow();
    controller.startKeyboardMonitoring();
    controller.showWindowAndMakeKey();
    controller.viewModel().requestSearchFocus();
}

void AppCoordinator::showPalette() {
    if (!isPaletteVisible()) {
        handleTogglePalette();
    }
}

std::vector<Command> AppCoordinator::refreshCommands() {
    if (!accessibilityPermissionService_.isTrusted()) {
        clearTarget();
        return {AccessibilityPermissionService::makeAccessibilityPermissionCommand()};
    }
    std::shared_ptr<RunningApplication> target = frontmostAppMonitor_.resolveTargetApplication();
    const std::optional<Text> bundleID = target ? target->bundleIdentifier() : std::nullopt;
    if (!target || (bundleID && rulesStore_.behavior(*bundleID) == AppBehaviorRule::disabled)) {
        clearTarget();
        return {};
    }
    currentApplication_ = std::move(target);
    currentMenuItems_ = menuItems(currentApplication_);
    return CommandIndex::buildCommands(currentMenuItems_, customCommandStore_.customCommands(), bundleID,
                                       rulesStore_.menuBlacklistRules(), rulesStore_.menuCommandAliasRules(),
                                       commandHistoryStore_);
}

void AppCoordinator::execute(const Command& command) {
    if (isAsking()) {
        return;
    }
    if (const auto* custom = std::get_if<CustomCommand>(&command.action)) {
        executeCustom(command, *custom);
    } else {
        executeMenu(command, std::get<MenuAction>(command.action));
    }
}

bool AppCoordinator::shouldForwardToggleShortcut() {
    if (!accessibilityPermissionService_.isTrusted()) {
        return false;
    }
    const std::shared_ptr<RunningApplication> target = frontmostAppMonitor_.resolveTargetApplication();
    const std::optional<Text> bundleID = target ? target->bundleIdentifier() : std::nullopt;
    return bundleID && PaletteHotKeyRoutingPolicy::shouldForwardToggleShortcut(
                           true, bundleID, rulesStore_.behavior(*bundleID));
}

void AppCoordinator::forwardToggleShortcut() {
    if (hotKeyManager_->canForwardToggleShortcut()) {
        hotKeyManager_->forwardToggleShortcut();
        return;
    }
    // The palette stays closed, because the user wants none here; the beep says that the key has no effect.
    platform_.userInterface.beep();
    const std::shared_ptr<RunningApplication> target = frontmostAppMonitor_.resolveTargetApplication();
    const std::optional<Text> bundleID = target ? target->bundleIdentifier() : std::nullopt;
    if (bundleID && toldOfLostShortcut_.insert(*bundleID).second) {
        const LocalizedString& localized = platform_.localized;
        platform_.notifications.show(
            localized("KeyboardShortcuts", "Tovrel is disabled in this app"),
            filled(
                localized("KeyboardShortcuts",
                          "The app does not receive %@ either: on this desktop no program can pass it on."),
                toggleShortcutForPeople()));
    }
}

AppCoordinator::PaletteTarget AppCoordinator::paletteTarget() const {
    if (!currentApplication_) {
        return {};
    }
    const std::optional<Text> bundleID = currentApplication_->bundleIdentifier();
    const std::optional<Text> name = currentApplication_->localizedName();
    return {.name = name ? name : bundleID,
            .icon = currentApplication_->icon(),
            .identifier = Text((bundleID ? bundleID->utf8() : "unknown") + ":" +
                               std::to_string(currentApplication_->processIdentifier()))};
}

PaletteWindowController& AppCoordinator::paletteWindowController() {
    if (!paletteWindowController_) {
        paletteWindowController_ = std::make_unique<PaletteWindowController>(
            PaletteSurroundings{.userInterface = platform_.userInterface,
                                .workspace = platform_.workspace,
                                .settingsStore = paletteSettingsStore_,
                                .textServices = platform_.textServices,
                                .ownBundleIdentifier = platform_.ownBundleIdentifier,
                                .makePanel = platform_.makePalettePanel},
            [weak = weak_from_this()](const Command& command) {
                if (const auto coordinator = weak.lock()) {
                    coordinator->execute(command);
                }
            });
    }
    return *paletteWindowController_;
}

void AppCoordinator::clearTarget() {
    currentApplication_ = nullptr;
    currentMenuItems_.clear();
}

std::vector<ScannedMenuItem>
AppCoordinator::menuItems(const std::shared_ptr<RunningApplication>& application) {
    if (auto cached = menuCache_.cachedItems(MenuCacheKey::of(*application), platform_.uptime())) {
        return *std::move(cached);
    }
    std::vector<ScannedMenuItem> items = menuScanner_.scan(*application);
    menuCache_.store(application, items, platform_.uptime());
    return items;
}

void AppCoordinator::executeCustom(const Command& command, const CustomCommand& custom) {
    if (confirmCustomCommand(custom)) {
        // The history counts uses, not successes.
        commandExecutor_.execute(
            custom, [weak = weak_from_this(), title = custom.title](const CommandExecutionResult& result) {
                if (const auto coordinator = weak.lock()) {
                    coordinator->tellOfFailure(title, result);
                }
            });
        commandHistoryStore_.recordUse(command.id, platform_.now());
    }
    paletteWindowController().close();
}

void AppCoordinator::tellOfFailure(const Text& title, const CommandExecutionResult& result) {
    const auto failure = commandFailureForPeople(result, platform_.localized);
    if (failure && notificationSettingsStore_.commandFailures()) {
        platform_.notifications.show(platform_.localized("CommandFailure", "Custom command failed"),
                                     joined({title, *failure}, "\n"));
    }
}

void AppCoordinator::executeMenu(const Command& command, const MenuAction& action) {
    const ScannedMenuItem* found = MenuCommandPerformer::findItem(action.path, currentMenuItems_);
    if (found == nullptr) {
        paletteWindowController().close();
        return;
    }
    const ScannedMenuItem item = *found; // the tree may have been replaced when the press comes
    paletteWindowController().close();
    if (currentApplication_) {
        platform_.workspace.activate(*currentApplication_);
    }
    platform_.mainQueue.postAfter(
        beforePress, [item] { MenuCommandPerformer::perform(item, MenuCommandPerformer::pressMenuItem); });
    commandHistoryStore_.recordUse(command.id, platform_.now());
}

bool AppCoordinator::confirmCustomCommand(const CustomCommand& command) {
    const std::optional<Text> label = confirmationLabel(command.kind);
    if (!label) {
        return true;
    }
    const LocalizedString& localized = platform_.localized;
    const AlertAnswer answer = platform_.userInterface.runAlert(
        {.messageText = filled(localized("Confirmation", "Run “%@”?"), command.title),
         .informativeText =
             filled(localized("Confirmation", "This %@ command can run actions on your Mac."), *label),
         .firstButton = localized("Confirmation", "Run"),
         .secondButton = localized("Confirmation", "Cancel")});
    return answer == AlertAnswer::firstButton;
}

void AppCoordinator::addStatusItem() {
    const auto& localized = platform_.localized;
    statusItem_ = platform_.userInterface.makeStatusItem(
        {.imageName = "MenuBarIcon",
         .toolTip = "Tovrel",
         .menu = {
             statusMenuItem(localized("StatusMenu", "Open Palette"), std::nullopt, "magnifyingglass",
                            &AppCoordinator::handleTogglePalette),
             statusMenuItem(localized("StatusMenu", "Settings…"), ",", "gearshape",
                            &AppCoordinator::showSettings),
             StatusMenuItem(),
             statusMenuItem(localized("StatusMenu", "Quit Tovrel"), "q", "power", &AppCoordinator::quit)}});
}

void AppCoordinator::addShortcutNotice() {
    shortcutNotice_ = std::make_unique<ShortcutNotice>(
        ShortcutNotice::Surroundings{
            .shortcuts = platform_.shortcuts,
            .notifications = platform_.notifications,
            .localized = platform_.localized,
            .textOf = [this](const Shortcut& shortcut) { return forPeople(shortcut); },
            .setToolTip =
                [this](const Text& toolTip) {
                    if (statusItem_) {
                        statusItem_->setToolTip(toolTip);
                    }
                }},
        togglePalette_);
}

Text AppCoordinator::forPeople(const Shortcut& shortcut) const {
    const auto character = [&center = platform_.hotKeyCenter](std::uint32_t keyCode) {
        return center.characterForKeyCode(keyCode);
    };
    return shortcutForPeople(shortcut, character, platform_.textServices, platform_.localized);
}

Text AppCoordinator::toggleShortcutForPeople() const {
    if (auto trigger = platform_.shortcuts.desktopTrigger(togglePalette_)) {
        return *std::move(trigger);
    }
    const std::optional<Shortcut> shortcut = toggleShortcut();
    return shortcut ? forPeople(*shortcut) : Text();
}

bool AppCoordinator::isAsking() {
    const bool isAsking = platform_.userInterface.isAlertOpen();
    if (isAsking) {
        platform_.userInterface.activate();
    }
    return isAsking;
}

StatusMenuItem AppCoordinator::statusMenuItem(Text title, std::optional<Text> keyEquivalent, Text symbol,
                                              void (AppCoordinator::*action)()) {
    return {.title = std::move(title),
            .keyEquivalent = std::move(keyEquivalent),
            .symbol = std::move(symbol),
            .action = [weak = weak_from_this(), action] {
                if (const auto coordinator = weak.lock()) {
                    (*coordinator.*action)();
                }
            }};
}

void AppCoordinator::quit() {
    platform_.userInterface.terminate();
}

void AppCoordinator::showSettings() {
    if (isAsking()) {
        return;
    }
    platform_.shortcuts.retryRefused();
    const std::shared_ptr<RunningApplication> target = frontmostAppMonitor_.resolveTargetApplication();
    // The settings see the application as it is now.
    auto model = std::make_shared<SettingsViewModel>(
        SettingsStores{rulesStore_, commandHistoryStore_, customCommandStore_, paletteSettingsStore_,
                       notificationSettingsStore_, platform_.preferences.unstoredChange()},
        SettingsProviders{
            .currentApplication = [context = currentApplicationContext(target.get())] { return context; },
            .menuItems = [items = settingsMenuItems(target)] { return items; },
            .accessibilityPermission = [&accessibility =
                                            platform_.accessibility] { return accessibility.isTrusted(); }});
    platform_.userInterface.activate();
    platform_.settingsWindowController.show(std::move(model));
}

std::vector<ScannedMenuItem>
AppCoordinator::settingsMenuItems(const std::shared_ptr<RunningApplication>& application) {
    if (!application || !accessibilityPermissionService_.isTrusted()) {
        return {};
    }
    return menuItems(application);
}

void AppCoordinator::storeDefaultShortcut() {
    if (!platform_.shortcuts.storeDefaults()) {
        platform_.mainQueue.postAfter(beforeNextAttempt, [weak = weak_from_this()] {
            if (const auto coordinator = weak.lock()) {
                coordinator->storeDefaultShortcut();
            }
        });
    }
}

void AppCoordinator::showAccessibilityOnboardingIfNeeded() {
    if (accessibilityPermissionService_.isTrusted() ||
        firstLaunchOnboardingStore_.accessibilityOnboardingShown()) {
        return;
    }
    firstLaunchOnboardingStore_.markAccessibilityOnboardingShown();
    platform_.mainQueue.post([weak = weak_from_this()] {
        if (const auto coordinator = weak.lock()) {
            coordinator->showSettings();
        }
    });
}

} // namespace tovrel
