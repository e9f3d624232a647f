#pragma once

#include <optional>

#include "support/Text.h"

namespace tovrel {

/// A URL reference (RFC 3986), with or without a scheme. In its text every character that a URL may not
/// contain is percent-encoded as the bytes of its UTF-8 form.
class Url {
  public:
    /// Encodes characters that a URL may not contain instead of refusing them; a "%" that begins no encoded
    /// byte is encoded too. Absent only for the empty text.
    [[nodiscard]] static std::optional<Url> parse(const Text& text);

    /// The file URL of a path; a relative one is taken from the working directory.
    [[nodiscard]] static Url ofFile(const Text& path);

    [[nodiscard]] const Text& text() const { return text_; }

    /// Whether it begins with a scheme: a letter, then letters, digits, "+", "-" or ".", then a colon.
    [[nodiscard]] bool hasScheme() const;

    friend bool operator==(const Url&, const Url&) = default;

  private:
    explicit Url(Text text) : text_(std::move(text)) {}

    Text text_;
};

} // namespace tovrel
