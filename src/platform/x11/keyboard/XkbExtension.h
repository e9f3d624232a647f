#pragma once

#include <cstdint>
#include <optional>

#include <xcb/xcb.h>

namespace tovrel {

/// The keyboard extension of an X connection (XKB 1.0), as far as it is needed here.
class XkbExtension {
  public:
    /// What the keyboard's modifiers and its group of characters are at a time.
    struct State {
        std::uint8_t modifiers = 0; ///< Effective: held, latched and locked.
        std::uint8_t locked = 0;
        std::uint8_t group = 0;
    };

    /// Announces this client to the extension; without the extension all answers are absent.
    explicit XkbExtension(xcb_connection_t* connection);

    [[nodiscard]] bool isAvailable() const { return isAvailable_; }

    /// From now on this connection is told of a held key as press, press, …, release.
    void useDetectableAutoRepeat();

    /// From now on another keyboard, layout or modifier mapping comes as an event. The core protocol's own
    /// event for that is not sent to clients of the extension in all cases.
    void selectKeyboardEvents();
    [[nodiscard]] bool isKeyboardChange(const xcb_generic_event_t& event) const;

    /// Whether changes of the modifiers come as events from now on.
    void selectStateEvents(bool isWanted);
    /// The state an event tells of; absent when it is another event.
    [[nodiscard]] std::optional<State> stateOf(const xcb_generic_event_t& event) const;

    [[nodiscard]] std::optional<State> state();

  private:
    [[nodiscard]] std::optional<std::uint8_t> kindOf(const xcb_generic_event_t& event) const;

    xcb_connection_t* connection_;
    bool isAvailable_ = false;
    std::uint8_t firstEvent_ = 0;
};

} // namespace tovrel
