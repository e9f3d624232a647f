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
    tooMuch,      ///< It sent more than is taken.
    gone,         ///< It left the bus meanwhile.
    disconnected, ///< The bus itself is lost.
};

/// Calls to one application, many at a time, within limits. Answers are handed to it while they are awaited,
/// so it stays where it was made.
class BoundedCalls {
  public:
    /// Makes the call when its turn has come; an empty message is left out.
    using Call = std::function<DBusMessage(const DBusConnection&)>;
    /// Gets the answer, which may be of any type; an empty message for an error.
    using Handler = DBusCallWindow::Handler;

    /// `started` is when the work began, which `limits.total` counts from.
    BoundedCalls(DBusConnection& connection, const CallLimits& limits, SteadyTime started);
    BoundedCalls(const BoundedCalls&) = delete;
    BoundedCalls& operator=(const BoundedCalls&) = delete;
    ~BoundedCalls() = default;

    /// Notes the call for `run`, which sends in this order, so that what a slow application has answered by
    /// the end is from the front. Handlers may note further ones.
    void ask(Call call, Handler handler);

    /// Sends until every call is answered. False when that was cut short, now or in an earlier run: `stopped`
    /// says why.
    bool run();

    [[nodiscard]] std::optional<CallsStopped> stopped() const { return stopped_; }
    /// What handlers decode answers with. The calls stop when it is exhausted.
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
