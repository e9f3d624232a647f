#pragma once

#include <optional>
#include <string>

#include "platform/linux/menus/accessibility/AtspiCalls.h"
#include "platform/linux/menus/source/MenuReadReport.h"
#include "platform/linux/menus/source/MenuTree.h"
#include "support/Text.h"

namespace tovrel {

/// A menu bar as far as it was read, and how that went.
struct AtspiMenuReading {
    AtspiMenuTree tree;
    MenuReadReport report;
    /// All shortcuts that what is published lacked have been added to it.
    bool hasAddedAccelerators = false;
};

/// Reads the menu bar of the front window of the application that owns `busName`, whose application object is
/// at `root`; `windowTitle` helps to tell its windows apart (see `findAtspiMenuBar`).
///
/// `published` is what the window is known to have in its menu bar by another source, empty if nothing.
/// Otherwise only what it lacks is read and added to it (see AtspiAdditions.h): the shortcuts in GTK, the
/// current states in LibreOffice, whose other menu bar then is asked (see `AtspiRootPanes`); and the tree is
/// empty.
///
/// Whatever the application does, the read ends within the limits: it asks nothing of objects of other
/// applications, meets no object twice and stops at the stated time, number of objects and depth. `started`
/// is when the caller began, which the total time counts from.
AtspiMenuReading readAtspiMenus(DBusConnection& connection, const std::string& busName,
                                const std::string& root, const std::optional<Text>& windowTitle,
                                MenuTree& published, const MenuReadLimits& limits, SteadyTime started);

} // namespace tovrel
