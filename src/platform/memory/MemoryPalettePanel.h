#pragma once

#include <utility>

#include "palette/PalettePanel.h"

namespace tovrel {

/// A panel that is only told of: keys are typed into it by calling `type`.
class MemoryPalettePanel : public PalettePanel {
  public:
    [[nodiscard]] bool isVisible() const override { return isVisible_; }
    [[nodiscard]] Size frameSize() const override { return {680, 460}; }
    void setFrameOrigin(Point origin) override { origin_ = origin; }
    void showAndMakeKey() override {
        isVisible_ = true;
        ++showings_;
    }
    void close() override { isVisible_ = false; }
    void setKeyHandler(KeyHandler handler) override { keyHandler_ = std::move(handler); }
    void setResignKeyHandler(std::function<void()> handler) override {
        resignKeyHandler_ = std::move(handler);
    }

    /// Whether the key was used up before the search field saw it.
    bool type(const KeyEvent& event) {
        const KeyHandler handler = keyHandler_;
        return handler && handler(event);
    }
    void resignKey() { resignKeyHandler_(); }

    [[nodiscard]] Point origin() const { return origin_; }
    [[nodiscard]] int showings() const { return showings_; }
    [[nodiscard]] bool hasKeyHandler() const { return static_cast<bool>(keyHandler_); }

  private:
    bool isVisible_ = false;
    int showings_ = 0;
    Point origin_;
    KeyHandler keyHandler_;
    std::function<void()> resignKeyHandler_;
};

} // namespace tovrel
