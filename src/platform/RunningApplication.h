#pragma once

#include <cstdint>
#include <optional>

#include "model/ApplicationIcon.h"
#include "support/Text.h"

namespace tovrel {

/// A running application instance.
class RunningApplication {
  public:
    virtual ~RunningApplication() = default;

    /// The text that names the application, such as "org.xfce.mousepad"; absent when it has none.
    [[nodiscard]] virtual std::optional<Text> bundleIdentifier() const = 0;

    /// Name to show to the user; absent when unknown.
    [[nodiscard]] virtual std::optional<Text> localizedName() const = 0;

    /// Absent when unknown.
    [[nodiscard]] virtual std::optional<ApplicationIcon> icon() const = 0;

    /// 0 when unknown.
    [[nodiscard]] virtual std::int32_t processIdentifier() const = 0;

    [[nodiscard]] virtual bool isTerminated() const = 0;
};

} // namespace tovrel
