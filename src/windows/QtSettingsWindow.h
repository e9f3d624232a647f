#pragma once

#include <QObject>
#include <QPoint>
#include <QQuickView>
#include <functional>
#include <memory>
#include <optional>

#include "KeyboardShortcuts/RecorderCocoa.h"
#include "platform/WindowSystem.h"
#include "platform/Workspace.h"
#include "qt/QtKeyEvents.h"
#include "settings/SettingsViewState.h"
#include "settings/SettingsWindow.h"
#include "settings/WindowMenu.h"
#include "support/TextServices.h"
#include "windows/ViewEngine.h"
#include "windows/WindowActivation.h"

namespace tovrel {

class RecorderAdapter;
class SettingsViewAdapter;

/// The settings' window. It has no menu bar: the keys of its menu's items work, unless a shortcut is being
/// recorded.
class QtSettingsWindow final : public QObject, public SettingsWindow {
  public:
    struct Surroundings {
        ViewEngine& engine;
        WindowSystem& windowSystem;
        /// Makes the recorder of a new view.
        std::function<std::unique_ptr<RecorderCocoa>()> makeRecorder;
        Workspace& workspace;
        const TextServices& textServices;
        KeyCodeFromScanCode keyCodeFromScanCode;
        std::function<void(const Text& url)> openURL;
        /// Called when the user chose an item of the window's menu. The window has already closed itself for
        /// `closeWindow`.
        std::function<void(window_menu::Action)> onMenuAction;
    };

    /// Everything that `surroundings` refers to outlives the window.
    explicit QtSettingsWindow(Surroundings surroundings);
    ~QtSettingsWindow() override;
    QtSettingsWindow(const QtSettingsWindow&) = delete;
    QtSettingsWindow& operator=(const QtSettingsWindow&) = delete;

    /// While the user is being asked about a shortcut, the new view waits for the answer.
    void setContent(std::unique_ptr<SettingsViewState> state) override;
    void showAndMakeKey() override;

    [[nodiscard]] QQuickView& window() { return view_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// The parts of one view. They are destroyed in reverse order.
    struct Content {
        std::unique_ptr<SettingsViewState> state;
        std::unique_ptr<RecorderAdapter> recorder;
        std::unique_ptr<SettingsViewAdapter> adapter;
    };

    void install(std::unique_ptr<SettingsViewState> state);
    /// Puts the window where it was last, or at the middle of a screen with more or less room for it than
    /// there was.
    void place();
    void hide();
    bool handleKeyPress(const QKeyEvent& event);

    Surroundings surroundings_;
    std::unique_ptr<SettingsViewState> waiting_;
    Content content_;
    QQuickView view_;
    WindowActivation activation_;
    std::optional<QPoint> position_; ///< The position of the frame, stored when the window is hidden.
};

} // namespace tovrel
