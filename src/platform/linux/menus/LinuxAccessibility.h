#pragma once

#include <memory>
#include <optional>

#include "platform/Accessibility.h"
#include "platform/linux/menus/ApplicationMenus.h"

namespace tovrel {

/// Other applications' menus, from whatever they publish them in. No failure of a bus or of an application is
/// thrown to the caller: it shows as missing elements, and in the report.
class LinuxAccessibility : public Accessibility {
  public:
    /// `windows` tells where a process publishes menus besides the accessibility bus, and which of its
    /// windows is in front where their states do not say; it may be empty.
    explicit LinuxAccessibility(const MenuBuses& buses, ApplicationMenus::Windows windows = {},
                                const MenuReadLimits& limits = {});

    /// Whether the accessibility bus answers and accessibility is enabled for toolkits. Reading works without
    /// the latter as far as applications publish menus nevertheless, as those of GTK do.
    [[nodiscard]] bool isTrusted() override;

    /// The application's root element; never null. The first read of its "AXMenuBar" reads all of its menus,
    /// in at most the time of `MenuReadLimits`; all further reads are answered from that.
    [[nodiscard]] std::shared_ptr<AccessibilityElement>
    applicationElement(std::int32_t processIdentifier) override;

    /// How the last read of a menu bar went; absent before.
    [[nodiscard]] std::optional<MenuReadReport> lastReport() const { return *report_; }

  private:
    std::shared_ptr<AtspiBus> bus_;
    ApplicationMenus::Windows windows_;
    MenuReadLimits limits_;
    /// Shared with the elements, which may outlive this object.
    std::shared_ptr<MenuSources> sources_;
    /// Likewise with the root elements.
    std::shared_ptr<std::optional<MenuReadReport>> report_;
};

} // namespace tovrel
