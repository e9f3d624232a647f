#pragma once

#include <memory>
#include <optional>

#include "platform/Accessibility.h"
#include "platform/linux/menus/ApplicationMenus.h"

namespace tovrel {

/// Other applications' menus, wherever they publish them. A failure of a bus or of an application is not
/// thrown: it shows as missing elements, and in the report.
class LinuxAccessibility : public Accessibility {
  public:
    /// `windows` gives the windows of a process: where they publish menus, and which is in front if their
    /// accessible states do not tell. It may be empty.
    explicit LinuxAccessibility(const MenuBuses& buses, ApplicationMenus::Windows windows = {},
                                const MenuReadLimits& limits = {});

    /// Whether the accessibility bus answers and accessibility is enabled for toolkits. Reading works even
    /// without the latter for applications that always publish menus, as GTK's do.
    [[nodiscard]] bool isTrusted() override;

    /// The application's root element; never null. The first read of its "AXMenuBar" reads all of its menus,
    /// in at most the time of `MenuReadLimits`, and answers all further reads.
    [[nodiscard]] std::shared_ptr<AccessibilityElement>
    applicationElement(std::int32_t processIdentifier) override;

    /// The report of the last read of a menu bar; absent before the first.
    [[nodiscard]] std::optional<MenuReadReport> lastReport() const { return *report_; }

  private:
    std::shared_ptr<AtspiBus> bus_;
    ApplicationMenus::Windows windows_;
    MenuReadLimits limits_;
    /// Shared with the elements, which may outlive this object.
    std::shared_ptr<MenuSources> sources_;
    /// Shared with the root elements.
    std::shared_ptr<std::optional<MenuReadReport>> report_;
};

} // namespace tovrel
