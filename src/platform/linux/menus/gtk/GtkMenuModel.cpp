#include "platform/linux/menus/gtk/GtkMenuModel.h"

#include <algorithm>
#include <deque>
#include <string_view>

#include "platform/linux/menus/source/MenuReading.h"

namespace tovrel {
namespace {

std::string keptText(sd_bus_message* message, AnswerBudget& budget) {
    const auto text = readVariantText(message, budget);
    return text ? budget.kept(*text) : std::string();
}

/// Reads the (uu) of a link.
std::optional<GtkMenuReference> readReference(sd_bus_message* message, AnswerBudget& budget) {
    char type = 0;
    const char* contents = nullptr;
    GtkMenuReference reference{0, 0};
    if (sd_bus_message_peek_type(message, &type, &contents) <= 0 || type != SD_BUS_TYPE_VARIANT ||
        std::string_view(contents) != "(uu)") {
        skipVariant(message, budget);
        return std::nullopt;
    }
    return budget.look() && sd_bus_message_read(message, "v", "(uu)", &reference.first, &reference.second) > 0
               ? std::optional(reference)
               : std::nullopt;
}

/// Reads the attribute's value at the message's current place. Skips other attributes, such as pictures,
/// which are large.
void take(GtkMenuEntry& entry, std::string_view attribute, sd_bus_message* message, AnswerBudget& budget) {
    if (attribute == "label") {
        entry.label = keptTitle(readVariantText(message, budget).value_or(""), budget);
    } else if (attribute == "action") {
        entry.action = keptText(message, budget);
    } else if (attribute == "target") {
        entry.target = readVariant(message, budget);
        entry.lacksTarget = !entry.target;
    } else if (attribute == "accel") {
        entry.accelerator = keptText(message, budget);
    } else if (attribute == "hidden-when") {
        entry.hiddenWhen = keptText(message, budget);
    } else if (attribute == "action-namespace") {
        entry.actionNamespace = keptText(message, budget);
    } else if (attribute == "submenu-action") {
        entry.submenuAction = keptText(message, budget);
    } else if (attribute == ":section") {
        entry.section = readReference(message, budget);
    } else if (attribute == ":submenu") {
        entry.submenu = readReference(message, budget);
    } else {
        skipVariant(message, budget);
    }
}

/// Reads the a{sv} at the message's current place.
std::optional<GtkMenuEntry> readEntry(sd_bus_message* message, AnswerBudget& budget) {
    GtkMenuEntry entry;
    if (!budget.look() || sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "{sv}") <= 0) {
        return std::nullopt;
    }
    while (budget.look() && sd_bus_message_enter_container(message, SD_BUS_TYPE_DICT_ENTRY, "sv") > 0) {
        const char* attribute = nullptr;
        if (sd_bus_message_read_basic(message, SD_BUS_TYPE_STRING, &attribute) <= 0) {
            return std::nullopt;
        }
        take(entry, attribute, message, budget);
        if (sd_bus_message_exit_container(message) < 0) {
            return std::nullopt;
        }
    }
    return sd_bus_message_exit_container(message) < 0 ? std::nullopt : std::optional(std::move(entry));
}

/// Reads the menus of one answer.
class MenuListReader {
  public:
    MenuListReader(sd_bus_message* message, const MenuReadLimits& limits, AnswerBudget& budget,
                   GtkMenuModel& model, std::set<std::uint32_t>& linked)
        : message_(message), limits_(limits), budget_(budget), model_(model), linked_(linked) {}

    /// Returns false when the limits cut something off.
    bool read() {
        if (sd_bus_message_enter_container(message_, SD_BUS_TYPE_ARRAY, "(uuaa{sv})") <= 0) {
            return true;
        }
        while (budget_.look() &&
               sd_bus_message_enter_container(message_, SD_BUS_TYPE_STRUCT, "uuaa{sv}") > 0) {
            if (model_.menus.size() >= limits_.nodes) {
                return false;
            }
            GtkMenuReference reference{0, 0};
            if (sd_bus_message_read(message_, "uu", &reference.first, &reference.second) <= 0) {
                break;
            }
            std::vector<GtkMenuEntry>& entries = model_.menus[reference];
            entries.clear();
            if (!readEntries(entries)) {
                break;
            }
        }
        return isEverything_ && !budget_.isExhausted();
    }

