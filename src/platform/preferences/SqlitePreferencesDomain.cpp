#include "platform/preferences/SqlitePreferencesDomain.h"

#include <cerrno>
#include <iostream>
#include <stdexcept>
#include <system_error>

#include <sys/stat.h>

#include "platform/posix/SystemCallFailure.h"
#include "platform/preferences/DirectoryLock.h"
#include "platform/preferences/DurableFiles.h"
#include "support/PrintableText.h"

namespace tovrel {
namespace {

using preferences_schema::State;

/// Thrown when the open file is damaged and must be set aside.
class Damaged : public std::exception {};

/// Thrown when the file is sound but must not be touched.
class Refused : public std::runtime_error {
  public:
    Refused(PreferencesObstacle obstacle, const std::string& reason)
        : std::runtime_error(reason), obstacle_(obstacle) {}

    [[nodiscard]] PreferencesObstacle obstacle() const { return obstacle_; }

  private:
    PreferencesObstacle obstacle_;
};

/// The failure for the exception that is being handled.
PreferencesFailure failureOfException() {
    try {
        throw;
    } catch (const sqlite::Error& error) {
        return error.failure();
    } catch (const Refused& refused) {
        return {refused.obstacle(), refused.what()};
    } catch (const DirectoryLock::Held& held) {
        return {PreferencesObstacle::locked, held.what()};
    } catch (const std::system_error& error) {
        return systemCallFailure(error.code().value());
    } catch (const std::exception& error) {
        return {PreferencesObstacle::other, error.what()};
    }
}

/// Resolves symbolic links, so that all processes lock one directory and a set-aside file stays in it.
std::filesystem::path resolved(const std::filesystem::path& file) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(file, error);
    std::filesystem::path canonical = std::filesystem::weakly_canonical(absolute, error);
    return error ? absolute : canonical;
}

void bindValue(sqlite::Statement& statement, int parameter, const PreferenceValue& value) {
    if (const auto* data = std::get_if<PreferenceData>(&value)) {
        statement.bindData(parameter, data->bytes);
    } else if (const auto* text = std::get_if<Text>(&value)) {
        statement.bindText(parameter, text->view());
    } else {
        statement.bindInteger(parameter, std::get<bool>(value) ? 1 : 0);
    }
}

std::optional<PreferenceValue> valueIn(const sqlite::Statement& row, int column) {
    switch (row.columnType(column)) {
    case sqlite::ColumnType::data:
        return PreferenceData{row.bytes(column)};
    case sqlite::ColumnType::text:
        return Text(row.bytes(column));
    case sqlite::ColumnType::integer:
        return row.integer(column) != 0;
    case sqlite::ColumnType::other:
        break;
    }
    return std::nullopt; // the table's constraint rules this out
}

std::optional<PreferenceValue> storedValue(sqlite::Connection& connection, const std::string& key) {
    sqlite::Statement statement(connection, "SELECT value FROM preferences WHERE key = ?1");
    statement.bindText(1, key);
    return statement.step() ? valueIn(statement, 0) : std::nullopt;
}

void store(sqlite::Connection& connection, const std::string& key, const PreferenceValue& value) {
    sqlite::Statement statement(connection, "REPLACE INTO preferences (key, value) VALUES (?1, ?2)");
    statement.bindText(1, key);
    bindValue(statement, 2, value);
    statement.step();
}

} // namespace

SqlitePreferencesDomain::SqlitePreferencesDomain(const std::filesystem::path& file, Reporter report,
                                                 const LockPatience::Terms& lockPatience)
    : file_(resolved(file)), report_(std::move(report)), lockPatience_(lockPatience) {
    if (!report_) {
        report_ = [](const std::string& line) { std::cerr << "tovrel: " << printable(line) << '\n'; };
    }
}

std::optional<PreferenceValue> SqlitePreferencesDomain::value(const std::string& key) {
    std::optional<PreferenceValue> found;
    const auto look = [&] { found = storedValue(*connection_, key); };
    if (read(look)) {
        unreadKeys_.erase(key);
    } else {
        unreadKeys_.insert_or_assign(key, lastFailure_.obstacle);
    }
    return found;
}

