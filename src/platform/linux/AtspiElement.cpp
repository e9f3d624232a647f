#include "platform/linux/AtspiElement.h"

#include <utility>

namespace tovrel {

AtspiElement::AtspiElement(std::shared_ptr<AtspiApplicationMenus> menus,
                           std::shared_ptr<const AtspiMenuSnapshot> snapshot, std::size_t node)
    : menus_(std::move(menus)), snapshot_(std::move(snapshot)), node_(node) {}

std::shared_ptr<AccessibilityElement> AtspiElement::element(std::string_view /*attribute*/) {
    return nullptr;
}

std::optional<std::vector<std::shared_ptr<AccessibilityElement>>>
AtspiElement::elements(std::string_view attribute) {
    if (attribute != "AXChildren") {
        return std::nullopt;
    }
    std::vector<std::shared_ptr<AccessibilityElement>> children;
    children.reserve(attributes().children.size());
    for (const std::size_t child : attributes().children) {
        children.push_back(std::make_shared<AtspiElement>(menus_, snapshot_, child));
    }
    return children;
}

std::optional<Text> AtspiElement::string(std::string_view attribute) {
    if (attribute == "AXTitle") {
        return attributes().title;
    }
    if (attribute == "AXMenuItemCmdChar" && attributes().shortcut) {
        return attributes().shortcut->character;
    }
    if (attribute == "AXMenuItemMarkChar" && attributes().isChecked) {
        return Text("✓");
    }
    return std::nullopt;
}

std::optional<std::int64_t> AtspiElement::integer(std::string_view attribute) {
    if (attribute == "AXMenuItemCmdModifiers" && attributes().shortcut) {
        return attributes().shortcut->modifiers;
    }
    return std::nullopt;
}

std::optional<bool> AtspiElement::boolean(std::string_view attribute) {
    return attribute == "AXEnabled" ? attributes().isEnabled : std::nullopt;
}

bool AtspiElement::perform(std::string_view action) {
    return action == "AXPress" && menus_->press(*snapshot_, node_);
}

} // namespace tovrel
