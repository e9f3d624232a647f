#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "platform/Accessibility.h"

namespace tovrel {

/// What each accessibility promises, and the elements that it gives. A rig has an application running, whose
/// menu bar has one menu, File, of New (Command+N), Save (Command+Shift+S, disabled) and Wrap (checked,
/// without a shortcut). It offers:
///
///     Accessibility& accessibility()
///     std::int32_t process()             of the application
///     void setTrusted(bool)              as the user does it
///     void renameNew()                   to "New Window", in the running application
///     std::vector<std::string> pressed() titles of the items that the application has seen pressed
///     bool until(condition)              waits until the condition holds
///     void quit()                        the application ends
template <typename Rig>
class AccessibilityContract : public testing::Test {
  protected:
    using Element = std::shared_ptr<AccessibilityElement>;

    /// The three items; read anew.
    static std::vector<Element> items(Rig& rig) {
        const Element root = rig.accessibility().applicationElement(rig.process());
        const Element bar = root ? root->element("AXMenuBar") : nullptr;
        const auto menus = bar ? bar->elements("AXChildren") : std::nullopt;
        return menus && menus->size() == 1 ? menus->front()->elements("AXChildren").value()
                                           : std::vector<Element>();
    }
};

TYPED_TEST_SUITE_P(AccessibilityContract);

TYPED_TEST_P(AccessibilityContract, ReadsMenusByTheNamesAndTypesOfAttributes) {
    TypeParam rig;
    EXPECT_TRUE(rig.accessibility().isTrusted());
    const auto items = this->items(rig);
    ASSERT_EQ(items.size(), 3U);
    const auto& [fresh, save, wrap] = std::tie(items[0], items[1], items[2]);
    EXPECT_EQ(fresh->string("AXTitle"), Text("New"));
    EXPECT_EQ(save->string("AXTitle"), Text("Save"));
    EXPECT_EQ(fresh->string("AXMenuItemCmdChar"), Text("n"));
    EXPECT_EQ(fresh->integer("AXMenuItemCmdModifiers"), 0);
    EXPECT_EQ(save->integer("AXMenuItemCmdModifiers"), 1) << "Shift";
    EXPECT_EQ(fresh->boolean("AXEnabled"), true);
    EXPECT_EQ(save->boolean("AXEnabled"), false);
    EXPECT_EQ(wrap->string("AXMenuItemMarkChar"), Text("✓"));
    EXPECT_EQ(fresh->string("AXMenuItemMarkChar"), std::nullopt);
    EXPECT_EQ(wrap->string("AXMenuItemCmdChar"), std::nullopt);
    EXPECT_EQ(wrap->integer("AXMenuItemCmdModifiers"), std::nullopt);
    // Of another type, or of no known name.
    for (const char* attribute : {"AXTitle", "AXEnabled", "AXMenuItemCmdModifiers", "AXOther"}) {
        const std::string_view name = attribute;
        EXPECT_EQ(fresh->string(name).has_value(), name == "AXTitle") << name;
        EXPECT_EQ(fresh->boolean(name).has_value(), name == "AXEnabled") << name;
        EXPECT_EQ(fresh->integer(name).has_value(), name == "AXMenuItemCmdModifiers") << name;
        EXPECT_EQ(fresh->element(name), nullptr) << name;
        EXPECT_EQ(fresh->elements(name), std::nullopt) << name;
    }
}

TYPED_TEST_P(AccessibilityContract, EachElementOfAnApplicationShowsWhatItIsThen) {
    TypeParam rig;
    ASSERT_EQ(this->items(rig).size(), 3U);
    rig.renameNew();
    ASSERT_EQ(this->items(rig).size(), 3U);
    EXPECT_EQ(this->items(rig).front()->string("AXTitle"), Text("New Window"));
    const auto stranger = rig.accessibility().applicationElement(-1);
    EXPECT_TRUE(!stranger || !stranger->element("AXMenuBar"));
    rig.setTrusted(false);
    EXPECT_FALSE(rig.accessibility().isTrusted());
    rig.setTrusted(true);
    EXPECT_TRUE(rig.accessibility().isTrusted());
}

TYPED_TEST_P(AccessibilityContract, PressesItemsWhileTheApplicationIsThere) {
    TypeParam rig;
    const auto items = this->items(rig);
    ASSERT_EQ(items.size(), 3U);
    EXPECT_FALSE(items[0]->perform("AXOther"));
    EXPECT_TRUE(items[2]->perform("AXPress"));
    EXPECT_TRUE(rig.until([&] { return rig.pressed() == std::vector<std::string>{"Wrap"}; }));
    rig.quit();
    EXPECT_FALSE(items[0]->perform("AXPress"));
    EXPECT_TRUE(this->items(rig).empty());
}

REGISTER_TYPED_TEST_SUITE_P(AccessibilityContract, ReadsMenusByTheNamesAndTypesOfAttributes,
                            EachElementOfAnApplicationShowsWhatItIsThen,
                            PressesItemsWhileTheApplicationIsThere);

} // namespace tovrel
