#include "support/UUID.h"

#include <array>
#include <random>

namespace tovrel {

Text makeUUID() {
    std::random_device entropy;
    std::uniform_int_distribution<unsigned> nibble(0, 15);
    constexpr std::string_view digits = "0123456789ABCDEF";
    // x: a random digit; y: the variant digit, 8 to B.
    std::string uuid = "xxxxxxxx-xxxx-4xxx-yxxx-xxxxxxxxxxxx";
    for (char& character : uuid) {
        if (character == 'x') {
            character = digits[nibble(entropy)];
        } else if (character == 'y') {
            character = digits[8U | (nibble(entropy) & 3U)];
        }
    }
    return uuid;
}

} // namespace tovrel
