#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/linux/ServerProcess.h"
#include "platform/x11/server/X11Connection.h"

namespace tovrel {

/// A private X server on which the test plays the applications and the window manager.
class X11WindowStage {
  public:
    /// A message to the window manager.
    struct Request {
        xcb_window_t window = 0;
        std::vector<std::uint32_t> data;
    };

    /// Starts with a window manager. Throws if Xvfb is missing.
    X11WindowStage();

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] xcb_connection_t* connection() const { return connection_->handle(); }
    [[nodiscard]] xcb_window_t root() const { return connection_->root(); }
    [[nodiscard]] xcb_window_t manager() const { return manager_; }
    [[nodiscard]] xcb_atom_t atom(const char* atomName) { return connection_->atom(atomName); }

    /// Makes a window that the manager does not list.
    xcb_window_t make(std::uint32_t process, const std::string& title, xcb_window_t parent = 0);
    /// Makes a window above the others.
    xcb_window_t open(std::uint32_t process, const std::string& title);
    /// Makes a window active; 0 makes none active.
    void setActive(xcb_window_t window) { setWindows(root(), "_NET_ACTIVE_WINDOW", {window}); }

    /// These return when the server has handled the request.
    void setText(xcb_window_t window, const char* property, const std::string& value);
    void setWindows(xcb_window_t window, const char* property, const std::vector<xcb_window_t>& windows) {
        setNumbers(window, property, windows, XCB_ATOM_WINDOW);
    }
    void setNumbers(xcb_window_t window, const char* property, const std::vector<std::uint32_t>& values,
                    xcb_atom_t type = XCB_ATOM_CARDINAL);
    void map(xcb_window_t window);
    void focus(xcb_window_t window);
    [[nodiscard]] xcb_window_t focused();

    /// Announces a window manager. When one is killed, its window goes but its properties stay.
    void announceManager();
    void killManager();

    /// The requests to the window manager with this message since the last call.
    std::vector<Request> requests(const char* message);

  private:
    void waitForServer();

    ServerProcess server_{{"Xvfb", "-displayfd", "{fd}", "-screen", "0", "64x64x24", "-nolisten", "tcp"}};
    std::string name_ = ":" + server_.announced();
    std::unique_ptr<X11Connection> connection_;
    xcb_window_t manager_ = 0;
    std::vector<xcb_window_t> stacking_;
};

} // namespace tovrel
