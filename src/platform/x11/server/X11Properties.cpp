#include "platform/x11/server/X11Properties.h"

#include <algorithm>

namespace tovrel {
namespace {

/// The most that is read of a property, in the protocol's units of four bytes.
constexpr std::uint32_t longestProperty = 16 * 1024;

} // namespace

X11Properties::X11Properties(X11Connection& connection, xcb_window_t window,
                             std::initializer_list<const char*> names) {
    if (!connection.isOpen()) {
        return;
    }
    std::vector<xcb_get_property_cookie_t> cookies;
    cookies.reserve(names.size());
    for (const char* name : names) {
        cookies.push_back(xcb_get_property(connection.handle(), 0, window, connection.atom(name),
                                           XCB_GET_PROPERTY_TYPE_ANY, 0, longestProperty));
    }
    replies_.reserve(names.size());
    auto cookie = cookies.begin();
    for (const char* name : names) {
        xcb_generic_error_t* error = nullptr;
        replies_.emplace_back(name, xcb_get_property_reply(connection.handle(), *cookie++, &error));
        const XcbOwned<xcb_generic_error_t> owned(error); // The window may be gone by now.
    }
}

std::optional<std::string> X11Properties::bytes(std::string_view name) const {
    const xcb_get_property_reply_t* reply = find(name, 8);
    if (reply == nullptr) {
        return std::nullopt;
    }
    const auto length = static_cast<std::size_t>(xcb_get_property_value_length(reply));
    return std::string(static_cast<const char*>(xcb_get_property_value(reply)), length);
}

std::vector<std::uint32_t> X11Properties::numbers(std::string_view name) const {
    const xcb_get_property_reply_t* reply = find(name, 32);
    if (reply == nullptr) {
        return {};
    }
    const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply));
    return {values, values + xcb_get_property_value_length(reply) / 4};
}

const xcb_get_property_reply_t* X11Properties::find(std::string_view name, std::uint8_t format) const {
    const auto found = std::find_if(replies_.begin(), replies_.end(),
                                    [&](const auto& reply) { return reply.first == name; });
    return found != replies_.end() && found->second && found->second->format == format ? found->second.get()
                                                                                       : nullptr;
}

} // namespace tovrel
