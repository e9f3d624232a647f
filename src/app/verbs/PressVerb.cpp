#include <algorithm>
#include <chrono>

#include "app/terminal/Failure.h"
#include "app/verbs/CommandList.h"
#include "app/verbs/Verbs.h"
#include "menus/MenuCommandPerformer.h"

namespace tovrel::verbs {
namespace {

std::string quoted(const Text& text) {
    return "\"" + text.utf8() + "\"";
}

/// Builds the list while the application is in front: some applications disable items such as Paste while
/// their window has no focus, and enable them again only some milliseconds after it is back.
CommandList listWithApplicationInFront(const Context& context) {
    constexpr std::chrono::milliseconds patience{200};
    const bool wasBroughtToFront = context.source.bringToFront && context.source.bringToFront();
    const auto deadline = std::chrono::steady_clock::now() + patience;
    for (;;) {
        CommandList list = buildCommandList(context.source, context.preferences, context.textServices);
        const bool isWaitedFor =
            wasBroughtToFront &&
            std::any_of(list.commands.begin(), list.commands.end(), [&](const Command& command) {
                return command.id == context.invocation.commandID && !command.isEnabled;
            });
        if (!isWaitedFor || std::chrono::steady_clock::now() > deadline) {
            return list;
        }
    }
}

const Command& commandWithID(const Text& id, const CommandList& list) {
    const auto found = std::find_if(list.commands.begin(), list.commands.end(),
                                    [&id](const Command& command) { return command.id == id; });
    if (found == list.commands.end()) {
        const auto& shortfall = list.menus.shortfall;
        throw Failure("no command has the id " + quoted(id) + (shortfall ? "; " + shortfall->reason : ""));
    }
    return *found;
}

} // namespace

int press(const Context& context) {
    if (context.source.isRecording) {
        throw Failure("a recording has nothing to press; name a running application instead");
    }
    const CommandList list = listWithApplicationInFront(context);
    const Command& command = commandWithID(context.invocation.commandID, list);
    const auto* action = std::get_if<MenuAction>(&command.action);
    if (action == nullptr) {
        throw Failure(quoted(command.title) + " is a custom command; only menu items can be pressed");
    }
    const std::string path = quoted(joined(action->path, " › "));
    if (!command.isEnabled) {
        throw Failure("the item " + path + " is disabled: pressing it would do nothing");
    }
    const ScannedMenuItem* item = MenuCommandPerformer::findItem(action->path, list.menus.items);
    if (item == nullptr || !MenuCommandPerformer::perform(*item, MenuCommandPerformer::pressMenuItem)) {
        throw Failure("the application did not accept the press of " + path);
    }
    return 0;
}

} // namespace tovrel::verbs
