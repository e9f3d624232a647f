#pragma once

#include <memory>

#include "platform/MainQueue.h"
#include "platform/ProcessRunner.h"
#include "platform/posix/EventSource.h"

namespace tovrel {

/// Runs programs by `posix_spawn`, each with this process's working directory and standard streams, the
/// environment of StartEnvironment.h and the signals of SpawnAttributes.h. They are in sessions of their own,
/// so that what ends this process from its terminal does not end them.
///
/// Their ends are seen through the event source, which the main loop must watch. Where the kernel gives out
/// no descriptors of processes (before Linux 5.3, in sandboxes, when all are in use), a timer looks for them
/// every quarter of a second.
class PosixProcessRunner final : public ProcessRunner, public EventSource {
  public:
    /// `queue` outlives it.
    explicit PosixProcessRunner(MainQueue& queue);
    ~PosixProcessRunner() override;
    PosixProcessRunner(const PosixProcessRunner&) = delete;
    PosixProcessRunner& operator=(const PosixProcessRunner&) = delete;

    /// A text with a NUL in it cannot be handed to a program: EINVAL.
    void start(const CommandProcessRequest& request, Completion completion) override;

    [[nodiscard]] int fileDescriptor() const override;
    void dispatch() override;

  private:
    class Children;

    std::shared_ptr<Children> children_;
};

} // namespace tovrel
