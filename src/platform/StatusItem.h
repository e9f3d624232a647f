#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "support/Text.h"

namespace tovrel {

/// A line of a status item's menu. One without a title is a separator.
struct StatusMenuItem {
    Text title;
    std::optional<Text> keyEquivalent; ///< One character, used with the Command modifier.
    Text symbol;                       ///< Name of the symbol shown before the title.
    std::function<void()> action;
};

/// The program's icon in the desktop's status bar, shown as long as the object lives.
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
