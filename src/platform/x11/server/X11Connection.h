#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include <xcb/xcb.h>

namespace tovrel {

/// A connection to the X server of this process's environment, with common questions. Without a server every
/// answer is absent.
class X11Connection {
  public:
    /// Connects to `display`, or to $DISPLAY when null.
    explicit X11Connection(const char* display = nullptr);

    [[nodiscard]] bool isOpen() const;

    /// The connection for other requests than those below; never null, but useless unless open.
    [[nodiscard]] xcb_connection_t* handle() const { return connection_.get(); }
    /// -1 without a server.
    [[nodiscard]] int fileDescriptor() const {
        return isOpen() ? xcb_get_file_descriptor(connection_.get()) : -1;
    }

    /// The root window of the connection's screen; 0 without a server.
    [[nodiscard]] xcb_window_t root() const { return root_; }

    /// XCB_ATOM_NONE without a server.
    xcb_atom_t atom(const char* name);

    /// One property, as X11Properties reads it.
    [[nodiscard]] std::optional<std::string> bytes(xcb_window_t window, const char* property);
    [[nodiscard]] std::vector<std::uint32_t> numbers(xcb_window_t window, const char* property);

    /// Whether a window manager runs: the window with which it announced itself exists and names itself (EWMH
    /// 1.5, _NET_SUPPORTING_WM_CHECK). The root window's properties, such as the active window, survive a
    /// manager that was killed.
    [[nodiscard]] bool hasWindowManager();
    /// The window that the window manager calls active; 0 while no window is, absent without a manager or if
    /// it does not say.
    [[nodiscard]] std::optional<xcb_window_t> activeWindow();

    /// Sets whether changes of the root window's properties are sent as events. The events pile up unless
    /// someone takes them.
    void watchRootProperties(bool isWanted);
    /// Waits until a watched property may have changed. Returns false at the deadline, or when the server is
    /// gone.
    bool waitForPropertyChange(std::chrono::steady_clock::time_point deadline);

    /// Sends a message about a window to the window manager. Returns false when it could not be sent.
    bool sendToWindowManager(xcb_window_t window, const char* message,
                             const std::vector<std::uint32_t>& data);

  private:
    /// Whether this is the window of a running manager, according to its property.
    [[nodiscard]] bool isManager(const std::vector<std::uint32_t>& announced);

    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    xcb_window_t root_ = 0;
    std::unordered_map<std::string, xcb_atom_t> atoms_;
};

/// Watches the root window's properties while it exists.
class X11RootPropertyWatch {
  public:
    explicit X11RootPropertyWatch(X11Connection& connection) : connection_(connection) {
        connection_.watchRootProperties(true);
    }
    ~X11RootPropertyWatch() { connection_.watchRootProperties(false); }
    X11RootPropertyWatch(const X11RootPropertyWatch&) = delete;
    X11RootPropertyWatch& operator=(const X11RootPropertyWatch&) = delete;

  private:
    X11Connection& connection_;
};

} // namespace tovrel
