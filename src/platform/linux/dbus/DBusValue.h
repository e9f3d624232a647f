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

/// A D-Bus value whose type is known only when it arrives. It can be compared and sent back.
struct DBusValue {
    /// The type as the protocol writes it: "s", "i", "(ss)", "a{sv}", "v".
    std::string signature;
    /// The value: an integer or boolean in 64 bits, a floating-point number, a string (also a path or
    /// signature, or the bytes of an array of numbers as they were sent), or the parts of any other
    /// container.
    std::variant<std::int64_t, double, std::string, std::vector<DBusValue>> content;

    friend bool operator==(const DBusValue&, const DBusValue&) = default;
};

/// The most memory that a value with its parts may take.
inline constexpr std::size_t largestValue = std::size_t{16} << 10U;

/// This and the next two functions read the variant at the message's current place and move behind it. When
/// the budget runs out, or there is no variant, the message stays somewhere within and cannot be read
/// further.

/// The value in the variant; absent for one larger than `largestValue` or nested deeper than real ones, and
/// for file descriptors.
std::optional<DBusValue> readVariant(sd_bus_message* message, AnswerBudget& budget);

/// The string in the variant, valid as long as the message; absent for any other type.
std::optional<std::string_view> readVariantText(sd_bus_message* message, AnswerBudget& budget);

/// Skips the variant.
void skipVariant(sd_bus_message* message, AnswerBudget& budget);

/// Skips the value, of any type, at the message's current place. Returns false when the message cannot be
/// read further.
bool skipValue(sd_bus_message* message, AnswerBudget& budget);

/// Appends the value within a variant; returns false when the message does not take it.
bool appendVariant(sd_bus_message* message, const DBusValue& value);

/// Leaves `levels` containers; returns false unless each has been read to its end.
bool leaveContainers(sd_bus_message* message, int levels);

} // namespace tovrel
