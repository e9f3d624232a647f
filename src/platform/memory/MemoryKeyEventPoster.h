#pragma once

#include <utility>
#include <vector>

#include "model/VirtualKeyCodes.h"
#include "platform/KeyEventPoster.h"

namespace tovrel {

/// Keeps the key presses that were posted.
class MemoryKeyEventPoster : public KeyEventPoster {
  public:
    [[nodiscard]] bool canPost() const override { return canPost_; }
    bool postKeyPress(std::uint16_t keyCode, ModifierFlags flags) override {
        if (!canPost_ || keyCode == key_codes::unknown) {
            return false;
        }
        presses_.emplace_back(keyCode, flags);
        return true;
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
