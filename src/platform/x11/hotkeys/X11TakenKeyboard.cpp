#include "platform/x11/hotkeys/X11TakenKeyboard.h"

#include <utility>

#include "platform/x11/hotkeys/UngrabKeyboard.h"
#include "platform/x11/server/XcbOwned.h"

namespace tovrel {

bool X11TakenKeyboard::take(HotKeyCenter::KeyHandler handler, std::function<void()> onLoss) {
    if (handler_) {
        return false;
    }
    xcb_connection_t* connection = connection_.handle();
    const XcbOwned<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    const bool isWindow = focus && focus->focus > XCB_INPUT_FOCUS_POINTER_ROOT;
    // The grab is on the focused window, because a grab elsewhere would make that window believe it had lost
    // the focus.
    const auto cookie = xcb_grab_keyboard(connection, 0, isWindow ? focus->focus : connection_.root(),
                                          XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_SYNC);
    xcb_allow_events(connection, XCB_ALLOW_SYNC_KEYBOARD, XCB_CURRENT_TIME);
    const XcbOwned<xcb_grab_keyboard_reply_t> answer(xcb_grab_keyboard_reply(connection, cookie, nullptr));
    if (!answer || answer->status != XCB_GRAB_STATUS_SUCCESS) {
        return false;
    }
    handler_ = std::move(handler);
    onLoss_ = std::move(onLoss);
    return true;
}

void X11TakenKeyboard::giveBack(bool passesKeyOn) {
    if (!std::exchange(handler_, nullptr)) {
        return;
    }
    const KeyboardGuard::Hold key = std::exchange(key_, 0);
    xcb_connection_t* connection = connection_.handle();
    if (key == 0) {
        ungrabKeyboard(connection);
    } else {
        guard_.end(key, [&] {
            if (passesKeyOn) {
                xcb_allow_events(connection, XCB_ALLOW_REPLAY_KEYBOARD, XCB_CURRENT_TIME);
                xcb_flush(connection);
            } else {
                ungrabKeyboard(connection);
            }
        });
    }
}

void X11TakenKeyboard::handleKey(const KeyEvent& key, KeyboardGuard::Hold hold) {
    key_ = hold;
    const HotKeyCenter::KeyHandler handler = handler_; // it may give the keyboard back
    handler(key);
    if (std::exchange(key_, 0) != hold) {
        return;
    }
    const bool isStillTaken = guard_.end(
        hold, [this] { xcb_allow_events(connection_.handle(), XCB_ALLOW_SYNC_KEYBOARD, XCB_CURRENT_TIME); });
    if (!isStillTaken) {
        handler_ = nullptr;
        const auto onLoss = std::exchange(onLoss_, nullptr);
        onLoss();
    }
}

} // namespace tovrel
