#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "execution/Url.h"
#include "model/CustomCommand.h"
#include "platform/ProcessRunner.h"
#include "support/Text.h"

namespace tovrel {

/// What a command of kind `open` holds names nothing that exists and is no URL.
struct InvalidOpenPayload {
    Text payload;

    friend bool operator==(const InvalidOpenPayload&, const InvalidOpenPayload&) = default;
};

/// The process of a command of that kind ended with a status other than 0.
struct ProcessFailed {
    CustomCommandKind kind = CustomCommandKind::shellScript;
    std::int32_t status = 0;

    friend bool operator==(const ProcessFailed&, const ProcessFailed&) = default;
};

/// How running a command went; `std::monostate` is success.
using CommandExecutionResult = std::variant<std::monostate, InvalidOpenPayload, ProcessFailed, LaunchFailure>;

/// Runs custom commands: starts a process for a shell command, an AppleScript or a Shortcut, or has a URL or
/// a file opened. The payload is used as it is stored: no trimming, no expansion of "~" or of variables.
class CommandExecutor {
  public:
    /// Runs the program and waits for it; its exit status, or why it could not be started.
    using ProcessRunner =
        std::function<std::variant<std::int32_t, LaunchFailure>(const CommandProcessRequest&)>;
    /// Asks the system to open a URL; the outcome is not known.
    using UrlOpener = std::function<void(const Url&)>;
    /// Whether a file or directory exists at a path, relative to the working directory if it is relative.
    using FileExists = std::function<bool(const Text&)>;

    CommandExecutor(ProcessRunner processRunner, UrlOpener openURL, FileExists fileExists)
        : processRunner_(std::move(processRunner)), openURL_(std::move(openURL)),
          fileExists_(std::move(fileExists)) {}

    /// Returns once the process has ended or the URL was handed over, however long that takes. Looks neither
    /// at the command's scope nor at whether it is enabled.
    [[nodiscard]] CommandExecutionResult execute(const CustomCommand& command) const;

  private:
    [[nodiscard]] CommandExecutionResult run(CustomCommandKind kind,
                                             const CommandProcessRequest& request) const;
    [[nodiscard]] CommandExecutionResult open(const Text& payload) const;

    ProcessRunner processRunner_;
    UrlOpener openURL_;
    FileExists fileExists_;
};

} // namespace tovrel
