#include "app/verbs/ScannedMenuItemJson.h"

#include <nlohmann/json.hpp>

namespace tovrel {

json::Value toJson(const ScannedMenuItem& item) {
    json::Value children = json::Value::array();
    for (const ScannedMenuItem& child : item.children) {
        children.push_back(toJson(child));
    }
    json::Value object{{"id", json::toJson(item.id)},
                       {"title", json::toJson(item.title)},
                       {"menuPath", json::toJson(item.menuPath)},
                       {"isEnabled", item.isEnabled},
                       {"isChecked", item.isChecked},
                       {"children", std::move(children)}};
    if (item.shortcut) {
        object["shortcut"] = json::toJson(*item.shortcut);
    }
    return object;
}

} // namespace tovrel
