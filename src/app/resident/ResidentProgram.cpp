#include "app/resident/ResidentProgram.h"

#include <QApplication>
#include <filesystem>
#include <utility>

#include "KeyboardShortcuts/HotKeyErrorText.h"
#include "app/coordinator/ShortcutForPeople.h"
#include "app/desktop/PreferencesFile.h"
#include "app/resident/QtConnection.h"
#include "app/seat/DBusNames.h"
#include "app/seat/ResidentClient.h"
#include "app/terminal/ErrorLine.h"
#include "windows/QtWindowSystem.h"

namespace tovrel {
namespace {

bool fileExists(const Text& path) {
    std::error_code error;
    return std::filesystem::exists(path.utf8(), error);
}

} // namespace

ResidentProgram::ResidentProgram(const command_line::Invocation& invocation, const Console& console,
                                 const std::optional<ResidentSeat>& seat, Desktop& desktop)
    : console_(&console), desktop_(&desktop), storedPreferences_(preferencesFile(invocation.preferencesFile),
                                                                 {}, SqlitePreferencesDomain::interactive),
      preferences_(storedPreferences_), textServices_(invocation.localeIdentifier), seams_(makeSeams()),
      translations_(invocation.localeIdentifier), userInterface_(views_, *seams_.windowSystem),
      notifications_(BusPresence::connectionName()),
      accessibilityOffer_(desktop.accessibilitySwitch(), userInterface_, localizedByQt()),
      shortcuts_(preferences_, *seams_.hotKeys, userInterface_, textServices_, console.output),
      settingsWindowController_([this] { return makeSettingsWindow(); }),
      coordinator_(AppCoordinator::make(platform())),
      service_(coordinator_,
               {.shortcut = [this] { return coordinator_->toggleShortcutForPeople(); },
                .problem = [this] { return shortcutProblem(); }},
               [] { QApplication::quit(); }),
      busPresence_(service_) {
    if (seat) {
        seatServer_.emplace(*seat, service_);
    }
    for (const WatchedEvents& events : seams_.events) {
        eventWatches_.emplace_back(events);
    }
}

bool ResidentProgram::start() {
    switch (busPresence_.appear()) {
    case BusPresence::Outcome::hasName:
        break;
    case BusPresence::Outcome::waitsForName:
        if (isShownOverSessionBus()) {
            return false;
        }
        break;
    case BusPresence::Outcome::noBus:
        printErrorLine(console_->error, "there is no session bus: other programs cannot reach this one");
        break;
    }
    coordinator_->start();
    queue_.post([weak = std::weak_ptr(coordinator_)] {
        if (const auto coordinator = weak.lock()) {
            coordinator->warmUp();
        }
    });
    return true;
}

Platform ResidentProgram::platform() {
    return {.accessibility = desktop_->accessibility(),
            .workspace = desktop_->workspace(),
            .hotKeyCenter = *seams_.hotKeys,
            .keyEventPoster = *seams_.keyPoster,
            .mainQueue = queue_,
            .processRunner = *seams_.processRunner,
            .userInterface = userInterface_,
            .notifications = notifications_,
            .preferences = preferences_,
            .shortcuts = shortcuts_,
            .textServices = textServices_,
            .ownBundleIdentifier = Text(dbus_names::service),
            .makePalettePanel =
                [this](PaletteViewContext context) {
                    auto panel =
                        std::make_unique<QtPalettePanel>(std::move(context), textServices_, views_,
                                                         *seams_.windowSystem, keyCodeFromScanCode());
                    panel_ = panel.get();
                    return panel;
                },
            .now = currentTime,
            .uptime = currentUptime,
            .openURL = [this](const Url& url) { openURL(url.text()); },
            .fileExists = fileExists,
            .localized = localizedByQt(),
            .settingsWindowController = settingsWindowController_};
}

ResidentSeams ResidentProgram::makeSeams() {
    ResidentSeams seams = desktop_->makeResidentSeams(
        queue_, [this] { return keyDestination(); }, connectionOfQt());
    if (!seams.windowSystem) {
        seams.windowSystem = std::make_unique<QtWindowSystem>();
    }
    return seams;
}

KeyCodeFromScanCode ResidentProgram::keyCodeFromScanCode() const {
    return [desktop = desktop_](std::uint32_t scanCode) { return desktop->keyCode(scanCode); };
}

KeyDestination ResidentProgram::keyDestination() const {
    if (panel_ == nullptr) {
        return {};
    }
    return {ownWindow(panel_->window()), panel_->isVisible()};
}

std::unique_ptr<SettingsWindow> ResidentProgram::makeSettingsWindow() {
    return std::make_unique<QtSettingsWindow>(
        QtSettingsWindow::Surroundings{.engine = views_,
                                       .windowSystem = *seams_.windowSystem,
                                       .makeRecorder = [this] { return makeRecorder(); },
                                       .workspace = desktop_->workspace(),
                                       .textServices = textServices_,
                                       .keyCodeFromScanCode = keyCodeFromScanCode(),
                                       .openURL = [this](const Text& url) { openURL(url); },
                                       .onMenuAction = [this](auto action) { performMenuAction(action); }});
}

std::unique_ptr<RecorderCocoa> ResidentProgram::makeRecorder() {
    return std::make_unique<RecorderCocoa>(
        RecorderSurroundings{.shortcuts = shortcuts_,
                             .hotKeyCenter = *seams_.hotKeys,
                             .userInterface = userInterface_,
                             .localized = localizedByQt(),
                             .textOf = [this](const Shortcut& shortcut) { return forPeople(shortcut); },
                             .menuItemTitle = [this](const Shortcut& shortcut) -> std::optional<Text> {
                                 const auto action = window_menu::actionOf(shortcut, characterForKeyCode());
                                 return action ? std::optional(window_menu::title(*action, localizedByQt()))
                                               : std::nullopt;
                             }},
        coordinator_->togglePalette());
}

void ResidentProgram::performMenuAction(window_menu::Action action) {
    switch (action) {
    case window_menu::Action::openSettings:
        coordinator_->showSettings();
        break;
    case window_menu::Action::closeWindow: // The caller has done it.
        break;
    case window_menu::Action::quit:
        userInterface_.terminate();
        break;
    }
}

void ResidentProgram::openURL(const Text& url) {
    if (url == Text(AccessibilityOffer::address)) {
        accessibilityOffer_.show();
    } else {
        desktop_->workspace().open(url);
    }
}

CharacterForKeyCode ResidentProgram::characterForKeyCode() {
    return [this](std::uint32_t keyCode) { return seams_.hotKeys->characterForKeyCode(keyCode); };
}

Text ResidentProgram::forPeople(const Shortcut& shortcut) {
    return shortcutForPeople(shortcut, characterForKeyCode(), textServices_, localizedByQt());
}

Text ResidentProgram::shortcutProblem() {
    const auto refusal = coordinator_->shortcutRefusal();
    return refusal ? hotKeyErrorText(*refusal, localizedByQt()) : Text();
}

} // namespace tovrel
