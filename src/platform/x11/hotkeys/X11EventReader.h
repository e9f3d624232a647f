#pragma once

#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

#include "platform/posix/FileDescriptor.h"
#include "platform/x11/hotkeys/KeyboardGuard.h"
#include "platform/x11/server/X11Connection.h"
#include "platform/x11/server/XcbOwned.h"

namespace tovrel {

/// Takes every event of a connection the moment it arrives, on a thread of its own, and keeps it for the main
/// thread; so a key that gives us the keyboard is known to the guard whatever the main thread does. It also
/// takes the events that arrive with an answer, after which the connection's descriptor tells of nothing.
class X11EventReader {
  public:
    struct Event {
        XcbOwned<xcb_generic_event_t> event;
        KeyboardGuard::Hold hold = 0; ///< Begun by this event; 0 for most.

        explicit operator bool() const { return event != nullptr; }
    };

    /// Both outlive it, and nobody else takes events of the connection. Only a grab brings key events here.
    X11EventReader(X11Connection& connection, KeyboardGuard& guard);
    /// Cuts the connection off from the server.
    ~X11EventReader();
    X11EventReader(const X11EventReader&) = delete;
    X11EventReader& operator=(const X11EventReader&) = delete;

    /// Readable while there are events, and once when the server is gone; -1 without a server.
    [[nodiscard]] int fileDescriptor() const { return connection_.isOpen() ? readable_.get() : -1; }

    /// The next event in the order of the server; empty when there is none at present.
    [[nodiscard]] Event next();

  private:
    void read();
    void makeReadable() const;

    X11Connection& connection_;
    KeyboardGuard& guard_;
    FileDescriptor readable_;
    std::mutex mutex_;
    std::deque<Event> events_;
    std::thread thread_; ///< Last, for it uses the others.
};

} // namespace tovrel
