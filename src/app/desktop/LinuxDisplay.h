#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "app/desktop/Desktop.h"

namespace tovrel {

/// What a display gives to a Linux desktop; the rest is the same on all of them. What a member of the same
/// name means stands in Desktop.h.
class LinuxDisplay {
  public:
    virtual ~LinuxDisplay() = default;

    [[nodiscard]] virtual std::string_view name() const = 0;
    [[nodiscard]] virtual std::optional<std::string> problem() const = 0;

    /// Never null.
    [[nodiscard]] virtual std::shared_ptr<WindowList> windows() = 0;

    /// The accessibility bus's address as the display carries it; absent where it carries none. May be asked
    /// as long as the window list is there.
    [[nodiscard]] virtual std::function<std::optional<std::string>()> accessibilityBusAddress() = 0;

    /// All of them but the process runner, in which a display has no part.
    [[nodiscard]] virtual ResidentSeams makeResidentSeams(MainQueue& queue,
                                                          std::function<KeyDestination()> keyDestination,
                                                          const ToolkitConnection& toolkit) = 0;
};

} // namespace tovrel
