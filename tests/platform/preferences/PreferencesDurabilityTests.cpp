#include <array>
#include <chrono>
#include <random>
#include <thread>
#include <unistd.h>

#include <gmock/gmock.h>

#include "platform/linux/ChildProcess.h"
#include "platform/preferences/PreferencesFixture.h"

namespace tovrel {
namespace {

using testing::IsEmpty;

class PreferencesDurability : public PreferencesFixture {
  protected:
    static constexpr int keyCount = 7;

    static std::string keyOf(int number) { return "key" + std::to_string(number % keyCount); }

    /// Values of very different sizes, each with its number.
    static std::string valueOf(int number) {
        return std::to_string(number) + ":" +
               std::string(static_cast<std::size_t>(number * 7919 % 20000), 'x');
    }
};

/// A process writes numbered values until it is killed, and a byte for each value that the domain reported as
/// stored.
TEST_F(PreferencesDurability, AProcessKilledWhileWritingLosesNoAcknowledgedValue) {
    constexpr int rounds = 20;
    const std::random_device::result_type seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::minstd_rand random(seed); // NOLINT(cert-msc51-cpp)
    std::uniform_int_distribution<int> microseconds(500, 30'000);
    for (int round = 0; round < rounds; ++round) {
        std::filesystem::remove(file());
        Barrier started;
        ChildProcess writer([&](int output) {
            SqlitePreferencesDomain domain = makeDomain();
            for (int number = 0;; ++number) {
                if (!domain.set(keyOf(number), PreferenceData{valueOf(number)}) ||
                    write(output, "+", 1) != 1) {
                    return 1;
                }
                if (number == 0) {
                    started.pass();
                }
            }
        });
        started.wait();
        // The moment of the kill is the test's random input: nothing is waited for here.
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        writer.kill();
        const int acknowledged = static_cast<int>(writer.output().size());
        ASSERT_EQ(writer.exitStatus(), -SIGKILL);

        SqlitePreferencesDomain domain = makeDomain();
        for (int number = std::max(0, acknowledged - keyCount); number < acknowledged; ++number) {
            const std::optional<std::string> stored = dataValue(domain, keyOf(number));
            ASSERT_TRUE(stored) << "value " << number << " of " << acknowledged;
            // The interrupted write may have replaced the oldest value completely.
            const bool isNext = keyOf(number) == keyOf(acknowledged) && *stored == valueOf(acknowledged);
            ASSERT_TRUE(isNext || *stored == valueOf(number)) << "value " << number << " of " << acknowledged;
        }
        EXPECT_TRUE(domain.set("after", true));
        EXPECT_THAT(otherFiles(), IsEmpty()); // an interrupted change was undone, nothing set aside
        EXPECT_THAT(reports, IsEmpty());
    }
}

TEST_F(PreferencesDurability, ProcessesWritingAtOnceLoseNothing) {
    constexpr int processes = 4;
    constexpr int writes = 25;
    std::vector<ChildProcess> children;
    children.reserve(processes);
    Barrier start;
    for (int process = 0; process < processes; ++process) {
        children.emplace_back([&, process](int /*output*/) {
            SqlitePreferencesDomain domain = makeDomain();
            start.wait();
            for (int i = 0; i < writes; ++i) {
                const std::string key = std::to_string(process) + "." + std::to_string(i);
                if (!domain.set(key, Text(key)) || domain.value(key) != PreferenceValue(Text(key))) {
                    return 1;
                }
            }
            return 0;
        });
    }
    start.pass(processes);
    for (ChildProcess& child : children) {
        EXPECT_EQ(child.exitStatus(), 0);
    }
    EXPECT_THAT(makeDomain().all(), testing::SizeIs(processes * writes));
    EXPECT_THAT(reports, IsEmpty());
}

} // namespace
} // namespace tovrel
