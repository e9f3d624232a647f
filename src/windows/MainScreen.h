#pragma once

#include <QScreen>

#include "platform/WindowSystem.h"

namespace tovrel {

/// The screen that holds the active window, whoever's, else the one with the pointer; null without a screen.
QScreen* mainScreen(const WindowSystem& windowSystem);

} // namespace tovrel
