#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "support/Text.h"

namespace tovrel {

/// A line of a status item's menu. One without a title is a separator, which cannot be chosen.
struct StatusMenuItem {
    Text title;
    std::optional<Text> keyEquivalent; ///< One character, used with the Command modifier.
    Text symbol;                       ///< Name of the symbol shown before the title.
    /// Called when the line is chosen, after the menu has closed; may be empty.
    std::function<void()> action;
};

/// The program's icon in the desktop's status bar. It and its menu disappear with the object.
class StatusItem {
  public:
    virtual ~StatusItem() = default;

    virtual void setToolTip(const Text& toolTip) = 0;
};

/// What a status item shows: an image in the colour of the bar, a tool tip, and a menu.
struct StatusItemDescription {
    Text imageName;
    Text toolTip;
    std::vector<StatusMenuItem> menu;
};

} // namespace tovrel
