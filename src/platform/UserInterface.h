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
    none, ///< The question was dismissed by Escape or by closing the window.
};

/// One of the display's screens.
struct Screen {
    Text identifier;  ///< Unique as long as this screen is connected.
    Size visibleSize; ///< Size of the visible frame: the screen without the desktop's bars.
};

/// This process as an application of the desktop.
class UserInterface {
  public:
    virtual ~UserInterface() = default;

    /// Brings this application to the front if it shows a window.
    virtual void activate() = 0;

    /// The observer is called when this application was active and no longer is.
    [[nodiscard]] virtual Subscription onResignActive(std::function<void()> observer) = 0;

    /// The screen on which the user works; absent without one.
    [[nodiscard]] virtual std::optional<Screen> mainScreen() = 0;

    /// Asks the question, as a warning, and returns once it is answered; events are handled meanwhile. The
    /// question belongs to the window from which it was asked, and until it is answered no other window of
    /// this application takes keys or clicks. A second question meanwhile is not asked and answered with
    /// `none`.
    [[nodiscard]] virtual AlertAnswer runAlert(const Alert& alert) = 0;

    /// Whether a question is waiting for its answer.
    [[nodiscard]] virtual bool isAlertOpen() const = 0;

    /// The item is shown as soon as the desktop has a status bar; null when the desktop cannot have one.
    [[nodiscard]] virtual std::unique_ptr<StatusItem> makeStatusItem(StatusItemDescription description) = 0;

    /// The observer is called when one of this application's menus opens (true) and closes (false).
    [[nodiscard]] virtual Subscription onMenuTracking(std::function<void(bool)> observer) = 0;

    /// Closes the open menu, if any, unless only the desktop can close it.
    virtual void closeMenu() = 0;

    /// Plays the short sound for an action that is not possible.
    virtual void beep() = 0;

    /// Ends the program's main loop.
    virtual void terminate() = 0;
};

} // namespace tovrel
