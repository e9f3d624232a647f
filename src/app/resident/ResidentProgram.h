#pragma once

#include <memory>

#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "KeyboardShortcuts/RecorderCocoa.h"
#include "app/AppCoordinator.h"
#include "app/CommandLine.h"
#include "app/Console.h"
#include "app/ResidentSeat.h"
#include "app/resident/AccessibilityOffer.h"
#include "app/resident/BusPresence.h"
#include "app/resident/DBusService.h"
#include "app/resident/EventSourceWatch.h"
#include "app/resident/SeatServer.h"
#include "platform/linux/AtspiBus.h"
#include "platform/linux/DesktopEntries.h"
#include "platform/linux/LinuxAccessibility.h"
#include "platform/linux/LinuxHotKeyCenter.h"
#include "platform/linux/LinuxKeyEventPoster.h"
#include "platform/linux/LinuxWorkspace.h"
#include "platform/linux/PosixProcessRunner.h"
#include "platform/linux/SqlitePreferencesDomain.h"
#include "platform/linux/ToolkitAccessibility.h"
#include "platform/linux/X11Windows.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtPalettePanel.h"
#include "platform/qt/QtSettingsWindow.h"
#include "platform/qt/QtUserInterface.h"
#include "platform/qt/QtUserNotifications.h"
#include "platform/qt/Translations.h"
#include "platform/qt/ViewEngine.h"
#include "settings/SettingsWindowController.h"
#include "settings/WindowMenu.h"
#include "stores/LastKnownPreferences.h"
#include "support/TextServices.h"

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
    [[nodiscard]] Text toggleShortcutForPeople();
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
    LinuxHotKeyCenter hotKeys_;
    LinuxKeyEventPoster keyPoster_;
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
