#include <nlohmann/json.hpp>

#include "platform/memory/Recording.h"

namespace tovrel::recording {
namespace {

using OrderedValue = nlohmann::ordered_json;

[[noreturn]] void throwTooLarge() {
    throw Error("the recording would be larger than " + std::to_string(maximumBytes >> 20U) + " MiB");
}

/// Writes a tree that may be endless or have cycles.
class ElementWriter {
  public:
    [[nodiscard]] std::size_t elements() const { return elements_; }

    /// Whether nothing was left out so far.
    [[nodiscard]] bool isComplete() const { return isComplete_; }

    /// The element's "AXChildren", when it has the attribute, as a member of `object`.
    void addChildren(OrderedValue& object, AccessibilityElement& element, int level) {
        const auto children = element.elements("AXChildren");
        if (!children) {
            return;
        }
        OrderedValue array = OrderedValue::array();
        for (const auto& child : *children) {
            if (child == nullptr) {
                continue;
            }
            if (level > maximumLevels || elements_ == maximumElements) {
                isComplete_ = false;
                break;
            }
            ++elements_;
            array.push_back(elementObject(*child, level));
        }
        object["AXChildren"] = std::move(array);
    }

  private:
    OrderedValue elementObject(AccessibilityElement& element, int level) {
        OrderedValue object = OrderedValue::object();
        addText(object, "AXTitle", element);
        if (const auto enabled = element.boolean("AXEnabled")) {
            object["AXEnabled"] = *enabled;
        }
        addText(object, "AXMenuItemMarkChar", element);
        addText(object, "AXMenuItemCmdChar", element);
        if (const auto modifiers = element.integer("AXMenuItemCmdModifiers")) {
            object["AXMenuItemCmdModifiers"] = *modifiers;
        }
        addChildren(object, element, level + 1);
        return object;
    }

    void addText(OrderedValue& object, const char* attribute, AccessibilityElement& element) {
        const auto text = element.string(attribute);
        if (!text) {
            return;
        }
        textBytes_ += text->utf8().size();
        if (textBytes_ > maximumBytes) {
            throwTooLarge();
        }
        object[attribute] = text->utf8();
    }

    std::size_t elements_ = 0;
    std::size_t textBytes_ = 0;
    bool isComplete_ = true;
};

} // namespace

Document write(const RunningApplication& application, AccessibilityElement* root) {
    OrderedValue document = OrderedValue::object();
    if (const auto identifier = application.bundleIdentifier()) {
        document["bundleIdentifier"] = identifier->utf8();
    }
    if (const auto name = application.localizedName()) {
        document["localizedName"] = name->utf8();
    }
    if (application.processIdentifier() != unknownProcessIdentifier) {
        document["processIdentifier"] = application.processIdentifier();
    }
    ElementWriter writer;
    if (const auto menuBar = root == nullptr ? nullptr : root->element("AXMenuBar")) {
        OrderedValue object = OrderedValue::object();
        writer.addChildren(object, *menuBar, 1);
        document["AXMenuBar"] = std::move(object);
    }
    constexpr int indentation = 2;
    Document written{.json = document.dump(indentation) + "\n",
                     .elements = writer.elements(),
                     .isComplete = writer.isComplete()};
    if (written.json.size() > maximumBytes) {
        throwTooLarge();
    }
    return written;
}

} // namespace tovrel::recording
