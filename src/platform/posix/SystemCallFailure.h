#pragma once

#include "platform/PreferencesDomain.h"

namespace tovrel {

/// The failure of the preferences for this errno of a system call on their file.
[[nodiscard]] PreferencesFailure systemCallFailure(int number);

} // namespace tovrel
