#include "platform/preferences/SqliteConnection.h"

#include <sqlite3.h>

#include "platform/posix/SystemCallFailure.h"

namespace tovrel::sqlite {
namespace {

int primaryCode(int code) {
    constexpr int primaryBits = 0xFF; // extended codes use the bits above
    return code & primaryBits;
}

[[noreturn]] void throwError(sqlite3* connection, int code) {
    throw Error(code, sqlite3_system_errno(connection), sqlite3_errmsg(connection));
}

} // namespace

Error::Error(int code, int systemError, const std::string& message)
    : std::runtime_error(message), code_(code), systemError_(systemError) {}

bool Error::isDamage() const {
    return primaryCode(code_) == SQLITE_CORRUPT || primaryCode(code_) == SQLITE_NOTADB;
}

bool Error::isMoved() const {
    return code_ == SQLITE_READONLY_DBMOVED;
}

PreferencesFailure Error::failure() const {
    switch (primaryCode(code_)) {
    case SQLITE_FULL:
        return {PreferencesObstacle::noRoom, "the disk is full"};
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {PreferencesObstacle::locked, "another program keeps it locked"};
    case SQLITE_READONLY:
        return {PreferencesObstacle::notPermitted,
                code_ == SQLITE_READONLY_ROLLBACK
                    ? "an interrupted change must be undone, but it is read-only"
                    : "it is read-only"};
    case SQLITE_CANTOPEN:
    case SQLITE_IOERR:
    case SQLITE_PERM:
        if (systemError_ != 0) {
            return systemCallFailure(systemError_);
        }
        break;
    default:
        break;
    }
    return {PreferencesObstacle::other, what()};
}

Statement::Statement(Connection& connection, const char* sql) : connection_(connection.handle()) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v2(connection_, sql, -1, &statement, nullptr));
    statement_.reset(statement);
}

// A null destructor (SQLITE_STATIC) tells SQLite that the bytes stay valid.
void Statement::bindText(int parameter, std::string_view bytes) {
    check(sqlite3_bind_text64(statement_.get(), parameter, bytes.data(), bytes.size(), nullptr, SQLITE_UTF8));
}

void Statement::bindData(int parameter, std::string_view bytes) {
    // A null pointer would bind NULL instead of an empty value.
    const char* start = bytes.empty() ? "" : bytes.data();
    check(sqlite3_bind_blob64(statement_.get(), parameter, start, bytes.size(), nullptr));
}

void Statement::bindInteger(int parameter, std::int64_t number) {
    check(sqlite3_bind_int64(statement_.get(), parameter, number));
}

bool Statement::step() {
    const int code = sqlite3_step(statement_.get());
    if (code == SQLITE_ROW) {
        return true;
    }
    if (code != SQLITE_DONE) {
        throwError(connection_, code);
    }
    return false;
}

void Statement::reset() {
    sqlite3_reset(statement_.get());
}

ColumnType Statement::columnType(int column) const {
    switch (sqlite3_column_type(statement_.get(), column)) {
    case SQLITE_BLOB:
        return ColumnType::data;
    case SQLITE_TEXT:
        return ColumnType::text;
    case SQLITE_INTEGER:
        return ColumnType::integer;
    default:
        return ColumnType::other;
    }
}

std::string Statement::bytes(int column) const {
    const void* start = sqlite3_column_blob(statement_.get(), column);
    const int size = sqlite3_column_bytes(statement_.get(), column);
    if (start == nullptr && sqlite3_errcode(connection_) == SQLITE_NOMEM) {
        throwError(connection_, SQLITE_NOMEM);
    }
    return start == nullptr ? std::string()
                            : std::string(static_cast<const char*>(start), static_cast<std::size_t>(size));
}

std::int64_t Statement::integer(int column) const {
    return sqlite3_column_int64(statement_.get(), column);
}

void Statement::check(int code) const {
    if (code != SQLITE_OK) {
        throwError(connection_, code);
    }
}

void Statement::Finalize::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

Connection::Connection(const std::filesystem::path& file, LockPatience& patience) {
    constexpr int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
    sqlite3* connection = nullptr;
    const int code = sqlite3_open_v2(file.c_str(), &connection, flags, nullptr);
    connection_.reset(connection);
    if (code != SQLITE_OK) {
        if (connection == nullptr) {
            throw std::bad_alloc();
        }
        throwError(connection, code);
    }
    const auto wait = [](void* context, int /*earlierWaits*/) {
        return static_cast<int>(static_cast<LockPatience*>(context)->waitAMoment());
    };
    sqlite3_busy_handler(connection, wait, &patience);
    // The file may come from anywhere, so its schema must not run functions.
    sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
}

void Connection::execute(const char* sql) {
    Statement statement(*this, sql);
    while (statement.step()) {
    }
}

std::int64_t Connection::integerOf(const char* sql) {
    Statement statement(*this, sql);
    return statement.step() ? statement.integer(0) : 0;
}

bool Connection::hasMoved() const {
    int moved = 0;
    sqlite3_file_control(handle(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0;
}

bool Connection::isInTransaction() const {
    return sqlite3_get_autocommit(handle()) == 0;
}

void Connection::Close::operator()(sqlite3* connection) const {
    sqlite3_close_v2(connection);
}

Transaction::Transaction(Connection& connection, Kind kind) : connection_(connection) {
    connection_.execute(kind == Kind::write ? "BEGIN IMMEDIATE" : "BEGIN");
}

Transaction::~Transaction() {
    // SQLite itself has already rolled back after some failures, such as a full disk.
    if (connection_.isInTransaction()) {
        try {
            connection_.execute("ROLLBACK");
        } catch (const Error&) { // NOLINT(bugprone-empty-catch): the journal undoes it at the next opening
        }
    }
}

void Transaction::commit() {
    connection_.execute("COMMIT");
}

} // namespace tovrel::sqlite
