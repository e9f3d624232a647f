#include "platform/linux/menus/LinuxAccessibility.h"

#include <utility>

#include "platform/linux/menus/MenuElement.h"

namespace tovrel {
namespace {

/// An application. Its menus are read when its menu bar is first asked for.
class ApplicationElement : public AccessibilityElement {
  public:
    ApplicationElement(std::shared_ptr<ApplicationMenus> menus,
                       std::shared_ptr<std::optional<MenuReadReport>> report)
        : menus_(std::move(menus)), report_(std::move(report)) {}

    [[nodiscard]] std::shared_ptr<AccessibilityElement> element(std::string_view attribute) override {
        if (attribute != "AXMenuBar") {
            return nullptr;
        }
        if (!isRead_) {
            isRead_ = true;
            MenuReading reading = menus_->read();
            *report_ = reading.report;
            tree_ = std::make_shared<const MenuTree>(std::move(reading.tree));
        }
        return tree_->empty() ? nullptr : std::make_shared<MenuElement>(menus_, tree_, 0);
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
    std::shared_ptr<ApplicationMenus> menus_;
    std::shared_ptr<std::optional<MenuReadReport>> report_;
    bool isRead_ = false;
    std::shared_ptr<const MenuTree> tree_ = std::make_shared<const MenuTree>();
};

} // namespace

LinuxAccessibility::LinuxAccessibility(const MenuBuses& buses, ApplicationMenus::Windows windows,
                                       const MenuReadLimits& limits)
    : bus_(buses.accessibility), windows_(std::move(windows)), limits_(limits),
      sources_(std::make_shared<MenuSources>(buses)),
      report_(std::make_shared<std::optional<MenuReadReport>>()) {}

bool LinuxAccessibility::isTrusted() {
    return bus_->isEnabled() && bus_->answers();
}

std::shared_ptr<AccessibilityElement> LinuxAccessibility::applicationElement(std::int32_t processIdentifier) {
    return std::make_shared<ApplicationElement>(
        std::make_shared<ApplicationMenus>(sources_, windows_, limits_, processIdentifier), report_);
}

} // namespace tovrel
