#include "platform/preferences/PreferencesSchema.h"

#include <string>

namespace tovrel::preferences_schema {
namespace {

constexpr std::int64_t applicationID = 0x546F7672; // "Tovr"
constexpr std::int64_t version = 1;

// Without row ids SQLite stores the rows in the tree of their keys, so that a write touches one tree, not
// two.
constexpr const char* createTable =
    "CREATE TABLE preferences (key TEXT NOT NULL PRIMARY KEY, value NOT NULL CHECK (typeof(value) IN "
    "('blob', 'text') OR (typeof(value) = 'integer' AND value IN (0, 1)))) WITHOUT ROWID";

std::string textOf(sqlite::Connection& connection, const char* sql) {
    sqlite::Statement statement(connection, sql);
    return statement.step() ? statement.bytes(0) : std::string();
}

} // namespace

State stateOf(sqlite::Connection& connection) {
    const std::int64_t fileApplicationID = connection.integerOf("PRAGMA application_id");
    const std::int64_t fileVersion = connection.integerOf("PRAGMA user_version");
    if (fileApplicationID == 0 && fileVersion == 0 &&
        connection.integerOf("SELECT count(*) FROM sqlite_schema") == 0) {
        return State::empty;
    }
    if (fileApplicationID != applicationID) {
        return State::foreign;
    }
    if (fileVersion > version) {
        return State::newer;
    }
    const std::string table = textOf(connection, "SELECT sql FROM sqlite_schema WHERE name = 'preferences'");
    return fileVersion == version && table == createTable ? State::current : State::damaged;
}

bool isSound(sqlite::Connection& connection) {
    return textOf(connection, "PRAGMA quick_check(1)") == "ok";
}

void create(sqlite::Connection& connection) {
    connection.execute(createTable);
    connection.execute(("PRAGMA application_id = " + std::to_string(applicationID)).c_str());
    connection.execute(("PRAGMA user_version = " + std::to_string(version)).c_str());
}

} // namespace tovrel::preferences_schema
