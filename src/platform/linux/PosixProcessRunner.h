#pragma once

#include "platform/ProcessRunner.h"

namespace tovrel {

/// Runs programs by `posix_spawn`. No signal is blocked in them, and SIGPIPE ends them, whatever holds for
/// this process.
class PosixProcessRunner : public ProcessRunner {
  public:
    /// A text with a NUL in it cannot be handed to a program: EINVAL.
    [[nodiscard]] std::variant<std::int32_t, LaunchFailure>
    run(const CommandProcessRequest& request) override;
};

} // namespace tovrel
