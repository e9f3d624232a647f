#pragma once

#include <memory>
#include <string>
#include <utility>

#include "app/desktop/LinuxDisplay.h"
#include "platform/x11/windows/X11WindowList.h"

namespace tovrel {

/// The X display that $DISPLAY names. Without such a display there are no windows and no hot keys.
class X11Display final : public LinuxDisplay {
  public:
    /// `absence` is the `problem` to report where there is no such display.
    explicit X11Display(std::string absence) : absence_(std::move(absence)) {}

    [[nodiscard]] std::string_view name() const override { return "X11"; }
    [[nodiscard]] std::optional<std::string> problem() const override;
    [[nodiscard]] std::shared_ptr<WindowList> windows() override { return windows_; }
    [[nodiscard]] std::function<std::optional<std::string>()> accessibilityBusAddress() override;

    /// Each seam has a connection of its own, except the window system. Activations are dispatched before hot
    /// keys, because the user presses a hot key after the activation that brought the application back.
    [[nodiscard]] ResidentSeams makeResidentSeams(MainQueue& queue,
                                                  std::function<KeyDestination()> keyDestination,
                                                  const ToolkitConnection& toolkit) override;

  private:
    std::string absence_;
    std::shared_ptr<X11WindowList> windows_ = std::make_shared<X11WindowList>();
};

} // namespace tovrel
