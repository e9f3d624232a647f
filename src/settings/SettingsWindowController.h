#pragma once

#include <functional>
#include <memory>

#include "settings/SettingsViewModel.h"
#include "settings/SettingsWindow.h"

namespace tovrel {

/// Owns the settings window. Makes it when it is first shown, and keeps it when the user closes it.
class SettingsWindowController {
  public:
    /// Makes the window, hidden and empty: 920 x 620 points, not resizable, titled "Tovrel", centred on the
    /// screen.
    using WindowFactory = std::function<std::unique_ptr<SettingsWindow>()>;

    explicit SettingsWindowController(WindowFactory makeWindow) : makeWindow_(std::move(makeWindow)) {}

    /// Shows a new view of the model, in the existing window if there is one.
    void show(std::shared_ptr<SettingsViewModel> viewModel);

  private:
    WindowFactory makeWindow_;
    std::unique_ptr<SettingsWindow> window_;
};

} // namespace tovrel
