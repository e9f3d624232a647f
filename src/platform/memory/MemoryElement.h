#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/AccessibilityElement.h"

namespace tovrel {

/// An element made of attribute values held in memory. A read whose type is not that of the value is absent.
class MemoryElement : public AccessibilityElement {
  public:
    using Element = std::shared_ptr<AccessibilityElement>;
    using Value = std::variant<Text, std::int64_t, bool, Element, std::vector<Element>>;
    using Attributes = std::map<std::string, Value, std::less<>>;

    explicit MemoryElement(Attributes attributes = {}) : attributes_(std::move(attributes)) {}

    void set(const std::string& attribute, Value value) {
        attributes_.insert_or_assign(attribute, std::move(value));
    }

    /// Sets whether it can be pressed; initially true. It never accepts other actions.
    void setAcceptsActions(bool accepts) { acceptsActions_ = accepts; }

    /// The actions asked for so far, accepted or not, in order.
    [[nodiscard]] const std::vector<std::string>& performedActions() const { return performedActions_; }

    [[nodiscard]] Element element(std::string_view attribute) override;
    [[nodiscard]] std::optional<std::vector<Element>> elements(std::string_view attribute) override;
    [[nodiscard]] std::optional<Text> string(std::string_view attribute) override;
    [[nodiscard]] std::optional<std::int64_t> integer(std::string_view attribute) override;
    [[nodiscard]] std::optional<bool> boolean(std::string_view attribute) override;
    bool perform(std::string_view action) override;

  private:
    template <typename T>
    [[nodiscard]] const T* valueOf(std::string_view attribute) const;

    Attributes attributes_;
    std::vector<std::string> performedActions_;
    bool acceptsActions_ = true;
};

} // namespace tovrel
