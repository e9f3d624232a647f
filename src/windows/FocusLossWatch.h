#pragma once

#include <QTimer>
#include <functional>

namespace tovrel {

/// Tells a loss of the focus for good from the moments in which Qt only takes it for lost: while another
/// program grabs the keyboard, and between a window's disappearance and its next showing.
class FocusLossWatch {
  public:
    /// `hasFocus` asks the window system; `onLoss` is called once for each loss.
    FocusLossWatch(std::function<bool()> hasFocus, std::function<void()> onLoss);

    /// To be called whenever Qt reports a change.
    void activeChanged(bool isActive);
    /// What was lost no longer matters.
    void stop() { recheck_.stop(); }

  private:
    void check();

    std::function<bool()> hasFocus_;
    std::function<void()> onLoss_;
    int misses_ = 0;
    QTimer recheck_;
};

} // namespace tovrel
