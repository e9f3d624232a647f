#include "platform/linux/menus/accessibility/AtspiBus.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "platform/linux/dbus/BoundedCalls.h"
#include "platform/linux/dbus/DBusCallWindow.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

/// The session bus may have to start the accessibility bus first, which took 20 ms where it was measured.
constexpr auto launchPatience = 1000ms;
/// The patience with a launcher whose last answer would do, or that was silent before: a user waits for the
/// palette meanwhile.
constexpr auto shortPatience = 100ms;
/// The time for which a silent launcher is not asked again, because one opening of the palette asks it
/// several questions.
constexpr auto restAfterSilence = 1000ms;
/// The bus itself and the registry answer in about a millisecond unless the machine is overloaded.
constexpr auto busPatience = 500ms;

constexpr std::size_t callsInFlight = 64;

/// The most applications that are listed. A desktop has some dozens.
constexpr std::size_t maximumApplications = 1'000;

constexpr const char* launcherName = "org.a11y.Bus";

SteadyTime after(std::chrono::milliseconds duration) {
    return std::chrono::steady_clock::now() + duration;
}

std::vector<AtspiApplication> readReferences(DBusMessage& answer) {
    std::vector<AtspiApplication> applications;
    sd_bus_message* message = answer.handle();
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "(so)") > 0) {
        const char* busName = nullptr;
        const char* path = nullptr;
        while (applications.size() < maximumApplications &&
               sd_bus_message_read(message, "(so)", &busName, &path) > 0) {
            if (isUniqueName(busName)) {
                applications.push_back({busName, path, 0});
            }
        }
    }
    return applications;
}

} // namespace

AtspiBus::AtspiBus(std::function<std::optional<std::string>()> addressOnScreen)
    : addressOnScreen_(std::move(addressOnScreen)) {}

bool AtspiBus::findLauncher(SteadyTime deadline) {
    if (!session_ || !session_->isOpen()) {
        session_ = DBusConnection::openSessionBus();
        launcher_.reset();
    }
    if (session_ && !launcher_) {
        launcher_ = session_->owner(launcherName, deadline);
        // Reading starts no other service than this one. At the first start after a login nobody may have
        // used the accessibility bus yet, and only its launcher knows whether it is enabled.
        if (!launcher_ && session_->isOpen() && session_->startService(launcherName, deadline)) {
            launcher_ = session_->owner(launcherName, deadline);
        }
    }
    return session_ && launcher_;
}

template <typename Arguments>
std::optional<DBusMessage> AtspiBus::askLauncher(std::chrono::milliseconds patience, const char* interface,
                                                 const char* member, Arguments arguments) {
    if (silentUntil_ && std::chrono::steady_clock::now() < *silentUntil_) {
        return std::nullopt;
    }
    const SteadyTime deadline = after(silentUntil_ ? std::min(patience, shortPatience) : patience);
    silentUntil_.reset();
    // An earlier connection or launcher may turn out to be lost; then a new one is tried.
    for (const bool mayBeLost : {true, false}) {
        if (!findLauncher(deadline)) {
            if (session_ && session_->isOpen()) {
                break;
            }
            continue;
        }
        const DBusMessage call = session_->methodCall(launcher_->c_str(), "/org/a11y/bus", interface, member);
        if (!call || !arguments(call.handle())) {
            break;
        }
        auto answer = session_->call(call, deadline);
        if (answer && mayBeLost && saysApplicationIsGone(answer->errorName())) {
            launcher_.reset();
        } else if (answer && answer->errorName().empty()) {
            return answer;
        } else if (session_->isOpen()) {
            break;
        }
    }
    if (std::chrono::steady_clock::now() >= deadline) {
        silentUntil_ = after(restAfterSilence);
    }
    return std::nullopt;
}

std::optional<std::string> AtspiBus::address() {
    // The platform's own library looks in the same order, except that the launcher comes before the display
    // here: the launcher's answer is current, a property of a window may be stale.
    const char* fromEnvironment = std::getenv("AT_SPI_BUS_ADDRESS"); // NOLINT(concurrency-mt-unsafe)
    if (fromEnvironment != nullptr && *fromEnvironment != '\0') {
        return fromEnvironment;
    }
    if (auto answer =
            askLauncher(launchPatience, "org.a11y.Bus", "GetAddress", [](sd_bus_message*) { return true; })) {
        const auto address = answer->readString();
        if (address && !address->empty()) {
            return std::string(*address);
        }
    }
    return addressOnScreen_ ? addressOnScreen_() : std::nullopt;
}

DBusConnection* AtspiBus::connection() {
    if (!connection_ || !connection_->isOpen()) {
        const auto where = address();
        connection_ = where ? DBusConnection::open(*where) : std::nullopt;
    }
    return connection_ ? &*connection_ : nullptr;
}

bool AtspiBus::answers() {
    DBusConnection* bus = connection();
    if (bus == nullptr) {
        return false;
    }
    const auto answer = bus->call(bus->busCall("GetId"), after(busPatience));
    return answer && answer->errorName().empty();
}

bool AtspiBus::isEnabled() {
    auto answer =
        askLauncher(isKnownEnabled_ ? shortPatience : launchPatience, "org.freedesktop.DBus.Properties",
                    "Get", [](sd_bus_message* call) {
                        return sd_bus_message_append(call, "ss", "org.a11y.Status", "IsEnabled") >= 0;
                    });
    if (answer) {
        isKnownEnabled_ = answer->readVariantBoolean().value_or(false);
    } else if (!silentUntil_) {
        isKnownEnabled_.reset(); // The launcher is gone.
    }
    return isKnownEnabled_.value_or(false);
}

bool AtspiBus::setEnabled(bool isEnabled) {
    silentUntil_.reset();
    return askLauncher(launchPatience, "org.freedesktop.DBus.Properties", "Set",
                       [&](sd_bus_message* call) {
                           return sd_bus_message_append(call, "ssv", "org.a11y.Status", "IsEnabled", "b",
                                                        isEnabled ? 1 : 0) >= 0;
                       })
        .has_value();
}

std::optional<std::vector<AtspiApplication>> AtspiBus::applications() {
    DBusConnection* bus = connection();
    if (bus == nullptr) {
        return std::nullopt;
    }
    const SteadyTime deadline = after(busPatience);
    const auto registry = bus->owner("org.a11y.atspi.Registry", deadline);
    if (!registry) {
        // The first application that registers starts the registry, so without it there are no applications.
        return answers() ? std::optional(std::vector<AtspiApplication>()) : std::nullopt;
    }
    auto answer = bus->call(bus->methodCall(registry->c_str(), "/org/a11y/atspi/accessible/root",
                                            "org.a11y.atspi.Accessible", "GetChildren"),
                            deadline);
    if (!answer || !answer->errorName().empty()) {
        return std::nullopt;
    }
    std::vector<AtspiApplication> applications = readReferences(*answer);
    DBusCallWindow window(*bus, callsInFlight);
    for (AtspiApplication& application : applications) {
        const DBusMessage call = bus->busCall("GetConnectionUnixProcessID");
        if (!call || sd_bus_message_append(call.handle(), "s", application.busName.c_str()) < 0) {
            continue;
        }
        while (!window.hasRoom() && window.wait(deadline)) {
        }
        window.send(call, [&application](DBusMessage& identified) {
            application.processIdentifier = static_cast<std::int32_t>(identified.readUint32().value_or(0));
        });
    }
    while (!window.isIdle() && window.wait(deadline)) {
    }
    std::erase_if(applications,
                  [](const AtspiApplication& application) { return application.processIdentifier <= 0; });
    return applications;
}

} // namespace tovrel
