#include "support/Json.h"

#include <cmath>

#include <nlohmann/json.hpp>

namespace tovrel::json {
namespace {

/// Counts brackets outside strings in linear time, so that hostile nesting is refused before the parser sees
/// it.
bool isNestedTooDeep(std::string_view bytes) {
    int depth = 0;
    bool inString = false;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const char byte = bytes[i];
        if (inString) {
            if (byte == '\\') {
                ++i;
            } else if (byte == '"') {
                inString = false;
            }
        } else if (byte == '"') {
            inString = true;
        } else if (byte == '[' || byte == '{') {
            if (++depth > maximumDepth) {
                return true;
            }
        } else if (byte == ']' || byte == '}') {
            --depth;
        }
    }
    return false;
}

[[noreturn]] void wrongType(const char* expected, const Value& value) {
    throw DecodeError(std::string("expected ") + expected + ", found " + value.type_name());
}

} // namespace

Value parse(std::string_view bytes) {
    if (isNestedTooDeep(bytes)) {
        throw DecodeError("nested deeper than " + std::to_string(maximumDepth) + " levels");
    }
    // The parser would treat a NUL as the end and ignore the rest.
    if (bytes.find('\0') != std::string_view::npos) {
        throw DecodeError("not valid JSON in UTF-8");
    }
    try {
        return Value::parse(bytes);
    } catch (const Value::out_of_range&) {
        throw DecodeError("a number is too large");
    } catch (const Value::exception&) {
        throw DecodeError(bytes.empty() ? "empty document" : "not valid JSON in UTF-8");
    }
}

Text textFrom(const Value& value) {
    if (!value.is_string()) {
        wrongType("a string", value);
    }
    return value.get_ref<const std::string&>();
}

std::int64_t integerFrom(const Value& value) {
    if (value.is_number_unsigned()) {
        const auto number = value.get<std::uint64_t>();
        if (number <= static_cast<std::uint64_t>(INT64_MAX)) {
            return static_cast<std::int64_t>(number);
        }
    } else if (value.is_number_integer()) {
        return value.get<std::int64_t>();
    } else if (value.is_number_float()) {
        const auto number = value.get<double>();
        constexpr double limit = 9223372036854775808.0; // 2^63, exact in a double
        // Integers below -2^63 arrive here rounded to -2^63, so that value is refused like 2^63.
        if (std::trunc(number) == number && number > -limit && number < limit) {
            return static_cast<std::int64_t>(number);
        }
    }
    wrongType("a 64-bit integer", value);
}

bool booleanFrom(const Value& value) {
    if (!value.is_boolean()) {
        wrongType("true or false", value);
    }
    return value.get<bool>();
}

PointInTime pointInTimeFrom(const Value& value) {
    if (!value.is_number()) {
        wrongType("a number of seconds", value);
    }
    return {value.get<double>()};
}

std::vector<Text> textsFrom(const Value& value) {
    std::vector<Text> texts;
    texts.reserve(requireArray(value).size());
    for (const Value& element : value) {
        texts.push_back(textFrom(element));
    }
    return texts;
}

const Value& member(const Value& object, const char* name) {
    const auto found = requireObject(object).find(name);
    if (found == object.end()) {
        throw DecodeError(std::string("the member \"") + name + "\" is missing");
    }
    return *found;
}

const Value* optionalMember(const Value& object, const char* name) {
    const auto found = requireObject(object).find(name);
    return found == object.end() || found->is_null() ? nullptr : &*found;
}

std::optional<Text> optionalTextMember(const Value& object, const char* name) {
    const Value* value = optionalMember(object, name);
    return value == nullptr ? std::nullopt : std::optional(textFrom(*value));
}

const Value& requireArray(const Value& value) {
    if (!value.is_array()) {
        wrongType("an array", value);
    }
    return value;
}

const Value& requireObject(const Value& value) {
    if (!value.is_object()) {
        wrongType("an object", value);
    }
    return value;
}

Value toJson(const Text& text) {
    return text.utf8();
}

Value toJson(const std::vector<Text>& texts) {
    Value array = Value::array();
    for (const Text& text : texts) {
        array.push_back(text.utf8());
    }
    return array;
}

Value toJson(PointInTime time) {
    const double seconds = time.secondsSinceReferenceDate;
    if (!std::isfinite(seconds)) {
        throw EncodeError("a point in time is not finite");
    }
    constexpr double exactIntegers = 9007199254740992.0; // 2^53
    if (std::trunc(seconds) == seconds && std::abs(seconds) < exactIntegers) {
        return static_cast<std::int64_t>(seconds);
    }
    return seconds;
}

std::string dump(const Value& value) {
    return value.dump();
}

} // namespace tovrel::json
