#include "app/resident/Resident.h"

#include <filesystem>
#include <iostream>
#include <memory>
#include <string>

#include <QApplication>

#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "KeyboardShortcuts/SymbolicText.h"
#include "app/AppCoordinator.h"
#include "app/DBusNames.h"
#include "app/Failure.h"
#include "app/ResidentClient.h"
#include "app/resident/AccessibilityOffer.h"
#include "app/resident/DBusService.h"
#include "app/resident/EndSignals.h"
#include "app/resident/EventSourceWatch.h"
#include "platform/linux/LinuxAccessibility.h"
#include "platform/linux/LinuxHotKeyCenter.h"
#include "platform/linux/LinuxKeyEventPoster.h"
#include "platform/linux/LinuxWorkspace.h"
#include "platform/linux/PosixProcessRunner.h"
#include "platform/linux/PreferencesFile.h"
#include "platform/linux/SqlitePreferencesDomain.h"
#include "platform/linux/ToolkitAccessibility.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtPalettePanel.h"
#include "platform/qt/QtUserInterface.h"

namespace tovrel {
