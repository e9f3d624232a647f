#include "platform/linux/DBusValue.h"

#include <string_view>
#include <utility>

namespace tovrel {
namespace {

constexpr int deepest = 16;

std::optional<DBusValue> readValue(sd_bus_message* message, int depth);

bool isString(char type) {
    return type == SD_BUS_TYPE_STRING || type == SD_BUS_TYPE_OBJECT_PATH || type == SD_BUS_TYPE_SIGNATURE;
}

template <typename Value>
std::optional<std::int64_t> readInteger(sd_bus_message* message, char type) {
    Value value{};
    return sd_bus_message_read_basic(message, type, &value) > 0
               ? std::optional(static_cast<std::int64_t>(value))
               : std::nullopt;
}

std::optional<std::int64_t> readInteger(sd_bus_message* message, char type) {
    switch (type) {
    case SD_BUS_TYPE_BYTE:
        return readInteger<std::uint8_t>(message, type);
    case SD_BUS_TYPE_BOOLEAN:
        return readInteger<int>(message, type);
    case SD_BUS_TYPE_INT16:
        return readInteger<std::int16_t>(message, type);
    case SD_BUS_TYPE_UINT16:
        return readInteger<std::uint16_t>(message, type);
    case SD_BUS_TYPE_INT32:
        return readInteger<std::int32_t>(message, type);
    case SD_BUS_TYPE_UINT32:
        return readInteger<std::uint32_t>(message, type);
    case SD_BUS_TYPE_INT64:
        return readInteger<std::int64_t>(message, type);
    case SD_BUS_TYPE_UINT64:
        return readInteger<std::uint64_t>(message, type);
    default:
        return std::nullopt;
    }
}

std::optional<DBusValue> readBasic(sd_bus_message* message, char type) {
    DBusValue value{std::string(1, type), {}};
    if (isString(type)) {
        const char* text = nullptr;
        if (sd_bus_message_read_basic(message, type, &text) <= 0) {
            return std::nullopt;
        }
        value.content = std::string(text);
    } else if (type == SD_BUS_TYPE_DOUBLE) {
        double number = 0;
        if (sd_bus_message_read_basic(message, type, &number) <= 0) {
            return std::nullopt;
        }
        value.content = number;
    } else if (const auto integer = readInteger(message, type)) {
        value.content = *integer;
    } else {
        return std::nullopt;
    }
    return value;
}

std::string containerSignature(char type, std::string_view contents) {
    switch (type) {
    case SD_BUS_TYPE_ARRAY:
        return "a" + std::string(contents);
    case SD_BUS_TYPE_STRUCT:
        return "(" + std::string(contents) + ")";
    case SD_BUS_TYPE_DICT_ENTRY:
        return "{" + std::string(contents) + "}";
    default:
        return "v";
    }
}

std::optional<DBusValue> readContainer(sd_bus_message* message, char type, const std::string& contents,
                                       int depth) {
    if (depth >= deepest || sd_bus_message_enter_container(message, type, contents.c_str()) <= 0) {
        return std::nullopt;
    }
    std::vector<DBusValue> parts;
    while (sd_bus_message_at_end(message, 0) == 0) {
        auto part = readValue(message, depth + 1);
        if (!part) {
            return std::nullopt;
        }
        parts.push_back(std::move(*part));
    }
    if (sd_bus_message_exit_container(message) < 0) {
        return std::nullopt;
    }
    return DBusValue{containerSignature(type, contents), std::move(parts)};
}

std::optional<DBusValue> readValue(sd_bus_message* message, int depth) {
    char type = 0;
    const char* contents = nullptr;
    if (sd_bus_message_peek_type(message, &type, &contents) <= 0) {
        return std::nullopt;
    }
    // What `contents` points to lives in the message only until the container is entered.
    return contents == nullptr ? readBasic(message, type)
                               : readContainer(message, type, std::string(contents), depth);
}

bool appendValue(sd_bus_message* message, const DBusValue& value);

template <typename Value>
bool appendInteger(sd_bus_message* message, char type, std::int64_t integer) {
    const auto value = static_cast<Value>(integer);
    return sd_bus_message_append_basic(message, type, &value) >= 0;
}

bool appendInteger(sd_bus_message* message, char type, std::int64_t integer) {
    switch (type) {
    case SD_BUS_TYPE_BYTE:
        return appendInteger<std::uint8_t>(message, type, integer);
    case SD_BUS_TYPE_BOOLEAN:
        return appendInteger<int>(message, type, integer);
    case SD_BUS_TYPE_INT16:
    case SD_BUS_TYPE_UINT16:
        return appendInteger<std::uint16_t>(message, type, integer);
    case SD_BUS_TYPE_INT32:
    case SD_BUS_TYPE_UINT32:
        return appendInteger<std::uint32_t>(message, type, integer);
    default:
        return appendInteger<std::int64_t>(message, type, integer);
    }
}

bool appendParts(sd_bus_message* message, const std::string& signature, const std::vector<DBusValue>& parts) {
    if (signature == "v") {
        return parts.size() == 1 && appendVariant(message, parts.front());
    }
    const bool isArray = signature.front() == SD_BUS_TYPE_ARRAY;
    const char type = isArray                    ? SD_BUS_TYPE_ARRAY
                      : signature.front() == '(' ? SD_BUS_TYPE_STRUCT
                                                 : SD_BUS_TYPE_DICT_ENTRY;
    const std::string contents = isArray ? signature.substr(1) : signature.substr(1, signature.size() - 2);
    if (sd_bus_message_open_container(message, type, contents.c_str()) < 0) {
        return false;
    }
    for (const DBusValue& part : parts) {
        if (!appendValue(message, part)) {
            return false;
        }
    }
    return sd_bus_message_close_container(message) >= 0;
}

bool appendValue(sd_bus_message* message, const DBusValue& value) {
    const char type = value.signature.front();
    if (const auto* text = std::get_if<std::string>(&value.content)) {
        return sd_bus_message_append_basic(message, type, text->c_str()) >= 0;
    }
    if (const auto* number = std::get_if<double>(&value.content)) {
        return sd_bus_message_append_basic(message, type, number) >= 0;
    }
    if (const auto* integer = std::get_if<std::int64_t>(&value.content)) {
        return appendInteger(message, type, *integer);
    }
    return appendParts(message, value.signature, std::get<std::vector<DBusValue>>(value.content));
}

} // namespace

std::optional<DBusValue> readVariant(sd_bus_message* message) {
    auto variant = readValue(message, 0);
    if (!variant || variant->signature != "v") {
        return std::nullopt;
    }
    auto& parts = std::get<std::vector<DBusValue>>(variant->content);
    return parts.size() == 1 ? std::optional(std::move(parts.front())) : std::nullopt;
}

bool appendVariant(sd_bus_message* message, const DBusValue& value) {
    return sd_bus_message_open_container(message, SD_BUS_TYPE_VARIANT, value.signature.c_str()) >= 0 &&
           appendValue(message, value) && sd_bus_message_close_container(message) >= 0;
}

bool leaveContainers(sd_bus_message* message, int levels) {
    while (levels > 0 && sd_bus_message_exit_container(message) >= 0) {
        --levels;
    }
    return levels == 0;
}

} // namespace tovrel
