#pragma once

#include "model/Command.h"
#include "platform/Accessibility.h"

namespace tovrel {

/// Knows whether other applications' menus may be read, and offers the way to allow it.
class AccessibilityPermissionService {
  public:
    explicit AccessibilityPermissionService(Accessibility& accessibility) : accessibility_(&accessibility) {}

    /// Asks at every call, so that a permission given meanwhile counts at once.
    [[nodiscard]] bool isTrusted() const { return accessibility_->isTrusted(); }

    /// The palette entry that opens the system's accessibility settings. Its id is always the same; its
    /// custom command has a fresh id each time.
    [[nodiscard]] static Command makeAccessibilityPermissionCommand();

  private:
    Accessibility* accessibility_;
};

} // namespace tovrel
