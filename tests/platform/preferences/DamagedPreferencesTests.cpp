#include <fstream>
#include <unistd.h>

#include <gmock/gmock.h>
#include <sqlite3.h>

#include "platform/linux/ChildProcess.h"
#include "platform/preferences/PreferencesFixture.h"

namespace tovrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class DamagedPreferences : public PreferencesFixture {
  protected:
    const std::string garbage = std::string(16384, '\xA5'); // four pages

    void emptyTheDirectory() const {
        for (const auto& entry : std::filesystem::directory_iterator(directory())) {
            std::filesystem::remove(entry);
        }
    }

    /// Several pages, so that single ones can be damaged.
    void writeSoundFile() {
        std::vector<std::pair<std::string, PreferenceValue>> values(
            100, {"", PreferenceData{std::string(1000, 'x')}});
        for (std::size_t i = 0; i < values.size(); ++i) {
            values[i].first = "key" + std::to_string(i);
        }
        ASSERT_TRUE(makeDomain().setAll(values));
    }

    void overwrite(std::streamoff position, const std::string& bytes) const {
        std::fstream stream(file(), std::ios::binary | std::ios::in | std::ios::out);
        stream.seekp(position);
        stream << bytes;
        ASSERT_TRUE(stream.flush());
    }

    /// Expects the domain to be empty and writable, the damaged bytes under another name, and one report.
    void expectSetAside(SqlitePreferencesDomain& domain, const std::string& damagedBytes) {
        EXPECT_TRUE(domain.lastReadSucceeded());
        EXPECT_TRUE(domain.all().empty());
        EXPECT_TRUE(domain.set("new", true));
        EXPECT_EQ(makeDomain().all(), domain.all());
        EXPECT_THAT(domain.all(), SizeIs(1));
        ASSERT_THAT(otherFiles(), SizeIs(1));
        const std::filesystem::path setAside = otherFiles().front();
        EXPECT_EQ(bytesOf(setAside), damagedBytes);
        EXPECT_THAT(reports, ElementsAre(HasSubstr(setAside.filename().string())));
        EXPECT_EQ(reports.front().find('\n'), std::string::npos);
    }
};

TEST_F(DamagedPreferences, AreSetAsideWhateverTheDamageAndTheFirstOperation) {
    writeSoundFile();
    const std::string sound = bytesOf(file());
    const auto cut = [&](std::size_t size) { return sound.substr(0, size); };
    const auto replaced = [&](std::size_t position, const std::string& bytes) {
        return std::string(sound).replace(position, bytes.size(), bytes);
    };
    const std::vector<std::string> damaged{
        "not a database, whatever its name says",
        std::string(8192, '\0'),
        "xy",
        cut(50),
        cut(4096),
        cut(sound.size() / 2),
        replaced(100, std::string(3996, '\xA5')),                 // the schema's page
        replaced(sound.size() - 4096, std::string(4096, '\xA5')), // a page of values
        replaced(16, "\x03\x21"),                                 // an impossible page size
    };
    for (const std::string& bytes : damaged) {
        for (int operation = 0; operation < 5; ++operation) {
            emptyTheDirectory();
            reports.clear();
            writeFile(bytes);
            SqlitePreferencesDomain domain = makeDomain();
            switch (operation) {
            case 0:
                EXPECT_EQ(domain.value("key1"), std::nullopt);
                break;
            case 1:
                EXPECT_TRUE(domain.set("new", false));
                EXPECT_TRUE(domain.remove("new"));
                break;
            case 2:
                EXPECT_TRUE(domain.remove("key1"));
                break;
            case 3:
                EXPECT_TRUE(domain.all().empty());
                break;
            default:
                static_cast<void>(domain.revision());
            }
            expectSetAside(domain, bytes);
            EXPECT_FALSE(HasFailure()) << "damage " << &bytes - damaged.data() << ", operation " << operation;
        }
    }
}

TEST_F(DamagedPreferences, AreNoticedWhileTheFileIsOpen) {
    writeSoundFile();
    SqlitePreferencesDomain domain = makeDomain();
    EXPECT_TRUE(domain.value("key1"));
    const std::uint64_t revision = domain.revision();
    overwrite(0, garbage);
    const std::string damaged = bytesOf(file());
    EXPECT_EQ(domain.value("key1"), std::nullopt);
    EXPECT_NE(domain.revision(), revision);
    expectSetAside(domain, damaged);
}

