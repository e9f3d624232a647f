#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "platform/linux/menus/FakeAccessibility.h"
#include "platform/linux/menus/LinuxAccessibility.h"
#include "platform/linux/menus/MenuJoin.h"
#include "platform/linux/menus/accessibility/AtspiNode.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

/// A service on the session bus that answers each call with the answer registered for its member, and keeps
/// the notes that answers take.
class FakeMenuService {
  public:
    using Fill = std::function<void(sd_bus_message* call, sd_bus_message* reply)>;

    FakeMenuService(const FakeAccessibility& bus, const std::vector<std::string>& names,
                    std::vector<std::pair<std::string, Fill>> answers)
        : answers_(std::move(answers)),
          service_(bus.address(), names, [this](sd_bus_message* call) { answer(call); }) {}

    [[nodiscard]] const std::string& name() const { return service_.uniqueName(); }

    /// Called by answers.
    void note(const std::string& what) {
        const std::scoped_lock lock(mutex_);
        noted_.push_back(what);
    }
    /// Waits for this many notes, because a press may still be on its way, and returns them.
    std::vector<std::string> notedOnceThereAre(std::size_t count) {
        const auto deadline = std::chrono::steady_clock::now() + 5s;
        while (std::chrono::steady_clock::now() < deadline) {
            const std::scoped_lock lock(mutex_);
            if (noted_.size() >= count) {
                return noted_;
            }
        }
        const std::scoped_lock lock(mutex_);
        return noted_;
    }

  private:
    void answer(sd_bus_message* call) {
        const std::string_view member = sd_bus_message_get_member(call);
        for (const auto& [name, fill] : answers_) {
            if (name == member && fill) {
                sd_bus_message* reply = nullptr;
                sd_bus_message_new_method_return(call, &reply);
                fill(call, reply);
                sd_bus_send(nullptr, reply, nullptr);
                sd_bus_message_unref(reply);
                return;
            }
            if (name == member) {
                return; // It hangs.
            }
        }
        sd_bus_reply_method_errorf(call, SD_BUS_ERROR_UNKNOWN_METHOD, "no %s here", member.data());
    }

    std::mutex mutex_;
    std::vector<std::string> noted_;
    std::vector<std::pair<std::string, Fill>> answers_;
    FakeService service_;
};

class PublishedMenusTest : public testing::Test {
  protected:
    static MenuReadLimits limits() {
        MenuReadLimits small;
        small.silence = 100ms;
        small.total = 1000ms;
        small.nodes = 500;
        return small;
    }

    /// This process's window, which publishes menus.
    [[nodiscard]] ApplicationWindow window() const {
        ApplicationWindow published;
        published.registrarIdentifier = 7;
        published.isModal = isModal_;
        if (service_ && isGtk_) {
            published.gtkMenus = GtkMenuAddress{service_->name(), "/menu", "/app", "/window"};
        }
        return published;
    }

    void serveGtk(std::vector<std::pair<std::string, FakeMenuService::Fill>> answers) {
        isGtk_ = true;
        service_ = std::make_unique<FakeMenuService>(bus_, std::vector<std::string>{}, std::move(answers));
    }

    std::shared_ptr<AccessibilityElement> menuBar() {
        return linux_.applicationElement(getpid())->element("AXMenuBar");
    }

    static std::vector<std::shared_ptr<AccessibilityElement>> childrenOf(AccessibilityElement& element) {
        return element.elements("AXChildren").value_or(std::vector<std::shared_ptr<AccessibilityElement>>());
    }

    /// "title", with "!" when disabled, "*" when checked, the shortcut after "@", and the children in
    /// brackets.
    static std::string shown(AccessibilityElement& element) {
        std::string text = element.string("AXTitle").value_or("?").utf8();
        text += element.boolean("AXEnabled") == false ? "!" : "";
        text += element.string("AXMenuItemMarkChar") ? "*" : "";
        if (const auto key = element.string("AXMenuItemCmdChar")) {
            text +=
                "@" + key->utf8() + std::to_string(element.integer("AXMenuItemCmdModifiers").value_or(-1));
        }
        const auto children = childrenOf(element);
        for (std::size_t index = 0; index < children.size(); ++index) {
            text += (index == 0 ? "[" : ",") + shown(*children[index]);
        }
        return children.empty() ? text : text + "]";
    }

    static std::shared_ptr<AccessibilityElement> find(const std::shared_ptr<AccessibilityElement>& element,
                                                      const char* title) {
        if (element->string("AXTitle") == Text(title)) {
            return element;
        }
        for (const auto& child : childrenOf(*element)) {
            if (auto found = find(child, title)) {
                return found;
            }
        }
        return nullptr;
    }

