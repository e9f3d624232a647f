#include "execution/CommandExecutor.h"

namespace tovrel {

CommandExecutionResult CommandExecutor::execute(const CustomCommand& command) const {
    const Text& payload = command.payload;
    switch (command.kind) {
    case CustomCommandKind::shellScript:
        return run(command.kind, {"/bin/zsh", {"-c", payload}});
    case CustomCommandKind::appleScript:
        if (fileExists_(payload)) {
            return run(command.kind, {"/usr/bin/osascript", {payload}});
        }
        return run(command.kind, {"/usr/bin/osascript", {"-e", payload}});
    case CustomCommandKind::open:
        return open(payload);
    case CustomCommandKind::shortcut:
        break;
    }
    if (const auto url = Url::parse(payload); url && url->hasScheme()) {
        openURL_(*url);
        return {};
    }
    return run(command.kind, {"/usr/bin/shortcuts", {"run", payload}});
}

CommandExecutionResult CommandExecutor::run(CustomCommandKind kind,
                                            const CommandProcessRequest& request) const {
    const auto outcome = processRunner_(request);
    if (const auto* failure = std::get_if<LaunchFailure>(&outcome)) {
        return *failure;
    }
    const std::int32_t status = std::get<std::int32_t>(outcome);
    return status == 0 ? CommandExecutionResult() : ProcessFailed{kind, status};
}

CommandExecutionResult CommandExecutor::open(const Text& payload) const {
    if (fileExists_(payload)) {
        openURL_(Url::ofFile(payload));
        return {};
    }
    const auto url = Url::parse(payload);
    if (!url) {
        return InvalidOpenPayload{payload};
    }
    openURL_(*url);
    return {};
}

} // namespace tovrel
