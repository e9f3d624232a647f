#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "model/Geometry.h"
#include "platform/StatusItem.h"
#include "support/Observable.h"
#include "support/Text.h"

namespace tovrel {

/// A question with two answers, or with one when the second has no text. The first button is the default one.
struct Alert {
    Text messageText;
    Text informativeText;
    Text firstButton;
    Text secondButton;
};

enum class AlertAnswer {
    firstButton,
    secondButton,
    none, ///< Dismissed by Escape or by closing the window.
};

/// One of the display's screens.
struct Screen {
    Text identifier;  ///< No other screen has it as long as this one is connected.
    Size visibleSize; ///< Of the visible frame: the screen without the desktop's bars.
};

/// This process as an application of the desktop.
class UserInterface {
  public:
    virtual ~UserInterface() = default;

    /// Brings this application to the front, whichever other one is there, if it shows a window.
    virtual void activate() = 0;

    /// The observer is called when this application was active and no longer is.
    [[nodiscard]] virtual Subscription onResignActive(std::function<void()> observer) = 0;

    /// The screen on which the user works; absent without one.
    [[nodiscard]] virtual std::optional<Screen> mainScreen() = 0;

    /// Asks the question, as a warning, and returns once it is answered; events go on being handled.
    /// The question belongs to the window from which it was asked, and until it is answered no other window
    /// of this application takes keys or clicks. A second one is not asked meanwhile: its answer is none.
    [[nodiscard]] virtual AlertAnswer runAlert(const Alert& alert) = 0;

    /// Whether a question is waiting for its answer.
    [[nodiscard]] virtual bool isAlertOpen() const = 0;

    /// The item is shown as soon as the desktop has a status bar; null when it cannot have one.
    [[nodiscard]] virtual std::unique_ptr<StatusItem> makeStatusItem(StatusItemDescription description) = 0;

    /// The observer is called when one of this application's menus opens (true) and closes (false).
    [[nodiscard]] virtual Subscription onMenuTracking(std::function<void(bool)> observer) = 0;

    /// Closes the one that is open, if any, as far as that is this process's and not the desktop's to do.
    virtual void closeMenu() = 0;

    /// The short sound for what cannot be done.
    virtual void beep() = 0;

    /// Ends the program's main loop.
    virtual void terminate() = 0;
};

} // namespace tovrel
