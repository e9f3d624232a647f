#include "stores/PaletteSettingsStore.h"

namespace tovrel {

PaletteSettingsStore::PaletteSettingsStore(PreferencesDomain& defaults, const std::string& keyPrefix)
    : defaults_(&defaults), showCheckedStatusKey_(keyPrefix + ".showCheckedStatus"),
      showCheckedStatus_(booleanValue(defaults, showCheckedStatusKey_).value_or(true)),
      commandShortcutOpensSettings_(
          booleanValue(defaults, keyPrefix + ".commandShortcutOpensSettings").value_or(false)) {}

void PaletteSettingsStore::setShowCheckedStatus(bool isShown) {
    showCheckedStatus_.set(isShown);
    // A value that could not be read cannot be set. It is read again, because it may be readable by now.
    static_cast<void>(defaults_->value(showCheckedStatusKey_));
    defaults_->set(showCheckedStatusKey_, isShown);
}

} // namespace tovrel
