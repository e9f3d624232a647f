#pragma once

#include <functional>

#include "support/Text.h"

namespace tovrel {

/// The text in the user's language that stands for a key. The context, where a text is used, tells apart keys
/// that are spelled alike. A key that has no text stands for itself: most keys are the English text.
///
/// Calls are written `localized("Context", "Key")`, with literals: so translators' tools find them.
using LocalizedString = std::function<Text(const char* context, const char* key)>;

/// The format with its one place for a text, "%@", filled.
[[nodiscard]] Text filled(const Text& format, const Text& argument);

} // namespace tovrel
