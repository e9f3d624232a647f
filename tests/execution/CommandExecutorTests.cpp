#include "execution/CommandExecutor.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "platform/memory/ManualQueue.h"
#include "platform/memory/MemoryProcessRunner.h"

namespace tovrel {
namespace {

class CommandExecutorTest : public testing::Test {
  protected:
    void execute(CustomCommandKind kind, const Text& payload) {
        opened_.clear();
        result_.reset();
        CustomCommand command;
        command.kind = kind;
        command.payload = payload;
        executor_.execute(command, [this](const CommandExecutionResult& result) { result_ = result; });
        EXPECT_EQ(result_, std::nullopt) << "told by the queue alone";
        queue_.runDue();
    }
    void endLast(ProcessEnd end) {
        runner_.end(runner_.requests().size() - 1, end);
        queue_.runDue();
    }

    ManualQueue queue_;
    MemoryProcessRunner runner_{queue_};
    std::vector<std::string> opened_;
    std::optional<CommandExecutionResult> result_;
    CommandExecutor executor_{runner_, queue_,
                              [this](const Url& url) { opened_.push_back(url.text().utf8()); },
                              [](const Text& path) { return path.view().starts_with("/exists"); }};
};

using Request = CommandProcessRequest;
using Opened = std::vector<std::string>;
using enum CustomCommandKind;

TEST_F(CommandExecutorTest, EachKindRunsItsProgram) {
    execute(shellScript, " exit 3 ");
    EXPECT_EQ(result_, std::nullopt) << "it runs";
    execute(appleScript, "/exists/script.scpt");
    execute(appleScript, "~/script.scpt");
    execute(shortcut, "Backup");
    EXPECT_EQ(opened_, Opened{});
    execute(shortcut, "Backup: daily");
    EXPECT_EQ(opened_, Opened{"Backup:%20daily"});
    EXPECT_EQ(result_, CommandExecutionResult());
    EXPECT_EQ(runner_.requests(), (std::vector<Request>{{"/bin/zsh", {"-c", " exit 3 "}},
                                                        {"/usr/bin/osascript", {"/exists/script.scpt"}},
                                                        {"/usr/bin/osascript", {"-e", "~/script.scpt"}},
                                                        {"/usr/bin/shortcuts", {"run", "Backup"}}}));
}

TEST_F(CommandExecutorTest, UrlsAndPathsAreOpened) {
    execute(open, "/exists/a folder/50% Größe");
    EXPECT_EQ(opened_, Opened{"file:///exists/a%20folder/50%25%20Gr%C3%B6%C3%9Fe"});
    execute(open, "https://example.org/?q=a b&c=100%&d=%20#ü");
    EXPECT_EQ(opened_, Opened{"https://example.org/?q=a%20b&c=100%25&d=%20#%C3%BC"});
    execute(open, "no/such/thing");
    EXPECT_EQ(opened_, Opened{"no/such/thing"});
    EXPECT_EQ(result_, CommandExecutionResult());
    execute(open, "");
    EXPECT_EQ(result_, CommandExecutionResult(InvalidOpenPayload{""}));
    EXPECT_EQ(opened_, Opened{});
    EXPECT_EQ(Url::ofFile("x y").text().utf8(),
              "file://" + std::filesystem::current_path().string() + "/x%20y");
}

TEST_F(CommandExecutorTest, OutcomesArePassedOn) {
    execute(shellScript, "exit 0");
    endLast({0, false});
    EXPECT_EQ(result_, CommandExecutionResult());
    execute(shellScript, "exit 3");
    endLast({3, false});
    EXPECT_EQ(result_, CommandExecutionResult(ProcessFailed{shellScript, 3, false}));
    execute(appleScript, "beep");
    endLast({9, true});
    EXPECT_EQ(result_, CommandExecutionResult(ProcessFailed{appleScript, 9, true}));
    runner_.refuse(2);
    execute(shortcut, "Backup");
    EXPECT_EQ(result_, CommandExecutionResult(LaunchFailure{"/usr/bin/shortcuts", 2}));
}

} // namespace
} // namespace tovrel
