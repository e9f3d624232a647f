#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include <systemd/sd-bus.h>

namespace tovrel {

/// A value of D-Bus whose type is only known when it arrives, kept so that it can be compared and sent back.
struct DBusValue {
    /// The type as the protocol writes it: "s", "i", "(ss)", "a{sv}", "v".
    std::string signature;
    /// What it holds: integers and booleans in 64 bits as they are, floating-point numbers, strings (also
    /// paths and signatures), and the parts of what has parts.
    std::variant<std::int64_t, double, std::string, std::vector<DBusValue>> content;

    friend bool operator==(const DBusValue&, const DBusValue&) = default;
};

/// The value in the variant at which the message stands; the message then stands behind it. Absent for
/// anything else, for file descriptors, and for what is nested deeper than a menu's values ever are.
std::optional<DBusValue> readVariant(sd_bus_message* message);

/// Appends the value within a variant; false when the message does not take it.
bool appendVariant(sd_bus_message* message, const DBusValue& value);

/// Leaves so many containers, each of which has been read to its end. False when that is not so.
bool leaveContainers(sd_bus_message* message, int levels);

} // namespace tovrel
