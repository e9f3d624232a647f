#pragma once

#include "support/Text.h"

namespace tovrel {

/// The picture of an application: a name in the icon theme, or the absolute path of an image file.
struct ApplicationIcon {
    Text name;

    friend bool operator==(const ApplicationIcon&, const ApplicationIcon&) = default;
};

} // namespace tovrel
