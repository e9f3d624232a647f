#pragma once

#include <utility>
#include <vector>

#include "platform/KeyEventPoster.h"

namespace tovrel {

/// Keeps the key presses that were posted.
class MemoryKeyEventPoster : public KeyEventPoster {
  public:
    [[nodiscard]] bool canPost() const override { return canPost_; }
    bool postKeyPress(std::uint16_t keyCode, ModifierFlags flags) override {
        if (canPost_) {
            presses_.emplace_back(keyCode, flags);
        }
        return canPost_;
    }

    /// Sets whether the desktop lets keys be posted.
    void setCanPost(bool canPost) { canPost_ = canPost; }

    [[nodiscard]] const std::vector<std::pair<std::uint16_t, ModifierFlags>>& presses() const {
        return presses_;
    }

  private:
    bool canPost_ = true;
    std::vector<std::pair<std::uint16_t, ModifierFlags>> presses_;
};

} // namespace tovrel
