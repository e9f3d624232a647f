#include "menus/MenuCommandPerformer.h"

#include "platform/AccessibilityElement.h"

namespace tovrel {

const ScannedMenuItem* MenuCommandPerformer::findItem(const std::vector<Text>& path,
                                                      const std::vector<ScannedMenuItem>& items) {
    for (const ScannedMenuItem& item : items) {
        if (item.menuPath == path) {
            return &item;
        }
        if (const ScannedMenuItem* found = findItem(path, item.children)) {
            return found;
        }
    }
    return nullptr;
}

bool MenuCommandPerformer::pressMenuItem(const ScannedMenuItem& item) {
    return item.element && item.element->perform("AXPress");
}

} // namespace tovrel
