#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/posix/EventSource.h"
#include "platform/x11/server/X11Connection.h"

namespace tovrel {

/// A program with one window that records the keys it gets, in their order.
class X11TestClient : public EventSource {
  public:
    struct Key {
        std::uint32_t keyCode = 0; ///< Virtual.
        bool isPress = false;
        std::uint16_t state = 0; ///< The protocol's modifiers.
        friend bool operator==(const Key&, const Key&) = default;
    };

    explicit X11TestClient(const std::string& display);

    [[nodiscard]] xcb_window_t window() const { return window_; }
    void map();
    void unmap();
    /// Takes the input focus as programs do without a window manager.
    void focus();
    /// Whether it has the focus, ignoring grabs by others.
    [[nodiscard]] bool hasFocus() const { return hasFocus_; }
    /// Whether a toolkit that mistakes a grab for a move of the focus, as GTK does, believes the window
    /// focused.
    [[nodiscard]] bool seemsFocused() const { return seemsFocused_; }
    [[nodiscard]] bool isMapped() const { return isMapped_; }

    /// Called when the window has become visible, or invisible.
    std::function<void(bool isVisible)> onVisibility;

    [[nodiscard]] std::vector<std::uint32_t> presses() const;
    [[nodiscard]] const std::vector<Key>& keys() const { return keys_; }
    void forget() { keys_.clear(); }

    [[nodiscard]] X11Connection& connection() { return connection_; }
    [[nodiscard]] int fileDescriptor() const override { return connection_.fileDescriptor(); }
    void dispatch() override;

  private:
    X11Connection connection_;
    xcb_window_t window_ = 0;
    std::vector<Key> keys_;
    bool hasFocus_ = false;
    bool seemsFocused_ = false;
    bool isMapped_ = false;
};

/// Plays keys by their virtual key codes.
class X11TestKeyboard {
  public:
    /// The test extension's keyboard, which other programs use too, or the server's real one.
    enum class Kind { synthetic, real };

    explicit X11TestKeyboard(const std::string& display, Kind kind = Kind::synthetic);

    void press(std::uint32_t keyCode) { play(keyCode, true); }
    void release(std::uint32_t keyCode) { play(keyCode, false); }
    void tap(std::uint32_t keyCode);
    /// Sends all played keys in one write; returns when the server has handled them.
    void flush();

    /// The virtual key codes of the keys that are down; 1000 and more for keys without one.
    [[nodiscard]] std::vector<std::uint32_t> down();
    /// The modifiers in force.
    [[nodiscard]] std::uint16_t modifiers();

    [[nodiscard]] X11Connection& connection() { return connection_; }

  private:
    void play(std::uint32_t keyCode, bool isPress);

    X11Connection connection_;
    std::uint8_t pressType_ = XCB_KEY_PRESS;
    std::uint8_t device_ = 0;
};

} // namespace tovrel
