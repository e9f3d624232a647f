#include "model/Shortcut.h"

#include <array>

namespace tovrel {
namespace {

struct Modifier {
    ModifierFlags flag;
    std::int64_t carbonBit;
};

constexpr std::array modifiers{
    Modifier{modifier_flags::command, carbon_modifiers::command},
    Modifier{modifier_flags::shift, carbon_modifiers::shift},
    Modifier{modifier_flags::option, carbon_modifiers::option},
    Modifier{modifier_flags::control, carbon_modifiers::control},
    Modifier{modifier_flags::function, carbon_modifiers::function},
};

} // namespace

ModifierFlags modifierFlags(std::int64_t carbonModifiers) {
    ModifierFlags flags = 0;
    for (const Modifier& modifier : modifiers) {
        if ((carbonModifiers & modifier.carbonBit) != 0) {
            flags |= modifier.flag;
        }
    }
    return flags;
}

std::int64_t carbonModifiers(ModifierFlags flags) {
    std::int64_t bits = 0;
    for (const Modifier& modifier : modifiers) {
        if ((flags & modifier.flag) != 0) {
            bits |= modifier.carbonBit;
        }
    }
    return bits;
}

} // namespace tovrel
