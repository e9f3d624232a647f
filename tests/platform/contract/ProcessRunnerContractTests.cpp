#include <cerrno>
#include <fcntl.h>
#include <map>
#include <memory>
#include <string>
#include <type_traits>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/PosixProcessRunner.h"
#include "platform/linux/TestLoop.h"
#include "platform/memory/MemoryProcessRunner.h"
#include "support/TemporaryDirectory.h"

namespace tovrel {
namespace {

struct MemoryProcesses {
    [[nodiscard]] CommandProcessRequest request() { return {"/bin/sh", {"-c", "…"}}; }
    void end(std::size_t number, int status) { runner.end(number, ProcessEnd{status, false}); }
    CommandProcessRequest missing() {
        runner.refuse(ENOENT);
        return {"/no/such/program", {}};
    }

    TestLoop loop;
    MemoryProcessRunner runner{loop};
};

/// Each process waits to read its exit status from a pipe.
struct PosixProcesses {
    PosixProcesses() { loop.watch(runner); }
    [[nodiscard]] CommandProcessRequest request() {
        const std::string pipe = directory.path() / std::to_string(pipes.size());
        mkfifo(pipe.c_str(), 0600);
        pipes.emplace_back(open(pipe.c_str(), O_RDWR | O_CLOEXEC));
        return {"/bin/sh", {"-c", Text("read status <" + pipe + "; exit $status")}};
    }
    void end(std::size_t number, int status) {
        const std::string line = std::to_string(status) + "\n";
        EXPECT_EQ(write(pipes.at(number).get(), line.data(), line.size()), static_cast<ssize_t>(line.size()));
    }
    static CommandProcessRequest missing() { return {"/no/such/program", {}}; }

    testing_support::TemporaryDirectory directory;
    std::vector<FileDescriptor> pipes;
    TestLoop loop;
    PosixProcessRunner runner{loop};
};

template <typename Processes>
class ProcessRunnerContract : public testing::Test {
  protected:
    ProcessRunner::Completion noteAs(const std::string& name) {
        return [this, name](const ProcessOutcome& outcome) { outcomes_[name].push_back(outcome); };
    }
    void waitFor(const std::string& name) {
        EXPECT_FALSE(outcomes_.contains(name)) << "told by the queue alone";
        EXPECT_TRUE(processes_.loop.runUntil([&] { return outcomes_.contains(name); })) << name;
    }

    Processes processes_;
    std::map<std::string, std::vector<ProcessOutcome>> outcomes_;
};

using Implementations = testing::Types<MemoryProcesses, PosixProcesses>;

class ImplementationNames {
  public:
    template <typename Processes>
    static std::string
    GetName(int /*index*/) { // NOLINT(readability-identifier-naming): a name of the framework
        return std::is_same_v<Processes, MemoryProcesses> ? "Memory" : "Posix";
    }
};

TYPED_TEST_SUITE(ProcessRunnerContract, Implementations, ImplementationNames);

TYPED_TEST(ProcessRunnerContract, TellsTheEndOfEachProcessOnceInWhateverOrderTheyEnd) {
    auto& processes = this->processes_;
    for (const char* name : {"first", "second", "third"}) {
        processes.runner.start(processes.request(), this->noteAs(name));
    }
    processes.end(1, 3);
    this->waitFor("second");
    EXPECT_EQ(this->outcomes_.size(), 1U) << "the others run on";
    processes.end(2, 0);
    this->waitFor("third");
    processes.end(0, 255);
    this->waitFor("first");
    const auto ended = [](int status) { return std::vector<ProcessOutcome>{ProcessEnd{status, false}}; };
    EXPECT_EQ(this->outcomes_,
              (decltype(this->outcomes_){{"first", ended(255)}, {"second", ended(3)}, {"third", ended(0)}}));
}

TYPED_TEST(ProcessRunnerContract, TellsAFailedStartAsItTellsAnEndAndStandsAStartInACompletion) {
    auto& processes = this->processes_;
    const CommandProcessRequest missing = processes.missing();
    processes.runner.start(
        missing, [&](const ProcessOutcome&) { processes.runner.start(missing, this->noteAs("again")); });
    this->waitFor("again");
    EXPECT_EQ(this->outcomes_["again"],
              std::vector<ProcessOutcome>{(LaunchFailure{missing.executablePath, ENOENT})});
}

} // namespace
} // namespace tovrel
