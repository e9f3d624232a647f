#include "platform/contract/ProcessRunnerContract.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <utility>

#include <sys/wait.h>

#include "platform/linux/TestLoop.h"
#include "platform/linux/applications/PosixProcessRunner.h"
#include "support/TemporaryDirectory.h"

namespace tovrel {
namespace {

/// Its programs wait for a file, and leave one when they end.
class PosixProcessRunnerRig {
  public:
    PosixProcessRunnerRig() { loop_.watch(*runner_); }
    ~PosixProcessRunnerRig() {
        letProgramsEnd();
        while (waitpid(-1, nullptr, 0) > 0) { // those that outlived the runner
        }
    }
    PosixProcessRunnerRig(const PosixProcessRunnerRig&) = delete;
    PosixProcessRunnerRig& operator=(const PosixProcessRunnerRig&) = delete;

    ProcessRunner& runner() { return *runner_; }
    void start(ProcessEnd end, ProcessRunner::Completion completion) {
        const std::string last = end.isSignal ? "kill -" + std::to_string(end.status) + " $$"
                                              : "exit " + std::to_string(end.status);
        runner_->start({"/bin/sh",
                        {"-c", Text("cd '" + folder_.path().string() +
                                    "'; until test -e go; do sleep 0.01; done; touch ended.$$; " + last)}},
                       std::move(completion));
    }
    LaunchFailure startMissing(ProcessRunner::Completion completion) {
        runner_->start({"/no/such/program", {}}, std::move(completion));
        return {"/no/such/program", ENOENT};
    }
    void letProgramsEnd() { std::ofstream(folder_.path() / "go"); }
    std::size_t programsEnded() {
        const auto files = std::filesystem::directory_iterator(folder_.path());
        return static_cast<std::size_t>(std::count_if(
            begin(files), end(files), [](const auto& file) { return file.path().stem() == "ended"; }));
    }
    template <typename Condition>
    bool until(Condition condition) {
        return loop_.runUntil(condition);
    }
    void endRunner() {
        loop_.forget(*runner_);
        runner_.reset();
    }
    void runPosted() {
        bool ran = false;
        loop_.post([&] { ran = true; });
        loop_.runUntil([&] { return ran; });
    }

  private:
    testing_support::TemporaryDirectory folder_;
    TestLoop loop_;
    std::optional<PosixProcessRunner> runner_{loop_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Posix, ProcessRunnerContract, PosixProcessRunnerRig);

} // namespace
} // namespace tovrel
