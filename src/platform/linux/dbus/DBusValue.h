#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <systemd/sd-bus.h>

#include "platform/linux/dbus/AnswerBudget.h"

namespace tovrel {

/// A value of D-Bus whose type is only known when it arrives, kept so that it can be compared and sent back.
struct DBusValue {
    /// The type as the protocol writes it: "s", "i", "(ss)", "a{sv}", "v".
    std::string signature;
    /// What it holds: integers and booleans in 64 bits as they are, floating-point numbers, strings (also
    /// paths and signatures), the bytes of an array of numbers as they were sent, and the parts
    /// of what else has parts.
    std::variant<std::int64_t, double, std::string, std::vector<DBusValue>> content;

    friend bool operator==(const DBusValue&, const DBusValue&) = default;
};

/// What a value may take in memory, its parts included.
inline constexpr std::size_t largestValue = std::size_t{16} << 10U;

/// The following read the value in the variant at which the message stands, which then stands behind it.
/// When the budget runs out, and with what is no variant, the message stands somewhere within, and cannot be
/// read further.

/// Absent for what is larger than `largestValue`, or nested deeper than real ones ever are, and for
/// file descriptors.
std::optional<DBusValue> readVariant(sd_bus_message* message, AnswerBudget& budget);

/// A string, as long as the message lives; absent for any other type.
std::optional<std::string_view> readVariantText(sd_bus_message* message, AnswerBudget& budget);

/// Passes by the value, whatever it is.
void skipVariant(sd_bus_message* message, AnswerBudget& budget);

/// Passes by the value of any type at which the message stands. False when the message cannot be read
/// further.
bool skipValue(sd_bus_message* message, AnswerBudget& budget);

/// Appends the value within a variant; false when the message does not take it.
bool appendVariant(sd_bus_message* message, const DBusValue& value);

/// Leaves so many containers, each of which has been read to its end. False when that is not so.
bool leaveContainers(sd_bus_message* message, int levels);

} // namespace tovrel
