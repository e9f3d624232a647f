#pragma once

#include <memory>

#include "app/desktop/LinuxDisplay.h"
#include "platform/linux/applications/LinuxWorkspace.h"
#include "platform/linux/applications/ToolkitAccessibility.h"
#include "platform/linux/menus/LinuxAccessibility.h"
#include "platform/linux/menus/accessibility/AtspiBus.h"

namespace tovrel {

/// A Linux desktop on any display: desktop entries, processes, and menus over the buses.
class LinuxDesktop final : public Desktop {
  public:
    explicit LinuxDesktop(std::unique_ptr<LinuxDisplay> display);

    [[nodiscard]] std::string_view name() const override { return display_->name(); }
    [[nodiscard]] std::optional<std::string> displayProblem() const override { return display_->problem(); }
    [[nodiscard]] WindowList& windows() override { return *windows_; }
    [[nodiscard]] Workspace& workspace() override { return *workspace_; }
    [[nodiscard]] Accessibility& accessibility() override { return accessibility_; }
    [[nodiscard]] std::shared_ptr<RunningApplication>
    applicationWithProcessIdentifier(std::int32_t processIdentifier) override;
    [[nodiscard]] std::vector<std::shared_ptr<RunningApplication>>
    applicationsWithIdentifier(const Text& bundleIdentifier) override;
    [[nodiscard]] std::optional<MenuReadShortfall>
    menuShortfall(const RunningApplication& application) override;
    [[nodiscard]] AccessibilitySwitch accessibilitySwitch() override;
    [[nodiscard]] std::optional<std::uint32_t> keyCode(std::uint32_t nativeScanCode) const override;
    [[nodiscard]] ResidentSeams makeResidentSeams(MainQueue& queue,
                                                  std::function<KeyDestination()> keyDestination,
                                                  const ToolkitConnection& toolkit) override;

  private:
    std::unique_ptr<LinuxDisplay> display_;
    std::shared_ptr<WindowList> windows_;
    std::shared_ptr<AtspiBus> accessibilityBus_;
    std::shared_ptr<LinuxWorkspace> workspace_;
    LinuxAccessibility accessibility_;
    ToolkitAccessibility toolkitAccessibility_;
};

} // namespace tovrel
