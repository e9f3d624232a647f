#include "platform/linux/LinuxAccessibility.h"

#include <utility>
#include <vector>

#include "platform/linux/AtspiElement.h"

namespace tovrel {
namespace {

/// An application. Its menus are read when its menu bar is first asked for.
class ApplicationElement : public AccessibilityElement {
  public:
    ApplicationElement(std::shared_ptr<AtspiApplicationMenus> menus,
                       std::shared_ptr<std::optional<MenuReadReport>> report)
        : menus_(std::move(menus)), report_(std::move(report)) {}

    [[nodiscard]] std::shared_ptr<AccessibilityElement> element(std::string_view attribute) override {
        if (attribute != "AXMenuBar") {
            return nullptr;
        }
        if (!isRead_) {
            isRead_ = true;
            MenuReadReport report;
            snapshot_ = menus_->read(report);
            *report_ = report;
        }
        return snapshot_ ? std::make_shared<AtspiElement>(menus_, snapshot_, 0) : nullptr;
    }
    [[nodiscard]] std::optional<std::vector<std::shared_ptr<AccessibilityElement>>>
    elements(std::string_view /*attribute*/) override {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<Text> string(std::string_view /*attribute*/) override { return std::nullopt; }
    [[nodiscard]] std::optional<std::int64_t> integer(std::string_view /*attribute*/) override {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<bool> boolean(std::string_view /*attribute*/) override {
        return std::nullopt;
    }
    bool perform(std::string_view /*action*/) override { return false; }

  private:
    std::shared_ptr<AtspiApplicationMenus> menus_;
    std::shared_ptr<std::optional<MenuReadReport>> report_;
    bool isRead_ = false;
    std::shared_ptr<const AtspiMenuSnapshot> snapshot_;
};

} // namespace

LinuxAccessibility::LinuxAccessibility(std::shared_ptr<AtspiBus> bus,
                                       AtspiApplicationMenus::WindowTitle windowTitle,
                                       const AtspiLimits& limits)
    : bus_(std::move(bus)), windowTitle_(std::move(windowTitle)), limits_(limits),
      report_(std::make_shared<std::optional<MenuReadReport>>()) {}

bool LinuxAccessibility::isTrusted() {
    return bus_->isEnabled() && bus_->answers();
}

std::shared_ptr<AccessibilityElement> LinuxAccessibility::applicationElement(std::int32_t processIdentifier) {
    auto applications = bus_->applications();
    MenuReadReport report;
    report.outcome = applications ? MenuReadOutcome::notRegistered : MenuReadOutcome::noAccessibilityBus;
    std::vector<AtspiApplication> connections =
        std::move(applications).value_or(std::vector<AtspiApplication>());
    std::erase_if(connections, [&](const AtspiApplication& application) {
        return application.processIdentifier != processIdentifier;
    });
    if (connections.empty()) {
        *report_ = report;
        return nullptr;
    }
    return std::make_shared<ApplicationElement>(
        std::make_shared<AtspiApplicationMenus>(bus_, std::move(connections), windowTitle_, limits_),
        report_);
}

} // namespace tovrel
