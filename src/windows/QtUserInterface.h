#pragma once

#include <QObject>
#include <QWindow>
#include <memory>

#include "platform/UserInterface.h"
#include "windows/FocusLossWatch.h"
#include "windows/ViewEngine.h"
#include "windows/WindowSystem.h"

namespace tovrel {

/// This process as a Qt application. Made after the application object, which it tells to go on when the last
/// window is closed.
class QtUserInterface final : public QObject, public UserInterface {
  public:
    /// `engine` outlives it.
    QtUserInterface(ViewEngine& engine, WindowSystem windowSystem);

    /// Brings the windows forward that are shown, a question last. Without one there is nothing to do: each
    /// window takes the focus when it is shown.
    void activate() override;
    [[nodiscard]] Subscription onResignActive(std::function<void()> observer) override;
    /// The screen with the active window, else that with the pointer, by the name that Qt has for it.
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
    WindowSystem windowSystem_;
    ObserverList<> resignActive_;
    std::shared_ptr<ObserverList<bool>> menuTracking_ = std::make_shared<ObserverList<bool>>();
    FocusLossWatch focusLoss_;
    QWindow* alert_ = nullptr; ///< The question that is being asked.
};

} // namespace tovrel
