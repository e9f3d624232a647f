#pragma once

#include <vector>

#include "menus/ScannedMenuItem.h"
#include "platform/Accessibility.h"
#include "platform/RunningApplication.h"
#include "support/TextServices.h"

namespace tovrel {

/// Reads an application's whole menu bar through the accessibility interface. Has no state: each scan reads
/// everything again. It opens no menu and accepts the children that the application reports.
class MenuScanner {
  public:
    MenuScanner(Accessibility& accessibility, const TextServices& textServices)
        : accessibility_(&accessibility), textServices_(&textServices) {}

    /// The top-level menus in menu-bar order, each with its subtree. Disabled items, containers and the
    /// system menu are included; separators and empty untitled elements are not. Never fails: an application
    /// that cannot be read gives fewer items or none, and an attribute that cannot be read has its default
    /// (no title, enabled, unchecked, no shortcut).
    [[nodiscard]] std::vector<ScannedMenuItem> scan(const RunningApplication& application) const;

  private:
    Accessibility* accessibility_;
    const TextServices* textServices_;
};

} // namespace tovrel
