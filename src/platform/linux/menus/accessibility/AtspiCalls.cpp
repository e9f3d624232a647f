#include "platform/linux/menus/accessibility/AtspiCalls.h"

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

AtspiCalls::AtspiCalls(DBusConnection& connection, std::string busName, const MenuReadLimits& limits,
                       SteadyTime started)
    : busName_(std::move(busName)), limits_(limits), calls_(connection, limits.ofCalls(), started) {}

void AtspiCalls::ask(std::string path, Question question, Handler handler) {
    calls_.ask([this, path = std::move(path),
                question](const DBusConnection& connection) { return callFor(connection, path, question); },
               std::move(handler));
}

DBusMessage AtspiCalls::callFor(const DBusConnection& connection, const std::string& path,
                                Question question) const {
    const auto call = [&](const char* interface, const char* member) {
        return connection.methodCall(busName_.c_str(), path.c_str(), interface, member);
    };
    switch (question) {
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
    case Question::keyBinding: {
        DBusMessage binding = call(actionInterface, "GetKeyBinding");
        return binding && sd_bus_message_append(binding.handle(), "i", 0) >= 0 ? std::move(binding)
                                                                               : DBusMessage();
    }
    }
    return {};
}

std::optional<std::vector<std::string>> readChildren(DBusMessage& answer, std::string_view busName,
                                                     std::size_t limit, AnswerBudget& budget) {
    sd_bus_message* message = answer.handle();
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "(so)") <= 0) {
        return std::nullopt;
    }
    std::vector<std::string> paths;
    const char* owner = nullptr;
    const char* path = nullptr;
    while (paths.size() < limit && budget.look() && sd_bus_message_read(message, "(so)", &owner, &path) > 0) {
        if (owner != busName || std::string_view(path) == nullPath) {
            continue;
        }
        if (std::string kept = budget.kept(path); !kept.empty()) {
            paths.push_back(std::move(kept));
        }
    }
    return paths;
}

std::string readKeyBinding(DBusMessage& answer, AnswerBudget& budget) {
    return budget.kept(answer.readString().value_or(""), longestKeyBinding);
}

std::optional<AtspiStates> readStates(DBusMessage& answer) {
    const auto words = answer.readTwoUint32s();
    return words ? std::optional(static_cast<AtspiStates>(words->first) |
                                 (static_cast<AtspiStates>(words->second) << 32U))
                 : std::nullopt;
}

} // namespace tovrel
