#pragma once

#include <QWindow>

#include "platform/WindowSystem.h"

namespace tovrel {

/// The window as the display knows it; 0 for a window that the display does not know yet.
OwnWindow ownWindow(const QWindow& window);

/// A window system that uses only Qt.
class QtWindowSystem : public WindowSystem {
  public:
    [[nodiscard]] bool isComposited() const override { return true; }
    /// Whether Qt calls the window active.
    [[nodiscard]] bool hasInputFocus(OwnWindow window) const override;
    void giveFocus(OwnWindow /*window*/) override {}
    void activate(OwnWindow window) override;
    [[nodiscard]] std::function<void()> rememberFocus() const override {
        return [] {};
    }
    [[nodiscard]] bool isManaged() const override { return true; }
    [[nodiscard]] bool isFirstButtonDown() const override { return true; }
    void endMove(OwnWindow /*window*/) override {}
    [[nodiscard]] std::optional<Rect> activeWindowFrame() const override { return std::nullopt; }
    [[nodiscard]] bool hasStatusBar() const override { return false; }
    [[nodiscard]] bool mayAnnounceStatusBar(std::string_view /*type*/, const void* /*event*/) const override {
        return false;
    }
};

} // namespace tovrel
