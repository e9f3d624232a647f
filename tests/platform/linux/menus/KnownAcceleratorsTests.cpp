#include "platform/linux/menus/gtk/KnownAccelerators.h"

#include <gtest/gtest.h>

namespace tovrel {
namespace {

using namespace std::chrono_literals;

MenuNode item(const char* action, std::optional<DBusValue> target, std::optional<MenuShortcut> shortcut,
              const char* busName = ":1.1") {
    MenuNode node;
    node.title = Text(action);
    node.shortcut = std::move(shortcut);
    node.item = GtkAction{busName, "/window/1", action, std::move(target)};
    return node;
}

/// A menu bar with these items.
MenuTree barOf(std::vector<MenuNode> items) {
    MenuTree tree(1);
    tree.front().isMenu = true;
    for (MenuNode& node : items) {
        tree.front().children.push_back(tree.size());
        tree.push_back(std::move(node));
    }
    return tree;
}

const DBusValue small{"s", "S"};
const DBusValue large{"s", "L"};
const MenuShortcut altN{Text("n"), 2};
const MenuShortcut altS{Text("s"), 2};

TEST(KnownAcceleratorsTest, BelongToAnActionWithItsTargetOnOneBusName) {
    KnownAccelerators known;
    const SteadyTime now = std::chrono::steady_clock::now();
    known.learn(barOf({item("new", {}, altN), item("size", small, altS), item("size", large, {}),
                       item("new", {}, {})}),
                now);

    MenuTree ofAnother = barOf({item("size", large, {}, ":1.2")});
    EXPECT_FALSE(known.addTo(ofAnother, now));
    MenuTree tree = barOf({item("size", large, {}), item("size", small, {}), item("new", {}, {})});
    EXPECT_TRUE(known.addTo(tree, now));
    EXPECT_EQ(tree[1].shortcut, std::nullopt);
    EXPECT_EQ(tree[2].shortcut, altS);
    EXPECT_EQ(tree[3].shortcut, altN);

    MenuTree withUnknown = barOf({item("new", {}, {}), item("old", {}, {})});
    EXPECT_FALSE(known.addTo(withUnknown, now));
    EXPECT_EQ(withUnknown[1].shortcut, std::nullopt) << "it is to be asked for with the others";
    withUnknown[2].shortcut = altS;
    EXPECT_TRUE(known.addTo(withUnknown, now)) << "the other one is published";
}

TEST(KnownAcceleratorsTest, AreAskedForAgainAfterSomeTime) {
    KnownAccelerators known;
    const SteadyTime learnt = std::chrono::steady_clock::now();
    MenuTree tree = barOf({item("new", {}, altN)});
    known.learn(tree, learnt);
    tree[1].shortcut.reset();
    EXPECT_FALSE(known.addTo(tree, learnt + KnownAccelerators::lifetime));
    EXPECT_TRUE(known.addTo(tree, learnt + KnownAccelerators::lifetime - 1ms));

    tree[1].shortcut = altS;
    known.learn(tree, learnt + KnownAccelerators::lifetime);
    tree[1].shortcut.reset();
    EXPECT_TRUE(known.addTo(tree, learnt + KnownAccelerators::lifetime));
    EXPECT_EQ(tree[1].shortcut, altS);
}

} // namespace
} // namespace tovrel
