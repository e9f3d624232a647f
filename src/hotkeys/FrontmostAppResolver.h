#pragma once

#include <optional>

#include "platform/RunningApplication.h"
#include "support/Text.h"

namespace tovrel {

/// Distinguishes this program from the applications it works on.
struct FrontmostAppResolver {
    std::optional<Text> ownBundleIdentifier;

    [[nodiscard]] bool isExternal(const RunningApplication& application) const {
        return !ownBundleIdentifier || application.bundleIdentifier() != ownBundleIdentifier;
    }
};

} // namespace tovrel
