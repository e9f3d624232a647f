#pragma once

#include <cstdint>
#include <functional>
#include <utility>
#include <variant>

#include "execution/Url.h"
#include "model/CustomCommand.h"
#include "platform/MainQueue.h"
#include "platform/ProcessRunner.h"
#include "support/Text.h"

namespace tovrel {

/// Tells that the payload of a command of kind `open` is no URL and names nothing that exists.
struct InvalidOpenPayload {
    Text payload;

    friend bool operator==(const InvalidOpenPayload&, const InvalidOpenPayload&) = default;
};

/// Tells that the process of a command of kind `kind` ended with a status other than 0, or by a signal;
/// `status` is then the signal's number.
struct ProcessFailed {
    CustomCommandKind kind = CustomCommandKind::shellScript;
    std::int32_t status = 0;
    bool isSignal = false;

    friend bool operator==(const ProcessFailed&, const ProcessFailed&) = default;
};

/// The outcome of running a command; `std::monostate` is success.
using CommandExecutionResult = std::variant<std::monostate, InvalidOpenPayload, ProcessFailed, LaunchFailure>;

/// Runs custom commands: starts a process for a shell command, an AppleScript or a Shortcut, or asks the
/// system to open a URL or a file. The stored payload is used unchanged: it is not trimmed, and "~" and
/// variables are not expanded.
class CommandExecutor {
  public:
    /// Asks the system to open a URL; the outcome is not known.
    using UrlOpener = std::function<void(const Url&)>;
    /// Whether a file or directory exists at a path, relative to the working directory if it is relative.
    using FileExists = std::function<bool(const Text&)>;
    /// Receives the outcome.
    using Completion = std::function<void(const CommandExecutionResult&)>;

    /// The runner and the queue outlive the executor.
    CommandExecutor(ProcessRunner& processRunner, MainQueue& mainQueue, UrlOpener openURL,
                    FileExists fileExists)
        : processRunner_(&processRunner), mainQueue_(&mainQueue), openURL_(std::move(openURL)),
          fileExists_(std::move(fileExists)) {}

    /// Starts the process or hands the URL over, and returns at once. A task of the main queue calls
    /// `completion` once, when the process has ended, however long that takes, or when there is nothing to
    /// wait for. Ignores the command's scope and whether it is enabled.
    void execute(const CustomCommand& command, Completion completion) const;

  private:
    void run(CustomCommandKind kind, const CommandProcessRequest& request, Completion completion) const;
    [[nodiscard]] CommandExecutionResult open(const Text& payload) const;
    void complete(Completion completion, CommandExecutionResult result) const;

    ProcessRunner* processRunner_;
    MainQueue* mainQueue_;
    UrlOpener openURL_;
    FileExists fileExists_;
};

} // namespace tovrel
