#pragma once

#include <vector>

#include "support/Text.h"
#include "support/TextServices.h"

namespace tovrel {

/// The key caps that show a shortcut's display text: one for each modifier glyph (⌘ ⇧ ⌥ ⌃), in the order of
/// the text, and after them one with the rest. "⌘⇧F10" gives ⌘, ⇧ and F10.
std::vector<Text> keycaps(const Text& shortcut, const TextServices& textServices);

} // namespace tovrel
