#include "palette/Keycaps.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(KeycapsTest, ModifiersStandAloneAndTheRestTogether) {
    const TextServices services("en_US");
    EXPECT_THAT(keycaps("⌘⇧F10", services), ElementsAre(Text("⌘"), Text("⇧"), Text("F10")));
    EXPECT_THAT(keycaps("⌘⌥↑", services), ElementsAre(Text("⌘"), Text("⌥"), Text("↑")));
    EXPECT_THAT(keycaps("S⌘", services), ElementsAre(Text("⌘"), Text("S")));
    EXPECT_THAT(keycaps("Space", services), ElementsAre(Text("Space")));
    EXPECT_THAT(keycaps("⌃e\u0301", services), ElementsAre(Text("⌃"), Text("é")));
    EXPECT_THAT(keycaps("", services), IsEmpty());
}

} // namespace
} // namespace tovrel