    FakeAccessibility bus_;
    bool isGtk_ = false;
    std::atomic<bool> isModal_ = false;
    std::unique_ptr<FakeMenuService> service_;
    LinuxAccessibility linux_{{std::make_shared<AtspiBus>(), std::make_shared<SessionBus>()},
                              [this](std::int32_t) { return std::vector<ApplicationWindow>{window()}; },
                              limits()};
};

/// Group 0 has the bar and a File menu of two sections; group 3, to which a link leads, has a View menu.
void fillGtkMenus(sd_bus_message* call, sd_bus_message* reply) {
    const void* groups = nullptr;
    std::size_t size = 0;
    sd_bus_message_read_array(call, 'u', &groups, &size);
    const bool isFirst = size == sizeof(std::uint32_t) && *static_cast<const std::uint32_t*>(groups) == 0;
    if (isFirst) {
        sd_bus_message_append(
            reply, "a(uuaa{sv})", 4,                                                                      //
            0, 0, 3,                                                                                      //
            3, "label", "s", "_File", ":submenu", "(uu)", 0, 1, "submenu-action", "s", "win.file",        //
            3, "label", "s", "_File", ":submenu", "(uu)", 0, 1, "submenu-action", "s", "win.file",        //
            2, "label", "s", "_View", ":submenu", "(uu)", 3, 0,                                           //
            0, 1, 2,                                                                                      //
            1, ":section", "(uu)", 0, 2,                                                                  //
            2, "label", "s", "A heading", ":section", "(uu)", 0, 3,                                       //
            0, 2, 2,                                                                                      //
            3, "label", "s", "_New", "action", "s", "win.new", "accel", "s", "<Primary>n",                //
            2, "label", "s", "Save __As…", "action", "s", "win.save",                                     //
            0, 3, 4,                                                                                      //
            2, "label", "s", "Unknown", "action", "s", "win.nothing",                                     //
            3, "label", "s", "Never", "action", "s", "win.nothing", "hidden-when", "s", "action-missing", //
            2, "label", "s", "Wrong target", "action", "s", "win.size",                                   //
            2, "label", "s", "_Quit", "action", "s", "app.quit");
    } else {
        sd_bus_message_append(reply, "a(uuaa{sv})", 2,                                 //
                              3, 0, 2,                                                 //
                              2, "label", "s", "Status_bar", "action", "s", "win.bar", //
                              3, "label", "s", "Size", ":submenu", "(uu)", 3, 1, "action-namespace", "s",
                              "win",                                                               //
                              3, 1, 2,                                                             //
                              3, "label", "s", "Small", "action", "s", "size", "target", "s", "S", //
                              3, "label", "s", "Large", "action", "s", "size", "target", "s", "L");
    }
}

void fillGtkActions(sd_bus_message* call, sd_bus_message* reply) {
    if (std::string_view(sd_bus_message_get_path(call)) == "/app") {
        sd_bus_message_append(reply, "a{s(bgav)}", 1, "quit", 1, "", 0);
    } else {
        sd_bus_message_append(reply, "a{s(bgav)}", 4, "new", 1, "", 0, "save", 0, "", 0, "bar", 1, "", 1, "b",
                              1, "size", 1, "s", 1, "s", "L");
    }
}

TEST_F(PublishedMenusTest, AWindowsMenusAndActionsAreItsMenuBar) {
    std::atomic<bool> isRearranged = false;
    serveGtk({{"Start",
               [&](sd_bus_message* call, sd_bus_message* reply) {
                   if (isRearranged) {
                       sd_bus_message_append(reply, "a(uuaa{sv})", 1, 0, 0, 1, 2, "label", "s", "Large",
                                             "action", "s", "win.delete");
                   } else {
                       fillGtkMenus(call, reply);
                   }
               }},
              {"DescribeAll", fillGtkActions},
              {"End", [](sd_bus_message*, sd_bus_message*) {}},
              {"Activate", [this](sd_bus_message* call, sd_bus_message*) {
                   const char* action = nullptr;
                   const char* target = "";
                   sd_bus_message_read(call, "s", &action);
                   sd_bus_message_enter_container(call, 'a', "v");
                   sd_bus_message_read(call, "v", "s", &target);
                   service_->note(std::string(action) + "(" + target + ")");
               }}});
    const auto bar = menuBar();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(shown(*bar), "[File[New@n0,Save _As…!,Unknown!,Wrong target!,Quit],"
                           "View[Statusbar*,Size[Small,Large*]]]");
    EXPECT_EQ(linux_.lastReport()->outcome, MenuReadOutcome::completed);
    EXPECT_EQ(linux_.lastReport()->calls, 4U) << "two groups of menus and two of actions";

    const auto large = find(bar, "Large");
    EXPECT_TRUE(find(bar, "New")->perform("AXPress"));
    EXPECT_TRUE(large->perform("AXPress"));
    EXPECT_EQ(service_->notedOnceThereAre(2), (std::vector<std::string>{"new()", "size(L)"}));
    EXPECT_FALSE(find(bar, "Unknown")->perform("AXPress"));
    isModal_ = true;
    EXPECT_FALSE(find(bar, "New")->perform("AXPress")) << "the window keeps the user from the menu bar";
    isModal_ = false;
    isRearranged = true;
    EXPECT_FALSE(large->perform("AXPress")) << "what has its title now is another item";
    EXPECT_EQ(service_->notedOnceThereAre(2).size(), 2U);
}

