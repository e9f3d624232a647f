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

/// The settings' window. It has no menu bar: the items of its menu work by their keys, unless a shortcut is
/// being recorded.
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
        /// The user asked for an item of the window's menu. Closing is done already.
        std::function<void(window_menu::Action)> onMenuAction;
    };

    /// Everything referred to outlives the window.
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
    /// What one view is made of. The members go in the reverse order.
    struct Content {
        std::unique_ptr<SettingsViewState> state;
        std::unique_ptr<RecorderAdapter> recorder;
        std::unique_ptr<SettingsViewAdapter> adapter;
    };

    void install(std::unique_ptr<SettingsViewState> state);
    /// Where it was last, or, on a screen that leaves it more or less room than that did, at the middle.
    void place();
    void hide();
    bool handleKeyPress(const QKeyEvent& event);

    Surroundings surroundings_;
    std::unique_ptr<SettingsViewState> waiting_;
    Content content_;
    QQuickView view_;
    WindowActivation activation_;
    std::optional<QPoint> position_; ///< Of the frame, since the window was hidden.
};

} // namespace tovrel
