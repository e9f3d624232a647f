#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <set>

#include "platform/PreferencesDomain.h"
#include "platform/preferences/LockPatience.h"
#include "platform/preferences/PreferencesSchema.h"
#include "platform/preferences/SqliteConnection.h"

namespace tovrel {

/// A preferences domain in one SQLite file. The file and its directory are created by the first write, for
/// the user alone; reading creates nothing and needs no right to write.
///
/// Durability: the rollback journal (SQLite's default) with synchronous=EXTRA, which synchronises the
/// journal, the file, and the directory after the journal is removed, before a commit returns. A write-ahead
/// log with synchronous=FULL promises the same at a third of the time (0.25 ms against 1 ms a write on an
/// SSD), but its index file is mapped shared memory: it does not work on network homes, and it must be
/// created even to read, which fails on read-only media and leaves files behind. A few writes a minute do not
/// justify that.
///
/// Damage: a file that is no database, is corrupt or lacks our table is set aside (renamed with its journals,
/// never deleted) and reported, and the domain starts again empty. A sound database of another program, or of
/// a later version of this one, is left alone: it reads as empty and every write is refused.
///
/// Every operation locks the file's directory in shared mode, and setting a file aside locks it exclusively.
/// So a file is never moved during a write. If several processes find the same damage, one sets the file
/// aside; the others notice that their open file is gone from its path and open the file that is there now.
class SqlitePreferencesDomain : public PreferencesDomain {
  public:
    /// Receives one line, without a line break, for each event that the user should know.
    using Reporter = std::function<void(const std::string&)>;

    /// For a command that runs alone: each operation may wait this long for locks of other processes.
    static constexpr LockPatience::Terms unhurried{std::chrono::seconds(5), {}};
    /// For an interactive program: the palette opens after a dozen reads in well under a second, and nobody
    /// must notice the sum of their waits.
    static constexpr LockPatience::Terms interactive{std::chrono::milliseconds(100), std::chrono::seconds(1)};

    /// Opens nothing before the first operation. Reports go to standard error unless a reporter is given.
    explicit SqlitePreferencesDomain(const std::filesystem::path& file, Reporter report = {},
                                     const LockPatience::Terms& lockPatience = unhurried);
    ~SqlitePreferencesDomain() override = default;
    SqlitePreferencesDomain(const SqlitePreferencesDomain&) = delete;
    SqlitePreferencesDomain& operator=(const SqlitePreferencesDomain&) = delete;

    [[nodiscard]] std::optional<PreferenceValue> value(const std::string& key) override;
    bool set(const std::string& key, const PreferenceValue& value) override;
    bool setAll(const std::vector<std::pair<std::string, PreferenceValue>>& values) override;
    bool remove(const std::string& key) override;
    [[nodiscard]] std::vector<std::pair<std::string, PreferenceValue>> all() override;
    /// Takes some ten system calls, whatever the file's size.
    [[nodiscard]] std::uint64_t revision() override;
    [[nodiscard]] bool lastReadSucceeded() const override { return lastReadSucceeded_; }
    [[nodiscard]] PreferencesFailure lastFailure() const override { return lastFailure_; }

  private:
    using Operation = std::function<void()>;
    enum class Access { read, write };

    bool read(const Operation& operation);
    bool write(const std::function<void(sqlite::Connection&)>& change);
    bool attempt(Access access, const Operation& operation);

    bool open();
    void close();
    bool bringUpToDate();
    void requireUsable() const;
    void writeLocked(const std::function<void(sqlite::Connection&)>& change);
    void setDamagedFileAside();
    void noteFailure(Access access, const PreferencesFailure& failure);

    std::filesystem::path file_;
    Reporter report_;
    LockPatience lockPatience_;
    std::optional<sqlite::Connection> connection_;
    preferences_schema::State state_ = preferences_schema::State::empty; ///< The state of `connection_`.
    /// The version that `connection_` last read; commits of other connections change it.
    std::int64_t dataVersion_ = 0;
    std::uint64_t revision_ = 0;
    bool lastReadSucceeded_ = true;
    PreferencesFailure lastFailure_;
    /// Keys whose last read failed, and the reason why.
    std::map<std::string, PreferencesObstacle> unreadKeys_;
    std::set<std::string> reportedReasons_;
};

} // namespace tovrel
