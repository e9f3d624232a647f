#include "platform/x11/keyboard/XkbExtension.h"

// The header has a member with this name, which C allows.
#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define explicit explicit_ // NOLINT(cppcoreguidelines-macro-usage)
#include <xcb/xkb.h>
#undef explicit
#ifdef __clang__
#pragma clang diagnostic pop
#endif

#include "platform/x11/server/XcbOwned.h"

namespace tovrel {

XkbExtension::XkbExtension(xcb_connection_t* connection) : connection_(connection) {
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &xcb_xkb_id);
    if (extension == nullptr || extension->present == 0) {
        return;
    }
    firstEvent_ = extension->first_event;
    const XcbOwned<xcb_xkb_use_extension_reply_t> reply(xcb_xkb_use_extension_reply(
        connection, xcb_xkb_use_extension(connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION),
        nullptr));
    isAvailable_ = reply && reply->supported != 0;
}

void XkbExtension::useDetectableAutoRepeat() {
    if (!isAvailable_) {
        return;
    }
    constexpr std::uint32_t flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const auto cookie = xcb_xkb_per_client_flags(connection_, XCB_XKB_ID_USE_CORE_KBD, flag, flag, 0, 0, 0);
    xcb_discard_reply(connection_, cookie.sequence);
}

void XkbExtension::selectKeyboardEvents() {
    if (!isAvailable_) {
        return;
    }
    constexpr std::uint16_t events = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t newKeyboard = XCB_XKB_NKN_DETAIL_KEYCODES | XCB_XKB_NKN_DETAIL_DEVICE_ID;
    constexpr std::uint16_t map = XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP;
    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = newKeyboard;
    details.newKeyboardDetails = newKeyboard;
    xcb_xkb_select_events_aux(connection_, XCB_XKB_ID_USE_CORE_KBD, events, 0, 0, map, map, &details);
}

bool XkbExtension::isKeyboardChange(const xcb_generic_event_t& event) const {
    switch (kindOf(event).value_or(XCB_XKB_EXTENSION_DEVICE_NOTIFY)) {
    case XCB_XKB_NEW_KEYBOARD_NOTIFY:
    case XCB_XKB_MAP_NOTIFY:
        return true;
    default:
        return false;
    }
}

void XkbExtension::selectStateEvents(bool isWanted) {
    if (!isAvailable_) {
        return;
    }
    constexpr std::uint16_t event = XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
    constexpr std::uint16_t parts =
        XCB_XKB_STATE_PART_MODIFIER_STATE | XCB_XKB_STATE_PART_MODIFIER_LOCK | XCB_XKB_STATE_PART_GROUP_STATE;
    xcb_xkb_select_events_details_t details{};
    details.affectState = parts;
    details.stateDetails = isWanted ? parts : std::uint16_t{0};
    xcb_xkb_select_events_aux(connection_, XCB_XKB_ID_USE_CORE_KBD, event, 0, 0, 0, 0, &details);
}

std::optional<XkbExtension::State> XkbExtension::stateOf(const xcb_generic_event_t& event) const {
    if (kindOf(event) != XCB_XKB_STATE_NOTIFY) {
        return std::nullopt;
    }
    const auto& changed = reinterpret_cast<const xcb_xkb_state_notify_event_t&>(event);
    return State{changed.mods, changed.lockedMods, changed.group};
}

std::optional<std::uint8_t> XkbExtension::kindOf(const xcb_generic_event_t& event) const {
    // All events of the extension have one number; the second byte is the kind.
    return isAvailable_ && (event.response_type & 0x7FU) == firstEvent_ ? std::optional(event.pad0)
                                                                        : std::nullopt;
}

std::optional<XkbExtension::State> XkbExtension::state() {
    if (!isAvailable_) {
        return std::nullopt;
    }
    const XcbOwned<xcb_xkb_get_state_reply_t> reply(xcb_xkb_get_state_reply(
        connection_, xcb_xkb_get_state(connection_, XCB_XKB_ID_USE_CORE_KBD), nullptr));
    return reply ? std::optional(State{reply->mods, reply->lockedMods, reply->group}) : std::nullopt;
}

} // namespace tovrel
