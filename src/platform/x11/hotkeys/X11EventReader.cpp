#include "platform/x11/hotkeys/X11EventReader.h"

#include <cstdint>
#include <unistd.h>
#include <utility>

#include <sys/eventfd.h>
#include <sys/socket.h>

namespace tovrel {

X11EventReader::X11EventReader(X11Connection& connection, KeyboardGuard& guard)
    : connection_(connection), guard_(guard), readable_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (connection_.isOpen()) {
        thread_ = std::thread([this] { read(); });
    }
}

X11EventReader::~X11EventReader() {
    if (thread_.joinable()) {
        // Only this wakes a thread that waits for an event.
        shutdown(xcb_get_file_descriptor(connection_.handle()), SHUT_RDWR);
        thread_.join();
    }
}

X11EventReader::Event X11EventReader::next() {
    const std::lock_guard lock(mutex_);
    if (events_.empty()) {
        return {};
    }
    Event event = std::move(events_.front());
    events_.pop_front();
    if (events_.empty()) {
        std::uint64_t count = 0;
        static_cast<void>(::read(readable_.get(), &count, sizeof count));
    }
    return event;
}

void X11EventReader::read() {
    while (XcbOwned<xcb_generic_event_t> event{xcb_wait_for_event(connection_.handle())}) {
        // Events that another client sends have an extra bit, and do not give us the keyboard.
        const bool isKey = event->response_type == XCB_KEY_PRESS || event->response_type == XCB_KEY_RELEASE;
        const KeyboardGuard::Hold hold = isKey ? guard_.begin() : 0;
        const std::lock_guard lock(mutex_);
        events_.push_back({std::move(event), hold});
        if (events_.size() == 1) {
            makeReadable();
        }
    }
    makeReadable();
}

void X11EventReader::makeReadable() const {
    const std::uint64_t one = 1;
    static_cast<void>(write(readable_.get(), &one, sizeof one));
}

} // namespace tovrel
