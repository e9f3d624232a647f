#include "platform/memory/MemoryElement.h"

#include <gtest/gtest.h>

namespace tovrel {
namespace {

TEST(MemoryElement, ReadsOfAnotherTypeAreAbsent) {
    const auto child = std::make_shared<MemoryElement>();
    MemoryElement element({{"text", Text("3")},
                           {"number", std::int64_t{1}},
                           {"flag", true},
                           {"one", MemoryElement::Element(child)},
                           {"many", std::vector<MemoryElement::Element>{child, child}}});
    EXPECT_EQ(element.string("text"), Text("3"));
    EXPECT_EQ(element.integer("number"), 1);
    EXPECT_EQ(element.boolean("flag"), true);
    EXPECT_EQ(element.element("one"), child);
    EXPECT_EQ(element.elements("many")->size(), 2U);
    for (const char* name : {"text", "number", "flag", "one", "many", "none"}) {
        const int answers = static_cast<int>(element.string(name).has_value()) +
                            static_cast<int>(element.integer(name).has_value()) +
                            static_cast<int>(element.boolean(name).has_value()) +
                            static_cast<int>(element.element(name) != nullptr) +
                            static_cast<int>(element.elements(name).has_value());
        EXPECT_EQ(answers, std::string_view(name) == "none" ? 0 : 1) << name;
    }
}

TEST(MemoryElement, RemembersActionsAndAnswersAsTold) {
    MemoryElement element;
    EXPECT_TRUE(element.perform("AXPress"));
    EXPECT_FALSE(element.perform("AXCancel"));
    element.setAcceptsActions(false);
    EXPECT_FALSE(element.perform("AXPress"));
    EXPECT_EQ(element.performedActions(), (std::vector<std::string>{"AXPress", "AXCancel", "AXPress"}));
}

} // namespace
} // namespace tovrel
