#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "app/desktop/Desktop.h"

namespace tovrel {

/// The parts of a Linux desktop that depend on the display. Desktop.h documents members of the same name.
class LinuxDisplay {
  public:
    virtual ~LinuxDisplay() = default;

    [[nodiscard]] virtual std::string_view name() const = 0;
    [[nodiscard]] virtual std::optional<std::string> problem() const = 0;

    /// Never null.
    [[nodiscard]] virtual std::shared_ptr<WindowList> windows() = 0;

    /// Returns the accessibility bus's address that the display publishes; absent where it publishes none.
    /// May be called as long as the window list exists.
    [[nodiscard]] virtual std::function<std::optional<std::string>()> accessibilityBusAddress() = 0;

    /// Makes all seams except the process runner, which does not depend on the display.
    [[nodiscard]] virtual ResidentSeams makeResidentSeams(MainQueue& queue,
                                                          std::function<KeyDestination()> keyDestination,
                                                          const ToolkitConnection& toolkit) = 0;
};

} // namespace tovrel
