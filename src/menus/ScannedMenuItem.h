#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "support/Text.h"

namespace tovrel {

class AccessibilityElement;

/// One node of an application's menu tree.
struct ScannedMenuItem {
    Text id;    ///< The menu path joined with `menuPathSeparator`.
    Text title; ///< May be empty for an untitled container.
    std::vector<Text> menuPath;
    std::optional<Text> shortcut; ///< Display text of the keyboard shortcut.
    bool isEnabled = true;
    bool isChecked = false;
    std::vector<ScannedMenuItem> children;         ///< In on-screen order; empty for a leaf.
    std::shared_ptr<AccessibilityElement> element; ///< The element to press; may be null.
};

} // namespace tovrel
