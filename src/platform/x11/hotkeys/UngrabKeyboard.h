#pragma once

#include <xcb/xcb.h>

namespace tovrel {

/// Has the server let the keyboard go. To be asked once a hold: the server then delivers what it has kept, up
/// to the next press of a hot key, which must find the keyboard held again.
inline void ungrabKeyboard(xcb_connection_t* connection) {
    xcb_ungrab_keyboard(connection, XCB_CURRENT_TIME);
    xcb_flush(connection);
}

} // namespace tovrel
