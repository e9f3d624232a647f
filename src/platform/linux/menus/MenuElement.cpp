#include "platform/linux/menus/MenuElement.h"

#include <utility>

namespace tovrel {

MenuElement::MenuElement(std::shared_ptr<ApplicationMenus> menus, std::shared_ptr<const MenuTree> tree,
                         std::size_t node)
    : menus_(std::move(menus)), tree_(std::move(tree)), node_(node) {}

std::shared_ptr<AccessibilityElement> MenuElement::element(std::string_view /*attribute*/) {
    return nullptr;
}

std::optional<std::vector<std::shared_ptr<AccessibilityElement>>>
MenuElement::elements(std::string_view attribute) {
    if (attribute != "AXChildren") {
        return std::nullopt;
    }
    std::vector<std::shared_ptr<AccessibilityElement>> children;
    children.reserve(node().children.size());
    for (const std::size_t child : node().children) {
        children.push_back(std::make_shared<MenuElement>(menus_, tree_, child));
    }
    return children;
}

std::optional<Text> MenuElement::string(std::string_view attribute) {
    if (attribute == "AXTitle") {
        return node().title;
    }
    if (attribute == "AXMenuItemCmdChar" && node().shortcut) {
        return node().shortcut->character;
    }
    if (attribute == "AXMenuItemMarkChar" && node().isChecked == true) {
        return Text("✓");
    }
    return std::nullopt;
}

std::optional<std::int64_t> MenuElement::integer(std::string_view attribute) {
    if (attribute == "AXMenuItemCmdModifiers" && node().shortcut) {
        return node().shortcut->modifiers;
    }
    return std::nullopt;
}

std::optional<bool> MenuElement::boolean(std::string_view attribute) {
    return attribute == "AXEnabled" ? node().isEnabled : std::nullopt;
}

bool MenuElement::perform(std::string_view action) {
    return action == "AXPress" && menus_->press(*tree_, node_);
}

} // namespace tovrel