constexpr std::uint64_t bit(AtspiState state) {
    return std::uint64_t{1} << static_cast<unsigned>(state);
}

FakeNode accessible(AtspiRole role, const char* name, std::vector<std::size_t> children,
                    const char* keys = "",
                    std::uint64_t states = bit(AtspiState::sensitive) | bit(AtspiState::visible)) {
    return {static_cast<std::uint32_t>(role), name, states, keys, std::move(children), true};
}

TEST_F(PublishedMenusTest, ShortcutsThatAreNotPublishedComeFromTheAccessibilityBusOnce) {
    serveGtk({{"Start", fillGtkMenus}, {"DescribeAll", fillGtkActions}});
    const std::vector<FakeNode> nodes{accessible(AtspiRole::tree, "", {1}),
                                      accessible(AtspiRole::frame, "", {2}),
                                      accessible(AtspiRole::menuBar, "", {3, 4}),
                                      accessible(AtspiRole::menu, "File  ", {5, 6, 7}),
                                      accessible(AtspiRole::menu, "View", {8}),
                                      accessible(AtspiRole::menuItem, "New  ", {}, "n;<Alt>f:n;<Primary>x"),
                                      accessible(AtspiRole::separator, "", {}),
                                      accessible(AtspiRole::menuItem, "Save _As…", {}, ";;<Primary><Shift>s"),
                                      accessible(AtspiRole::menuItem, "Statusbar", {}, "s;<Alt>v:s;F7")};
    const FakeApplication application(bus_, [&](std::size_t number) { return nodes.at(number); }, {});
    const auto bar = menuBar();
    ASSERT_NE(bar, nullptr);
    const std::string everything = "[File[New@n0,Save _As…!@s1,Unknown!,Wrong target!,Quit],"
                                   "View[Statusbar*@\uF70A8,Size[Small,Large*]]]";
    EXPECT_EQ(shown(*bar), everything);
    const std::size_t asked = application.calls();
    EXPECT_EQ(linux_.lastReport()->calls, 4 + asked);

    EXPECT_EQ(shown(*menuBar()), everything);
    EXPECT_EQ(application.calls(), asked) << "they are known by now";
}

TEST_F(PublishedMenusTest, StatesThatAreNotCurrentComeFromTheOtherMenuBar) {
    serveGtk({{"Start", fillGtkMenus}, {"DescribeAll", fillGtkActions}, {"Activate", nullptr}});
    const std::uint64_t sensitive = bit(AtspiState::sensitive);
    const std::vector<FakeNode> nodes{
        accessible(AtspiRole::tree, "", {1}),
        accessible(AtspiRole::frame, "", {2}),
        accessible(AtspiRole::rootPane, "", {3}),
        accessible(AtspiRole::menuBar, "", {4, 5}),
        accessible(AtspiRole::menu, "File", {6, 7, 8}, "", sensitive),
        accessible(AtspiRole::menu, "View", {9}, "", 0),
        accessible(AtspiRole::menuItem, "New", {}, "", 0),
        accessible(AtspiRole::menuItem, "Save _As…: notes", {}, ";;<Control>v", sensitive),
        accessible(AtspiRole::menuItem, "Never shown", {}, "", sensitive),
        accessible(AtspiRole::checkMenuItem, "Statusbar", {}, "", sensitive | bit(AtspiState::checked))};
    const FakeApplication application(bus_, [&](std::size_t number) { return nodes.at(number); }, {});
    const auto bar = menuBar();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(shown(*bar), "[File[New!@n0,Save _As…],View![Statusbar!*]]");
}

