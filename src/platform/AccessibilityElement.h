#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "support/Text.h"

namespace tovrel {

/// One object of another application's user interface, read by attribute name ("AXTitle", "AXChildren", …).
///
/// Every read is typed: an attribute that is missing, that cannot be read, or whose value has another type
/// is absent. Used from the main thread only.
class AccessibilityElement {
  public:
    virtual ~AccessibilityElement() = default;

    /// An attribute that is one element, such as "AXMenuBar"; null when missing.
    [[nodiscard]] virtual std::shared_ptr<AccessibilityElement> element(std::string_view attribute) = 0;

    /// An attribute that is a list of elements, such as "AXChildren".
    [[nodiscard]] virtual std::optional<std::vector<std::shared_ptr<AccessibilityElement>>>
    elements(std::string_view attribute) = 0;

    /// "AXTitle", "AXMenuItemCmdChar", "AXMenuItemMarkChar".
    [[nodiscard]] virtual std::optional<Text> string(std::string_view attribute) = 0;

    /// "AXMenuItemCmdModifiers".
    [[nodiscard]] virtual std::optional<std::int64_t> integer(std::string_view attribute) = 0;

    /// "AXEnabled".
    [[nodiscard]] virtual std::optional<bool> boolean(std::string_view attribute) = 0;

    /// Asks the element to perform an action: "AXPress" chooses a menu item. True when the request was
    /// accepted, which does not prove that it had an effect. False for an action that the element does not
    /// have, and when the application is gone.
    virtual bool perform(std::string_view action) = 0;
};

} // namespace tovrel
