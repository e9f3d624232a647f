#include "platform/linux/dbus/DBusCallWindow.h"

#include <utility>

namespace tovrel {

bool DBusCallWindow::send(const DBusMessage& call, Handler handler) {
    const auto serial = connection_.send(call);
    if (!serial) {
        return false;
    }
    pending_.emplace(*serial, std::move(handler));
    return true;
}

bool DBusCallWindow::wait(SteadyTime deadline) {
    while (auto answer = connection_.receive(deadline)) {
        const auto found = pending_.find(*answer->answeredCall());
        if (found == pending_.end()) {
            continue; // A late answer to a call that was given up.
        }
        const Handler handler = std::move(found->second);
        pending_.erase(found);
        handler(*answer);
        return true;
    }
    return false;
}

} // namespace tovrel
