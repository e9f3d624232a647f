#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string_view>

#include "platform/linux/dbus/DBusCallWindow.h"
#include "platform/linux/dbus/MenuReadBudget.h"
#include "platform/linux/dbus/MenuReadReport.h"

namespace tovrel {

/// Calls to one application, many at a time, within the limits of one read of its menus.
class BoundedCalls {
  public:
    /// Makes the call when its turn has come; an empty message is left out.
    using Call = std::function<DBusMessage(const DBusConnection&)>;
    /// Gets the answer, which may be of any type; an empty message for an error.
    using Handler = DBusCallWindow::Handler;

    /// `started` is when the read began, which `limits.total` counts from.
    BoundedCalls(DBusConnection& connection, const MenuReadLimits& limits, SteadyTime started);

    /// Notes the call for `run`, which sends in this order, so that what a slow application has answered by
    /// the end is from the front. Handlers may note further ones.
    void ask(Call call, Handler handler);

    /// Sends until every call is answered. False when that was cut short, now or in an earlier run: `stopped`
    /// says why.
    bool run();

    [[nodiscard]] std::optional<MenuReadOutcome> stopped() const { return stopped_; }
    [[nodiscard]] const MenuReadLimits& limits() const { return budget_.limits(); }
    /// What handlers decode answers with. The calls stop when it is exhausted.
    [[nodiscard]] MenuReadBudget& budget() { return budget_; }
    [[nodiscard]] std::size_t calls() const { return calls_; }

  private:
    struct Asked {
        Call call;
        Handler handler;
    };

    void sendNext();
    void waitForAnswer();
    [[nodiscard]] bool isTooMuch() const;

    DBusConnection& connection_;
    MenuReadBudget budget_;
    SteadyTime started_;
    std::uint64_t receivedBefore_;
    SteadyTime lastAnswer_;
    std::deque<Asked> queue_;
    std::size_t calls_ = 0;
    std::optional<MenuReadOutcome> stopped_;
    DBusCallWindow window_;
};

/// Whether this error says that the application is no longer on the bus.
bool saysApplicationIsGone(std::string_view errorName);

} // namespace tovrel
