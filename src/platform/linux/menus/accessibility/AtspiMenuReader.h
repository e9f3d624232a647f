#pragma once

#include <optional>
#include <string>

#include "platform/linux/menus/accessibility/AtspiCalls.h"
#include "platform/linux/menus/source/MenuReadReport.h"
#include "platform/linux/menus/source/MenuTree.h"
#include "support/Text.h"

namespace tovrel {

/// The part of a menu bar that was read, and the outcome.
struct AtspiMenuReading {
    AtspiMenuTree tree;
    MenuReadReport report;
    /// Whether all shortcuts that the published menus lacked have been added to them.
    bool hasAddedAccelerators = false;
};

/// Reads the menu bar of the front window of the application that owns `busName`, whose application object is
/// at `root`; `windowTitle` helps to find the window (see `findAtspiMenuBar`).
///
/// `published` is the window's menu bar from another source, or empty. If it is not empty, only its missing
/// parts are read and added to it (see AtspiAdditions.h), and the resulting tree is empty. The missing parts
/// are the shortcuts in GTK, and the current states in LibreOffice, whose other menu bar is asked (see
/// `AtspiRootPanes`).
///
/// The read ends within the limits, whatever the application does: it asks no objects of other applications,
/// visits no object twice and stops at the stated time, number of objects and depth. The total time counts
/// from `started`, when the caller began.
AtspiMenuReading readAtspiMenus(DBusConnection& connection, const std::string& busName,
                                const std::string& root, const std::optional<Text>& windowTitle,
                                MenuTree& published, const MenuReadLimits& limits, SteadyTime started);

} // namespace tovrel
