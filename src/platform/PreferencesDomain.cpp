#include "platform/PreferencesDomain.h"

namespace tovrel {

std::optional<std::string> dataValue(PreferencesDomain& domain, const std::string& key) {
    std::optional<PreferenceValue> value = domain.value(key);
    if (!value || !std::holds_alternative<PreferenceData>(*value)) {
        return std::nullopt;
    }
    return std::move(std::get<PreferenceData>(*value).bytes);
}

} // namespace tovrel
