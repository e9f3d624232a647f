#pragma once

#include <memory>

#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "KeyboardShortcuts/RecorderCocoa.h"
#include "app/coordinator/AppCoordinator.h"
#include "app/resident/AccessibilityOffer.h"
#include "app/resident/BusPresence.h"
#include "app/resident/DBusService.h"
#include "app/resident/EventSourceWatch.h"
#include "app/resident/SeatServer.h"
#include "app/seat/ResidentSeat.h"
#include "app/terminal/Console.h"
#include "app/verbs/CommandLine.h"
#include "platform/linux/applications/DesktopEntries.h"
#include "platform/linux/applications/LinuxWorkspace.h"
#include "platform/linux/applications/PosixProcessRunner.h"
#include "platform/linux/applications/ToolkitAccessibility.h"
#include "platform/linux/menus/LinuxAccessibility.h"
#include "platform/linux/menus/accessibility/AtspiBus.h"
#include "platform/preferences/SqlitePreferencesDomain.h"
#include "platform/x11/hotkeys/X11HotKeyCenter.h"
#include "platform/x11/keyboard/X11KeyEventPoster.h"
#include "platform/x11/windows/X11Windows.h"
#include "qt/QtMainQueue.h"
#include "settings/SettingsWindowController.h"
#include "settings/WindowMenu.h"
#include "stores/LastKnownPreferences.h"
#include "support/TextServices.h"
#include "windows/QtPalettePanel.h"
#include "windows/QtSettingsWindow.h"
#include "windows/QtUserInterface.h"
#include "windows/QtUserNotifications.h"
#include "windows/Translations.h"
#include "windows/ViewEngine.h"

namespace tovrel {

/// The resident program put together: the platform of an X11 desktop, the coordinator on it, and the service
/// on D-Bus. Needs the application object, and is gone before that is.
class ResidentProgram {
  public:
    /// `seat` is this process's own; without one it is only to be found on the session bus.
    ResidentProgram(const command_line::Invocation& invocation, const Console& console,
                    const std::optional<ResidentSeat>& seat);
    ~ResidentProgram() = default;
    ResidentProgram(const ResidentProgram&) = delete;
    ResidentProgram& operator=(const ResidentProgram&) = delete;

    /// False when another process has become the resident program of this display meanwhile; it shows its
    /// palette then. Without a session bus this one runs all the same and says so.
    [[nodiscard]] bool start();

  private:
    [[nodiscard]] Platform platform();
    [[nodiscard]] WindowSystem windowSystem();
    [[nodiscard]] KeyDestination keyDestination() const;
    [[nodiscard]] std::unique_ptr<SettingsWindow> makeSettingsWindow();
    [[nodiscard]] std::unique_ptr<RecorderCocoa> makeRecorder();
    void performMenuAction(window_menu::Action action);
    void openURL(const Text& url);
    [[nodiscard]] CharacterForKeyCode characterForKeyCode();
    [[nodiscard]] Text forPeople(const Shortcut& shortcut);
    [[nodiscard]] Text shortcutProblem();

    // In the order in which they need each other; they end in the opposite one.
    const Console* console_;
    SqlitePreferencesDomain storedPreferences_;
    LastKnownPreferences preferences_;
    TextServices textServices_;
    std::shared_ptr<X11Windows> windows_;
    std::shared_ptr<AtspiBus> accessibilityBus_;
    std::shared_ptr<LinuxWorkspace> workspace_;
    LinuxAccessibility accessibility_;
    ToolkitAccessibility toolkitAccessibility_;
    QtMainQueue queue_;
    X11HotKeyCenter hotKeys_;
    X11KeyEventPoster keyPoster_;
    PosixProcessRunner processRunner_;
    Translations translations_;
    ViewEngine views_;
    QtUserInterface userInterface_;
    QtUserNotifications notifications_;
    AccessibilityOffer accessibilityOffer_;
    KeyboardShortcuts shortcuts_;
    QtPalettePanel* panel_ = nullptr; ///< Owned by the coordinator.
    SettingsWindowController settingsWindowController_;
    std::shared_ptr<AppCoordinator> coordinator_;
    DBusService service_;
    // They go before what they offer.
    BusPresence busPresence_;
    std::optional<SeatServer> seatServer_;
    EventSourceWatch activationEvents_;
    EventSourceWatch hotKeyEvents_;
    EventSourceWatch processEnds_;
};

} // namespace tovrel
