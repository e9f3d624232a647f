#pragma once

#include <cstddef>
#include <vector>

#include "menus/ScannedMenuItem.h"
#include "model/Command.h"

namespace tovrel::bench {

/// A menu tree of about `leafCount` commands with distinct paths: the recorded menu bars of the tests,
/// repeated under numbered titles. One title in ten has an extra word with accents, in Cyrillic or in
/// Japanese.
std::vector<ScannedMenuItem> menuTree(std::size_t leafCount);

/// The command list of such a tree, cut to exactly `count`, one command in seventeen with some history.
std::vector<Command> commands(std::size_t count);

/// Queries as users type them, each to be typed letter by letter.
const std::vector<const char*>& queries();

} // namespace tovrel::bench
