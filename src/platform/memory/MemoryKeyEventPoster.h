#pragma once

#include <utility>
#include <vector>

#include "platform/KeyEventPoster.h"

namespace tovrel {

/// Keeps the key presses that were posted.
class MemoryKeyEventPoster : public KeyEventPoster {
  public:
    bool postKeyPress(std::uint16_t keyCode, ModifierFlags flags) override {
        presses_.emplace_back(keyCode, flags);
        return true;
    }

    [[nodiscard]] const std::vector<std::pair<std::uint16_t, ModifierFlags>>& presses() const {
        return presses_;
    }

  private:
    std::vector<std::pair<std::uint16_t, ModifierFlags>> presses_;
};

} // namespace tovrel
