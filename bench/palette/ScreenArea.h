#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include <xcb/damage.h>
#include <xcb/shm.h>

#include "platform/x11/server/X11Connection.h"

namespace tovrel {

/// Watches the pixels of one rectangle of the screen. The server reports when something was drawn there
/// (DAMAGE); the pixels themselves, read through shared memory (MIT-SHM), decide whether that changed any. So
/// each time is the time at which the change was seen in the pixels, one reading after it was made.
class ScreenArea {
  public:
    using Clock = std::chrono::steady_clock;

    struct Rectangle {
        std::int16_t x = 0;
        std::int16_t y = 0;
        std::uint16_t width = 0;
        std::uint16_t height = 0;
    };

    struct Changes {
        Clock::time_point first;
        Clock::time_point last;
        int count = 0;
    };

    /// The connection must outlive the object. Without the extensions it sees no changes; see `isAvailable`.
    explicit ScreenArea(X11Connection& connection);
    ~ScreenArea();
    ScreenArea(const ScreenArea&) = delete;
    ScreenArea& operator=(const ScreenArea&) = delete;

    [[nodiscard]] bool isAvailable() const { return hasDamage_; }

    /// Watches this part of the screen from now on; the part must be on the screen. Returns false when the
    /// server refuses.
    bool watch(const Rectangle& area);
    [[nodiscard]] const Rectangle& area() const { return area_; }

    /// Reads the pixels, with which later ones are compared.
    bool look();
    /// Waits for changes since the last look, until no further one comes for `quiet`; absent when there is
    /// none before the deadline. With a `quiet` of zero it returns at the first change.
    std::optional<Changes> waitForChanges(std::chrono::milliseconds quiet, Clock::time_point deadline);

    /// Keeps the pixels last looked at.
    void remember();
    /// Waits until the area looks as remembered; returns false at the deadline.
    bool waitForRemembered(Clock::time_point deadline);

  private:
    bool read();
    bool waitForDrawing(Clock::time_point deadline);
    bool hasBeenDrawn();
    void release();

    X11Connection& connection_;
    bool hasDamage_ = false;
    std::uint8_t damageEvent_ = 0;
    Rectangle area_;
    std::size_t bytes_ = 0;
    xcb_shm_seg_t segment_ = 0;
    const std::uint8_t* shared_ = nullptr;
    std::vector<std::uint8_t> seen_;
    std::vector<std::uint8_t> remembered_;
};

} // namespace tovrel
