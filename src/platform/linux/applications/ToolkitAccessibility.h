#pragma once

#include <memory>
#include <vector>

#include "platform/linux/applications/LinuxWorkspace.h"
#include "platform/linux/menus/accessibility/AtspiBus.h"

namespace tovrel {

/// The session's switch for whether applications publish their user interfaces on the accessibility bus. Each
/// call takes at most about two seconds when nobody answers, and some milliseconds otherwise.
class ToolkitAccessibility {
  public:
    ToolkitAccessibility(std::shared_ptr<AtspiBus> bus, std::shared_ptr<LinuxWorkspace> workspace)
        : bus_(std::move(bus)), workspace_(std::move(workspace)) {}

    /// See AtspiBus::isEnabled.
    [[nodiscard]] bool isEnabled() { return bus_->isEnabled(); }

    /// Switches it for this session and for later ones: the service behind it (at-spi-bus-launcher) stores it
    /// in the user's settings, as org.gnome.desktop.interface toolkit-accessibility, if their schema is
    /// installed. Returns whether it is switched that way now.
    bool setEnabled(bool isEnabled) { return bus_->setEnabled(isEnabled) && bus_->isEnabled() == isEnabled; }

    /// The names of the applications that have a window but are not on the bus, except this program, the
    /// topmost first. Toolkits check the switch only when they start (Qt) or not at all (GTK always
    /// registers), so these applications notice it only when they are restarted; some never do. Empty when
    /// the bus does not answer.
    [[nodiscard]] std::vector<Text> applicationsToRestart();

  private:
    std::shared_ptr<AtspiBus> bus_;
    std::shared_ptr<LinuxWorkspace> workspace_;
};

} // namespace tovrel
