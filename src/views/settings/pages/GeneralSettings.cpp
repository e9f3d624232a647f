#include "views/settings/pages/GeneralSettings.h"

#include <utility>

namespace tovrel {
namespace {

constexpr const char* privacyURL =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";

} // namespace

GeneralSettings::GeneralSettings(SettingsViewState& state, RecorderAdapter& recorder, OpenURL openURL,
                                 QObject* parent)
    : QObject(parent), state_(&state), recorder_(&recorder), openURL_(std::move(openURL)) {
    const SettingsViewModel& model = state.viewModel();
    subscriptions_.push_back(model.isAccessibilityTrusted().subscribe([this] { Q_EMIT changed(); }));
    subscriptions_.push_back(model.showCheckedStatus().subscribe([this] { Q_EMIT changed(); }));
    subscriptions_.push_back(model.notifiesOfCommandFailures().subscribe([this] { Q_EMIT changed(); }));
}

bool GeneralSettings::isAccessibilityTrusted() const {
    return state_->viewModel().isAccessibilityTrusted().get();
}

bool GeneralSettings::showCheckedStatus() const {
    return state_->viewModel().showCheckedStatus().get();
}

void GeneralSettings::setShowCheckedStatus(bool isShown) {
    state_->viewModel().setShowCheckedStatus(isShown);
}

bool GeneralSettings::notifiesOfCommandFailures() const {
    return state_->viewModel().notifiesOfCommandFailures().get();
}

void GeneralSettings::setNotifiesOfCommandFailures(bool isWanted) {
    state_->viewModel().setNotifiesOfCommandFailures(isWanted);
}

void GeneralSettings::openPrivacySettings() {
    openURL_(privacyURL);
}

} // namespace tovrel
