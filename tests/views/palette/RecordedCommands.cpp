#include "RecordedCommands.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "commands/CommandIndex.h"
#include "menus/MenuScanner.h"
#include "platform/memory/MemoryAccessibility.h"
#include "platform/memory/MemoryPreferencesDomain.h"
#include "platform/memory/Recording.h"

namespace tovrel {

std::vector<Command> recordedCommands(const std::string& application, const TextServices& textServices) {
    std::ifstream file(std::filesystem::path(TOVREL_RECORDINGS) / (application + ".json"), std::ios::binary);
    const std::string document{std::istreambuf_iterator<char>(file), {}};
    const recording::Recording recorded = recording::parse(document);
    MemoryAccessibility accessibility;
    accessibility.setApplicationElement(recorded.application->processIdentifier(), recorded.root);
    MemoryPreferencesDomain preferences;
    CommandHistoryStore history(preferences, "history", textServices);
    return CommandIndex::buildCommands(MenuScanner(accessibility, textServices).scan(*recorded.application),
                                       {}, recorded.application->bundleIdentifier(), {}, {}, history);
}

} // namespace tovrel
