#include "platform/linux/AtspiCalls.h"

#include <algorithm>
#include <utility>

namespace tovrel {
namespace {

constexpr const char* accessibleInterface = "org.a11y.atspi.Accessible";
constexpr const char* actionInterface = "org.a11y.atspi.Action";
constexpr const char* nullPath = "/org/a11y/atspi/null";

DBusMessage withArguments(DBusMessage call, const char* first, const char* second) {
    if (!call || sd_bus_message_append(call.handle(), "ss", first, second) < 0) {
        return {};
    }
    return call;
}

} // namespace

AtspiCalls::AtspiCalls(DBusConnection& connection, std::string busName, const AtspiLimits& limits,
                       SteadyTime started)
    : connection_(connection), busName_(std::move(busName)), limits_(limits), started_(started),
      lastAnswer_(std::chrono::steady_clock::now()), window_(connection, limits.callsInFlight) {}

void AtspiCalls::ask(std::string path, Question question, Handler handler) {
    queue_.push_back({std::move(path), question, std::move(handler)});
}

bool AtspiCalls::run() {
    lastAnswer_ = std::chrono::steady_clock::now(); // It can only be silent when it is asked.
    while (!stopped_) {
        while (window_.hasRoom() && !queue_.empty()) {
            sendNext();
        }
        if (window_.isIdle()) {
            break;
        }
        waitForAnswer();
    }
    return !stopped_;
}

void AtspiCalls::sendNext() {
    Asked asked = std::move(queue_.front());
    queue_.pop_front();
    // A path the application gave is well formed, since the bus checks it; a call that cannot be built or
    // sent is then one that the connection refuses, which the next wait finds out.
    const DBusMessage call = callFor(asked);
    const bool sent = window_.send(call, [this, handler = std::move(asked.handler)](DBusMessage& answer) {
        lastAnswer_ = std::chrono::steady_clock::now();
        if (saysApplicationIsGone(answer.errorName())) {
            stopped_ =
                connection_.isOpen() ? MenuReadOutcome::applicationGone : MenuReadOutcome::noAccessibilityBus;
        } else {
            handler(answer);
        }
    });
    if (sent) {
        ++calls_;
    } else if (!connection_.isOpen()) {
        stopped_ = MenuReadOutcome::noAccessibilityBus;
    }
}

DBusMessage AtspiCalls::callFor(const Asked& asked) const {
    const auto call = [&](const char* interface, const char* member) {
        return connection_.methodCall(busName_.c_str(), asked.path.c_str(), interface, member);
    };
    switch (asked.question) {
    case Question::role:
        return call(accessibleInterface, "GetRole");
    case Question::states:
        return call(accessibleInterface, "GetState");
    case Question::children:
        return call(accessibleInterface, "GetChildren");
    case Question::interfaces:
        return call(accessibleInterface, "GetInterfaces");
    case Question::name:
        return withArguments(call("org.freedesktop.DBus.Properties", "Get"), accessibleInterface, "Name");
    case Question::toolkitName:
        return withArguments(call("org.freedesktop.DBus.Properties", "Get"), "org.a11y.atspi.Application",
                             "ToolkitName");
    case Question::ownAddress:
        return call("org.a11y.atspi.Application", "GetApplicationBusAddress");
    case Question::keyBinding: {
        DBusMessage binding = call(actionInterface, "GetKeyBinding");
        return binding && sd_bus_message_append(binding.handle(), "i", 0) >= 0 ? std::move(binding)
                                                                               : DBusMessage();
    }
    }
    return {};
}

void AtspiCalls::waitForAnswer() {
    const SteadyTime end = started_ + limits_.total;
    const SteadyTime silentAt = lastAnswer_ + limits_.silence;
    const bool answered = window_.wait(std::min(end, silentAt));
    if (stopped_) {
        return;
    }
    if (answered) {
        const bool done = window_.isIdle() && queue_.empty();
        if (!done && std::chrono::steady_clock::now() >= end) {
            stopped_ = MenuReadOutcome::tooSlow;
        }
    } else if (!connection_.isOpen()) {
        stopped_ = MenuReadOutcome::noAccessibilityBus;
    } else {
        stopped_ = silentAt <= end ? MenuReadOutcome::applicationSilent : MenuReadOutcome::tooSlow;
    }
}

bool saysApplicationIsGone(std::string_view errorName) {
    return errorName == SD_BUS_ERROR_SERVICE_UNKNOWN || errorName == SD_BUS_ERROR_NAME_HAS_NO_OWNER ||
           errorName == SD_BUS_ERROR_NO_REPLY || errorName == SD_BUS_ERROR_DISCONNECTED;
}

std::optional<std::vector<std::string>> readChildren(DBusMessage& answer, std::string_view busName,
                                                     std::size_t limit) {
    sd_bus_message* message = answer.handle();
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "(so)") <= 0) {
        return std::nullopt;
    }
    std::vector<std::string> paths;
    const char* owner = nullptr;
    const char* path = nullptr;
    while (paths.size() < limit && sd_bus_message_read(message, "(so)", &owner, &path) > 0) {
        if (owner == busName && std::string_view(path) != nullPath) {
            paths.emplace_back(path);
        }
    }
    return paths;
}

std::optional<AtspiStates> readStates(DBusMessage& answer) {
    const auto words = answer.readUint32Array();
    if (!words || words->size() < 2) {
        return std::nullopt;
    }
    return static_cast<AtspiStates>((*words)[0]) | (static_cast<AtspiStates>((*words)[1]) << 32U);
}

} // namespace tovrel
