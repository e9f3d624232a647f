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

/// Takes every event of a connection as soon as it arrives, on a thread of its own, and keeps it for the main
/// thread. So the guard knows of each key that gives us the keyboard, whatever the main thread does. It also
/// takes events that arrive together with an answer, for which the connection's descriptor does not become
/// readable.
class X11EventReader {
  public:
    struct Event {
        XcbOwned<xcb_generic_event_t> event;
        KeyboardGuard::Hold hold = 0; ///< The hold that this event began; 0 for most events.

        explicit operator bool() const { return event != nullptr; }
    };

    /// Both arguments outlive the reader, and nobody else takes events of the connection. Key events must
    /// come only from grabs.
    X11EventReader(X11Connection& connection, KeyboardGuard& guard);
    /// Disconnects from the server.
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
    std::thread thread_; ///< Last, because it uses the other members.
};

} // namespace tovrel
