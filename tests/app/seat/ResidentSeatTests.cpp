#include "app/seat/ResidentSeat.h"

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "support/TemporaryDirectory.h"

namespace tovrel {
namespace {

/// Restores a variable of the environment on destruction.
class Variable {
  public:
    Variable(const char* name, const std::string& value) : name_(name) {
        if (const char* before = std::getenv(name)) { // NOLINT(concurrency-mt-unsafe): one thread
            before_ = before;
        }
        setenv(name, value.c_str(), 1); // NOLINT(concurrency-mt-unsafe)
    }
    ~Variable() {
        // NOLINTNEXTLINE(concurrency-mt-unsafe)
        static_cast<void>(before_ ? setenv(name_, before_->c_str(), 1) : unsetenv(name_));
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

  private:
    const char* name_;
    std::optional<std::string> before_;
};

TEST(ResidentSeat, IsOnePerDisplayWithAnAddressThatCanBeWritten) {
    const testing_support::TemporaryDirectory folder;
    const std::filesystem::path odd = folder.path() / "a b,c";
    std::filesystem::create_directory(odd);
    const Variable directory("XDG_RUNTIME_DIR", odd.string());
    std::filesystem::path first;
    for (const char* name : {":7", ":7.0", ":7.1"}) {
        const Variable display("DISPLAY", name);
        const auto seat = ResidentSeat::ofEnvironment();
        ASSERT_TRUE(seat);
        first = first.empty() ? seat->socket : first;
        EXPECT_EQ(seat->socket, first) << name;
        EXPECT_EQ(displayName(), ":7");
        EXPECT_TRUE(seat->address().ends_with("/a%20b%2cc/tovrel/_7.socket")) << seat->address();
    }
    for (const char* name : {":8", "a.host:7.1", "/tmp/launch:7"}) {
        const Variable display("DISPLAY", name);
        EXPECT_NE(ResidentSeat::ofEnvironment()->socket, first) << name;
        EXPECT_EQ(ResidentSeat::ofEnvironment()->socket.parent_path(), first.parent_path()) << name;
    }
    const Variable nowhere("XDG_RUNTIME_DIR", (odd / "missing").string());
    EXPECT_FALSE(ResidentSeat::ofEnvironment());
}

} // namespace
} // namespace tovrel
