#pragma once

#include <utility>

#include "palette/PalettePanel.h"

namespace tovrel {

/// A panel without a window; tests type keys into it with `type`.
class MemoryPalettePanel : public PalettePanel {
  public:
    [[nodiscard]] bool isVisible() const override { return isVisible_; }
    [[nodiscard]] Size frameSize() const override { return {680, 460}; }
    void place(const PalettePlacement& placement) override { placement_ = placement; }
    void show() override {
        isVisible_ = true;
        ++showings_;
    }
    void makeKey() override { isKey_ = isVisible_; }
    void close() override {
        isVisible_ = false;
        isKey_ = false;
    }
    void setKeyHandler(KeyHandler handler) override { keyHandler_ = std::move(handler); }
    void setResignKeyHandler(std::function<void()> handler) override {
        resignKeyHandler_ = std::move(handler);
    }

    /// Types a key; returns whether it was used up before the search field saw it.
    bool type(const KeyEvent& event) {
        const KeyHandler handler = keyHandler_;
        return handler && handler(event);
    }
    void resignKey() {
        isKey_ = false;
        if (resignKeyHandler_) {
            resignKeyHandler_();
        }
    }

    [[nodiscard]] const PalettePlacement& placement() const { return placement_; }
    /// Whether it has the keyboard focus.
    [[nodiscard]] bool isKey() const { return isKey_; }
    [[nodiscard]] int showings() const { return showings_; }
    [[nodiscard]] bool hasKeyHandler() const { return static_cast<bool>(keyHandler_); }

  private:
    bool isVisible_ = false;
    bool isKey_ = false;
    int showings_ = 0;
    PalettePlacement placement_;
    KeyHandler keyHandler_;
    std::function<void()> resignKeyHandler_;
};

} // namespace tovrel
