#pragma once

#include <optional>

#include "execution/CommandExecutor.h"
#include "support/LocalizedString.h"
#include "support/Text.h"

namespace tovrel {

/// A sentence that says how a custom command failed; absent when it succeeded.
[[nodiscard]] std::optional<Text> commandFailureForPeople(const CommandExecutionResult& result,
                                                          const LocalizedString& localized);

} // namespace tovrel
