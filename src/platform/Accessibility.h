#pragma once

#include <cstdint>
#include <memory>

#include "platform/AccessibilityElement.h"

namespace tovrel {

/// Gives access to other applications' user interfaces.
class Accessibility {
  public:
    virtual ~Accessibility() = default;

    /// Whether this process may read and press other applications' menus now.
    [[nodiscard]] virtual bool isTrusted() = 0;

    /// The root element of a running application, whose "AXMenuBar" is its menu bar. Each call reads the
    /// application again; elements of earlier calls may keep their old values. An application that cannot be
    /// reached has no "AXMenuBar", or the answer is null.
    [[nodiscard]] virtual std::shared_ptr<AccessibilityElement>
    applicationElement(std::int32_t processIdentifier) = 0;
};

} // namespace tovrel
