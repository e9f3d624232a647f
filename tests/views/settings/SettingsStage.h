#pragma once

#include <QQuickItem>
#include <QQuickView>
#include <functional>
#include <memory>
#include <optional>
#include <sstream>
#include <utility>
#include <vector>

#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "platform/memory/MemoryHotKeyCenter.h"
#include "platform/memory/MemoryUserInterface.h"
#include "platform/memory/MemoryWorkspace.h"
#include "settings/SettingsViewState.h"
#include "stores/FailingPreferencesDomain.h"
#include "windows/QtSettingsWindow.h"
#include "windows/QtWindowSystem.h"
#include "windows/Translations.h"
#include "windows/ViewEngine.h"

namespace tovrel {

/// A user interface in which something can happen before an alert is answered.
struct AskingUserInterface : MemoryUserInterface {
    [[nodiscard]] AlertAnswer runAlert(const Alert& alert) override {
        if (const auto once = std::exchange(whileAsking, nullptr)) {
            once();
        }
        return MemoryUserInterface::runAlert(alert);
    }

    std::function<void()> whileAsking;
};

/// The settings' window over stores in memory, and a record of its calls.
class SettingsStage {
  public:
    explicit SettingsStage(const char* locale = "en_US");

    /// Of what the stores and the members below hold.
    std::shared_ptr<SettingsViewModel> makeModel();

    /// Shows a new view of what the stores and the members below hold, and waits until it takes keys.
    void show(SettingsTab tab = SettingsTab::general);

    [[nodiscard]] SettingsViewState& state() { return *state_; }
    [[nodiscard]] SettingsViewModel& model() { return state_->viewModel(); }

    /// The visible item with the object name, in `within` or anywhere in the window; null when there is none.
    [[nodiscard]] QQuickItem* find(const QString& name, QQuickItem* within = nullptr);
    /// The row of a list of the page.
    [[nodiscard]] QQuickItem* row(const QString& list, int index);
    void click(const QQuickItem* item);
    void type(const QString& text);
    void press(int key, Qt::KeyboardModifiers modifiers = {});
    /// Presses a key with the code of its physical key, as the window system does.
    void pressPhysical(int key, quint32 evdev, Qt::KeyboardModifiers modifiers = {});

    TextServices textServices{"en_US"};
    Translations translations;
    FailingPreferencesDomain stored;
    LastKnownPreferences preferences{stored};
    RulesStore rules{preferences, textServices};
    CommandHistoryStore history{preferences, "Tovrel.commandHistory", textServices};
    CustomCommandStore customCommands{preferences, "customCommands"};
    PaletteSettingsStore paletteSettings{preferences, "paletteSettings"};
    NotificationSettingsStore notifications{preferences, "notifications.commandFailures"};
    MemoryHotKeyCenter hotKeyCenter;
    AskingUserInterface userInterface;
    MemoryWorkspace workspace;
    std::ostringstream output;
    KeyboardShortcuts shortcuts{preferences, hotKeyCenter, userInterface, textServices, output};
    KeyboardShortcuts::Name togglePalette;

    std::optional<CurrentApplicationContext> application;
    std::vector<ScannedMenuItem> menuItems;
    bool isTrusted = true;

    std::vector<Text> openedURLs;
    std::vector<window_menu::Action> actions;
    ViewEngine engine;
    QtWindowSystem windowSystem;
    QtSettingsWindow window;

  private:
    std::unique_ptr<RecorderCocoa> makeRecorder();

    SettingsViewState* state_ = nullptr;
};

/// A menu with `count` commands "Command 0" … below it.
ScannedMenuItem menuOf(const Text& title, const std::vector<Text>& commands);

} // namespace tovrel
