#pragma once

#include <cstdint>
#include <functional>
#include <variant>
#include <vector>

#include "support/Text.h"

namespace tovrel {

/// A program to run.
struct CommandProcessRequest {
    Text executablePath;         ///< Absolute.
    std::vector<Text> arguments; ///< Without the program name.

    friend bool operator==(const CommandProcessRequest&, const CommandProcessRequest&) = default;
};

/// A process that has ended.
struct ProcessEnd {
    std::int32_t status = 0; ///< The exit status, or the number of the signal that ended it.
    bool isSignal = false;

    friend bool operator==(const ProcessEnd&, const ProcessEnd&) = default;
};

/// A process that could not be started.
struct LaunchFailure {
    Text executablePath;
    int error = 0; ///< An errno value.

    friend bool operator==(const LaunchFailure&, const LaunchFailure&) = default;
};

using ProcessOutcome = std::variant<ProcessEnd, LaunchFailure>;

/// Starts other programs.
class ProcessRunner {
  public:
    using Completion = std::function<void(const ProcessOutcome&)>;

    virtual ~ProcessRunner() = default;

    /// Starts the program and returns at once; any number may run at the same time. `completion` is called
    /// once, by a task of the main queue: when the process has ended, however long that takes, or when it
    /// could not be started. A process may outlive this object; its end is then not reported.
    virtual void start(const CommandProcessRequest& request, Completion completion) = 0;
};

} // namespace tovrel
