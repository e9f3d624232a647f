#pragma once

#include <memory>

namespace tovrel {

class SettingsViewState;

/// The window that shows the settings. Made hidden; closing it only hides it.
class SettingsWindow {
  public:
    virtual ~SettingsWindow() = default;

    /// Shows a new view of the state in place of the old view. The window owns the state.
    virtual void setContent(std::unique_ptr<SettingsViewState> state) = 0;

    /// Shows the window where it was last, above the others and with the keyboard focus.
    virtual void showAndMakeKey() = 0;
};

} // namespace tovrel
