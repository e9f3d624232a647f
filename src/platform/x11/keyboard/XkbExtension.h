#pragma once

#include <cstdint>
#include <optional>

#include <xcb/xcb.h>

namespace tovrel {

/// The needed part of the keyboard extension of an X connection (XKB 1.0).
class XkbExtension {
  public:
    /// The keyboard's modifiers and group of characters at one moment.
    struct State {
        std::uint8_t modifiers = 0; ///< Effective: held, latched and locked.
        std::uint8_t locked = 0;
        std::uint8_t group = 0;
    };

    /// Announces this client to the extension; without the extension all answers are absent.
    explicit XkbExtension(xcb_connection_t* connection);

    [[nodiscard]] bool isAvailable() const { return isAvailable_; }

    /// Has a held key reported to this connection as press, press, …, release.
    void useDetectableAutoRepeat();

    /// Has events sent for another keyboard, layout or modifier mapping. Clients of the extension do not
    /// always get the core protocol's event for these.
    void selectKeyboardEvents();
    [[nodiscard]] bool isKeyboardChange(const xcb_generic_event_t& event) const;

    /// Sets whether changes of the modifiers are sent as events.
    void selectStateEvents(bool isWanted);
    /// The state in an event; absent for another kind of event.
    [[nodiscard]] std::optional<State> stateOf(const xcb_generic_event_t& event) const;

    [[nodiscard]] std::optional<State> state();

  private:
    [[nodiscard]] std::optional<std::uint8_t> kindOf(const xcb_generic_event_t& event) const;

    xcb_connection_t* connection_;
    bool isAvailable_ = false;
    std::uint8_t firstEvent_ = 0;
};

} // namespace tovrel
