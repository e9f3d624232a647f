#pragma once

#include <cstdint>
#include <optional>

#include <xcb/xcb.h>

namespace tovrel {

/// Key events as they come from the keyboards of an X display, whichever client they go to (XI 2.1). Nothing
/// is delivered unless selected, so that typing wakes nobody up in vain.
class X11RawKeys {
  public:
    struct Key {
        std::uint32_t keyCode = 0; ///< As the server numbers it.
        bool isPress = false;
    };

    X11RawKeys(xcb_connection_t* connection, xcb_window_t root);

    [[nodiscard]] bool isAvailable() const { return isAvailable_; }

    /// Which key events come from now on, those of all keyboards in use.
    void select(bool presses, bool releases);

    /// The key an event tells of; absent when it is another event.
    [[nodiscard]] std::optional<Key> keyOf(const xcb_generic_event_t& event) const;

  private:
    xcb_connection_t* connection_;
    xcb_window_t root_;
    bool isAvailable_ = false;
    std::uint8_t opcode_ = 0;
    std::uint32_t selected_ = 0;
};

} // namespace tovrel
