#include "menus/MenuScanner.h"

#include <optional>
#include <utility>

#include "menus/ShortcutText.h"
#include "model/MenuPath.h"

namespace tovrel {
namespace {

using Element = std::shared_ptr<AccessibilityElement>;

class NodeBuilder {
  public:
    explicit NodeBuilder(const TextServices& textServices) : textServices_(&textServices) {}

    /// The nodes of an element's children that are not skipped.
    [[nodiscard]] std::vector<ScannedMenuItem> children(AccessibilityElement& parent,
                                                        const std::vector<Text>& parentPath) const {
        std::vector<ScannedMenuItem> kept;
        for (const Element& child : parent.elements("AXChildren").value_or(std::vector<Element>())) {
            if (auto item = node(child, parentPath)) {
                kept.push_back(std::move(*item));
            }
        }
        return kept;
    }

  private:
    /// Absent for separators and empty untitled elements.
    [[nodiscard]] std::optional<ScannedMenuItem> node(const Element& element,
                                                      const std::vector<Text>& parentPath) const {
        Text title = element->string("AXTitle").value_or(Text());
        std::vector<Text> path = parentPath;
        if (!title.empty()) {
            path.push_back(title);
        }
        std::vector<ScannedMenuItem> kept = children(*element, path);
        if (title.empty() && kept.empty()) {
            return std::nullopt;
        }
        Text id = joined(path, menuPathSeparator);
        return ScannedMenuItem{.id = std::move(id),
                               .title = std::move(title),
                               .menuPath = std::move(path),
                               .shortcut = shortcut(*element),
                               .isEnabled = element->boolean("AXEnabled").value_or(true),
                               .isChecked = !element->string("AXMenuItemMarkChar").value_or(Text()).empty(),
                               .children = std::move(kept),
                               .element = element};
    }

    [[nodiscard]] std::optional<Text> shortcut(AccessibilityElement& element) const {
        const std::optional<Text> character = element.string("AXMenuItemCmdChar");
        if (!character || character->empty()) {
            return std::nullopt;
        }
        return shortcutText(*character, element.integer("AXMenuItemCmdModifiers").value_or(0),
                            *textServices_);
    }

    const TextServices* textServices_;
};

} // namespace

std::vector<ScannedMenuItem> MenuScanner::scan(const RunningApplication& application) const {
    if (application.processIdentifier() == 0) {
        return {};
    }
    const Element root = accessibility_->applicationElement(application.processIdentifier());
    const Element menuBar = root ? root->element("AXMenuBar") : nullptr;
    if (!menuBar) {
        return {};
    }
    return NodeBuilder(*textServices_).children(*menuBar, {});
}

} // namespace tovrel
