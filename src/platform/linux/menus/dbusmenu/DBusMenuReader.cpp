#include "platform/linux/menus/dbusmenu/DBusMenuReader.h"

#include <algorithm>
#include <chrono>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/linux/dbus/BoundedCalls.h"
#include "platform/linux/dbus/DBusValue.h"

namespace tovrel {
namespace {

constexpr const char* registrarName = "com.canonical.AppMenu.Registrar";
constexpr const char* registrarPath = "/com/canonical/AppMenu/Registrar";
constexpr const char* menuInterface = "com.canonical.dbusmenu";

/// The properties of one item, each with the protocol's default.
struct Item {
    std::int32_t identifier = 0;
    Text title;
    bool isSeparator = false;
    bool isEnabled = true;
    bool isVisible = true;
    bool hasSubmenu = false;
    bool isChecked = false;
    std::optional<MenuShortcut> shortcut;
};

bool isInteger(const std::optional<DBusValue>& value, std::int64_t integer) {
    const auto* content = value ? std::get_if<std::int64_t>(&value->content) : nullptr;
    return content != nullptr && *content == integer;
}

/// Reads a value of type aas: the keys of each stroke in turn.
std::optional<MenuShortcut> shortcutIn(const std::optional<DBusValue>& value) {
    if (!value || value->signature != "aas") {
        return std::nullopt;
    }
    const auto& strokes = std::get<std::vector<DBusValue>>(value->content);
    if (strokes.size() != 1) {
        return std::nullopt;
    }
    std::vector<std::string> names;
    for (const DBusValue& name : std::get<std::vector<DBusValue>>(strokes.front().content)) {
        names.push_back(std::get<std::string>(name.content));
    }
    return shortcutOfKeyNames(names);
}

/// Reads the property's value at the message's current place; skips other properties.
void take(Item& item, std::string_view property, sd_bus_message* message, AnswerBudget& budget) {
    if (property == "label") {
        item.title = titleOfLabel(keptTitle(readVariantText(message, budget).value_or(""), budget));
    } else if (property == "type") {
        item.isSeparator = readVariantText(message, budget) == "separator";
    } else if (property == "enabled") {
        item.isEnabled = !isInteger(readVariant(message, budget), 0);
    } else if (property == "visible") {
        item.isVisible = !isInteger(readVariant(message, budget), 0);
    } else if (property == "children-display") {
        item.hasSubmenu = readVariantText(message, budget) == "submenu";
    } else if (property == "toggle-state") {
        item.isChecked = isInteger(readVariant(message, budget), 1);
    } else if (property == "shortcut") {
        item.shortcut = shortcutIn(readVariant(message, budget));
    } else {
        skipVariant(message, budget);
    }
}

/// Reads the number and the properties of the item (ia{sv}…) that the message is in.
std::optional<Item> readItem(sd_bus_message* message, AnswerBudget& budget) {
    Item item;
    if (!budget.look() || sd_bus_message_read_basic(message, SD_BUS_TYPE_INT32, &item.identifier) <= 0 ||
        sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "{sv}") <= 0) {
        return std::nullopt;
    }
    while (budget.look() && sd_bus_message_enter_container(message, SD_BUS_TYPE_DICT_ENTRY, "sv") > 0) {
        const char* property = nullptr;
        if (sd_bus_message_read_basic(message, SD_BUS_TYPE_STRING, &property) <= 0) {
            return std::nullopt;
        }
        take(item, property, message, budget);
        if (sd_bus_message_exit_container(message) < 0) {
            return std::nullopt;
        }
    }
    return sd_bus_message_exit_container(message) < 0 ? std::nullopt : std::optional(std::move(item));
}

class Reader {
  public:
    Reader(BoundedCalls& calls, const DBusMenuAddress& address, const MenuReadLimits& limits)
        : calls_(calls), address_(std::make_shared<const DBusMenuAddress>(address)), limits_(limits) {}
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;
    ~Reader() = default;

    void read() {
        MenuNode bar;
        bar.isEnabled = true;
        tree_.push_back(std::move(bar));
        depths_.push_back(0);
        askForLayout(0, 0);
        calls_.run();
    }

    [[nodiscard]] bool isTooLarge() const { return isTooLarge_; }
    [[nodiscard]] MenuTree takeTree() {
        return tree_.front().children.empty() ? MenuTree() : std::move(tree_);
    }

  private:
    [[nodiscard]] DBusMessage call(const DBusConnection& connection, const char* member) const {
        return connection.methodCall(address_->busName.c_str(), address_->path.c_str(), menuInterface,
                                     member);
    }

    /// Asks for the items below an item, which is the tree's node at that position.
    void askForLayout(std::int32_t identifier, std::size_t node) {
        calls_.ask(
            [this, identifier](const DBusConnection& connection) {
                DBusMessage layout = call(connection, "GetLayout");
                constexpr int allLevels = -1;
                return layout && sd_bus_message_append(layout.handle(), "iias", identifier, allLevels, 7,
                                                       "type", "label", "enabled", "visible",
                                                       "children-display", "toggle-state", "shortcut") >= 0
                           ? std::move(layout)
                           : DBusMessage();
            },
            [this, node](DBusMessage& answer) {
                sd_bus_message* message = answer.handle();
                std::uint32_t revision = 0;
                if (sd_bus_message_read_basic(message, SD_BUS_TYPE_UINT32, &revision) > 0 &&
                    sd_bus_message_enter_container(message, SD_BUS_TYPE_STRUCT, "ia{sv}av") > 0 &&
                    readItem(message, calls_.budget())) {
                    addChildren(message, node);
                }
            });
    }