TEST_F(PublishedMenusTest, AWindowThatDoesNotAnswerIsAskedOnce) {
    serveGtk({{"Start", nullptr}, {"DescribeAll", fillGtkActions}});
    EXPECT_EQ(menuBar(), nullptr);
    EXPECT_EQ(linux_.lastReport()->outcome, MenuReadOutcome::applicationSilent);
    EXPECT_EQ(linux_.lastReport()->calls, 3U) << "one for the menus and two for the actions, and none again";
}

TEST_F(PublishedMenusTest, MenusWithoutEndEndAtTheLimits) {
    std::uint32_t next = 0;
    // Each menu has itself as a section twice, and leads to another group.
    serveGtk({{"Start",
               [&](sd_bus_message*, sd_bus_message* reply) {
                   const std::uint32_t group = next++;
                   sd_bus_message_append(reply, "a(uuaa{sv})", 1, group, 0, 4,               //
                                         1, ":section", "(uu)", group, 0,                    //
                                         1, ":section", "(uu)", group, 0,                    //
                                         2, "label", "s", "Entry", "action", "s", "win.new", //
                                         2, "label", "s", "Deeper", ":submenu", "(uu)", next, 0);
               }},
              {"DescribeAll", fillGtkActions},
              {"End", [](sd_bus_message*, sd_bus_message*) {}}});
    EXPECT_NE(menuBar(), nullptr);
    EXPECT_EQ(linux_.lastReport()->outcome, MenuReadOutcome::treeTooLarge);
    EXPECT_LE(linux_.lastReport()->nodes, limits().nodes);
}

TEST_F(PublishedMenusTest, AnswersThatMakeNoSenseAreNoMenus) {
    for (const char* answer : {"s", "a(uuaa{sv})"}) {
        serveGtk({{"Start",
                   [answer](sd_bus_message*, sd_bus_message* reply) {
                       if (std::string_view(answer) == "s") {
                           sd_bus_message_append(reply, "s", "menus");
                       } else {
                           sd_bus_message_append(reply, "a(uuaa{sv})", 1, 0, 0, 1, 2, "label", "i", 5,
                                                 ":submenu", "s", "?");
                       }
                   }},
                  {"DescribeAll", [](sd_bus_message*, sd_bus_message* reply) {
                       sd_bus_message_append(reply, "as", 1, "new");
                   }}});
        EXPECT_EQ(menuBar(), nullptr) << answer;
        EXPECT_EQ(linux_.lastReport()->outcome, MenuReadOutcome::notRegistered) << answer;
    }
}

/// Appends one item of a layout; the caller appends its children.
void appendItem(sd_bus_message* reply, std::int32_t identifier, const char* label, bool isMenu,
                const std::function<void()>& below = {}) {
    sd_bus_message_open_container(reply, 'v', "(ia{sv}av)");
    sd_bus_message_open_container(reply, 'r', "ia{sv}av");
    sd_bus_message_append(reply, "i", identifier);
    if (isMenu) {
        sd_bus_message_append(reply, "a{sv}", 2, "label", "s", label, "children-display", "s", "submenu");
    } else {
        sd_bus_message_append(reply, "a{sv}", 1, "label", "s", label);
    }
    sd_bus_message_open_container(reply, 'a', "v");
    if (below) {
        below();
    }
    sd_bus_message_close_container(reply);
    sd_bus_message_close_container(reply);
    sd_bus_message_close_container(reply);
}

