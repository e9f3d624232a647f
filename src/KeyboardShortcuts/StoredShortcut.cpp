#include "KeyboardShortcuts/StoredShortcut.h"

#include <limits>

#include <nlohmann/json.hpp>

#include "support/JsonDocument.h"

namespace tovrel {
namespace {

constexpr const char* keyCodeMember = "carbonKeyCode";
constexpr const char* modifiersMember = "carbonModifiers";

std::int64_t integerMember(const json::Value& object, const char* name, std::int64_t largest) {
    const std::int64_t value = json::integerFrom(json::member(object, name));
    if (value < 0 || value > largest) {
        throw json::DecodeError(std::string(name) + " is out of range");
    }
    return value;
}

} // namespace

Text encodedShortcut(const Shortcut& shortcut) {
    return Text(json::dump(
        json::Value{{keyCodeMember, shortcut.carbonKeyCode}, {modifiersMember, shortcut.carbonModifiers}}));
}

std::optional<Shortcut> decodedShortcut(const Text& text) {
    return json::decodeDocument(text.view(), [](const json::Value& value) {
        return Shortcut{
            integerMember(value, keyCodeMember, std::numeric_limits<std::uint16_t>::max()),
            integerMember(value, modifiersMember, std::numeric_limits<std::uint32_t>::max()),
        };
    });
}

} // namespace tovrel
