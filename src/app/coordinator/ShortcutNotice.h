#pragma once

#include <functional>
#include <optional>

#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "model/Shortcut.h"
#include "platform/UserNotifications.h"
#include "support/LocalizedString.h"
#include "support/Text.h"

namespace tovrel {

/// Tells the user that the global shortcut does not work: by the status item's tool tip while that lasts, and
/// by one notification.
class ShortcutNotice {
  public:
    struct Surroundings {
        KeyboardShortcuts& shortcuts;
        UserNotifications& notifications;
        LocalizedString localized;
        std::function<Text(const Shortcut&)> textOf;
        std::function<void(const Text&)> setToolTip;
    };

    /// Everything that `surroundings` refers to outlives the notice. A shortcut that does not work already is
    /// reported at once.
    ShortcutNotice(Surroundings surroundings, KeyboardShortcuts::Name name);
    ~ShortcutNotice() = default;
    ShortcutNotice(const ShortcutNotice&) = delete;
    ShortcutNotice& operator=(const ShortcutNotice&) = delete;

  private:
    void tell();

    Surroundings surroundings_;
    KeyboardShortcuts::Name name_;
    std::optional<Shortcut> notified_; ///< The last reported one; it is not reported again.
    Subscription availability_;
    Subscription change_;
};

} // namespace tovrel
