#include "stores/CustomCommandStore.h"

#include <algorithm>

#include "stores/StoredDocument.h"

namespace tovrel {

CustomCommandStore::CustomCommandStore(PreferencesDomain& defaults, std::string storageKey)
    : defaults_(defaults), storageKey_(std::move(storageKey)) {}

std::vector<CustomCommand> CustomCommandStore::customCommands() const {
    return stored_document::readList(defaults_, storageKey_, customCommandFrom);
}

void CustomCommandStore::saveCustomCommand(const CustomCommand& command) {
    std::vector<CustomCommand> commands = customCommands();
    const auto found = std::find_if(commands.begin(), commands.end(), [&](const CustomCommand& candidate) {
        return candidate.id == command.id;
    });
    if (found == commands.end()) {
        commands.push_back(command);
    } else {
        *found = command;
    }
    saveCustomCommands(commands);
}

void CustomCommandStore::deleteCustomCommand(const Text& id) {
    std::vector<CustomCommand> commands = customCommands();
    std::erase_if(commands, [&](const CustomCommand& command) { return command.id == id; });
    saveCustomCommands(commands);
}

void CustomCommandStore::saveCustomCommands(const std::vector<CustomCommand>& commands) {
    stored_document::writeList(defaults_, storageKey_, commands);
}

} // namespace tovrel