TEST_F(PublishedMenusTest, ARegisteredMenuIsReadWithWhatIsFilledWhenItOpens) {
    const auto layout = [](sd_bus_message* call, sd_bus_message* reply) {
        std::int32_t identifier = 0;
        sd_bus_message_read(call, "i", &identifier);
        sd_bus_message_append(reply, "u", 1);
        sd_bus_message_open_container(reply, 'r', "ia{sv}av");
        sd_bus_message_append(reply, "ia{sv}", identifier, 0);
        sd_bus_message_open_container(reply, 'a', "v");
        if (identifier == 0) {
            appendItem(reply, 1, "_File", true, [&] {
                appendItem(reply, 2, "_New", false);
                sd_bus_message_append(reply, "v", "(ia{sv}av)", 3, 1, "type", "s", "separator", 0);
                sd_bus_message_append(reply, "v", "(ia{sv}av)", 4, 2, "label", "s", "Secret", "visible", "b",
                                      0, 0);
                sd_bus_message_append(reply, "v", "(ia{sv}av)", 5, 5, "label", "s", "Wrap", "enabled", "b", 0,
                                      "toggle-type", "s", "checkmark", "toggle-state", "i", 1, "shortcut",
                                      "aas", 1, 3, "Control", "Shift", "w", 0);
            });
            appendItem(reply, 6, "Recent", true);
        } else if (identifier == 6) {
            appendItem(reply, 61, "notes.txt", false);
        }
        sd_bus_message_close_container(reply);
        sd_bus_message_close_container(reply);
    };
    service_ = std::make_unique<FakeMenuService>(
        bus_, std::vector<std::string>{},
        std::vector<std::pair<std::string, FakeMenuService::Fill>>{
            {"GetLayout", layout},
            {"AboutToShow",
             [this](sd_bus_message* call, sd_bus_message* reply) {
                 std::int32_t identifier = 0;
                 sd_bus_message_read(call, "i", &identifier);
                 service_->note("about " + std::to_string(identifier));
                 sd_bus_message_append(reply, "b", 1);
             }},
            {"Event", [this](sd_bus_message* call, sd_bus_message*) {
                 std::int32_t identifier = 0;
                 const char* event = nullptr;
                 sd_bus_message_read(call, "is", &identifier, &event);
                 service_->note(std::string(event) + " " + std::to_string(identifier));
             }}});
    EXPECT_EQ(menuBar(), nullptr) << "there is no registrar";

    const FakeMenuService registrar(
        bus_, {"com.canonical.AppMenu.Registrar"},
        {{"GetMenuForWindow", [this](sd_bus_message* call, sd_bus_message* reply) {
              std::uint32_t window = 0;
              sd_bus_message_read(call, "u", &window);
              sd_bus_message_append(reply, "so", window == 7 ? service_->name().c_str() : "", "/menu");
          }}});
    const auto bar = menuBar();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(shown(*bar), "[File[New,Wrap!*@w1],Recent[notes.txt]]");
    EXPECT_EQ(service_->notedOnceThereAre(3), (std::vector<std::string>{"opened 6", "about 6", "closed 6"}));
    EXPECT_TRUE(find(bar, "notes.txt")->perform("AXPress"));
    EXPECT_EQ(service_->notedOnceThereAre(7).back(), "clicked 61");
}

/// A tree of "menu/item" titles; nodes with entries are menus.
MenuTree treeOf(const std::vector<std::vector<const char*>>& menus) {
    MenuTree tree(1);
    const auto add = [&](std::size_t parent, const char* title) {
        MenuNode node;
        node.title = Text(title);
        node.parent = parent;
        node.isMenu = parent == 0;
        tree.push_back(node);
        tree[parent].children.push_back(tree.size() - 1);
        return tree.size() - 1;
    };
    for (const auto& menu : menus) {
        const std::size_t index = add(0, menu.front());
        for (std::size_t entry = 1; entry < menu.size(); ++entry) {
            add(index, menu[entry]);
        }
    }
    return tree;
}

TEST(MenuJoin, AddsWhatOnlyTheOtherSourceKnows) {
    MenuTree tree = treeOf({{"View", "Close", "Close", "Bar"}, {"Recent"}});
    MenuTree other = treeOf({{"Bar", "Bar"}, {"View", "Close", "Bar", "Close"}, {"Recent", "notes"}});
    other[3 + 1].shortcut = MenuShortcut{Text("w"), 0}; // the first Close
    other[3 + 2].isChecked = true;                      // Bar
    other[3 + 3].isChecked = true;                      // the second Close
    tree[3].isChecked = false;
    EXPECT_TRUE(hasEmptyMenu(tree));
    EXPECT_FALSE(hasOnlyEmptyMenus(tree));
    EXPECT_TRUE(hasOnlyEmptyMenus(treeOf({{"File"}, {"Edit"}})));
    EXPECT_FALSE(hasOnlyEmptyMenus(MenuTree()));
    joinMenus(tree, other);
    EXPECT_EQ(tree[2].shortcut, (MenuShortcut{Text("w"), 0}));
    EXPECT_EQ(tree[3].shortcut, std::nullopt);
    EXPECT_EQ(tree[3].isChecked, false) << "what is known stays";
    EXPECT_EQ(tree[4].isChecked, true);
    ASSERT_EQ(tree[5].children.size(), 1U);
    EXPECT_EQ(tree[tree[5].children.front()].title, Text("notes"));
    EXPECT_EQ(tree[0].children.size(), 2U) << "a menu that only the other source has may be stale";
    EXPECT_FALSE(hasEmptyMenu(tree));
}

} // namespace
} // namespace tovrel
