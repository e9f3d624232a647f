#pragma once

#include <cstddef>
#include <memory>

#include "platform/AccessibilityElement.h"
#include "platform/linux/menus/ApplicationMenus.h"

namespace tovrel {

/// A menu bar, menu or menu item. Its tree answers reads without a message; "AXPress" goes to the
/// application.
class MenuElement : public AccessibilityElement {
  public:
    MenuElement(std::shared_ptr<ApplicationMenus> menus, std::shared_ptr<const MenuTree> tree,
                std::size_t node);

    /// Always null: menus have no attribute that is one element.
    [[nodiscard]] std::shared_ptr<AccessibilityElement> element(std::string_view attribute) override;
    [[nodiscard]] std::optional<std::vector<std::shared_ptr<AccessibilityElement>>>
    elements(std::string_view attribute) override;
    [[nodiscard]] std::optional<Text> string(std::string_view attribute) override;
    [[nodiscard]] std::optional<std::int64_t> integer(std::string_view attribute) override;
    [[nodiscard]] std::optional<bool> boolean(std::string_view attribute) override;
    bool perform(std::string_view action) override;

  private:
    [[nodiscard]] const MenuNode& node() const { return (*tree_)[node_]; }

    std::shared_ptr<ApplicationMenus> menus_;
    std::shared_ptr<const MenuTree> tree_;
    std::size_t node_;
};

} // namespace tovrel
