#include <limits>
#include <optional>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "model/MenuTitle.h"
#include "platform/memory/MemoryApplication.h"
#include "platform/memory/MemoryElement.h"
#include "platform/memory/Recording.h"
#include "support/Json.h"

namespace tovrel::recording {
namespace {

/// An upper bound of the values and members in the document: each follows a comma, except the first of its
/// array or object.
std::size_t valueCount(std::string_view document) {
    std::size_t count = 1;
    bool inString = false;
    for (std::size_t i = 0; i < document.size(); ++i) {
        const char byte = document[i];
        if (inString) {
            i += byte == '\\' ? 1 : 0;
            inString = byte != '"';
        } else if (byte == '"') {
            inString = true;
        } else if (byte == ',' || byte == '[' || byte == '{') {
            ++count;
        }
    }
    return count;
}

std::optional<std::int64_t> integerOf(const json::Value& number) {
    try {
        return json::integerFrom(number);
    } catch (const json::DecodeError&) {
        return std::nullopt;
    }
}

std::shared_ptr<MemoryElement> elementOf(const json::Value& object);

/// Keeps each value with its own type, so that a member of a wrong type is absent when it is read. Absent for
/// what no attribute can be: null, a fraction, a number out of range.
std::optional<MemoryElement::Value> valueOf(const json::Value& value) {
    switch (value.type()) {
    case json::Value::value_t::string:
        return json::textFrom(value);
    case json::Value::value_t::boolean:
        return value.get<bool>();
    case json::Value::value_t::object:
        return elementOf(value);
    case json::Value::value_t::array: {
        std::vector<MemoryElement::Element> elements;
        for (const json::Value& entry : value) {
            if (entry.is_object()) {
                elements.push_back(elementOf(entry));
            }
        }
        return elements;
    }
    default:
        return integerOf(value);
    }
}

std::shared_ptr<MemoryElement> elementOf(const json::Value& object) {
    MemoryElement::Attributes attributes;
    for (const auto& [name, member] : object.items()) {
        if (name == "AXTitle" && member.is_string()) {
            attributes.emplace(name, cutMenuTitle(json::textFrom(member)));
        } else if (auto value = valueOf(member)) {
            attributes.emplace(name, std::move(*value));
        }
    }
    auto element = std::make_shared<MemoryElement>(std::move(attributes));
    element->setAcceptsActions(false);
    return element;
}

/// Adds up the memory that the paths of an element's descendants take, and stops at the maximum.
class PathMeter {
  public:
    void addChildren(AccessibilityElement& element, std::size_t pathBytes) {
        for (const auto& child :
             element.elements("AXChildren").value_or(std::vector<MemoryElement::Element>())) {
            const Text title = child->string("AXTitle").value_or(Text());
            const std::size_t childPathBytes =
                pathBytes + (title.empty() ? 0 : sizeof(Text) + title.utf8().size());
            total_ += childPathBytes;
            if (total_ > maximumPathBytes) {
                throw Error("the titles along its menu paths are too long");
            }
            addChildren(*child, childPathBytes);
        }
    }

  private:
    std::size_t total_ = 0;
};

json::Value parsedObject(std::string_view document) {
    if (document.size() > maximumBytes) {
        throw Error("larger than " + std::to_string(maximumBytes >> 20U) + " MiB");
    }
    if (valueCount(document) > maximumValues) {
        throw Error("more than " + std::to_string(maximumValues) + " values");
    }
    try {
        json::Value parsed = json::parse(document);
        json::requireObject(parsed);
        return parsed;
    } catch (const json::DecodeError& reason) {
        throw Error(reason.what());
    }
}

std::int32_t processIdentifierOf(AccessibilityElement& root) {
    const std::int64_t number = root.integer("processIdentifier").value_or(unknownProcessIdentifier);
    const bool fits = number >= std::numeric_limits<std::int32_t>::min() &&
                      number <= std::numeric_limits<std::int32_t>::max();
    return fits ? static_cast<std::int32_t>(number) : unknownProcessIdentifier;
}

} // namespace

Recording parse(std::string_view document) {
    const std::shared_ptr<AccessibilityElement> root = elementOf(parsedObject(document));
    if (const auto menuBar = root->element("AXMenuBar")) {
        PathMeter().addChildren(*menuBar, 0);
    }
    return {.application = std::make_shared<MemoryApplication>(
                processIdentifierOf(*root), root->string("bundleIdentifier"), root->string("localizedName")),
            .root = root};
}

} // namespace tovrel::recording
