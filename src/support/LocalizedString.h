#pragma once

#include <functional>

#include "support/Text.h"

namespace tovrel {

/// Returns the text for a key in the user's language. The context, the place in which a text is used,
/// distinguishes keys with the same spelling. A key without a text stands for itself: most keys are the
/// English text.
///
/// Write calls as `localized("Context", "Key")`, with literals, so that translators' tools find them.
using LocalizedString = std::function<Text(const char* context, const char* key)>;

/// The format with its one placeholder, "%@", replaced by the argument.
[[nodiscard]] Text filled(const Text& format, const Text& argument);

} // namespace tovrel
