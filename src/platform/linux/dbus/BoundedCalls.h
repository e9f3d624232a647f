#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string_view>

#include "platform/linux/dbus/AnswerBudget.h"
#include "platform/linux/dbus/CallLimits.h"
#include "platform/linux/dbus/DBusCallWindow.h"

namespace tovrel {

/// Why calls were cut short.
enum class CallsStopped {
    silent,       ///< The application stopped answering: hung, or busy with something else.
    tooSlow,      ///< It answered, but not everything within the time for all calls.
    tooMuch,      ///< It sent more than the limits allow.
    gone,         ///< It left the bus meanwhile.
    disconnected, ///< The bus itself is lost.
};

/// Calls to one application, many at a time, within limits. It cannot be moved, because answers are handed to
/// it while it waits.
class BoundedCalls {
  public:
    /// Makes the call when its turn comes; an empty message is skipped.
    using Call = std::function<DBusMessage(const DBusConnection&)>;
    /// Gets the answer, which may be of any type; an empty message for an error.
    using Handler = DBusCallWindow::Handler;

    /// `limits.total` counts from `started`, when the work began.
    BoundedCalls(DBusConnection& connection, const CallLimits& limits, SteadyTime started);
    BoundedCalls(const BoundedCalls&) = delete;
    BoundedCalls& operator=(const BoundedCalls&) = delete;
    ~BoundedCalls() = default;

    /// Queues the call for `run`, which sends in this order, so that a slow application has answered the
    /// first calls by the end. Handlers may queue further calls.
    void ask(Call call, Handler handler);

    /// Sends until every call is answered. Returns false when that was cut short, now or in an earlier run;
    /// `stopped` says why.
    bool run();

    [[nodiscard]] std::optional<CallsStopped> stopped() const { return stopped_; }
    /// The budget with which handlers decode answers. The calls stop when it is exhausted.
    [[nodiscard]] AnswerBudget& budget() { return budget_; }
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
    CallLimits limits_;
    AnswerBudget budget_;
    SteadyTime started_;
    std::uint64_t receivedBefore_;
    SteadyTime lastAnswer_;
    std::deque<Asked> queue_;
    std::size_t calls_ = 0;
    std::optional<CallsStopped> stopped_;
    DBusCallWindow window_;
};

/// Whether this error says that the application is no longer on the bus.
bool saysApplicationIsGone(std::string_view errorName);

} // namespace tovrel