TEST_F(DamagedPreferences, OurFileWithoutOurTableCountsAsDamaged) {
    ASSERT_TRUE(makeDomain().set("key", true));
    sqlite3* connection = nullptr;
    ASSERT_EQ(sqlite3_open(file().c_str(), &connection), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(connection, "ALTER TABLE preferences RENAME TO lost", nullptr, nullptr, nullptr),
              SQLITE_OK);
    sqlite3_close(connection);
    const std::string damaged = bytesOf(file());
    SqlitePreferencesDomain domain = makeDomain();
    EXPECT_EQ(domain.value("key"), std::nullopt);
    expectSetAside(domain, damaged);
}

TEST_F(DamagedPreferences, AreKeptWithTheirJournalAndNeverReplaceEarlierOnes) {
    const auto setAsideOne = [&](const std::string& bytes) {
        writeFile(bytes);
        std::ofstream(file().string() + "-wal") << "log of " << bytes;
        SqlitePreferencesDomain domain = makeDomain();
        EXPECT_EQ(domain.value("key"), std::nullopt);
        EXPECT_TRUE(domain.set("key", true));
    };
    const std::vector<std::string> damaged{"first", "second", "third"};
    for (const std::string& bytes : damaged) {
        setAsideOne(bytes); // within one second, so that the names would be the same
    }
    std::vector<std::string> contents;
    for (const std::filesystem::path& path : otherFiles()) {
        if (!path.string().ends_with("-wal") && !path.string().ends_with("-shm")) {
            contents.push_back(bytesOf(path));
            EXPECT_EQ(bytesOf(path.string() + "-wal"), "log of " + contents.back());
        }
    }
    EXPECT_THAT(contents, testing::UnorderedElementsAreArray(damaged));
    EXPECT_THAT(reports, SizeIs(3));
}

TEST_F(DamagedPreferences, ThatCannotBeSetAsideStayAndRefuseWrites) {
    writeFile("damaged");
    const std::string failure = inChildProcess([&]() -> std::string {
        if (chmod(directory().c_str(), 0555) != 0 || (geteuid() == 0 && setuid(65534) != 0)) {
            return "cannot become an ordinary user";
        }
        SqlitePreferencesDomain domain = makeDomain();
        const bool isEmpty = !domain.value("key") && !domain.lastReadSucceeded();
        const bool isRefused = !domain.set("key", true) && !domain.remove("key");
        if (!isEmpty || !isRefused || reports.size() != 1) {
            return "wrong results, " + std::to_string(reports.size()) + " reports";
        }
        return reports.front().find("cannot be set aside") == std::string::npos ? reports.front() : "";
    });
    EXPECT_EQ(failure, "");
    EXPECT_EQ(bytesOf(file()), "damaged");
    std::filesystem::permissions(directory(), std::filesystem::perms::owner_all);
    EXPECT_THAT(otherFiles(), IsEmpty());
}

TEST_F(DamagedPreferences, FoundByManyProcessesAtOnceAreSetAsideOnceAndNoWriteIsLost) {
    constexpr int rounds = 20;
    constexpr int processes = 6;
    for (int round = 0; round < rounds; ++round) {
        emptyTheDirectory();
        writeSoundFile();
        std::vector<ChildProcess> children;
        children.reserve(processes);
        Barrier damageDone;
        Barrier ready;
        for (int i = 0; i < processes; ++i) {
            children.emplace_back([&, i](int /*output*/) {
                SqlitePreferencesDomain domain = makeDomain();
                // Half of them have the file open while it is damaged.
                const bool isOpen = i % 2 == 0 && domain.value("key1").has_value();
                ready.pass();
                damageDone.wait();
                const bool isStored = domain.set("process" + std::to_string(i), true);
                return isStored && isOpen == (i % 2 == 0) ? 0 : 1;
            });
        }
        ready.wait(processes);
        overwrite(0, garbage);
        const std::string damaged = bytesOf(file());
        damageDone.pass(processes);
        for (ChildProcess& child : children) {
            EXPECT_EQ(child.exitStatus(), 0);
        }
        EXPECT_THAT(makeDomain().all(), SizeIs(processes));
        ASSERT_THAT(otherFiles(), SizeIs(1));
        EXPECT_EQ(bytesOf(otherFiles().front()), damaged);
        EXPECT_THAT(reports, IsEmpty());
    }
}

} // namespace
} // namespace tovrel
