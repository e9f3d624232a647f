#pragma once

#include "platform/PreferencesDomain.h"

namespace tovrel {

/// The failure of the preferences that this errno of a system call on their file stands for.
[[nodiscard]] PreferencesFailure systemCallFailure(int number);

} // namespace tovrel
