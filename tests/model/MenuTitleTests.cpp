#include "model/MenuTitle.h"

#include <string>

#include <gtest/gtest.h>

namespace tovrel {
namespace {

std::string repeated(const std::string& text, std::size_t times) {
    std::string all;
    for (std::size_t time = 0; time < times; ++time) {
        all += text;
    }
    return all;
}

TEST(MenuTitle, EndsAfterTheLastWholeCharacterThatFits) {
    EXPECT_EQ(menuTitle(" Open…  \n"), Text("Open…"));
    EXPECT_EQ(menuTitle(std::string(1024, 'x')).view().size(), 1024U);
    EXPECT_EQ(menuTitle(std::string(70'000, 'x')).view(), std::string(1024, 'x'));
    EXPECT_EQ(menuTitle(std::string(1023, 'x') + " y").view(), std::string(1023, 'x'));
    EXPECT_TRUE(menuTitle(std::string(70'000, ' ') + "x").empty());

    // Users perceive each of these as one character: a family of 25 bytes, a flag, a letter with its accent.
    const std::string family = "👨‍👩‍👧‍👦";
    ASSERT_EQ(family.size(), 25U);
    EXPECT_EQ(menuTitle(repeated(family, 50)).view(), repeated(family, 40));
    EXPECT_EQ(menuTitle("xy" + repeated("🇩🇪", 200)).view(), "xy" + repeated("🇩🇪", 127));
    EXPECT_EQ(menuTitle(std::string(1023, 'x') + "e\u0301").view(), std::string(1023, 'x'));
    EXPECT_EQ(menuTitle("e" + repeated("\u0301", 5'000)).view(), "e" + repeated("\u0301", 511))
        << "one character without end";
    EXPECT_EQ(cutMenuTitle(Text(" x ")).view(), " x ");
}

} // namespace
} // namespace tovrel
