#include "support/LocalizedString.h"

#include <string>
#include <string_view>

namespace tovrel {

Text filled(const Text& format, const Text& argument) {
    constexpr std::string_view place = "%@";
    std::string text = format.utf8();
    if (const std::size_t found = text.find(place); found != std::string::npos) {
        text.replace(found, place.size(), argument.utf8());
    }
    return text;
}

} // namespace tovrel
