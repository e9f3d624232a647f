#include "platform/linux/applications/PosixProcessRunner.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <string>
#include <unistd.h>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include "platform/linux/TestLoop.h"
#include "platform/posix/FileDescriptor.h"

namespace tovrel {
namespace {

/// Keeps the process from getting further file descriptors while it exists.
class NoMoreDescriptors {
  public:
    NoMoreDescriptors() {
        getrlimit(RLIMIT_NOFILE, &before_);
        const FileDescriptor next(dup(STDOUT_FILENO));
        const rlimit none{static_cast<rlim_t>(next.get()), before_.rlim_max};
        setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoMoreDescriptors() { setrlimit(RLIMIT_NOFILE, &before_); }
    NoMoreDescriptors(const NoMoreDescriptors&) = delete;
    NoMoreDescriptors& operator=(const NoMoreDescriptors&) = delete;

  private:
    rlimit before_{};
};

class PosixProcessRunnerTest : public testing::Test {
  protected:
    PosixProcessRunnerTest() { loop_.watch(runner_); }
    void TearDown() override {
        EXPECT_TRUE(waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD) << "a process was left";
    }

    void start(const CommandProcessRequest& request) {
        outcome_.reset();
        runner_.start(request, [this](const ProcessOutcome& outcome) {
            EXPECT_FALSE(outcome_);
            outcome_ = outcome;
        });
    }
    std::optional<ProcessOutcome> outcome() {
        loop_.runUntil([this] { return outcome_.has_value(); });
        return outcome_;
    }
    std::optional<ProcessOutcome> run(const CommandProcessRequest& request) {
        start(request);
        return outcome();
    }
    std::optional<ProcessOutcome> shell(const std::string& script) {
        return run({"/bin/sh", {"-c", Text(script)}});
    }

    TestLoop loop_;
    PosixProcessRunner runner_{loop_};
    std::optional<ProcessOutcome> outcome_;
};

TEST_F(PosixProcessRunnerTest, HandsArgumentsOverAndSaysWhatStoodInTheWay) {
    EXPECT_EQ(run({"/bin/sh", {"-c", "test \"$1\" = 'ä \"b\" $c'", "sh", "ä \"b\" $c"}}),
              ProcessOutcome(ProcessEnd{}));
    EXPECT_GE(loop_.wakeUps(), 1) << "ends are events";
    for (const auto& [program, error] : {std::pair{"/etc/passwd", EACCES}, {"", ENOENT}}) {
        EXPECT_EQ(run({program, {}}), ProcessOutcome(LaunchFailure{program, error}));
    }
    EXPECT_EQ(run({"/bin/sh", {Text(std::string("a\0b", 3))}}),
              ProcessOutcome(LaunchFailure{"/bin/sh", EINVAL}));
}

TEST_F(PosixProcessRunnerTest, MissesNoEndWithoutDescriptorsOfProcessesOrWithoutStatuses) {
    // A sanitizer uses a pipe to examine an object when it meets the object's type for the first time.
    EXPECT_EQ(shell("exit 5"), ProcessOutcome(ProcessEnd{5, false}));
    for (const char* script : {"exit 4", "sleep 0.3; exit 4"}) {
        {
            const NoMoreDescriptors none;
            start({"/bin/sh", {"-c", script}});
        }
        EXPECT_EQ(outcome(), ProcessOutcome(ProcessEnd{4, false})) << script;
    }
    EXPECT_EQ(shell("exit 5"), ProcessOutcome(ProcessEnd{5, false}));
    // The kernel then collects children itself; the parent process may have set this.
    const auto before = std::signal(SIGCHLD, SIG_IGN);
    EXPECT_EQ(shell("exit 6"), ProcessOutcome(ProcessEnd{}));
    static_cast<void>(std::signal(SIGCHLD, before));
}

TEST_F(PosixProcessRunnerTest, GivesTheProgramAnUnspoiltStart) {
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    sigprocmask(SIG_BLOCK, &all, &before);
    for (const int ignored : {SIGPIPE, SIGHUP, SIGRTMIN + 1}) {
        static_cast<void>(std::signal(ignored, SIG_IGN));
    }
    setenv("TOVREL_TEST_SET_SINCE", "1", 1); // NOLINT(concurrency-mt-unsafe)
    EXPECT_EQ(shell("grep '^Sig\\(Blk\\|Ign\\):.*[^0:[:space:]]' /proc/self/status"),
              ProcessOutcome(ProcessEnd{1, false}))
        << "no such line";
    EXPECT_EQ(shell("test -n \"$PATH\" -a -z \"$TOVREL_TEST_SET_SINCE\""), ProcessOutcome(ProcessEnd{}));
    EXPECT_EQ(shell("test $(cut -d ' ' -f 6 /proc/$$/stat) = $$"), ProcessOutcome(ProcessEnd{}))
        << "a session of its own";
    sigprocmask(SIG_SETMASK, &before, nullptr);
}

} // namespace
} // namespace tovrel
