#include "app/coordinator/ShortcutNotice.h"

#include <utility>

#include "KeyboardShortcuts/HotKeyErrorText.h"

namespace tovrel {

ShortcutNotice::ShortcutNotice(Surroundings surroundings, KeyboardShortcuts::Name name)
    : surroundings_(std::move(surroundings)), name_(std::move(name)),
      availability_(surroundings_.shortcuts.onAvailabilityDidChange([this] { tell(); })),
      change_(surroundings_.shortcuts.onShortcutByNameDidChange([this](const auto&) { tell(); })) {
    tell();
}

void ShortcutNotice::tell() {
    const auto shortcut = surroundings_.shortcuts.getShortcut(name_);
    const auto refusal = surroundings_.shortcuts.refusal(name_);
    if (!shortcut || !refusal) {
        surroundings_.setToolTip("Tovrel");
        return;
    }
    const LocalizedString& localized = surroundings_.localized;
    const Text headline = filled(localized("KeyboardShortcuts", "The shortcut %@ is not available"),
                                 surroundings_.textOf(*shortcut));
    const Text reason = hotKeyErrorText(*refusal, localized);
    surroundings_.setToolTip(Text("Tovrel\n" + headline.utf8() + "\n" + reason.utf8()));
    if (notified_ != shortcut) {
        notified_ = shortcut;
        surroundings_.notifications.show(headline, reason);
    }
}

} // namespace tovrel
