#include "app/verbs/PreferencesCommands.h"

#include <algorithm>
#include <iomanip>
#include <iterator>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "app/terminal/ErrorLine.h"
#include "app/terminal/JsonOutput.h"
#include "app/verbs/PreferenceValueJson.h"
#include "support/Fatal.h"
#include "support/Overloaded.h"
#include "support/Utf8.h"

namespace tovrel::preferences_commands {
namespace {

constexpr int success = 0;
constexpr int failure = 1;
constexpr int wrongUsage = 2;

int report(std::ostream& error, int status, const std::string& what) {
    printErrorLine(error, what);
    return status;
}

/// Flushes the output, because only that detects a full disk, and returns the exit status.
int finished(std::ostream& out, std::ostream& error) {
    return out.flush() ? success : report(error, failure, "the output cannot be written");
}

int print(const json::Value& value, std::ostream& out, std::ostream& error) {
    printJson(out, value);
    out << '\n';
    return finished(out, error);
}

/// The bytes as a string of a JSON document, which is well formed and on one line for any bytes.
std::string quoted(const std::string& bytes) {
    return printableJson(json::dump(json::toJson(Text(bytes))));
}

std::size_t sizeOf(const PreferenceValue& value) {
    return std::visit(Overloaded{[](const PreferenceData& data) { return data.bytes.size(); },
                                 [](const Text& text) { return text.utf8().size(); },
                                 [](bool boolean) { return sizeof boolean; }},
                      value);
}

/// The key for a column: quoted if it is empty or a part of it would be invisible.
std::string shownKey(const std::string& key) {
    return !key.empty() && printable(key) == key ? key : quoted(key);
}

std::string shown(const std::string& bytes, ValueForm form) {
    switch (form) {
    case ValueForm::plain:
    case ValueForm::json:
        return bytes;
    case ValueForm::terminal:
        return printableLines(bytes);
    }
    noSuchValue("ValueForm");
}

std::size_t characterCount(std::string_view utf8) {
    std::size_t count = 0;
    for (std::size_t position = 0; position < utf8.size(); ++count) {
        nextCodePoint(utf8, position);
    }
    return count;
}

} // namespace

int read(PreferencesDomain& domain, const std::string& key, ValueForm form, std::ostream& out,
         std::ostream& error) {
    const std::optional<PreferenceValue> value = domain.value(key);
    if (!value) {
        return domain.lastReadSucceeded() ? report(error, failure, "there is no value under " + quoted(key))
                                          : failure;
    }
    if (form == ValueForm::json) {
        return print(toJson(*value), out, error);
    }
    if (const auto* data = std::get_if<PreferenceData>(&*value)) {
        out << shown(data->bytes, form);
    } else if (const auto* text = std::get_if<Text>(&*value)) {
        out << shown(text->utf8(), form) << '\n';
    } else {
        out << (std::get<bool>(*value) ? "true\n" : "false\n");
    }
    return finished(out, error);
}

int write(PreferencesDomain& domain, const std::string& key, const NewValue& value, std::ostream& error) {
    const int given = static_cast<int>(value.json.has_value()) + static_cast<int>(value.string.has_value()) +
                      static_cast<int>(value.boolean.has_value()) + static_cast<int>(value.data.has_value());
    if (given != 1) {
        return report(error, wrongUsage, "give exactly one of --json, --string, --bool and --data");
    }
    if (!isWellFormedUtf8(key)) {
        return report(error, failure, "the key is not UTF-8");
    }
    PreferenceValue stored;
    if (value.json) {
        try {
            json::parse(*value.json);
        } catch (const json::DecodeError& reason) {
            return report(error, failure, std::string("the value is not stored: ") + reason.what());
        }
        stored = PreferenceData{*value.json};
    } else if (value.string) {
        if (!isWellFormedUtf8(*value.string)) {
            return report(error, failure, "the string is not UTF-8");
        }
        stored = Text(*value.string);
    } else if (value.boolean) {
        if (*value.boolean != "true" && *value.boolean != "false") {
            return report(error, wrongUsage, "a boolean is true or false");
        }
        stored = *value.boolean == "true";
    } else {
        stored = PreferenceData{*value.data};
    }
    return domain.set(key, stored) ? success : failure;
}

int remove(PreferencesDomain& domain, const std::string& key) {
    return domain.remove(key) ? success : failure;
}

int list(PreferencesDomain& domain, bool asJson, std::ostream& out, std::ostream& error) {
    const auto values = domain.all();
    if (!domain.lastReadSucceeded()) {
        return failure;
    }
    if (asJson) {
        json::Value rows = json::Value::array();
        for (const auto& [key, value] : values) {
            rows.push_back(
                {{"key", json::toJson(Text(key))}, {"type", typeName(value)}, {"size", sizeOf(value)}});
        }
        return print(rows, out, error);
    }
    std::size_t keyWidth = 0;
    for (const auto& [key, value] : values) {
        keyWidth = std::max(keyWidth, characterCount(shownKey(key)));
    }
    constexpr int typeWidth = 7; // "boolean"
    constexpr int sizeWidth = 9;
    for (const auto& [key, value] : values) {
        const std::string shown = shownKey(key);
        out << shown << std::string(keyWidth - characterCount(shown), ' ') << "  " << std::left
            << std::setw(typeWidth) << typeName(value) << std::right << std::setw(sizeWidth) << sizeOf(value)
            << '\n';
    }
    return finished(out, error);
}

int exportAll(PreferencesDomain& domain, std::ostream& out, std::ostream& error) {
    json::Value document = json::Value::object();
    for (const auto& [key, value] : domain.all()) {
        if (!isWellFormedUtf8(key)) {
            return report(error, failure, "the key " + quoted(key) + " is not UTF-8 and cannot be exported");
        }
        document[key] = toJson(value);
    }
    return domain.lastReadSucceeded() ? print(document, out, error) : failure;
}

int importAll(PreferencesDomain& domain, std::istream& document, std::ostream& error) {
    const std::string bytes{std::istreambuf_iterator<char>(document), {}};
    if (document.bad()) {
        return report(error, failure, "the document cannot be read");
    }
    std::vector<std::pair<std::string, PreferenceValue>> values;
    std::string where;
    try {
        const json::Value parsed = json::parse(bytes);
        for (const auto& [key, value] : json::requireObject(parsed).items()) {
            where = "under " + quoted(key) + ": ";
            values.emplace_back(key, preferenceValueFrom(value));
        }
    } catch (const json::DecodeError& reason) {
        return report(error, failure, "nothing was imported: " + where + reason.what());
    }
    return domain.setAll(values) ? success : failure;
}

} // namespace tovrel::preferences_commands
