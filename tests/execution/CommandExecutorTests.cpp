#include "execution/CommandExecutor.h"

#include <filesystem>

#include <gtest/gtest.h>

namespace tovrel {
namespace {

class CommandExecutorTest : public testing::Test {
  protected:
    CommandExecutionResult execute(CustomCommandKind kind, const Text& payload) {
        requests_.clear();
        opened_.clear();
        CustomCommand command;
        command.kind = kind;
        command.payload = payload;
        return executor_.execute(command);
    }

    std::variant<std::int32_t, LaunchFailure> outcome_ = 0;
    std::vector<CommandProcessRequest> requests_;
    std::vector<std::string> opened_;
    CommandExecutor executor_{[this](const CommandProcessRequest& request) {
                                  requests_.push_back(request);
                                  return outcome_;
                              },
                              [this](const Url& url) { opened_.push_back(url.text().utf8()); },
                              [](const Text& path) { return path.view().starts_with("/exists"); }};
};

using Requests = std::vector<CommandProcessRequest>;
using Opened = std::vector<std::string>;
using enum CustomCommandKind;

TEST_F(CommandExecutorTest, WhatIsRunForEachKind) {
    EXPECT_EQ(execute(shellScript, " exit 3 "), CommandExecutionResult());
    EXPECT_EQ(requests_, (Requests{{"/bin/zsh", {"-c", " exit 3 "}}}));
    execute(appleScript, "/exists/script.scpt");
    EXPECT_EQ(requests_, (Requests{{"/usr/bin/osascript", {"/exists/script.scpt"}}}));
    execute(appleScript, "~/script.scpt");
    EXPECT_EQ(requests_, (Requests{{"/usr/bin/osascript", {"-e", "~/script.scpt"}}}));
    execute(shortcut, "Backup");
    EXPECT_EQ(requests_, (Requests{{"/usr/bin/shortcuts", {"run", "Backup"}}}));
    EXPECT_EQ(opened_, Opened{});
    execute(shortcut, "Backup: daily");
    EXPECT_EQ(requests_, Requests{});
    EXPECT_EQ(opened_, Opened{"Backup:%20daily"});
}

TEST_F(CommandExecutorTest, WhatIsOpened) {
    execute(open, "/exists/a folder/50% Größe");
    EXPECT_EQ(opened_, Opened{"file:///exists/a%20folder/50%25%20Gr%C3%B6%C3%9Fe"});
    execute(open, "https://example.org/?q=a b&c=100%&d=%20#ü");
    EXPECT_EQ(opened_, Opened{"https://example.org/?q=a%20b&c=100%25&d=%20#%C3%BC"});
    execute(open, "no/such/thing");
    EXPECT_EQ(opened_, Opened{"no/such/thing"});
    EXPECT_EQ(execute(open, ""), CommandExecutionResult(InvalidOpenPayload{""}));
    EXPECT_EQ(opened_, Opened{});
    EXPECT_EQ(Url::ofFile("x y").text().utf8(),
              "file://" + std::filesystem::current_path().string() + "/x%20y");
}

TEST_F(CommandExecutorTest, FailuresArePassedOn) {
    outcome_ = 3;
    EXPECT_EQ(execute(shellScript, "exit 3"), CommandExecutionResult(ProcessFailed{shellScript, 3}));
    EXPECT_EQ(execute(appleScript, "beep"), CommandExecutionResult(ProcessFailed{appleScript, 3}));
    outcome_ = LaunchFailure{2};
    EXPECT_EQ(execute(shortcut, "Backup"), CommandExecutionResult(LaunchFailure{2}));
}

} // namespace
} // namespace tovrel
