#pragma once

#include <compare>
#include <cstddef>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace tovrel {

/// An owning string of well-formed UTF-8 that compares by Unicode canonical equivalence: a precomposed and a
/// decomposed form of the same characters are equal, order alike and hash alike, while case and diacritics
/// count. The given bytes are kept, so writing a text out never changes it.
///
/// Comparisons of ASCII texts, of byte-equal texts and of texts that are already in normalization form C
/// (practically all) allocate nothing.
class Text {
  public:
    Text() = default;

    /// Each ill-formed sequence in `utf8` is replaced by one U+FFFD, so that a Text is always well formed.
    Text(std::string utf8);      // NOLINT(google-explicit-constructor)
    Text(std::string_view utf8); // NOLINT(google-explicit-constructor)
    Text(const char* utf8);      // NOLINT(google-explicit-constructor)

    [[nodiscard]] const std::string& utf8() const { return utf8_; }
    [[nodiscard]] std::string_view view() const { return utf8_; }
    [[nodiscard]] bool empty() const { return utf8_.empty(); }

    friend bool operator==(const Text& left, const Text& right);

    /// Orders by the code points of normalization form C, which is an order for containers, not for users.
    friend std::weak_ordering operator<=>(const Text& left, const Text& right);

    /// Equal for equal texts.
    [[nodiscard]] std::size_t hash() const;

    friend std::ostream& operator<<(std::ostream& out, const Text& text) { return out << text.utf8_; }

  private:
    std::string utf8_;
};

/// The texts in order, with `separator` between them.
Text joined(const std::vector<Text>& texts, std::string_view separator);

/// The text without the white space and line breaks (the Unicode property White_Space) at both ends.
Text trimmed(const Text& text);

} // namespace tovrel

template <>
struct std::hash<tovrel::Text> {
    std::size_t operator()(const tovrel::Text& text) const { return text.hash(); }
};
