#pragma once

#include <xcb/xcb.h>

namespace tovrel {

/// Has the server release the keyboard. Must be called once per hold: the server then delivers the keys it
/// has held back, up to the next press of a hot key, which begins the next hold.
inline void ungrabKeyboard(xcb_connection_t* connection) {
    xcb_ungrab_keyboard(connection, XCB_CURRENT_TIME);
    xcb_flush(connection);
}

} // namespace tovrel
