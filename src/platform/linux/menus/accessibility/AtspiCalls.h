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
/// Only calls that harm no application are made: org.freedesktop.DBus.Properties.GetAll crashes Qt
/// applications, org.a11y.atspi.Action.GetActions crashes Firefox. Calls go over the bus. A private
/// connection (GetApplicationBusAddress) would take half the time, but a GTK 3 application that has accepted
/// one can hang for good when a dialog closes that a press has opened in a nested main loop.
class AtspiCalls {
  public:
    enum class Question { role, name, states, children, keyBinding, interfaces, toolkitName };
    /// Gets the answer, which may be of any type; an empty message for an error.
    using Handler = BoundedCalls::Handler;

    /// `limits.total` counts from `started`, when the read began.
    AtspiCalls(DBusConnection& connection, std::string busName, const MenuReadLimits& limits,
               SteadyTime started);

    /// Queues the question for `run`, as `BoundedCalls` does.
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
/// objects are left out: an application's menus are always its own objects, and a read must not wait for
/// another application. Absent when the answer is something else.
std::optional<std::vector<std::string>> readChildren(DBusMessage& answer, std::string_view busName,
                                                     std::size_t limit, AnswerBudget& budget);

/// The longest answer to GetKeyBinding that is used, in bytes; a real "mnemonic;path;accelerator" has some
/// dozens.
inline constexpr std::size_t longestKeyBinding = 256;

/// The text of an answer to GetKeyBinding; empty when the answer is something else.
std::string readKeyBinding(DBusMessage& answer, AnswerBudget& budget);

/// The value of an answer to GetState; absent when the answer is something else.
std::optional<AtspiStates> readStates(DBusMessage& answer);

} // namespace tovrel