  private:
    /// Adds the valid entries of a menu, the aa{sv} at the message's current place. Returns false when the
    /// message cannot be read further.
    bool readEntries(std::vector<GtkMenuEntry>& entries) {
        if (sd_bus_message_enter_container(message_, SD_BUS_TYPE_ARRAY, "a{sv}") <= 0) {
            return false;
        }
        while (sd_bus_message_at_end(message_, 0) == 0) {
            if (entries.size() >= limits_.entriesPerMenu || model_.entries >= limits_.nodes) {
                isEverything_ = false;
                if (!skipValue(message_, budget_)) {
                    return false;
                }
                continue;
            }
            ++model_.entries;
            auto entry = readEntry(message_, budget_);
            if (!entry) {
                return false;
            }
            for (const auto& link : {entry->section, entry->submenu}) {
                if (link) {
                    linked_.insert(link->first);
                }
            }
            entries.push_back(std::move(*entry));
        }
        return leaveContainers(message_, 2);
    }

    sd_bus_message* message_;
    const MenuReadLimits& limits_;
    AnswerBudget& budget_;
    GtkMenuModel& model_;
    std::set<std::uint32_t>& linked_;
    bool isEverything_ = true;
};

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
        const auto bar = model_.menus.find({0, 0});
        if (bar == model_.menus.end() || bar->second.empty()) {
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
        std::size_t depth = 0;       ///< The depth of the menu's entries.
    };

    /// Adds the entries of a menu, or of a section in it, `nesting` sections deep.
    void addEntries(const Menu& menu, const GtkMenuReference& reference, const std::string& actionNamespace,
                    std::size_t nesting) {
        const auto entries = model_.menus.find(reference);
        if (entries == model_.menus.end()) {
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
            // The action of a submenu, if any, only serves its opening and closing.
            node.isEnabled = tree_[menu.node].isEnabled;
        } else if (found.description != nullptr && !entry.lacksTarget) {
            node.isEnabled =
                tree_[menu.node].isEnabled == true && isEnabled(*found.description, entry.target);
            node.isChecked = isChecked(*found.description, entry.target);
            node.item = GtkAction{found.group->busName, found.group->objectPath, found.name, entry.target};
        } else {
            node.isEnabled = false;
            node.item = GtkAction{};
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
    std::size_t lists_ = 0;                                        ///< The menus and sections visited so far.
    bool isTooLarge_ = false;
};

} // namespace

bool readGtkMenus(DBusMessage& answer, const MenuReadLimits& limits, AnswerBudget& budget,
                  GtkMenuModel& model, std::set<std::uint32_t>& linked) {
    return MenuListReader(answer.handle(), limits, budget, model, linked).read();
}

std::map<std::string, GtkActionDescription, std::less<>>
readGtkActions(DBusMessage& answer, const MenuReadLimits& limits, AnswerBudget& budget) {
    std::map<std::string, GtkActionDescription, std::less<>> actions;
    sd_bus_message* message = answer.handle();
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "{s(bgav)}") <= 0) {
        return actions;
    }
    while (actions.size() < limits.nodes && budget.look() &&
           sd_bus_message_enter_container(message, SD_BUS_TYPE_DICT_ENTRY, "s(bgav)") > 0) {
        const char* name = nullptr;
        int isEnabled = 0;
        const char* parameterType = nullptr;
        if (sd_bus_message_read_basic(message, SD_BUS_TYPE_STRING, &name) <= 0 ||
            sd_bus_message_enter_container(message, SD_BUS_TYPE_STRUCT, "bgav") <= 0 ||
            sd_bus_message_read(message, "bg", &isEnabled, &parameterType) <= 0 ||
            sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "v") <= 0) {
            break;
        }
        GtkActionDescription action;
        action.isEnabled = isEnabled != 0;
        action.parameterType = parameterType;
        if (sd_bus_message_at_end(message, 0) == 0) {
            action.state = readVariant(message, budget);
        }
        while (sd_bus_message_at_end(message, 0) == 0 && skipValue(message, budget)) {
        }
        if (std::string kept = budget.kept(name); !kept.empty()) {
            actions.insert_or_assign(std::move(kept), std::move(action));
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