    /// Has the application fill a menu: some do when its opening is announced, some when it is reported as
    /// open.
    void fill(std::int32_t identifier, std::size_t node) {
        tellOf(identifier, "opened");
        calls_.ask(
            [this, identifier](const DBusConnection& connection) {
                DBusMessage aboutToShow = call(connection, "AboutToShow");
                return aboutToShow && sd_bus_message_append(aboutToShow.handle(), "i", identifier) >= 0
                           ? std::move(aboutToShow)
                           : DBusMessage();
            },
            [](DBusMessage&) {});
        askForLayout(identifier, node);
        tellOf(identifier, "closed");
    }

    void tellOf(std::int32_t identifier, const char* event) {
        calls_.ask(
            [this, identifier, event](const DBusConnection& connection) {
                DBusMessage message = call(connection, "Event");
                constexpr std::uint32_t now = 0;
                return message && sd_bus_message_append(message.handle(), "isvu", identifier, event, "i", 0,
                                                        now) >= 0
                           ? std::move(message)
                           : DBusMessage();
            },
            [](DBusMessage&) {});
    }

    /// Reads the items of the av at the message's current place. Returns false when the rest makes no sense.
    bool addChildren(sd_bus_message* message, std::size_t parent) {
        if (depths_[parent] >= limits_.depth) {
            isTooLarge_ = true;
            return skipValue(message, calls_.budget());
        }
        if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "v") <= 0) {
            return false;
        }
        while (sd_bus_message_at_end(message, 0) == 0) {
            const bool isFull =
                tree_.size() >= limits_.nodes || tree_[parent].children.size() >= limits_.entriesPerMenu;
            isTooLarge_ = isTooLarge_ || isFull;
            if (isFull ? !skipValue(message, calls_.budget()) : !addChild(message, parent)) {
                return false;
            }
        }
        return sd_bus_message_exit_container(message) >= 0;
    }

    bool addChild(sd_bus_message* message, std::size_t parent) {
        if (sd_bus_message_enter_container(message, SD_BUS_TYPE_VARIANT, "(ia{sv}av)") <= 0 ||
            sd_bus_message_enter_container(message, SD_BUS_TYPE_STRUCT, "ia{sv}av") <= 0) {
            return false;
        }
        auto item = readItem(message, calls_.budget());
        if (!item) {
            return false;
        }
        if (item->isSeparator || !item->isVisible || item->title.empty()) {
            return skipValue(message, calls_.budget()) && leaveContainers(message, 2);
        }
        MenuNode node;
        node.title = std::move(item->title);
        node.isEnabled = item->isEnabled && tree_[parent].isEnabled == true;
        node.isChecked = item->isChecked;
        node.isMenu = item->hasSubmenu;
        node.shortcut = std::move(item->shortcut);
        node.parent = parent;
        node.item = DBusMenuItem{address_, item->identifier};
        const std::size_t index = tree_.size();
        tree_.push_back(std::move(node));
        depths_.push_back(depths_[parent] + 1);
        tree_[parent].children.push_back(index);
        if (!addChildren(message, index) || !leaveContainers(message, 2)) {
            return false;
        }
        if (item->hasSubmenu && tree_[index].children.empty()) {
            fill(item->identifier, index);
        }
        return true;
    }

    BoundedCalls& calls_;
    std::shared_ptr<const DBusMenuAddress> address_;
    const MenuReadLimits& limits_;
    MenuTree tree_;
    std::vector<std::size_t> depths_; ///< The depths of the tree's nodes.
    bool isTooLarge_ = false;
};

} // namespace

std::optional<DBusMenuAddress> registeredMenu(DBusConnection& connection, std::uint32_t window,
                                              const MenuReadLimits& limits, SteadyTime started) {
    const SteadyTime deadline =
        std::min(started + limits.total, std::chrono::steady_clock::now() + limits.silence);
    const auto registrar = connection.owner(registrarName, deadline);
    if (!registrar) {
        return std::nullopt;
    }
    const DBusMessage question =
        connection.methodCall(registrar->c_str(), registrarPath, registrarName, "GetMenuForWindow");
    if (!question || sd_bus_message_append(question.handle(), "u", window) < 0) {
        return std::nullopt;
    }
    const auto answer = connection.call(question, deadline);
    const char* busName = nullptr;
    const char* path = nullptr;
    if (!answer || !answer->errorName().empty() ||
        sd_bus_message_read(answer->handle(), "so", &busName, &path) <= 0) {
        return std::nullopt;
    }
    // Registrars give the unique name of the application that registered; the protocol also allows another
    // name.
    const auto owner =
        isUniqueName(busName) ? std::optional<std::string>(busName) : connection.owner(busName, deadline);
    return owner ? std::optional(DBusMenuAddress{*owner, path}) : std::nullopt;
}

MenuReading readDBusMenuBar(DBusConnection& connection, const DBusMenuAddress& address,
                            const MenuReadLimits& limits, SteadyTime started) {
    BoundedCalls calls(connection, limits.ofCalls(), started);
    Reader reader(calls, address, limits);
    reader.read();
    return finishedReading(reader.takeTree(), reader.isTooLarge(), calls, started);
}

} // namespace tovrel
