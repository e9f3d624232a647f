#include "platform/preferences/SqlitePreferencesDomain.h"

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

#include <gmock/gmock.h>
#include <sqlite3.h>
#include <sys/file.h>
#include <sys/fsuid.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include "platform/posix/FileDescriptor.h"
#include "platform/preferences/PreferencesFixture.h"

namespace tovrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class SqlitePreferences : public PreferencesFixture {};

/// Runs SQL on the file as another program would.
void execute(const std::filesystem::path& file, const char* sql) {
    sqlite3* connection = nullptr;
    ASSERT_EQ(sqlite3_open(file.c_str(), &connection), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(connection, sql, nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(connection);
    sqlite3_close(connection);
}

/// Gives this thread the file access of an ordinary user while it exists, even when the tests run as root.
class OrdinaryUser {
  public:
    explicit OrdinaryUser(const std::filesystem::path& owned) {
        if (geteuid() == 0) {
            EXPECT_EQ(chown(owned.c_str(), nobody, nobody), 0);
            setfsgid(nobody);
            setfsuid(nobody);
        }
    }
    ~OrdinaryUser() {
        setfsuid(geteuid());
        setfsgid(getegid());
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

  private:
    static constexpr uid_t nobody = 65534;
};

unsigned modeOf(const std::filesystem::path& path) {
    return static_cast<unsigned>(std::filesystem::status(path).permissions());
}

TEST_F(SqlitePreferences, TheFirstWriteCreatesPrivateFilesAndReadingCreatesNothing) {
    const std::filesystem::path nested = directory() / "a" / "b" / "preferences.sqlite";
    SqlitePreferencesDomain domain(nested);
    EXPECT_EQ(domain.value("key"), std::nullopt);
    EXPECT_TRUE(domain.all().empty());
    EXPECT_TRUE(domain.remove("key"));
    EXPECT_EQ(domain.revision(), domain.revision());
    EXPECT_FALSE(std::filesystem::exists(directory() / "a"));

    EXPECT_TRUE(domain.set("key", true));
    EXPECT_EQ(modeOf(directory() / "a"), 0700U);
    EXPECT_EQ(modeOf(directory() / "a" / "b"), 0700U);
    EXPECT_EQ(modeOf(nested), 0600U);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(nested.parent_path()), {}), 1);
    EXPECT_EQ(SqlitePreferencesDomain(nested).value("key"), PreferenceValue(true));
}

TEST_F(SqlitePreferences, TwoDomainsOnOneFileSeeEachOthersWritesAtOnce) {
    SqlitePreferencesDomain first = makeDomain();
    SqlitePreferencesDomain second = makeDomain();
    const std::uint64_t beforeCreation = second.revision();
    ASSERT_TRUE(first.set("key", Text("one")));
    const std::uint64_t afterCreation = second.revision();
    EXPECT_NE(afterCreation, beforeCreation);
    EXPECT_EQ(second.value("key"), PreferenceValue(Text("one")));
    EXPECT_EQ(second.revision(), afterCreation);

    ASSERT_TRUE(first.set("key", Text("two")));
    // A read that notices the change before revision() is called must not hide it.
    EXPECT_EQ(second.value("key"), PreferenceValue(Text("two")));
    EXPECT_NE(second.revision(), afterCreation);
    EXPECT_EQ(first.revision(), first.revision());

    ASSERT_TRUE(second.remove("key"));
    EXPECT_EQ(first.value("key"), std::nullopt);
    EXPECT_THAT(reports, IsEmpty());
}

TEST_F(SqlitePreferences, AnEmptyFileAndOneReplacedOrRemovedMeanwhileAreFollowed) {
    writeFile("");
    SqlitePreferencesDomain domain = makeDomain();
    EXPECT_EQ(domain.value("key"), std::nullopt);
    ASSERT_TRUE(domain.set("key", true));

    std::filesystem::rename(file(), directory() / "elsewhere");
    std::uint64_t revision = domain.revision();
    EXPECT_EQ(domain.value("key"), std::nullopt);
    ASSERT_TRUE(makeDomain().set("key", Text("in a new file")));
    EXPECT_NE(domain.revision(), revision);
    EXPECT_EQ(domain.value("key"), PreferenceValue(Text("in a new file")));

    revision = domain.revision();
    std::filesystem::rename(directory() / "elsewhere", file());
    EXPECT_NE(domain.revision(), revision);
    EXPECT_EQ(domain.value("key"), PreferenceValue(true));

    std::filesystem::remove(file());
    ASSERT_TRUE(domain.set("key", false)); // without a read in between
    EXPECT_EQ(makeDomain().value("key"), PreferenceValue(false));
    EXPECT_THAT(reports, IsEmpty());
}

TEST_F(SqlitePreferences, ALinkToTheFileIsFollowedAndKept) {
    const std::filesystem::path elsewhere = directory() / "elsewhere";
    std::filesystem::create_directory(elsewhere);
    std::filesystem::create_symlink(elsewhere / "real", file());
    ASSERT_TRUE(makeDomain().set("key", true));
    EXPECT_TRUE(std::filesystem::is_symlink(file()));
    EXPECT_EQ(makeDomain().value("key"), PreferenceValue(true));
    EXPECT_TRUE(std::filesystem::is_regular_file(elsewhere / "real"));
}

TEST_F(SqlitePreferences, FilesOfALaterVersionOrAnotherProgramAreReportedAndNeverChanged) {
    ASSERT_TRUE(makeDomain().set("key", true));
    SqlitePreferencesDomain open = makeDomain();
    EXPECT_TRUE(open.value("key"));
    execute(file(), "PRAGMA user_version = 2");
    const std::string newer = bytesOf(file());
    EXPECT_EQ(open.value("key"), std::nullopt); // even if it changes while it is open
    EXPECT_FALSE(open.lastReadSucceeded());
    EXPECT_FALSE(open.set("key", false));
    EXPECT_FALSE(open.remove("key"));
    EXPECT_THAT(reports, ElementsAre(HasSubstr("a later version of this program wrote it")));
    EXPECT_EQ(open.lastFailure().obstacle, PreferencesObstacle::laterVersion);
    EXPECT_EQ(bytesOf(file()), newer);

    std::filesystem::remove(file());
    execute(file(), "CREATE TABLE bookmarks (title); INSERT INTO bookmarks VALUES ('kept')");
    const std::string foreign = bytesOf(file());
    reports.clear();
    SqlitePreferencesDomain domain = makeDomain();
    EXPECT_TRUE(domain.all().empty());
    EXPECT_FALSE(domain.setAll({{"key", true}}));
    EXPECT_THAT(reports, ElementsAre(HasSubstr("it is the database of another program")));
    EXPECT_EQ(bytesOf(file()), foreign);
    EXPECT_THAT(otherFiles(), IsEmpty());
}

TEST_F(SqlitePreferences, WhatCannotBeOpenedIsReportedOncePerKindAndLeftAlone) {
    std::filesystem::create_directory(file());
    SqlitePreferencesDomain onDirectory = makeDomain();
    EXPECT_EQ(onDirectory.value("key"), std::nullopt);
    EXPECT_FALSE(onDirectory.lastReadSucceeded());
    EXPECT_FALSE(onDirectory.set("key", true));
    EXPECT_THAT(reports, ElementsAre(HasSubstr("it is not a regular file")));
    EXPECT_EQ(onDirectory.lastFailure().obstacle, PreferencesObstacle::notAFile);
    std::filesystem::remove(file());

    // The next operation succeeds, because the cause of the failure is gone.
    EXPECT_TRUE(onDirectory.value("key") == std::nullopt && onDirectory.set("key", true));

    reports.clear();
    SqlitePreferencesDomain underFile(file() / "nested",
                                      [this](const std::string& line) { reports.push_back(line); });
    EXPECT_FALSE(underFile.set("key", true));
    EXPECT_THAT(reports, ElementsAre(HasSubstr("Not a directory")));

    reports.clear();
    ASSERT_EQ(chmod(file().c_str(), 0), 0);
    const OrdinaryUser user(directory());
    SqlitePreferencesDomain unreadable = makeDomain();
    EXPECT_EQ(unreadable.value("key"), std::nullopt);
    EXPECT_FALSE(unreadable.set("key", false));
    EXPECT_THAT(reports, ElementsAre(HasSubstr("Permission denied")));
    EXPECT_THAT(otherFiles(), IsEmpty());
}

TEST_F(SqlitePreferences, ReadOnlyFilesAndDirectoriesAreReadAndKeepTheirValues) {
    ASSERT_TRUE(makeDomain().set("key", Text("kept")));
    std::optional<OrdinaryUser> user(directory());
    ASSERT_EQ(chmod(directory().c_str(), 0500), 0);
    SqlitePreferencesDomain domain = makeDomain();
    for (const mode_t mode : {0444U, 0666U}) {
        user.reset();
        ASSERT_EQ(chmod(file().c_str(), mode), 0);
        user.emplace(directory());
        reports.clear();
        SqlitePreferencesDomain fresh = makeDomain();
        EXPECT_EQ(fresh.value("key"), PreferenceValue(Text("kept")));
        EXPECT_FALSE(fresh.set("key", Text("lost")));
        EXPECT_FALSE(fresh.set("other", true));
        EXPECT_FALSE(fresh.remove("key"));
        EXPECT_TRUE(fresh.remove("other")); // nothing to remove, nothing to write
        EXPECT_EQ(fresh.value("key"), PreferenceValue(Text("kept")));
        EXPECT_EQ(fresh.all().size(), 1U);
        EXPECT_THAT(reports, ElementsAre(HasSubstr("cannot write the preferences")));
        EXPECT_EQ(fresh.lastFailure().obstacle, PreferencesObstacle::notPermitted);
    }
    EXPECT_THAT(otherFiles(), IsEmpty());

    // The file is missing and cannot be created.
    std::filesystem::permissions(directory(), std::filesystem::perms::owner_all);
    user.reset();
    std::filesystem::remove(file());
    ASSERT_EQ(chmod(directory().c_str(), 0500), 0);
    user.emplace(directory());
    reports.clear();
    SqlitePreferencesDomain missing = makeDomain();
    EXPECT_EQ(missing.value("key"), std::nullopt);
    EXPECT_TRUE(missing.lastReadSucceeded());
    EXPECT_FALSE(missing.set("key", true));
    EXPECT_THAT(reports, ElementsAre(HasSubstr("Permission denied")));
}

TEST_F(SqlitePreferences, ALockHeldByAnotherProgramCostsTheWriteButNotTheValue) {
    ASSERT_TRUE(makeDomain().set("key", Text("kept")));
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(file().c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    SqlitePreferencesDomain domain = makeDomain();
    EXPECT_EQ(domain.value("key"), std::nullopt);
    EXPECT_FALSE(domain.lastReadSucceeded());
    ASSERT_EQ(sqlite3_exec(other, "COMMIT", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(other);
    // The file is writable again, but a value that a caller derived from the missing one must not replace the
    // real one.
    EXPECT_FALSE(domain.set("key", Text("made of nothing")));
    EXPECT_TRUE(domain.set("other", true));
    EXPECT_EQ(domain.value("key"), PreferenceValue(Text("kept")));
    EXPECT_TRUE(domain.set("key", Text("changed")));
    EXPECT_THAT(reports,
                ElementsAre(HasSubstr("another program keeps it locked"), HasSubstr("so it is kept")));
}

TEST_F(SqlitePreferences, EveryOperationGivesUpOnALockWhenPatienceIsAtItsEnd) {
    ASSERT_TRUE(makeDomain().set("key", Text("kept")));
    SqlitePreferencesDomain domain(file(), [this](const std::string& line) { reports.push_back(line); }, {});
    EXPECT_EQ(domain.value("key"), PreferenceValue(Text("kept")));
    const auto expectLocked = [&] {
        EXPECT_EQ(domain.value("key"), std::nullopt);
        EXPECT_FALSE(domain.set("other", true));
        EXPECT_FALSE(domain.setAll({{"other", true}}));
        EXPECT_FALSE(domain.remove("key"));
        EXPECT_TRUE(domain.all().empty());
        EXPECT_NE(domain.revision(), domain.revision()) << "what cannot be looked at may have changed";
        EXPECT_EQ(domain.lastFailure().obstacle, PreferencesObstacle::locked);
    };
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(file().c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    expectLocked();
    sqlite3_close(other);
    const FileDescriptor locked(open(directory().c_str(), O_RDONLY | O_DIRECTORY));
    ASSERT_EQ(flock(locked.get(), LOCK_EX), 0);
    expectLocked();
    ASSERT_EQ(flock(locked.get(), LOCK_UN), 0);
    EXPECT_EQ(domain.value("key"), PreferenceValue(Text("kept")));
    EXPECT_TRUE(domain.remove("key"));
}

/// Fills the disk, and expects a domain to keep its value, report once, and go on when there is room again.
void expectAFullDiskToBeSurvived(const std::filesystem::path& file,
                                 const std::function<void(bool isFull)>& setFull) {
    std::vector<std::string> reports;
    SqlitePreferencesDomain domain(file, [&](const std::string& line) { reports.push_back(line); });
    ASSERT_TRUE(domain.set("key", Text("kept")));
    setFull(true);
    const PreferenceData large{std::string(1'000'000, 'x')};
    EXPECT_FALSE(domain.set("key", large));
    EXPECT_FALSE(domain.set("other", large));
    EXPECT_FALSE(domain.setAll({{"small", true}, {"large", large}}));
    EXPECT_EQ(domain.value("key"), PreferenceValue(Text("kept")));
    EXPECT_EQ(domain.all().size(), 1U);
    EXPECT_EQ(domain.lastFailure(), (PreferencesFailure{PreferencesObstacle::noRoom, "the disk is full"}));
    EXPECT_THAT(reports, ElementsAre(HasSubstr("the disk is full")));
    setFull(false);
    EXPECT_TRUE(domain.set("key", large));
    EXPECT_EQ(SqlitePreferencesDomain(file).value("key"), PreferenceValue(large));
}

TEST_F(SqlitePreferences, AFullDiskKeepsTheOldValue) {
    if (mount("none", directory().c_str(), "tmpfs", 0, "size=4m,mode=0700") != 0) {
        GTEST_SKIP() << "mounting is not allowed here";
    }
    expectAFullDiskToBeSurvived(file(), [&](bool isFull) {
        const std::filesystem::path filler = directory() / "filler";
        if (isFull) {
            std::ofstream stream(filler, std::ios::binary);
            while (stream << std::string(4096, 'x') << std::flush) {
            }
        } else {
            std::filesystem::remove(filler);
        }
    });
    EXPECT_EQ(umount(directory().c_str()), 0);
}

} // namespace
} // namespace tovrel
