#include "app/resident/ResidentProgram.h"

#include <QApplication>
#include <filesystem>
#include <utility>

#include "KeyboardShortcuts/HotKeyErrorText.h"
#include "app/coordinator/ShortcutForPeople.h"
#include "app/desktop/PreferencesFile.h"
#include "app/seat/DBusNames.h"
#include "app/seat/ResidentClient.h"
#include "app/terminal/ErrorLine.h"
#include "platform/linux/keyboard/VirtualKeyCodes.h"

namespace tovrel {
namespace {

/// X servers number the keys of the Linux input layer from 8 on.
std::optional<std::uint32_t> keyCodeFromEvdev(std::uint32_t evdev) {
    constexpr std::uint32_t firstKey = 8;
    return virtualKeyCodeOfX11(evdev + firstKey);
}

bool fileExists(const Text& path) {
    std::error_code error;
    return std::filesystem::exists(path.utf8(), error);
}

} // namespace

ResidentProgram::ResidentProgram(const command_line::Invocation& invocation, const Console& console,
                                 const std::optional<ResidentSeat>& seat)
    : console_(&console), storedPreferences_(preferencesFile(invocation.preferencesFile), {},
                                             SqlitePreferencesDomain::interactive),
      preferences_(storedPreferences_), textServices_(invocation.localeIdentifier),
      windows_(std::make_shared<X11Windows>()),
      accessibilityBus_(
          std::make_shared<AtspiBus>([windows = windows_] { return windows->accessibilityBusAddress(); })),
      workspace_(std::make_shared<LinuxWorkspace>(
          windows_, accessibilityBus_, std::make_shared<DesktopEntries>(DesktopEntries::ofEnvironment()))),
      accessibility_({accessibilityBus_, std::make_shared<SessionBus>()},
                     [windows = windows_](std::int32_t processIdentifier) {
                         return windows->windowsOf(processIdentifier);
                     }),
      toolkitAccessibility_(accessibilityBus_, workspace_),
      hotKeys_(queue_, [this] { return keyDestination(); }), processRunner_(queue_),
      translations_(invocation.localeIdentifier), userInterface_(views_, windowSystem()),
      notifications_(BusPresence::connectionName()),
      accessibilityOffer_(toolkitAccessibility_, userInterface_, localizedByQt()),
      shortcuts_(preferences_, hotKeys_, userInterface_, textServices_, console.output),
      settingsWindowController_([this] { return makeSettingsWindow(); }),
      coordinator_(std::make_shared<AppCoordinator>(platform())),
      service_(coordinator_,
               {.shortcut = [this] { return coordinator_->toggleShortcutForPeople(); },
                .problem = [this] { return shortcutProblem(); }},
               [] { QApplication::quit(); }),
      busPresence_(service_), activationEvents_(workspace_->activationEvents()),
      // That the user has come back to an application is older than the hot key pressed there.
      hotKeyEvents_(hotKeys_, &workspace_->activationEvents()), processEnds_(processRunner_) {
    if (seat) {
        seatServer_.emplace(*seat, service_);
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
    return {.accessibility = accessibility_,
            .workspace = *workspace_,
            .hotKeyCenter = hotKeys_,
            .keyEventPoster = keyPoster_,
            .mainQueue = queue_,
            .processRunner = processRunner_,
            .userInterface = userInterface_,
            .notifications = notifications_,
            .preferences = preferences_,
            .shortcuts = shortcuts_,
            .textServices = textServices_,
            .ownBundleIdentifier = Text(dbus_names::service),
            .makePalettePanel =
                [this](PaletteViewContext context) {
                    auto panel = std::make_unique<QtPalettePanel>(std::move(context), textServices_, views_,
                                                                  windowSystem(), keyCodeFromEvdev);
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

WindowSystem ResidentProgram::windowSystem() {
    return makeWindowSystem([this] { return hotKeys_.lastPressTime(); });
}

KeyDestination ResidentProgram::keyDestination() const {
    if (panel_ == nullptr) {
        return {};
    }
    return {static_cast<xcb_window_t>(panel_->window().winId()), panel_->isVisible()};
}

std::unique_ptr<SettingsWindow> ResidentProgram::makeSettingsWindow() {
    return std::make_unique<QtSettingsWindow>(
        QtSettingsWindow::Surroundings{.engine = views_,
                                       .windowSystem = windowSystem(),
                                       .makeRecorder = [this] { return makeRecorder(); },
                                       .workspace = *workspace_,
                                       .textServices = textServices_,
                                       .keyCodeFromEvdev = keyCodeFromEvdev,
                                       .openURL = [this](const Text& url) { openURL(url); },
                                       .onMenuAction = [this](auto action) { performMenuAction(action); }});
}

std::unique_ptr<RecorderCocoa> ResidentProgram::makeRecorder() {
    return std::make_unique<RecorderCocoa>(
        RecorderSurroundings{.shortcuts = shortcuts_,
                             .hotKeyCenter = hotKeys_,
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
    case window_menu::Action::closeWindow: // Done already.
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
        workspace_->open(url);
    }
}

CharacterForKeyCode ResidentProgram::characterForKeyCode() {
    return [this](std::uint32_t keyCode) { return hotKeys_.characterForKeyCode(keyCode); };
}

Text ResidentProgram::forPeople(const Shortcut& shortcut) {
    return shortcutForPeople(shortcut, characterForKeyCode(), textServices_, localizedByQt());
}

Text ResidentProgram::shortcutProblem() {
    const auto refusal = coordinator_->shortcutRefusal();
    return refusal ? hotKeyErrorText(*refusal, localizedByQt()) : Text();
}

} // namespace tovrel
