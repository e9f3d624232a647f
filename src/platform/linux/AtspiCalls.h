#pragma once

#include <chrono>
#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/AtspiNode.h"
#include "platform/linux/DBusCallWindow.h"
#include "platform/linux/MenuReadReport.h"

namespace tovrel {

/// What one read of an application's menus may cost.
struct AtspiLimits {
    /// Without any answer for this long the application counts as hung. A healthy one answers within 3 ms,
    /// also while it starts up; with the way to the application (measured below 10 ms) a hung one costs less
    /// than 300 ms, once per read, since the read then ends.
    std::chrono::milliseconds silence{250};
    /// For one read in whole, however steadily the application answers. The largest menu bar measured (985
    /// objects) takes 65 ms; ten times its size on a machine three times slower still fits.
    std::chrono::milliseconds total{2000};
    /// Objects in a menu bar; more are a mistake or an attack, and would not be read in `total` either.
    std::size_t nodes = 20'000;
    /// Levels below the bar. Qt uses two for each level of menus, so this is 16 levels of menus.
    std::size_t depth = 32;
    /// Objects looked at while the bar is searched for. An application without one that was measured had
    /// about 400.
    std::size_t searchedNodes = 4'000;
    /// Levels below a window where a bar is searched for; the deepest met is 5.
    std::size_t searchedDepth = 8;
    /// Calls under way at a time. Measured: 8 take 1.6 times as long, 512 save no more than a tenth.
    std::size_t callsInFlight = 64;
};

/// Questions to the objects of one application, asked many at a time within the limits of one read.
///
/// Only the calls that are known to harm no application are made: a Qt application dies of
/// org.freedesktop.DBus.Properties.GetAll, Firefox of org.a11y.atspi.Action.GetActions.
class AtspiCalls {
  public:
    enum class Question { role, name, states, children, keyBinding, interfaces, toolkitName, ownAddress };
    /// Gets the answer, which may be an error or of any type.
    using Handler = DBusCallWindow::Handler;

    /// `started` is when the read began, which `limits.total` counts from.
    AtspiCalls(DBusConnection& connection, std::string busName, const AtspiLimits& limits,
               SteadyTime started);

    /// Notes the question for `run`, which asks in this order, so that what a slow application has answered
    /// by the end are whole objects. Handlers may ask further ones.
    void ask(std::string path, Question question, Handler handler);

    /// Asks until every question is answered. False when that was cut short, now or in an earlier run:
    /// `stopped` says why.
    bool run();

    [[nodiscard]] std::optional<MenuReadOutcome> stopped() const { return stopped_; }
    [[nodiscard]] const std::string& busName() const { return busName_; }
    [[nodiscard]] const AtspiLimits& limits() const { return limits_; }
    [[nodiscard]] std::size_t calls() const { return calls_; }

  private:
    struct Asked {
        std::string path;
        Question question;
        Handler handler;
    };

    void sendNext();
    [[nodiscard]] DBusMessage callFor(const Asked& asked) const;
    void waitForAnswer();

    DBusConnection& connection_;
    std::string busName_;
    AtspiLimits limits_;
    SteadyTime started_;
    SteadyTime lastAnswer_;
    std::deque<Asked> queue_;
    std::size_t calls_ = 0;
    std::optional<MenuReadOutcome> stopped_;
    DBusCallWindow window_;
};

/// Whether this error says that the application is no longer on the bus.
bool saysApplicationIsGone(std::string_view errorName);

/// The paths of an answer to GetChildren, at most `limit` of them. Objects of other connections and null
/// objects are left out: menus never live elsewhere than their application, and waiting on it must not become
/// waiting on another. Absent when the answer is something else.
std::optional<std::vector<std::string>> readChildren(DBusMessage& answer, std::string_view busName,
                                                     std::size_t limit);

/// The value of an answer to GetState; absent when it is something else.
std::optional<AtspiStates> readStates(DBusMessage& answer);

} // namespace tovrel
