#include "platform/memory/MemoryElement.h"

#include <optional>

namespace tovrel {
namespace {

template <typename T>
std::optional<T> copied(const T* value) {
    return value == nullptr ? std::nullopt : std::optional(*value);
}

} // namespace

template <typename T>
const T* MemoryElement::valueOf(std::string_view attribute) const {
    const auto found = attributes_.find(attribute);
    return found == attributes_.end() ? nullptr : std::get_if<T>(&found->second);
}

MemoryElement::Element MemoryElement::element(std::string_view attribute) {
    return copied(valueOf<Element>(attribute)).value_or(nullptr);
}

std::optional<std::vector<MemoryElement::Element>> MemoryElement::elements(std::string_view attribute) {
    return copied(valueOf<std::vector<Element>>(attribute));
}

std::optional<Text> MemoryElement::string(std::string_view attribute) {
    return copied(valueOf<Text>(attribute));
}

std::optional<std::int64_t> MemoryElement::integer(std::string_view attribute) {
    return copied(valueOf<std::int64_t>(attribute));
}

std::optional<bool> MemoryElement::boolean(std::string_view attribute) {
    return copied(valueOf<bool>(attribute));
}

bool MemoryElement::perform(std::string_view action) {
    performedActions_.emplace_back(action);
    return acceptsActions_ && action == "AXPress";
}

} // namespace tovrel
