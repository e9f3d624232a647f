#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/dbus/BoundedCalls.h"
#include "platform/linux/menus/accessibility/AtspiNode.h"
#include "platform/linux/menus/source/MenuReadLimits.h"

namespace tovrel {

/// Questions to the objects of one application, asked many at a time within the limits of one read.
///
/// Only the calls that are known to harm no application are made: a Qt application dies of
/// org.freedesktop.DBus.Properties.GetAll, Firefox of org.a11y.atspi.Action.GetActions. They go over the bus:
/// a GTK 3 application that has taken a connection of its own (GetApplicationBusAddress), which would take
/// half the time, can hang for good when a dialog closes that a press has opened in a main loop of its own.
class AtspiCalls {
  public:
    enum class Question { role, name, states, children, keyBinding, interfaces, toolkitName };
    /// Gets the answer, which may be of any type; an empty message for an error.
    using Handler = BoundedCalls::Handler;

    /// `started` is when the read began, which `limits.total` counts from.
    AtspiCalls(DBusConnection& connection, std::string busName, const MenuReadLimits& limits,
               SteadyTime started);

    /// Notes the question for `run`, as `BoundedCalls` does.
    void ask(std::string path, Question question, Handler handler);
    bool run() { return calls_.run(); }

    [[nodiscard]] std::optional<CallsStopped> stopped() const { return calls_.stopped(); }
    [[nodiscard]] const std::string& busName() const { return busName_; }
    [[nodiscard]] const MenuReadLimits& limits() const { return limits_; }
    [[nodiscard]] AnswerBudget& budget() { return calls_.budget(); }
    [[nodiscard]] std::size_t calls() const { return calls_.calls(); }

  private:
    [[nodiscard]] DBusMessage callFor(const DBusConnection& connection, const std::string& path,
                                      Question question) const;

    std::string busName_;
    MenuReadLimits limits_;
    BoundedCalls calls_;
};

/// The paths of an answer to GetChildren, at most `limit` of them. Objects of other connections and null
/// objects are left out: menus never live elsewhere than their application, and waiting on it must not become
/// waiting on another. Absent when the answer is something else.
std::optional<std::vector<std::string>> readChildren(DBusMessage& answer, std::string_view busName,
                                                     std::size_t limit, AnswerBudget& budget);

/// The longest answer to GetKeyBinding that is looked at: "mnemonic;path;accelerator" takes some dozens.
inline constexpr std::size_t longestKeyBinding = 256;

/// An answer to GetKeyBinding; empty when it is something else.
std::string readKeyBinding(DBusMessage& answer, AnswerBudget& budget);

/// The value of an answer to GetState; absent when it is something else.
std::optional<AtspiStates> readStates(DBusMessage& answer);

} // namespace tovrel
