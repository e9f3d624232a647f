#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "support/Text.h"

namespace tovrel {

/// Identifies a window of one display. Only the display that gave it knows its form.
using WindowIdentifier = std::string;

/// The D-Bus objects in which GTK publishes a window's menu bar and the actions it refers to.
struct GtkMenuAddress {
    std::string busName;         ///< On the session bus; a unique name.
    std::string menuBarPath;     ///< Serves org.gtk.Menus.
    std::string applicationPath; ///< Serves org.gtk.Actions of "app."; may be empty.
    std::string windowPath;      ///< Serves org.gtk.Actions of "win."; may be empty.
};

/// A window of an application, as far as a display knows it.
struct ApplicationWindow {
    WindowIdentifier identifier;
    std::optional<std::int32_t> processIdentifier; ///< Of a process of this machine.
    Text title;
    std::string instanceName; ///< First part of the window class; empty where there is none.
    std::string className;    ///< Second part of the window class; empty where there is none.
    /// The application's own name for itself, mostly a desktop entry's id.
    std::string applicationIdentifier;
    std::optional<GtkMenuAddress> gtkMenus; ///< Absent when the window publishes no menu bar.
    /// The number under which the registrar of application menus knows the window; absent where no window
    /// has one.
    std::optional<std::uint32_t> registrarIdentifier;
    bool isModal = false; ///< It blocks the other windows of its application.
};

} // namespace tovrel
