#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/x11/server/X11Connection.h"
#include "platform/x11/server/XcbOwned.h"

namespace tovrel {

/// Properties of a window at one moment. All are requested before the first answer is awaited: the server
/// answers twelve in the time of two separate requests.
class X11Properties {
  public:
    X11Properties(X11Connection& connection, xcb_window_t window, std::initializer_list<const char*> names);

    /// The bytes of a property of 8-bit items, whatever its type; absent when the window lacks it or is gone,
    /// or the property was not requested. At most 64 KiB are read.
    [[nodiscard]] std::optional<std::string> bytes(std::string_view name) const;
    /// The values of a property of 32-bit items, such as window identifiers and numbers; at most 16,384.
    [[nodiscard]] std::vector<std::uint32_t> numbers(std::string_view name) const;

  private:
    using Reply = XcbOwned<xcb_get_property_reply_t>;

    /// The reply for the property; null when there is none of that format.
    [[nodiscard]] const xcb_get_property_reply_t* find(std::string_view name, std::uint8_t format) const;

    std::vector<std::pair<std::string_view, Reply>> replies_;
};

} // namespace tovrel
