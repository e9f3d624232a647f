#pragma once

#include <memory>
#include <optional>

#include "platform/Accessibility.h"
#include "platform/linux/AtspiApplicationMenus.h"

namespace tovrel {

/// Other applications' menus over AT-SPI2. No failure of the bus or of an application is thrown to the
/// caller: it shows as missing elements, and in the report.
class LinuxAccessibility : public Accessibility {
  public:
    /// `windowTitle` tells an application's windows apart where their states do not; it may be empty.
    explicit LinuxAccessibility(std::shared_ptr<AtspiBus> bus,
                                AtspiApplicationMenus::WindowTitle windowTitle = {},
                                const AtspiLimits& limits = {});

    /// Whether the accessibility bus answers and accessibility is enabled for toolkits. Reading works without
    /// the latter as far as applications are on the bus nevertheless, as those of GTK are.
    [[nodiscard]] bool isTrusted() override;

    /// The application's root element, null when it is not on the accessibility bus. The first read of its
    /// "AXMenuBar" reads all of its menus, in at most the time of `AtspiLimits`; all further reads are
    /// answered from that.
    [[nodiscard]] std::shared_ptr<AccessibilityElement>
    applicationElement(std::int32_t processIdentifier) override;

    /// How the last read of a menu bar went, or why `applicationElement` answered null; absent before.
    [[nodiscard]] std::optional<MenuReadReport> lastReport() const { return *report_; }

  private:
    std::shared_ptr<AtspiBus> bus_;
    AtspiApplicationMenus::WindowTitle windowTitle_;
    AtspiLimits limits_;
    /// Shared with the root elements, which may outlive this object.
    std::shared_ptr<std::optional<MenuReadReport>> report_;
};

} // namespace tovrel
