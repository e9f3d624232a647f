#include "platform/linux/menus/accessibility/AtspiNode.h"

namespace tovrel {

AtspiToolkit atspiToolkit(std::string_view toolkitName) {
    if (toolkitName == "gtk" || toolkitName == "GAIL") {
        return AtspiToolkit::gtk;
    }
    if (toolkitName == "GTK") {
        return AtspiToolkit::gtk4;
    }
    if (toolkitName == "Qt") {
        return AtspiToolkit::qt;
    }
    return toolkitName == "Gecko" ? AtspiToolkit::gecko : AtspiToolkit::other;
}

} // namespace tovrel
