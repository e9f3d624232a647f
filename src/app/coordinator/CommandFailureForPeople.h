#pragma once

#include <optional>

#include "execution/CommandExecutor.h"
#include "support/LocalizedString.h"
#include "support/Text.h"

namespace tovrel {

/// How a custom command went wrong, as a sentence; absent when it did not.
[[nodiscard]] std::optional<Text> commandFailureForPeople(const CommandExecutionResult& result,
                                                          const LocalizedString& localized);

} // namespace tovrel