std::vector<std::pair<std::string, PreferenceValue>> SqlitePreferencesDomain::all() {
    std::vector<std::pair<std::string, PreferenceValue>> values;
    const auto look = [&] {
        values.clear();
        sqlite::Statement rows(*connection_, "SELECT key, value FROM preferences ORDER BY key");
        while (rows.step()) {
            if (auto value = valueIn(rows, 1)) {
                values.emplace_back(rows.bytes(0), std::move(*value));
            }
        }
    };
    if (!read(look)) {
        values.clear();
    }
    return values;
}

bool SqlitePreferencesDomain::set(const std::string& key, const PreferenceValue& value) {
    return write([&](sqlite::Connection& connection) {
        if (const auto unread = unreadKeys_.find(key); unread != unreadKeys_.end()) {
            throw Refused(unread->second, "the value under \"" + key + "\" could not be read, so it is kept");
        }
        store(connection, key, value);
    });
}

bool SqlitePreferencesDomain::setAll(const std::vector<std::pair<std::string, PreferenceValue>>& values) {
    return values.empty() || write([&](sqlite::Connection& connection) {
               for (const auto& [key, value] : values) {
                   store(connection, key, value);
               }
           });
}

bool SqlitePreferencesDomain::remove(const std::string& key) {
    // The key is looked up first, because a missing value can be removed even where nothing can be written.
    if (!value(key) && lastReadSucceeded_) {
        return true;
    }
    return write([&](sqlite::Connection& connection) {
        sqlite::Statement statement(connection, "DELETE FROM preferences WHERE key = ?1");
        statement.bindText(1, key);
        statement.step();
    });
}

std::uint64_t SqlitePreferencesDomain::revision() {
    if (!attempt(Access::read, [this] {
            const DirectoryLock lock(file_.parent_path(), DirectoryLock::Kind::shared, lockPatience_);
            bringUpToDate();
        })) {
        ++revision_; // a file that cannot be examined may have changed
    }
    return revision_;
}

/// Runs the operation if there is a database with a table; otherwise there is nothing to read.
bool SqlitePreferencesDomain::read(const Operation& operation) {
    lastReadSucceeded_ = attempt(Access::read, [&] {
        const DirectoryLock lock(file_.parent_path(), DirectoryLock::Kind::shared, lockPatience_);
        if (bringUpToDate()) {
            operation();
        }
    });
    return lastReadSucceeded_;
}

/// Makes the change in one transaction. Creates the file first if there is none.
bool SqlitePreferencesDomain::write(const std::function<void(sqlite::Connection&)>& change) {
    return attempt(Access::write, [&] {
        files::createPrivateDirectory(file_.parent_path());
        const DirectoryLock lock(file_.parent_path(), DirectoryLock::Kind::shared, lockPatience_);
        bringUpToDate();
        writeLocked(change);
    });
}

void SqlitePreferencesDomain::writeLocked(const std::function<void(sqlite::Connection&)>& change) {
    if (!connection_) {
        files::createPrivateFile(file_);
        open();
        requireUsable();
    }
    connection_->execute("PRAGMA synchronous = EXTRA");
    sqlite::Transaction transaction(*connection_, sqlite::Transaction::Kind::write);
    // The state is read again now that nobody else can write: another process may just have created the
    // table, or a later version of the program changed it.
    state_ = preferences_schema::stateOf(*connection_);
    requireUsable();
    if (state_ == State::empty) {
        preferences_schema::create(*connection_);
        state_ = State::current;
    }
    change(*connection_);
    transaction.commit();
    ++revision_;
}

