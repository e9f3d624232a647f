#pragma once

#include <memory>

namespace tovrel {

class SettingsViewState;

/// The window that shows the settings. Made hidden; when the user closes it, it is only hidden, and what it
/// shows stays as it is.
class SettingsWindow {
  public:
    virtual ~SettingsWindow() = default;

    /// Replaces the view by a new one of this state. The window owns the state until the next call, and stays
    /// shown if it is.
    virtual void setContent(std::unique_ptr<SettingsViewState> state) = 0;

    /// Shows the window where it was last, above the others and with the keyboard focus; one that is shown
    /// comes forward.
    virtual void showAndMakeKey() = 0;
};

} // namespace tovrel
