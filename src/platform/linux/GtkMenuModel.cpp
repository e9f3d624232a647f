#include "platform/linux/GtkMenuModel.h"

#include <algorithm>
#include <deque>
#include <string_view>

namespace tovrel {
namespace {

std::string stringIn(const std::optional<DBusValue>& value) {
    const auto* text = value ? std::get_if<std::string>(&value->content) : nullptr;
    return text == nullptr ? std::string() : *text;
}

/// The (uu) of a link.
std::optional<GtkMenuReference> referenceIn(const std::optional<DBusValue>& value) {
    if (!value || value->signature != "(uu)") {
        return std::nullopt;
    }
    const auto& parts = std::get<std::vector<DBusValue>>(value->content);
    return GtkMenuReference{static_cast<std::uint32_t>(std::get<std::int64_t>(parts[0].content)),
                            static_cast<std::uint32_t>(std::get<std::int64_t>(parts[1].content))};
}

void take(GtkMenuEntry& entry, std::string_view attribute, std::optional<DBusValue> value) {
    if (attribute == "label") {
        entry.label = stringIn(value);
    } else if (attribute == "action") {
        entry.action = stringIn(value);
    } else if (attribute == "target") {
        entry.target = std::move(value);
    } else if (attribute == "accel") {
        entry.accelerator = stringIn(value);
    } else if (attribute == "hidden-when") {
        entry.hiddenWhen = stringIn(value);
    } else if (attribute == "action-namespace") {
        entry.actionNamespace = stringIn(value);
    } else if (attribute == "submenu-action") {
        entry.submenuAction = stringIn(value);
    } else if (attribute == ":section") {
        entry.section = referenceIn(value);
    } else if (attribute == ":submenu") {
        entry.submenu = referenceIn(value);
    }
}

/// The a{sv} at which the message stands.
std::optional<GtkMenuEntry> readEntry(sd_bus_message* message) {
    GtkMenuEntry entry;
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "{sv}") <= 0) {
        return std::nullopt;
    }
    while (sd_bus_message_enter_container(message, SD_BUS_TYPE_DICT_ENTRY, "sv") > 0) {
        const char* attribute = nullptr;
        if (sd_bus_message_read_basic(message, SD_BUS_TYPE_STRING, &attribute) <= 0) {
            return std::nullopt;
        }
        const std::string_view name(attribute);
        // Pictures are large, and nobody here shows them.
        if (name == "icon" || name == "verb-icon") {
            sd_bus_message_skip(message, "v");
        } else {
            take(entry, name, readVariant(message));
        }
        if (sd_bus_message_exit_container(message) < 0) {
            return std::nullopt;
        }
    }
    return sd_bus_message_exit_container(message) < 0 ? std::nullopt : std::optional(std::move(entry));
}

struct FoundAction {
    const GtkActionGroup* group = nullptr;
    const GtkActionDescription* description = nullptr; ///< Null when the group lacks it.
    std::string name;
};

FoundAction findAction(const std::vector<GtkActionGroup>& groups, const std::string& fullName) {
    for (const GtkActionGroup& group : groups) {
        if (fullName.starts_with(group.prefix)) {
            std::string name = fullName.substr(group.prefix.size());
            const auto found = group.actions.find(name);
            return {&group, found == group.actions.end() ? nullptr : &found->second, std::move(name)};
        }
    }
    return {};
}

std::optional<bool> isChecked(const GtkActionDescription& action, const std::optional<DBusValue>& target) {
    if (!action.state) {
        return false;
    }
    if (target) {
        return *action.state == *target;
    }
    return action.state->signature == "b" && std::get<std::int64_t>(action.state->content) != 0;
}

bool isEnabled(const GtkActionDescription& action, const std::optional<DBusValue>& target) {
    return action.isEnabled && (target ? target->signature : std::string()) == action.parameterType;
}

class TreeBuilder {
  public:
    TreeBuilder(const GtkMenuModel& model, const std::vector<GtkActionGroup>& groups,
                const MenuReadLimits& limits)
        : model_(model), groups_(groups), limits_(limits) {}

    MenuTree build() {
        const auto bar = model_.find({0, 0});
        if (bar == model_.end() || bar->second.empty()) {
            return {};
        }
        MenuNode root;
        root.isEnabled = true;
        tree_.push_back(std::move(root));
        waiting_.push_back({{0, 0}, 0, "", 1});
        while (!waiting_.empty()) {
            const Menu menu = std::move(waiting_.front());
            waiting_.pop_front();
            addEntries(menu, menu.reference, menu.actionNamespace, 0);
        }
        return std::move(tree_);
    }

    [[nodiscard]] bool isTooLarge() const { return isTooLarge_; }

  private:
    struct Menu {
        GtkMenuReference reference;
        std::size_t node = 0;
        std::string actionNamespace; ///< With the full stop, if any.
        std::size_t depth = 0;       ///< Of its entries.
    };

    /// Adds the entries of a menu, or of a section in it, `nesting` sections deep.
    void addEntries(const Menu& menu, const GtkMenuReference& reference, const std::string& actionNamespace,
                    std::size_t nesting) {
        const auto entries = model_.find(reference);
        if (entries == model_.end()) {
            return;
        }
        // Sections may refer to each other without end, and without an entry between them.
        if (menu.depth > limits_.depth || nesting > limits_.depth || ++lists_ > limits_.nodes) {
            isTooLarge_ = true;
            return;
        }
        for (const GtkMenuEntry& entry : entries->second) {
            if (tree_.size() >= limits_.nodes || tree_[menu.node].children.size() >= limits_.entriesPerMenu) {
                isTooLarge_ = true;
                return;
            }
            const std::string inner = entry.actionNamespace.empty()
                                          ? actionNamespace
                                          : actionNamespace + entry.actionNamespace + ".";
            if (entry.section) {
                addEntries(menu, *entry.section, inner, nesting + 1);
            } else {
                addEntry(menu, entry, actionNamespace, inner);
            }
        }
    }

