#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tovrel {

/// The bytes in Base64 with the standard alphabet and padding (RFC 4648, section 4).
std::string base64From(std::string_view bytes);

/// The bytes of a Base64 text; absent unless the text is exactly what `base64From` writes.
std::optional<std::string> bytesFromBase64(std::string_view text);

} // namespace tovrel
