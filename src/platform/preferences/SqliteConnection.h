#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/PreferencesDomain.h"
#include "platform/preferences/LockPatience.h"

struct sqlite3;
struct sqlite3_stmt;

/// The needed part of SQLite's C interface, with owners for its handles and exceptions for its error codes.
namespace tovrel::sqlite {

/// Thrown by a failed call.
class Error : public std::runtime_error {
  public:
    /// `code` is an extended result code, `systemError` the errno of the last failed system call or 0.
    Error(int code, int systemError, const std::string& message);

    /// The file is no database, or its contents contradict themselves.
    [[nodiscard]] bool isDamage() const;

    /// The file was renamed, removed or replaced since it was opened.
    [[nodiscard]] bool isMoved() const;

    /// The failure in terms that users understand: "the disk is full".
    [[nodiscard]] PreferencesFailure failure() const;

  private:
    int code_;
    int systemError_;
};

enum class ColumnType { data, text, integer, other };

class Connection;

/// A prepared statement. It holds the database's locks from its first step until it is done, reset or
/// destroyed.
class Statement {
  public:
    Statement(Connection& connection, const char* sql);

    /// Parameters count from 1. The bytes are not copied: they must live until the statement has been
    /// stepped.
    void bindText(int parameter, std::string_view bytes);
    void bindData(int parameter, std::string_view bytes);
    void bindInteger(int parameter, std::int64_t number);

    /// Returns true when there is a row, false when the statement is done.
    bool step();
    void reset();

    /// Columns of the current row count from 0.
    [[nodiscard]] ColumnType columnType(int column) const;
    [[nodiscard]] std::string bytes(int column) const;
    [[nodiscard]] std::int64_t integer(int column) const;

  private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };
    void check(int code) const;

    sqlite3* connection_;
    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

/// An open database file.
class Connection {
  public:
    /// Opens an existing file for writing if that is allowed, else for reading; creates nothing. Waits for
    /// other processes' locks as long as the patience lasts. The patience must outlive the connection.
    Connection(const std::filesystem::path& file, LockPatience& patience);

    /// Runs a statement to its end.
    void execute(const char* sql);

    /// The integer in the first column of the only row of a statement.
    std::int64_t integerOf(const char* sql);

    /// Whether the path now names another file than the one opened, or none.
    [[nodiscard]] bool hasMoved() const;

    /// Whether a transaction is open.
    [[nodiscard]] bool isInTransaction() const;

    [[nodiscard]] sqlite3* handle() const { return connection_.get(); }

  private:
    struct Close {
        void operator()(sqlite3* connection) const;
    };
    std::unique_ptr<sqlite3, Close> connection_;
};

/// A transaction, which is rolled back unless committed. A reading transaction sees the database as it is at
/// its first read, whatever others write meanwhile. A writing transaction has the sole right to write from
/// the start.
class Transaction {
  public:
    enum class Kind { read, write };

    Transaction(Connection& connection, Kind kind);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void commit();

  private:
    Connection& connection_;
};

} // namespace tovrel::sqlite
