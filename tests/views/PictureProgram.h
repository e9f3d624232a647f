#pragma once

#include <QDir>
#include <functional>

namespace tovrel {

/// What a program does that draws pictures of views into the folder that is its one argument: calls `draw`
/// without a display, in a process for each of the scales 1, 1.25 and 2. The exit status.
int runPictureProgram(int argc, char** argv, const std::function<void(const QDir&)>& draw);

} // namespace tovrel