/// Runs the operation. If it meets damage, sets the file aside and runs the operation again on the file that
/// is there then. Reports any other failure; the next operation then opens the file again.
bool SqlitePreferencesDomain::attempt(Access access, const Operation& operation) {
    lockPatience_.beginOperation();
    constexpr int attempts = 5; // others may damage or replace the file meanwhile, but not endlessly
    PreferencesFailure failure{PreferencesObstacle::other, "it is damaged again and again"};
    for (int i = 0; i < attempts; ++i) {
        bool isDamaged = false;
        try {
            operation();
            return true;
        } catch (const Damaged&) {
            isDamaged = true;
        } catch (const sqlite::Error& error) {
            isDamaged = error.isDamage();
            if (!isDamaged && !error.isMoved()) {
                failure = failureOfException();
                break;
            }
        } catch (const std::runtime_error&) {
            failure = failureOfException();
            break;
        }
        if (isDamaged) {
            try {
                setDamagedFileAside();
            } catch (const std::runtime_error&) {
                failure = failureOfException();
                failure.reason = "it is damaged and cannot be set aside: " + failure.reason;
                break;
            }
        }
        close();
    }
    close();
    noteFailure(access, failure);
    return false;
}

/// Opens the file, in whatever state it is; returns false when there is none.
bool SqlitePreferencesDomain::open() {
    struct stat status {};
    if (stat(file_.c_str(), &status) != 0) {
        if (errno == ENOENT) {
            return false;
        }
        throw std::system_error(errno, std::generic_category());
    }
    if (!S_ISREG(status.st_mode)) {
        throw Refused(PreferencesObstacle::notAFile, "it is not a regular file");
    }
    sqlite::Connection connection(file_, lockPatience_);
    state_ = State::damaged;
    try {
        const sqlite::Transaction transaction(connection, sqlite::Transaction::Kind::read);
        // The version is read first, so that the next operation notices a change made after it.
        dataVersion_ = connection.integerOf("PRAGMA data_version");
        const State state = preferences_schema::stateOf(connection);
        if (state != State::current || preferences_schema::isSound(connection)) {
            state_ = state;
        }
    } catch (const sqlite::Error& error) {
        if (!error.isDamage()) {
            throw;
        }
    }
    connection_ = std::move(connection);
    ++revision_;
    return true;
}

void SqlitePreferencesDomain::close() {
    if (connection_) {
        connection_.reset();
        ++revision_;
    }
}

/// Opens the file, or checks what other processes have done to it since. Returns whether there is something
/// to read.
bool SqlitePreferencesDomain::bringUpToDate() {
    if (connection_ && connection_->hasMoved()) {
        close();
    }
    if (!connection_) {
        if (!open()) {
            return false;
        }
    } else if (const std::int64_t now = connection_->integerOf("PRAGMA data_version"); now != dataVersion_) {
        dataVersion_ = now;
        ++revision_;
        const sqlite::Transaction transaction(*connection_, sqlite::Transaction::Kind::read);
        state_ = preferences_schema::stateOf(*connection_);
    }
    requireUsable();
    return state_ == State::current;
}

void SqlitePreferencesDomain::requireUsable() const {
    switch (state_) {
    case State::empty:
    case State::current:
        return;
    case State::newer:
        throw Refused(PreferencesObstacle::laterVersion, "a later version of this program wrote it");
    case State::foreign:
        throw Refused(PreferencesObstacle::foreign, "it is the database of another program");
    case State::damaged:
        throw Damaged();
    }
}

void SqlitePreferencesDomain::setDamagedFileAside() {
    const DirectoryLock lock(file_.parent_path(), DirectoryLock::Kind::exclusive, lockPatience_);
    // No other file can have the damaged file's inode while it is open. So a file that has taken its place on
    // the path is a different one, from a process that was faster.
    if (!connection_ || connection_->hasMoved()) {
        return;
    }
    const std::filesystem::path name = files::setAside(file_);
    // The file must be closed before others go on, because closing can remove journals by their path.
    close();
    report_("the preferences in " + file_.string() + " are damaged; they were kept as " +
            name.filename().string() + " and all preferences start afresh");
}

void SqlitePreferencesDomain::noteFailure(Access access, const PreferencesFailure& failure) {
    lastFailure_ = failure;
    if (reportedReasons_.insert(failure.reason).second) {
        report_(std::string("cannot ") + (access == Access::read ? "read" : "write") +
                " the preferences in " + file_.string() + ": " + failure.reason);
    }
}

} // namespace tovrel
