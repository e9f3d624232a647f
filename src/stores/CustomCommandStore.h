#pragma once

#include <string>
#include <vector>

#include "model/CustomCommand.h"
#include "platform/PreferencesDomain.h"
#include "support/Text.h"

namespace tovrel {

/// The user's custom commands: one JSON array in the preferences domain, in the order of their creation.
/// Every read decodes the array, every change rewrites it. An absent or unreadable array reads as empty, and
/// the next change replaces it; nothing is reported. Commands are stored unchecked.
class CustomCommandStore {
  public:
    /// The domain must outlive the store.
    CustomCommandStore(PreferencesDomain& defaults, std::string storageKey);

    /// All custom commands, enabled or not.
    [[nodiscard]] std::vector<CustomCommand> customCommands() const;

    /// Replaces the first command with the same id, or appends the command if there is none.
    void saveCustomCommand(const CustomCommand& command);

    /// Removes every command with the id.
    void deleteCustomCommand(const Text& id);

  private:
    void saveCustomCommands(const std::vector<CustomCommand>& commands);

    PreferencesDomain& defaults_;
    const std::string storageKey_;
};

} // namespace tovrel
