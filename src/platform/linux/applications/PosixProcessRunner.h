#pragma once

#include <memory>

#include "platform/MainQueue.h"
#include "platform/ProcessRunner.h"
#include "platform/posix/EventSource.h"

namespace tovrel {

/// Runs programs by `posix_spawn`, each with this process's working directory and standard streams, the
/// environment of StartEnvironment.h and the signals of SpawnAttributes.h. They run in sessions of their own,
/// so that closing the terminal does not end them with this process.
///
/// The event source, which the main loop must watch, reports when they end. If the kernel gives no process
/// descriptors (before Linux 5.3, in sandboxes, when all are in use), a timer checks them every quarter of a
/// second.
class PosixProcessRunner final : public ProcessRunner, public EventSource {
  public:
    /// `queue` must outlive the runner.
    explicit PosixProcessRunner(MainQueue& queue);
    ~PosixProcessRunner() override;
    PosixProcessRunner(const PosixProcessRunner&) = delete;
    PosixProcessRunner& operator=(const PosixProcessRunner&) = delete;

    /// Starts the program; fails with EINVAL for a text with a NUL, which cannot be passed to a program.
    void start(const CommandProcessRequest& request, Completion completion) override;

    [[nodiscard]] int fileDescriptor() const override;
    void dispatch() override;

  private:
    class Children;

    std::shared_ptr<Children> children_;
};

} // namespace tovrel
