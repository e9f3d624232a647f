#pragma once

#include <deque>
#include <memory>
#include <optional>

#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "KeyboardShortcuts/RecorderCocoa.h"
#include "app/coordinator/AppCoordinator.h"
#include "app/desktop/Desktop.h"
#include "app/resident/AccessibilityOffer.h"
#include "app/resident/BusPresence.h"
#include "app/resident/DBusService.h"
#include "app/resident/EventSourceWatch.h"
#include "app/resident/SeatServer.h"
#include "app/seat/ResidentSeat.h"
#include "app/terminal/Console.h"
#include "app/verbs/CommandLine.h"
#include "platform/preferences/SqlitePreferencesDomain.h"
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

/// Puts the resident program together: the platform from the desktop and Qt, the coordinator on it, and the
/// service on D-Bus. Needs the application object, which must outlive it.
class ResidentProgram {
  public:
    /// `seat` is this process's own; without one the program can be found only on the session bus. `console`
    /// and `desktop` must outlive the program.
    ResidentProgram(const command_line::Invocation& invocation, const Console& console,
                    const std::optional<ResidentSeat>& seat, Desktop& desktop);
    ~ResidentProgram() = default;
    ResidentProgram(const ResidentProgram&) = delete;
    ResidentProgram& operator=(const ResidentProgram&) = delete;

    /// Returns false when another process has become the resident program of this display meanwhile; that one
    /// then shows its palette. Without a session bus this program runs nevertheless and says so.
    [[nodiscard]] bool start();

  private:
    [[nodiscard]] Platform platform();
    [[nodiscard]] ResidentSeams makeSeams();
    [[nodiscard]] KeyCodeFromScanCode keyCodeFromScanCode() const;
    [[nodiscard]] KeyDestination keyDestination() const;
    [[nodiscard]] std::unique_ptr<SettingsWindow> makeSettingsWindow();
    [[nodiscard]] std::unique_ptr<RecorderCocoa> makeRecorder();
    void performMenuAction(window_menu::Action action);
    void openURL(const Text& url);
    [[nodiscard]] CharacterForKeyCode characterForKeyCode();
    [[nodiscard]] Text forPeople(const Shortcut& shortcut);
    [[nodiscard]] Text shortcutProblem();

    // Each member may need those before it.
    const Console* console_;
    Desktop* desktop_;
    SqlitePreferencesDomain storedPreferences_;
    LastKnownPreferences preferences_;
    TextServices textServices_;
    QtMainQueue queue_;
    ResidentSeams seams_;
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
    // These must be destroyed before the objects that they offer.
    BusPresence busPresence_;
    std::optional<SeatServer> seatServer_;
    std::deque<EventSourceWatch> eventWatches_;
};

} // namespace tovrel
