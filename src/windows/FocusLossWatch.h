#pragma once

#include <QTimer>
#include <functional>

namespace tovrel {

/// Distinguishes a permanent loss of the focus from the moments in which Qt only believes it lost: while
/// another program grabs the keyboard, and between a window's disappearance and its next showing.
class FocusLossWatch {
  public:
    /// `hasFocus` asks the window system; `onLoss` is called once for each loss.
    FocusLossWatch(std::function<bool()> hasFocus, std::function<void()> onLoss);

    /// Must be called whenever Qt reports a change.
    void activeChanged(bool isActive);
    /// Forgets a loss that was being watched.
    void stop() { recheck_.stop(); }

  private:
    void check();

    std::function<bool()> hasFocus_;
    std::function<void()> onLoss_;
    int misses_ = 0;
    QTimer recheck_;
};

} // namespace tovrel
