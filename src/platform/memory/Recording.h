#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/AccessibilityElement.h"
#include "platform/RunningApplication.h"

/// An application's menu bar as a JSON document:
///
///     {"bundleIdentifier": "org.xfce.mousepad", "localizedName": "Mousepad", "processIdentifier": 1234,
///      "AXMenuBar": {"AXChildren": [ELEMENT, …]}}
///
/// An ELEMENT is an object with any of "AXTitle", "AXEnabled", "AXMenuItemMarkChar", "AXMenuItemCmdChar",
/// "AXMenuItemCmdModifiers" and "AXChildren". Every member may be missing, and one of a wrong type counts as
/// missing, as does an entry of "AXChildren" that is no object. Titles are cut at `longestMenuTitle`. If
/// several members have the same name, the last one counts.
namespace tovrel::recording {

/// Why a document is no recording, or why no recording can be made. The message is one line.
class Error : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Larger documents are neither read nor written. The menus of a large application take less than 1 MiB.
inline constexpr std::size_t maximumBytes = std::size_t{64} << 20U;

/// A document may hold this many values and members, so that reading one takes bounded memory.
inline constexpr std::size_t maximumValues = 2'000'000;

/// What the menu paths of all elements may take together, each title counted with the memory that a Text
/// takes besides: a scan gives every item its whole path, so that one long title over many items costs their
/// product.
inline constexpr std::size_t maximumPathBytes = std::size_t{64} << 20U;

/// This many elements of a menu bar are written, and this many levels of them: two levels of JSON each, which
/// stays below the nesting that can be read back (json::maximumDepth).
inline constexpr std::size_t maximumElements = 100'000;
inline constexpr int maximumLevels = 250;

/// The process identifier of a recording without one. No process has it, and unlike 0, which says that an
/// application cannot be read, it lets the menus be scanned.
inline constexpr std::int32_t unknownProcessIdentifier = -1;

struct Recording {
    std::shared_ptr<RunningApplication> application;
    std::shared_ptr<AccessibilityElement> root; ///< Answers "AXMenuBar". Accepts no action.
};

/// Throws Error: not JSON, not UTF-8, not an object, nested too deep, too large.
Recording parse(std::string_view document);

struct Document {
    std::string json;         ///< Indented, and ended by a line break.
    std::size_t elements = 0; ///< How many are in the menu bar.
    bool isComplete = true;   ///< False when elements beyond the maxima were left out.
};

/// Records what an application shows now. `root` is its root element, null when it cannot be reached. Reads
/// each attribute once. Throws Error when the document would be larger than `maximumBytes`.
Document write(const RunningApplication& application, AccessibilityElement* root);

} // namespace tovrel::recording
