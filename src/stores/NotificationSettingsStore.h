#pragma once

#include <string>
#include <utility>

#include "platform/PreferencesDomain.h"

namespace tovrel {

/// The events of which the user wants to be notified; each call reads the preferences.
class NotificationSettingsStore {
  public:
    NotificationSettingsStore(PreferencesDomain& defaults, std::string commandFailuresKey)
        : defaults_(&defaults), commandFailuresKey_(std::move(commandFailuresKey)) {}

    /// Whether to notify of custom commands that fail. Default, even for a value of another type: true.
    [[nodiscard]] bool commandFailures() const {
        return booleanValue(*defaults_, commandFailuresKey_).value_or(true);
    }
    void setCommandFailures(bool isWanted) { defaults_->set(commandFailuresKey_, isWanted); }

  private:
    PreferencesDomain* defaults_;
    std::string commandFailuresKey_;
};

} // namespace tovrel
