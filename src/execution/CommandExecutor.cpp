#include "execution/CommandExecutor.h"

#include <utility>

#include "support/Fatal.h"

namespace tovrel {
namespace {

CommandExecutionResult resultOf(CustomCommandKind kind, const ProcessOutcome& outcome) {
    if (const auto* failure = std::get_if<LaunchFailure>(&outcome)) {
        return *failure;
    }
    const auto& end = std::get<ProcessEnd>(outcome);
    return end == ProcessEnd() ? CommandExecutionResult() : ProcessFailed{kind, end.status, end.isSignal};
}

} // namespace

void CommandExecutor::execute(const CustomCommand& command, Completion completion) const {
    const Text& payload = command.payload;
    switch (command.kind) {
    case CustomCommandKind::shellScript:
        run(command.kind, {"/bin/zsh", {"-c", payload}}, std::move(completion));
        return;
    case CustomCommandKind::appleScript:
        if (fileExists_(payload)) {
            run(command.kind, {"/usr/bin/osascript", {payload}}, std::move(completion));
        } else {
            run(command.kind, {"/usr/bin/osascript", {"-e", payload}}, std::move(completion));
        }
        return;
    case CustomCommandKind::open:
        complete(std::move(completion), open(payload));
        return;
    case CustomCommandKind::shortcut:
        if (const auto url = Url::parse(payload); url && url->hasScheme()) {
            openURL_(*url);
            complete(std::move(completion), {});
        } else {
            run(command.kind, {"/usr/bin/shortcuts", {"run", payload}}, std::move(completion));
        }
        return;
    }
    noSuchValue("CustomCommandKind");
}

void CommandExecutor::run(CustomCommandKind kind, const CommandProcessRequest& request,
                          Completion completion) const {
    processRunner_->start(request, [kind, completion = std::move(completion)](const ProcessOutcome& outcome) {
        completion(resultOf(kind, outcome));
    });
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

void CommandExecutor::complete(Completion completion, CommandExecutionResult result) const {
    mainQueue_->post(
        [completion = std::move(completion), result = std::move(result)] { completion(result); });
}

} // namespace tovrel
