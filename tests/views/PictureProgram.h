#pragma once

#include <QDir>
#include <functional>

namespace tovrel {

/// The main function of a program that draws pictures of views into the folder given as its only argument.
/// Calls `draw` without a display, in a process for each of the scales 1, 1.25 and 2; returns the exit
/// status.
int runPictureProgram(int argc, char** argv, const std::function<void(const QDir&)>& draw);

} // namespace tovrel
