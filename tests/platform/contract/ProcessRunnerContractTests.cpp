#include <cerrno>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/linux/TestLoop.h"
#include "platform/linux/applications/PosixProcessRunner.h"
#include "platform/memory/MemoryProcessRunner.h"

namespace tovrel {
namespace {

/// Checks that each outcome is reported once, and only by the queue.
void keepsTheContract(ProcessRunner& runner, TestLoop& loop, const std::function<void()>& endThem,
                      const std::function<void()>& removePrograms) {
    std::map<std::string, std::vector<ProcessOutcome>> outcomes;
    const auto noteAs = [&](const std::string& name) {
        return [&, name](const ProcessOutcome& outcome) { outcomes[name].push_back(outcome); };
    };
    runner.start({"/bin/sh", {"-c", "sleep 0.2; exit 7"}}, noteAs("slow"));
    runner.start({"/bin/sh", {"-c", "exit 3"}}, noteAs("quick"));
    endThem();
    EXPECT_TRUE(outcomes.empty());
    EXPECT_TRUE(loop.runUntil([&] { return outcomes.size() == 2; }));
    EXPECT_EQ(outcomes["slow"], std::vector<ProcessOutcome>{(ProcessEnd{7, false})});
    EXPECT_EQ(outcomes["quick"], std::vector<ProcessOutcome>{(ProcessEnd{3, false})});

    removePrograms();
    const CommandProcessRequest missing{"/no/such/program", {}};
    runner.start(missing, [&](const ProcessOutcome&) { runner.start(missing, noteAs("missing")); });
    EXPECT_EQ(outcomes.size(), 2U);
    EXPECT_TRUE(loop.runUntil([&] { return outcomes.size() == 3; }));
    EXPECT_EQ(outcomes["missing"], std::vector<ProcessOutcome>{(LaunchFailure{"/no/such/program", ENOENT})});
}

TEST(ProcessRunnerContract, Memory) {
    TestLoop loop;
    MemoryProcessRunner runner(loop);
    const auto endThem = [&] {
        runner.end(1, ProcessEnd{3, false});
        runner.end(0, ProcessEnd{7, false});
    };
    keepsTheContract(runner, loop, endThem, [&] { runner.refuse(ENOENT); });
}

TEST(ProcessRunnerContract, Posix) {
    TestLoop loop;
    PosixProcessRunner runner(loop);
    loop.watch(runner);
    keepsTheContract(
        runner, loop, [] {}, [] {});
}

} // namespace
} // namespace tovrel
