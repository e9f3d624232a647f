#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <unistd.h>

#include <gtest/gtest.h>

#include "platform/linux/dbus/DBus.h"
#include "platform/linux/dbus/DBusValue.h"
#include "platform/linux/menus/FakeAccessibility.h"
#include "platform/linux/menus/accessibility/AtspiBus.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

SteadyTime soon() {
    return std::chrono::steady_clock::now() + 5s;
}

class DBusConnectionTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(connection_.has_value()) << "dbus-daemon is needed"; }

    FakeAccessibility bus_;
    std::optional<DBusConnection> connection_ = DBusConnection::openSessionBus();
};

TEST_F(DBusConnectionTest, GoesToSocketsOfThisMachineOnly) {
    const std::string good = bus_.address();
    const auto file = std::filesystem::temp_directory_path() / ("tovrel-ran-" + std::to_string(getpid()));
    const std::string program = "unixexec:path=/usr/bin/touch,argv1=" + file.string();
    const auto list = [](const std::string& one, const std::string& other) {
        std::string addresses = one;
        return addresses.append(";").append(other);
    };
    for (const std::string& address :
         {program, list(good, program), list(program, good), list("tcp:host=localhost,port=1", good),
          std::string("unix:"), std::string("unix:path=/nonexistent"), std::string("unix:path=%zz"),
          std::string()}) {
        EXPECT_FALSE(DBusConnection::open(address).has_value()) << address;
    }
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_TRUE(DBusConnection::open("unix:path=/nonexistent;" + good).has_value());
}

TEST_F(DBusConnectionTest, CallsOnlyWhomItKnows) {
    for (const char* name : {"org.a11y.Bus", ":", "", ":1.2 "}) {
        EXPECT_FALSE(connection_->methodCall(name, "/", "org.example.Any", "Any")) << name;
    }
    EXPECT_TRUE(isUniqueName(connection_->owner("org.a11y.Bus", soon()).value_or("")));
    EXPECT_EQ(connection_->owner("org.example.Nobody", soon()), std::nullopt);
    EXPECT_FALSE(connection_->startService("org.example.Nobody", soon()));
    EXPECT_TRUE(connection_->isOpen());
}

TEST_F(DBusConnectionTest, OnlyWhoWasAskedAnswers) {
    sd_bus* raw = nullptr;
    sd_bus_new(&raw);
    sd_bus_set_address(raw, bus_.address().c_str());
    sd_bus_set_bus_client(raw, 1);
    sd_bus_start(raw);
    const std::unique_ptr<sd_bus, decltype(&sd_bus_close_unref)> stranger(raw, sd_bus_close_unref);
    const char* ignored = nullptr;
    sd_bus_get_unique_name(raw, &ignored); // A connection with a unique name is connected.

    const FakeService asked(bus_.address(), {}, [&](sd_bus_message* call) {
        // The stranger is quicker: the bus has passed on its answer before it answers the stranger's own
        // question.
        sd_bus_message* forged = nullptr;
        sd_bus_message_new_method_return(call, &forged);
        sd_bus_message_append(forged, "s", "forged");
        sd_bus_send(stranger.get(), forged, nullptr);
        sd_bus_message_unref(forged);
        sd_bus_call_method(stranger.get(), "org.freedesktop.DBus", "/", "org.freedesktop.DBus", "GetId",
                           nullptr, nullptr, "");
        sd_bus_reply_method_return(call, "s", "true");
    });
    const auto before = connection_->received();
    auto answer = connection_->call(
        connection_->methodCall(asked.uniqueName().c_str(), "/", "org.example.Any", "Any"), soon());
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(answer->readString(), "true");
    EXPECT_GT(connection_->received() - before, 150U) << "the forged one has not even arrived";
}

