#include "model/MenuTitle.h"

#include "support/GraphemeClusters.h"

namespace tovrel {

Text menuTitle(std::string_view name) {
    const Text title = trimmed(Text(wholeClusters(name, longestMenuName)));
    return title.view().size() > longestMenuTitle ? trimmed(cutMenuTitle(title)) : title;
}

Text cutMenuTitle(const Text& title) {
    return wholeClusters(title.view(), longestMenuTitle);
}

} // namespace tovrel
