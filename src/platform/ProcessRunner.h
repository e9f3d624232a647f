#pragma once

#include <cstdint>
#include <variant>
#include <vector>

#include "support/Text.h"

namespace tovrel {

/// A program to run to completion.
struct CommandProcessRequest {
    Text executablePath;         ///< Absolute.
    std::vector<Text> arguments; ///< Without the program name.

    friend bool operator==(const CommandProcessRequest&, const CommandProcessRequest&) = default;
};

/// A process that could not be started: an errno value.
struct LaunchFailure {
    int error = 0;

    friend bool operator==(const LaunchFailure&, const LaunchFailure&) = default;
};

/// Starts other programs.
class ProcessRunner {
  public:
    virtual ~ProcessRunner() = default;

    /// Starts the program with this process's environment, working directory and standard streams, and
    /// returns once it has ended, however long that takes. Its exit status, or the number of the signal that
    /// ended it; or why it could not be started.
    [[nodiscard]] virtual std::variant<std::int32_t, LaunchFailure>
    run(const CommandProcessRequest& request) = 0;
};

} // namespace tovrel
