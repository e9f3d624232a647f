// Reads a recording of any content: it is refused, or its menus are listed, searched and recorded again.

#include "commands/CommandIndex.h"
#include "commands/CommandSearch.h"
#include "commands/SearchKeys.h"
#include "fuzz/Fuzzing.h"
#include "menus/MenuScanner.h"
#include "platform/memory/MemoryAccessibility.h"
#include "platform/memory/MemoryPreferencesDomain.h"
#include "platform/memory/Recording.h"

namespace {

using namespace tovrel;
using fuzzing::require;

std::vector<ScannedMenuItem> itemsOf(const recording::Recording& recording, const TextServices& text) {
    MemoryAccessibility accessibility;
    accessibility.setApplicationElement(recording.application->processIdentifier(), recording.root);
    return MenuScanner(accessibility, text).scan(*recording.application);
}

std::vector<Command> commandsOf(const recording::Recording& recording, const TextServices& text) {
    MemoryPreferencesDomain domain;
    CommandHistoryStore history(domain, "history", text);
    return CommandIndex::buildCommands(itemsOf(recording, text), {},
                                       recording.application->bundleIdentifier(), {}, {}, history);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TextServices english("en_US");
    static const TextServices turkish("tr_TR");
    try {
        const recording::Recording recorded = recording::parse(fuzzing::textOf(data, size));
        const std::vector<Command> commands = commandsOf(recorded, english);
        const recording::Document again = recording::write(*recorded.application, recorded.root.get());
        require(commandsOf(recording::parse(again.json), english) == commands,
                "a recording keeps every command");
        for (const TextServices* text : {&english, &turkish}) {
            const CommandSearchIndex index(commands, *text);
            CommandSearch search;
            for (const char* query : {"", "s", "sa", "I", "ä1"}) {
                require(search.search(query, index).size() == CommandSearch().search(query, index).size(),
                        "a search remembers nothing that matters");
            }
            for (const Command& command : commands) {
                require(!command.isEnabled || search.search(command.title, index).size() > 0 ||
                            queryKeys(command.title.view(), *text).front().empty(),
                        "a command is found by its title");
            }
        }
    } catch (const recording::Error&) { // NOLINT(bugprone-empty-catch): refused
    }
    return 0;
}
