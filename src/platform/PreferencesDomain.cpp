#include "platform/PreferencesDomain.h"

namespace tovrel {

std::optional<std::string> dataValue(PreferencesDomain& domain, const std::string& key) {
    std::optional<PreferenceValue> value = domain.value(key);
    if (!value || !std::holds_alternative<PreferenceData>(*value)) {
        return std::nullopt;
    }
    return std::move(std::get<PreferenceData>(*value).bytes);
}

std::optional<bool> booleanValue(PreferencesDomain& domain, const std::string& key) {
    const std::optional<PreferenceValue> value = domain.value(key);
    const bool* boolean = value ? std::get_if<bool>(&*value) : nullptr;
    return boolean == nullptr ? std::nullopt : std::optional(*boolean);
}

} // namespace tovrel
