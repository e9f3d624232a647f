#pragma once

#include <istream>
#include <optional>
#include <ostream>
#include <string>

#include "platform/PreferencesDomain.h"

/// The verbs of `tovrel preferences …`. Each function writes results to `out`, at most one line about a
/// failure to `error`, and returns the exit status: 0 on success, 1 on failure, 2 on wrong usage. When the
/// domain itself fails, they write no line, because the domain has already reported the reason.
namespace tovrel::preferences_commands {

/// The form in which `read` prints a value.
enum class ValueForm {
    plain,    ///< Data byte by byte; a string, true or false as a line of text.
    terminal, ///< The same with characters that could control a terminal made visible.
    json
};

/// `read KEY`: the value under the key. As JSON: {"type": "data"|"string"|"boolean", "value": …}; data that
/// is not UTF-8 is Base64 and has a further member "encoding": "base64".
int read(PreferencesDomain& domain, const std::string& key, ValueForm form, std::ostream& out,
         std::ostream& error);

/// The options of `write`, of which exactly one must be given.
struct NewValue {
    /// Valid JSON; stored as data, byte by byte as given.
    std::optional<std::string> json = std::nullopt;
    /// UTF-8 text.
    std::optional<std::string> string = std::nullopt;
    /// "true" or "false".
    std::optional<std::string> boolean = std::nullopt;
    /// Any bytes, unchecked, for trying out invalid documents.
    std::optional<std::string> data = std::nullopt;
};

/// `write KEY`: stores a value under a key, which must be UTF-8.
int write(PreferencesDomain& domain, const std::string& key, const NewValue& value, std::ostream& error);

/// `delete KEY`: removes the value under the key, if any.
int remove(PreferencesDomain& domain, const std::string& key);

/// `list`: key, type and size in bytes of every value, in columns; as JSON an array of objects with the
/// members "key", "type" and "size".
int list(PreferencesDomain& domain, bool asJson, std::ostream& out, std::ostream& error);

/// `export`: the whole domain as a JSON object with a member for each key, its value in the form of `read`.
int exportAll(PreferencesDomain& domain, std::ostream& out, std::ostream& error);

/// `import`: stores every value of an exported document, or none if any part of it is invalid. Values under
/// other keys stay.
int importAll(PreferencesDomain& domain, std::istream& document, std::ostream& error);

} // namespace tovrel::preferences_commands
