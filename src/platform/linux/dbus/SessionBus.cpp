#include "platform/linux/dbus/SessionBus.h"

namespace tovrel {

DBusConnection* SessionBus::connection() {
    if (!connection_ || !connection_->isOpen()) {
        connection_ = DBusConnection::openSessionBus();
    }
    return connection_ ? &*connection_ : nullptr;
}

} // namespace tovrel
