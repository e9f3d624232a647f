#pragma once

#include <string>

#include "platform/PreferencesDomain.h"
#include "support/Observable.h"

namespace tovrel {

/// The palette's display options. They are read from the preferences once, at construction, and then kept in
/// memory. A value of another type than boolean reads as the option's default.
class PaletteSettingsStore {
  public:
    /// The options are kept under `keyPrefix` + ".showCheckedStatus" and ".commandShortcutOpensSettings".
    PaletteSettingsStore(PreferencesDomain& defaults, const std::string& keyPrefix);

    /// Whether to show the check mark of menu items that have one. Default: true.
    [[nodiscard]] const Observable<bool>& showCheckedStatus() const { return showCheckedStatus_; }

    /// A reserved option that nothing in the program writes. Default: false.
    [[nodiscard]] const Observable<bool>& commandShortcutOpensSettings() const {
        return commandShortcutOpensSettings_;
    }

    /// Tells the observers first, then stores the value.
    void setShowCheckedStatus(bool isShown);

  private:
    PreferencesDomain* defaults_;
    std::string showCheckedStatusKey_;
    Observable<bool> showCheckedStatus_;
    Observable<bool> commandShortcutOpensSettings_;
};

} // namespace tovrel
