#include "settings/SettingsWindowController.h"

#include <utility>

#include "settings/SettingsViewState.h"

namespace tovrel {

void SettingsWindowController::show(std::shared_ptr<SettingsViewModel> viewModel) {
    if (!window_) {
        window_ = makeWindow_();
    }
    window_->setContent(std::make_unique<SettingsViewState>(std::move(viewModel)));
    window_->showAndMakeKey();
}

} // namespace tovrel
