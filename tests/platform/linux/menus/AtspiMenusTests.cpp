#include "platform/linux/menus/accessibility/AtspiMenus.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tovrel {
namespace {

constexpr AtspiStates bit(AtspiState state) {
    return AtspiStates{1} << static_cast<unsigned>(state);
}
constexpr AtspiStates sensitive = bit(AtspiState::sensitive);
constexpr AtspiStates visible = bit(AtspiState::visible);
constexpr AtspiStates checked = bit(AtspiState::checked);

class Tree {
  public:
    explicit Tree(AtspiToolkit toolkit) {
        tree_.toolkit = toolkit;
        tree_.nodes.emplace_back().role = AtspiRole::menuBar;
    }

    std::size_t add(std::size_t parent, AtspiRole role, const char* name, std::optional<AtspiStates> states,
                    const char* keyBinding = "") {
        AtspiNode node;
        node.parent = parent;
        node.role = role;
        node.name = name;
        node.states = states;
        node.keyBinding = keyBinding;
        tree_.nodes.push_back(node);
        tree_.nodes[parent].children.push_back(tree_.nodes.size() - 1);
        return tree_.nodes.size() - 1;
    }

    AtspiNode& node(std::size_t index) { return tree_.nodes[index]; }
    [[nodiscard]] const AtspiMenuTree& tree() const { return tree_; }
    [[nodiscard]] MenuTree menus() const { return menuTreeOf(tree_); }

    /// "title", with "!" when disabled, "?" when unknown, "*" when checked, and the children in brackets.
    [[nodiscard]] std::string shown() const { return shown(menus(), 0); }

  private:
    static std::string shown(const MenuTree& all, std::size_t index) {
        const MenuNode& node = all[index];
        std::string text = node.title.utf8();
        text += !node.isEnabled ? "?" : *node.isEnabled ? "" : "!";
        text += node.isChecked == true ? "*" : "";
        for (const std::size_t child : node.children) {
            text += (child == node.children.front() ? "[" : ",") + shown(all, child);
        }
        return node.children.empty() ? text : text + "]";
    }

    AtspiMenuTree tree_;
};

TEST(AtspiMenus, Gtk) {
    Tree gtk(AtspiToolkit::gtk);
    const std::size_t file = gtk.add(0, AtspiRole::menu, "File", sensitive | visible, "<Alt>f;<Alt>f;");
    gtk.add(file, AtspiRole::tearOffMenuItem, "", visible);
    const std::size_t fresh =
        gtk.add(file, AtspiRole::menuItem, "New      ", sensitive | visible, "n;<Alt>f:n;<Primary>n");
    gtk.add(file, AtspiRole::separator, "", std::nullopt);
    gtk.add(file, AtspiRole::menuItem, "Save      ", visible);
    gtk.add(file, AtspiRole::menuItem, "Never shown", sensitive);
    const std::size_t recent = gtk.add(file, AtspiRole::menu, "Open Recent", visible);
    gtk.add(recent, AtspiRole::menuItem, "Empty", visible);
    gtk.add(recent, AtspiRole::menuItem, "  ", sensitive | visible);
    gtk.add(recent, AtspiRole::checkMenuItem, "Sort", sensitive | visible | checked);
    const std::size_t gone = gtk.add(0, AtspiRole::menu, "Hidden menu", sensitive);
    gtk.add(gone, AtspiRole::menuItem, "Inside", sensitive | visible);
    EXPECT_EQ(gtk.shown(), "[File[New,Save!,Open Recent![Empty!,Sort!*]]]");
    EXPECT_EQ(gtk.menus()[fresh].shortcut, (MenuShortcut{Text("n"), 0}));
    EXPECT_EQ(menuPath(gtk.menus(), fresh), (std::vector<Text>{"File", "New"}));
}

TEST(AtspiMenus, AnApplicationThatTellsNoVisibilityShowsEverything) {
    Tree office(AtspiToolkit::gtk);
    const std::size_t edit = office.add(0, AtspiRole::menu, "Edit", sensitive);
    office.add(edit, AtspiRole::menuItem, "Copy", sensitive, "y;<Alt>ey;<Control>c");
    EXPECT_EQ(office.shown(), "[Edit[Copy]]");
}

TEST(AtspiMenus, Qt) {
    Tree qt(AtspiToolkit::qt);
    const std::size_t file = qt.add(0, AtspiRole::menuItem, "File", sensitive | visible, "Alt+F");
    const std::size_t list = qt.add(file, AtspiRole::popupMenu, "", std::nullopt);
    const std::size_t tabbed = qt.add(list, AtspiRole::menuItem, "Tabbed\tCtrl+T", sensitive);
    qt.node(qt.add(list, AtspiRole::menuItem, "Hidden", 0, "Ctrl+E")).hasComponent = false;
    qt.node(qt.add(list, AtspiRole::menuItem, "Disabled", 0)).hasComponent = true;
    qt.add(list, AtspiRole::separator, "Section title", std::nullopt);
    const std::size_t off = qt.add(list, AtspiRole::menuItem, "Encoding", 0);
    qt.node(off).hasComponent = true;
    const std::size_t offList = qt.add(off, AtspiRole::popupMenu, "", std::nullopt);
    qt.add(offList, AtspiRole::menuItem, "UTF-8", sensitive | checked, "Alt+U");
    const std::size_t recent = qt.add(list, AtspiRole::menuItem, "Recent", sensitive, "Alt+R");
    const std::size_t recentList = qt.add(recent, AtspiRole::popupMenu, "", std::nullopt);
    qt.add(recentList, AtspiRole::menuItem, "", sensitive);
    EXPECT_EQ(qt.shown(), "[File[[Tabbed,Disabled!,Encoding![![UTF-8!*]],Recent]]]");
    EXPECT_EQ(qt.menus()[tabbed].shortcut, (MenuShortcut{Text("t"), 0}));
    EXPECT_EQ(qt.menus()[file].shortcut, std::nullopt);
    EXPECT_EQ(menuPath(qt.menus(), tabbed), (std::vector<Text>{"File", "Tabbed"}));
}

TEST(AtspiMenus, GeckoShowsWhatIsNotVisible) {
    Tree gecko(AtspiToolkit::gecko);
    const std::size_t view = gecko.add(0, AtspiRole::menu, "View", sensitive | visible, "<Alt>V;");
    gecko.add(view, AtspiRole::menuItem, "Actual Size", 0, "A;<Alt>V:Z:A;<Control>0");
    gecko.add(view, AtspiRole::menu, "Sidebar", sensitive, "S;<Alt>V:S;");
    gecko.add(0, AtspiRole::menu, "History", sensitive, "<Alt>S;");
    gecko.add(view, AtspiRole::radioMenuItem, "Basic Page Style", sensitive | checked);
    EXPECT_EQ(gecko.shown(), "[View[Actual Size!,Basic Page Style*],History]");
}

TEST(AtspiMenus, WhatWasNotReadIsUnknownOrLeftOut) {
    Tree partial(AtspiToolkit::gtk);
    const std::size_t file = partial.add(0, AtspiRole::menu, "File", std::nullopt);
    partial.add(file, AtspiRole::menuItem, "Known", sensitive | visible);
    partial.node(partial.add(file, AtspiRole::menuItem, "", std::nullopt)).name.reset();
    partial.node(partial.add(file, AtspiRole::menuItem, "No role", sensitive | visible)).role.reset();
    partial.add(file, AtspiRole{29}, "A label", sensitive | visible);
    EXPECT_EQ(partial.shown(), "[File?[Known]]");
}

} // namespace
} // namespace tovrel
