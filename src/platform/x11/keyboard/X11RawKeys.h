#pragma once

#include <cstdint>
#include <optional>

#include <xcb/xcb.h>

namespace tovrel {

/// Key events from the keyboards of an X display, whichever client they go to (XI 2.1). Only selected events
/// are delivered, so that typing does not wake the program in vain.
class X11RawKeys {
  public:
    struct Key {
        std::uint32_t keyCode = 0; ///< The server's number of the key.
        bool isPress = false;
    };

    X11RawKeys(xcb_connection_t* connection, xcb_window_t root);

    [[nodiscard]] bool isAvailable() const { return isAvailable_; }

    /// Selects the key events that come from now on, from all keyboards in use.
    void select(bool presses, bool releases);

    /// The key of an event; absent for another kind of event.
    [[nodiscard]] std::optional<Key> keyOf(const xcb_generic_event_t& event) const;

  private:
    xcb_connection_t* connection_;
    xcb_window_t root_;
    bool isAvailable_ = false;
    std::uint8_t opcode_ = 0;
    std::uint32_t selected_ = 0;
};

} // namespace tovrel
