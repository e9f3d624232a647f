#include "platform/linux/dbus/DBusValue.h"

#include <string_view>
#include <utility>

namespace tovrel {
namespace {

constexpr int deepest = 16;

/// Whether arrays of the type have the same layout in a message as in memory. Arrays of booleans have it too,
/// but the library does not accept them in this form.
bool isFixed(char type) {
    return std::string_view("ynqiuxtd").find(type) != std::string_view::npos;
}

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

/// Reads a value from its start to its end, and keeps it while it is small.
class Walk {
  public:
    Walk(sd_bus_message* message, AnswerBudget& budget) : message_(message), budget_(budget) {}

    /// Reads the next value into `kept`, or skips it if `kept` is null. Returns false when the message cannot
    /// be read further.
    bool pass(DBusValue* kept, int depth = 0) {
        char type = 0;
        const char* contents = nullptr;
        if (!budget_.look() || sd_bus_message_peek_type(message_, &type, &contents) <= 0) {
            return false;
        }
        if (contents == nullptr) {
            return passBasic(type, kept);
        }
        // `contents` is valid only until the container is entered.
        const std::string inner(contents);
        return type == SD_BUS_TYPE_ARRAY && inner.size() == 1 && isFixed(inner.front())
                   ? passNumbers(inner, kept)
                   : passContainer(type, inner, kept, depth);
    }

    /// Whether `kept` has only a part of the value.
    [[nodiscard]] bool isTooLarge() const { return isTooLarge_; }
    [[nodiscard]] std::size_t size() const { return size_; }

  private:
    /// Counts the bytes; returns whether the value is kept and there is room for them.
    bool keeps(const DBusValue* kept, std::size_t bytes) {
        size_ += kept == nullptr ? 0 : sizeof(DBusValue) + bytes;
        isTooLarge_ = isTooLarge_ || size_ > largestValue;
        return kept != nullptr && !isTooLarge_;
    }

    bool passBasic(char type, DBusValue* kept) {
        DBusValue value{std::string(1, type), {}};
        std::size_t bytes = 0;
        if (isString(type)) {
            const char* text = nullptr;
            if (sd_bus_message_read_basic(message_, type, &text) <= 0) {
                return false;
            }
            const std::string_view view(text);
            bytes = view.size();
            if (kept != nullptr && bytes <= largestValue) {
                value.content = std::string(view);
            }
        } else if (type == SD_BUS_TYPE_DOUBLE) {
            double number = 0;
            if (sd_bus_message_read_basic(message_, type, &number) <= 0) {
                return false;
            }
            value.content = number;
        } else if (const auto integer = readInteger(message_, type)) {
            value.content = *integer;
        } else {
            return false;
        }
        if (keeps(kept, bytes)) {
            *kept = std::move(value);
        }
        return true;
    }

    bool passNumbers(const std::string& type, DBusValue* kept) {
        const void* data = nullptr;
        std::size_t size = 0;
        if (sd_bus_message_read_array(message_, type.front(), &data, &size) < 0) {
            return false;
        }
        if (keeps(kept, size)) {
            *kept = {containerSignature(SD_BUS_TYPE_ARRAY, type),
                     std::string(static_cast<const char*>(data), size)};
        }
        return true;
    }

    bool passContainer(char type, const std::string& contents, DBusValue* kept, int depth) {
        if (sd_bus_message_enter_container(message_, type, contents.c_str()) <= 0) {
            return false;
        }
        isTooLarge_ = isTooLarge_ || depth >= deepest;
        bool isKept = keeps(kept, contents.size());
        std::vector<DBusValue> parts;
        while (sd_bus_message_at_end(message_, 0) == 0) {
            DBusValue part;
            if (!pass(isKept ? &part : nullptr, depth + 1)) {
                return false;
            }
            isKept = isKept && !isTooLarge_;
            if (isKept) {
                parts.push_back(std::move(part));
            }
        }
        if (isKept) {
            *kept = {containerSignature(type, contents), std::move(parts)};
        }
        return sd_bus_message_exit_container(message_) >= 0;
    }

    sd_bus_message* message_;
    AnswerBudget& budget_;
    std::size_t size_ = 0;
    bool isTooLarge_ = false;
};

bool isAtVariant(sd_bus_message* message) {
    char type = 0;
    return sd_bus_message_peek_type(message, &type, nullptr) > 0 && type == SD_BUS_TYPE_VARIANT;
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
        if (type == SD_BUS_TYPE_ARRAY) {
            return sd_bus_message_append_array(message, value.signature[1], text->data(), text->size()) >= 0;
        }
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

std::optional<DBusValue> readVariant(sd_bus_message* message, AnswerBudget& budget) {
    Walk walk(message, budget);
    DBusValue variant;
    if (!isAtVariant(message) || !walk.pass(&variant) || walk.isTooLarge() ||
        !budget.keepsValue(walk.size())) {
        return std::nullopt;
    }
    auto& parts = std::get<std::vector<DBusValue>>(variant.content);
    return parts.size() == 1 ? std::optional(std::move(parts.front())) : std::nullopt;
}

std::optional<std::string_view> readVariantText(sd_bus_message* message, AnswerBudget& budget) {
    char type = 0;
    const char* contents = nullptr;
    const char* text = nullptr;
    if (sd_bus_message_peek_type(message, &type, &contents) <= 0 || type != SD_BUS_TYPE_VARIANT ||
        std::string_view(contents) != "s") {
        skipVariant(message, budget);
        return std::nullopt;
    }
    return budget.look() && sd_bus_message_read(message, "v", "s", &text) > 0
               ? std::optional<std::string_view>(text)
               : std::nullopt;
}

void skipVariant(sd_bus_message* message, AnswerBudget& budget) {
    if (isAtVariant(message)) {
        skipValue(message, budget);
    }
}

bool skipValue(sd_bus_message* message, AnswerBudget& budget) {
    return Walk(message, budget).pass(nullptr);
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
