#include "platform/linux/PosixProcessRunner.h"

#include <cerrno>
#include <csignal>
#include <string>

#include <gtest/gtest.h>

namespace tovrel {
namespace {

using Result = std::variant<std::int32_t, LaunchFailure>;

Result shell(const std::string& script) {
    return PosixProcessRunner().run({"/bin/sh", {"-c", Text(script)}});
}

TEST(PosixProcessRunner, AnswersHowTheProgramEnded) {
    EXPECT_EQ(shell("exit 0"), Result(0));
    EXPECT_EQ(shell("exit 3"), Result(3));
    EXPECT_EQ(shell("kill -TERM $$"), Result(SIGTERM));
    EXPECT_EQ(PosixProcessRunner().run({"/bin/sh", {"-c", "test \"$1\" = 'ä \"b\" $c'", "sh", "ä \"b\" $c"}}),
              Result(0));
    EXPECT_EQ(PosixProcessRunner().run({"/no/such/program", {}}), Result(LaunchFailure{ENOENT}));
    EXPECT_EQ(PosixProcessRunner().run({"/etc/passwd", {}}), Result(LaunchFailure{EACCES}));
    EXPECT_EQ(PosixProcessRunner().run({"", {}}), Result(LaunchFailure{ENOENT}));
    EXPECT_EQ(PosixProcessRunner().run({"/bin/sh", {Text(std::string("a\0b", 3))}}),
              Result(LaunchFailure{EINVAL}));
}

TEST(PosixProcessRunner, GivesTheProgramAnUnspoiltStartAndStandsSignals) {
    sigset_t blocked;
    sigset_t before;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGUSR1);
    sigprocmask(SIG_BLOCK, &blocked, &before);
    const auto pipeBefore = std::signal(SIGPIPE, SIG_IGN);
    EXPECT_EQ(shell("kill -PIPE $$; exit 0"), Result(SIGPIPE));
    EXPECT_EQ(shell("kill -USR1 $$; exit 0"), Result(SIGUSR1));
    static_cast<void>(std::signal(SIGPIPE, pipeBefore));
    sigprocmask(SIG_SETMASK, &before, nullptr);

    struct sigaction interrupt {};
    struct sigaction old {};
    interrupt.sa_handler = [](int) {}; // without SA_RESTART, so that the wait is interrupted
    sigaction(SIGUSR2, &interrupt, &old);
    EXPECT_EQ(shell("for i in 1 2 3 4 5 6 7 8; do kill -USR2 $PPID; done; exit 5"), Result(5));
    sigaction(SIGUSR2, &old, nullptr);
}

} // namespace
} // namespace tovrel
