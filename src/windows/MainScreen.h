#pragma once

#include <QScreen>

#include "platform/WindowSystem.h"

namespace tovrel {

/// The screen with the active window of any application, else the screen with the pointer; null without a
/// screen.
QScreen* mainScreen(const WindowSystem& windowSystem);

} // namespace tovrel
