#pragma once

#include <vector>

#include "platform/UserNotifications.h"

namespace tovrel {

/// Keeps notifications without showing them.
class MemoryUserNotifications : public UserNotifications {
  public:
    struct Notification {
        Text title;
        Text body;

        friend bool operator==(const Notification&, const Notification&) = default;
    };

    void show(const Text& title, const Text& body) override { shown_.push_back({title, body}); }

    [[nodiscard]] const std::vector<Notification>& shown() const { return shown_; }

  private:
    std::vector<Notification> shown_;
};

} // namespace tovrel
