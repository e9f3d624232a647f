#pragma once

#include <memory>
#include <utility>

#include "settings/SettingsViewState.h"
#include "settings/SettingsWindow.h"

namespace tovrel {

/// A settings window that only keeps its content.
class MemorySettingsWindow : public SettingsWindow {
  public:
    void setContent(std::unique_ptr<SettingsViewState> state) override { state_ = std::move(state); }
    void showAndMakeKey() override {
        isVisible_ = true;
        ++showings_;
    }

    /// As the user does it.
    void close() { isVisible_ = false; }

    [[nodiscard]] bool isVisible() const { return isVisible_; }
    [[nodiscard]] SettingsViewState& state() { return *state_; }
    [[nodiscard]] int showings() const { return showings_; }

  private:
    std::unique_ptr<SettingsViewState> state_;
    bool isVisible_ = false;
    int showings_ = 0;
};

} // namespace tovrel
