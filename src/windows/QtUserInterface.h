#pragma once

#include <QObject>
#include <QWindow>
#include <memory>

#include "platform/UserInterface.h"
#include "platform/WindowSystem.h"
#include "windows/FocusLossWatch.h"
#include "windows/ViewEngine.h"

namespace tovrel {

/// This process as a Qt application. Must be made after the application object, which it keeps running when
/// the last window is closed.
class QtUserInterface final : public QObject, public UserInterface {
  public:
    /// `engine` and `windowSystem` outlive it.
    QtUserInterface(ViewEngine& engine, WindowSystem& windowSystem);

    /// Brings the shown windows forward, a question last. Does nothing without a shown window, because each
    /// window takes the focus when it is shown.
    void activate() override;
    [[nodiscard]] Subscription onResignActive(std::function<void()> observer) override;
    /// The screen with the active window, else the screen with the pointer, identified by Qt's name for it.
    [[nodiscard]] std::optional<Screen> mainScreen() override;
    [[nodiscard]] AlertAnswer runAlert(const Alert& alert) override;
    [[nodiscard]] bool isAlertOpen() const override { return alert_ != nullptr; }
    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem(StatusItemDescription description) override;
    [[nodiscard]] Subscription onMenuTracking(std::function<void(bool)> observer) override;
    void closeMenu() override;
    void beep() override;
    void terminate() override;

  private:
    ViewEngine* engine_;
    WindowSystem* windowSystem_;
    ObserverList<> resignActive_;
    std::shared_ptr<ObserverList<bool>> menuTracking_ = std::make_shared<ObserverList<bool>>();
    FocusLossWatch focusLoss_;
    QWindow* alert_ = nullptr; ///< The open question.
};

} // namespace tovrel