    void addEntry(const Menu& menu, const GtkMenuEntry& entry, const std::string& actionNamespace,
                  const std::string& innerNamespace) {
        MenuNode node;
        node.title = titleOfLabel(entry.label);
        node.parent = menu.node;
        const bool isRepeated =
            !entry.submenuAction.empty() && !submenuActions_.emplace(menu.node, entry.submenuAction).second;
        if (node.title.empty() || isRepeated) {
            return;
        }
        const FoundAction found =
            entry.action.empty() ? FoundAction() : findAction(groups_, actionNamespace + entry.action);
        if ((entry.hiddenWhen == "action-missing" && found.description == nullptr) ||
            (entry.hiddenWhen == "action-disabled" &&
             (found.description == nullptr || !isEnabled(*found.description, entry.target)))) {
            return;
        }
        node.isMenu = entry.submenu.has_value();
        node.shortcut = shortcutOfGtkAccelerator(entry.accelerator);
        if (entry.submenu) {
            // Its action, if it has one, is told of its opening and closing.
            node.isEnabled = tree_[menu.node].isEnabled;
        } else if (found.description != nullptr) {
            node.isEnabled =
                tree_[menu.node].isEnabled == true && isEnabled(*found.description, entry.target);
            node.isChecked = isChecked(*found.description, entry.target);
            node.source = GtkAction{found.group->objectPath, found.name, entry.target};
        } else {
            node.isEnabled = false;
            node.source = GtkAction{};
        }
        const std::size_t index = tree_.size();
        tree_.push_back(std::move(node));
        tree_[menu.node].children.push_back(index);
        if (entry.submenu) {
            waiting_.push_back({*entry.submenu, index, innerNamespace, menu.depth + 1});
        }
    }

    const GtkMenuModel& model_;
    const std::vector<GtkActionGroup>& groups_;
    const MenuReadLimits& limits_;
    MenuTree tree_;
    std::deque<Menu> waiting_;
    std::set<std::pair<std::size_t, std::string>> submenuActions_; ///< Met so far, with the menu's node.
    std::size_t lists_ = 0;                                        ///< Menus and sections gone through.
    bool isTooLarge_ = false;
};

} // namespace

bool readGtkMenus(DBusMessage& answer, std::size_t entriesPerMenu, GtkMenuModel& model,
                  std::set<std::uint32_t>& linked) {
    sd_bus_message* message = answer.handle();
    bool isEverything = true;
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "(uuaa{sv})") <= 0) {
        return isEverything;
    }
    while (sd_bus_message_enter_container(message, SD_BUS_TYPE_STRUCT, "uuaa{sv}") > 0) {
        GtkMenuReference reference{0, 0};
        if (sd_bus_message_read(message, "uu", &reference.first, &reference.second) <= 0 ||
            sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "a{sv}") <= 0) {
            break;
        }
        std::vector<GtkMenuEntry>& entries = model[reference];
        entries.clear();
        while (sd_bus_message_at_end(message, 0) == 0) {
            if (entries.size() >= entriesPerMenu) {
                isEverything = false;
                if (sd_bus_message_skip(message, "a{sv}") < 0) {
                    break;
                }
                continue;
            }
            auto entry = readEntry(message);
            if (!entry) {
                return isEverything;
            }
            for (const auto& link : {entry->section, entry->submenu}) {
                if (link) {
                    linked.insert(link->first);
                }
            }
            entries.push_back(std::move(*entry));
        }
        if (!leaveContainers(message, 2)) {
            break;
        }
    }
    return isEverything;
}

std::map<std::string, GtkActionDescription, std::less<>> readGtkActions(DBusMessage& answer) {
    std::map<std::string, GtkActionDescription, std::less<>> actions;
    sd_bus_message* message = answer.handle();
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "{s(bgav)}") <= 0) {
        return actions;
    }
    while (sd_bus_message_enter_container(message, SD_BUS_TYPE_DICT_ENTRY, "s(bgav)") > 0) {
        const char* name = nullptr;
        int isEnabled = 0;
        const char* parameterType = nullptr;
        if (sd_bus_message_read_basic(message, SD_BUS_TYPE_STRING, &name) <= 0 ||
            sd_bus_message_enter_container(message, SD_BUS_TYPE_STRUCT, "bgav") <= 0 ||
            sd_bus_message_read(message, "bg", &isEnabled, &parameterType) <= 0 ||
            sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "v") <= 0) {
            break;
        }
        GtkActionDescription& action = actions[name];
        action.isEnabled = isEnabled != 0;
        action.parameterType = parameterType;
        if (sd_bus_message_at_end(message, 0) == 0) {
            action.state = readVariant(message);
        }
        if (!leaveContainers(message, 3)) {
            break;
        }
    }
    return actions;
}

MenuTree gtkMenuTree(const GtkMenuModel& model, const std::vector<GtkActionGroup>& groups,
                     const MenuReadLimits& limits, bool& isTooLarge) {
    TreeBuilder builder(model, groups, limits);
    MenuTree tree = builder.build();
    isTooLarge = isTooLarge || builder.isTooLarge();
    return tree;
}

} // namespace tovrel
