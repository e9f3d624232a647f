#pragma once

#include <vector>

#include "support/Text.h"
#include "support/TextServices.h"

namespace tovrel {

/// The key caps that a shortcut's display text is drawn as: each modifier glyph (⌘ ⇧ ⌥ ⌃) one of its own, in
/// the order in which they stand, and after them one with all the rest. "⌘⇧F10" gives ⌘, ⇧ and F10.
std::vector<Text> keycaps(const Text& shortcut, const TextServices& textServices);

} // namespace tovrel