TEST_F(DBusConnectionTest, AMessageThatIsTooLongEndsTheConnectionAndNoOther) {
    const FakeService hostile(bus_.address(), {}, [](sd_bus_message* call) {
        sd_bus_message* reply = nullptr;
        sd_bus_message_new_method_return(call, &reply);
        const std::string bytes(DBusInlet::longestMessage, 'x');
        sd_bus_message_append_array(reply, 'y', bytes.data(), bytes.size());
        sd_bus_send(nullptr, reply, nullptr);
        sd_bus_message_unref(reply);
    });
    EXPECT_FALSE(
        connection_
            ->call(connection_->methodCall(hostile.uniqueName().c_str(), "/", "org.example.Any", "Any"),
                   soon())
            .has_value());
    EXPECT_FALSE(connection_->isOpen());
    EXPECT_TRUE(connection_->wasOverwhelmed());
    EXPECT_LT(connection_->received(), 1'000'000U);
    EXPECT_FALSE(connection_->busCall("GetId"));
    EXPECT_TRUE(DBusConnection::openSessionBus()->owner("org.a11y.Bus", soon()).has_value());
}

TEST_F(DBusConnectionTest, AnErrorIsNoAddressAndAWellKnownNameNoApplication) {
    AtspiBus accessibility;
    bus_.add("org.a11y.Bus"); // It has a process, as an application would.
    EXPECT_EQ(accessibility.applications().value().size(), 0U);
    bus_.refusesAddress = true;
    AtspiBus refused;
    EXPECT_FALSE(refused.answers());
    EXPECT_TRUE(refused.isEnabled());
}

TEST_F(DBusConnectionTest, ValuesAreKeptWhileTheyAreSmallAndPassedByOtherwise) {
    const DBusMessage message = connection_->busCall("Any");
    sd_bus_message* raw = message.handle();
    sd_bus_message_append(raw, "v", "(sa{sv}d)", "text", 2, "a", "ax", 2, std::int64_t{-1}, std::int64_t{2},
                          "b", "v", "ab", 1, 1, 0.5);
    sd_bus_message_append(raw, "v", "s", std::string(largestValue, 'x').c_str());
    sd_bus_message_open_container(raw, 'v', "a(ii)");
    sd_bus_message_open_container(raw, 'a', "(ii)");
    for (int index = 0; index < 500; ++index) {
        sd_bus_message_append(raw, "(ii)", index, index);
    }
    sd_bus_message_close_container(raw);
    sd_bus_message_close_container(raw);
    sd_bus_message_append(raw, "vvvi", "s", "text", "i", 5, "y", 7, 9);
    sd_bus_message_seal(raw, 1, 0);

    CallLimits limits{.silence = 1s,
                      .total = 10s,
                      .callsInFlight = 1,
                      .received = 1'000'000,
                      .values = 10'000,
                      .textBytes = 100'000,
                      .valueBytes = 100'000};
    AnswerBudget budget(limits, std::chrono::steady_clock::now());
    const auto value = readVariant(raw, budget);
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(value->signature, "(sa{sv}d)");
    EXPECT_EQ(readVariant(raw, budget), std::nullopt) << "a long text";
    EXPECT_EQ(readVariant(raw, budget), std::nullopt) << "many parts";
    EXPECT_EQ(readVariantText(raw, budget), "text");
    EXPECT_EQ(readVariantText(raw, budget), std::nullopt);
    skipVariant(raw, budget);
    std::int32_t last = 0;
    EXPECT_GT(sd_bus_message_read(raw, "i", &last), 0);
    EXPECT_EQ(last, 9);

    const DBusMessage copy = connection_->busCall("Any");
    ASSERT_TRUE(appendVariant(copy.handle(), *value));
    sd_bus_message_seal(copy.handle(), 2, 0);
    EXPECT_EQ(readVariant(copy.handle(), budget), value) << "sent back it is the same";
    sd_bus_message_rewind(copy.handle(), 1);
    limits.values = 5;
    AnswerBudget small(limits, std::chrono::steady_clock::now());
    EXPECT_EQ(readVariant(copy.handle(), small), std::nullopt);
    EXPECT_TRUE(small.isExhausted());
}

} // namespace
} // namespace tovrel
