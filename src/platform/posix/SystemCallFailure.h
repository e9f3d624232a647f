#pragma once

#include "platform/PreferencesDomain.h"

namespace tovrel {

/// What it means for the preferences that a system call on their file failed with this errno.
[[nodiscard]] PreferencesFailure systemCallFailure(int number);

} // namespace tovrel
