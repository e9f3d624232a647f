#include "menus/MenuScanner.h"

#include <gtest/gtest.h>

#include "menus/MenuCommandPerformer.h"
#include "menus/ShortcutText.h"
#include "platform/memory/MemoryAccessibility.h"
#include "platform/memory/MemoryApplication.h"
#include "platform/memory/MemoryElement.h"

namespace tovrel {
namespace {

using Children = std::vector<std::shared_ptr<AccessibilityElement>>;

std::shared_ptr<MemoryElement> element(const Text& title, Children children = {}) {
    auto made = std::make_shared<MemoryElement>();
    made->set("AXTitle", title);
    made->set("AXChildren", std::move(children));
    return made;
}

class MenuScannerTest : public testing::Test {
  protected:
    std::vector<ScannedMenuItem> scan(Children menus, std::int32_t processIdentifier = 42) {
        auto root = std::make_shared<MemoryElement>();
        root->set("AXMenuBar", std::shared_ptr<AccessibilityElement>(element("", std::move(menus))));
        accessibility_.setApplicationElement(processIdentifier, root);
        return MenuScanner(accessibility_, services_)
            .scan(MemoryApplication(processIdentifier, Text("org.example"), Text("Example")));
    }

    MemoryAccessibility accessibility_;
    TextServices services_{"en_US"};
};

TEST_F(MenuScannerTest, BuildsTheTreeWithoutSeparators) {
    const auto save = element("Save");
    save->set("AXMenuItemCmdChar", Text("s"));
    save->set("AXEnabled", false);
    save->set("AXMenuItemMarkChar", Text(" "));
    const auto items =
        scan({element("File", {element("", {save, element("")})}), element("Help"), element("")});
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[1].title, "Help");
    EXPECT_TRUE(items[1].children.empty());
    ASSERT_EQ(items[0].children.size(), 1U);
    const ScannedMenuItem& container = items[0].children[0];
    EXPECT_EQ(container.title, "");
    EXPECT_EQ(container.id, "File");
    EXPECT_EQ(container.menuPath, (std::vector<Text>{"File"}));
    ASSERT_EQ(container.children.size(), 1U);
    const ScannedMenuItem& item = container.children[0];
    EXPECT_EQ(item.id, "File\x1FSave");
    EXPECT_EQ(item.menuPath, (std::vector<Text>{"File", "Save"}));
    EXPECT_EQ(item.shortcut, "⌘S");
    EXPECT_FALSE(item.isEnabled);
    EXPECT_TRUE(item.isChecked);
    EXPECT_EQ(item.element, save);
}

TEST_F(MenuScannerTest, UnreadableAttributesTakeTheirDefaults) {
    const auto odd = element("Odd");
    odd->set("AXEnabled", Text("no"));
    odd->set("AXMenuItemMarkChar", true);
    odd->set("AXMenuItemCmdChar", Text(""));
    odd->set("AXMenuItemCmdModifiers", std::int64_t{7});
    const auto wrongModifiers = element("Wrong");
    wrongModifiers->set("AXMenuItemCmdChar", Text("é"));
    wrongModifiers->set("AXMenuItemCmdModifiers", Text("8"));
    const auto items = scan({odd, wrongModifiers});
    EXPECT_TRUE(items[0].isEnabled);
    EXPECT_FALSE(items[0].isChecked);
    EXPECT_EQ(items[0].shortcut, std::nullopt);
    EXPECT_EQ(items[1].shortcut, "⌘É");
    EXPECT_TRUE(scan({element("File")}, 0).empty());
    accessibility_.setApplicationElement(7, std::make_shared<MemoryElement>());
    EXPECT_TRUE(MenuScanner(accessibility_, services_)
                    .scan(MemoryApplication(7, std::nullopt, std::nullopt))
                    .empty());
    EXPECT_TRUE(MenuScanner(accessibility_, services_)
                    .scan(MemoryApplication(8, std::nullopt, std::nullopt))
                    .empty());
}

TEST_F(MenuScannerTest, ShortcutTexts) {
    const auto text = [&](const char* character, std::int64_t modifiers) {
        return shortcutText(character, modifiers, services_).utf8();
    };
    EXPECT_EQ(text("s", 0), "⌘S");
    EXPECT_EQ(text("s", 1), "⌘⇧S");
    EXPECT_EQ(text("s", 8), "S");
    EXPECT_EQ(text("s", 12), "⌃S");
    EXPECT_EQ(text("s", 7), "⌘⇧⌥⌃S");
    EXPECT_EQ(text("s", 16), "⌘S");
    EXPECT_EQ(text("\uF70D", 0), "⌘F10");
    std::string keys;
    for (const char* key :
         {"\uF700", "\uF701", "\uF702", "\uF703", "\uF704", "\uF705", "\uF706", "\uF707", "\uF708", "\uF709",
          "\uF70A", "\uF70B", "\uF70C", "\uF70D", "\uF70E", "\uF70F", "\x7F",   "\x1B",   "\t",     "\uF727",
          "\uF728", "\uF729", "\uF72B", "\uF72C", "\uF72D", "\uF746", "\r",     " "}) {
        keys += text(key, 8) + " ";
    }
    EXPECT_EQ(keys, "↑ ↓ ← → F1 F2 F3 F4 F5 F6 F7 F8 F9 F10 F11 F12 ⌫ ⎋ ⇥ Ins ⌦ ↖ ↘ ⇞ ⇟ Help ↩ Space ");
    EXPECT_EQ(text(",", 0), "⌘,");
    EXPECT_EQ(text("ß", 0), "⌘SS");
    EXPECT_EQ(text("ж", 0), "⌘Ж");
    EXPECT_EQ(text("\uF72A", 8), "\uF72A"); // no key of the table
}

TEST_F(MenuScannerTest, TheFirstItemOfAPathIsFoundAndPressed) {
    const auto save = element("Save");
    const auto items = scan({element("File", {element("", {save, element("Save")})})});
    EXPECT_EQ(MenuCommandPerformer::findItem({"File"}, items), items.data());
    const ScannedMenuItem* found = MenuCommandPerformer::findItem({"File", "Save"}, items);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->element, save);
    EXPECT_EQ(MenuCommandPerformer::findItem({"File", "save"}, items), nullptr);
    EXPECT_EQ(MenuCommandPerformer::findItem({"File"}, {}), nullptr);
    // An earlier item comes before a later one, even if it is nested deeper.
    const auto nested = scan({element("File", {element("", {element("", {save})}), element("Save")})});
    EXPECT_EQ(nested[0].children[0].children[0].menuPath, (std::vector<Text>{"File"}));
    EXPECT_EQ(MenuCommandPerformer::findItem({"File", "Save"}, nested)->element, save);

    EXPECT_TRUE(MenuCommandPerformer::perform(*found, MenuCommandPerformer::pressMenuItem));
    EXPECT_EQ(save->performedActions(), (std::vector<std::string>{"AXPress"}));
    save->setAcceptsActions(false);
    EXPECT_FALSE(MenuCommandPerformer::pressMenuItem(*found));
    ScannedMenuItem without = *found;
    without.element = nullptr;
    EXPECT_FALSE(MenuCommandPerformer::pressMenuItem(without));
}

} // namespace
} // namespace tovrel
