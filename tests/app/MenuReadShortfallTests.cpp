#include "app/MenuReadShortfall.h"

#include <gtest/gtest.h>

namespace tovrel {
namespace {

MenuReadReport reportOf(MenuReadOutcome outcome) {
    return {.outcome = outcome, .nodes = 1, .calls = 2, .elapsed = std::chrono::milliseconds(261)};
}

TEST(MenuReadShortfall, SaysWhyAndWhetherAPartIsThere) {
    EXPECT_FALSE(menuReadShortfall(reportOf(MenuReadOutcome::completed), "Editor", true).has_value());

    const auto silent = menuReadShortfall(reportOf(MenuReadOutcome::applicationSilent), "Editor", false);
    EXPECT_EQ(silent->reason, "Editor did not answer within 0.3 s");
    EXPECT_TRUE(silent->wasCutShort);

    const auto bare = menuReadShortfall(reportOf(MenuReadOutcome::noMenuBar), "Editor", true);
    EXPECT_EQ(bare->reason, "Editor shows no menu bar");
    EXPECT_FALSE(bare->wasCutShort);
    EXPECT_EQ(menuReadShortfall(reportOf(MenuReadOutcome::notRegistered), "Editor", false)->reason,
              "Editor is not on the accessibility bus; accessibility is off for toolkits: turn it on and "
              "start the application again");

    for (const auto outcome :
         {MenuReadOutcome::tooSlow, MenuReadOutcome::treeTooLarge, MenuReadOutcome::applicationGone}) {
        EXPECT_TRUE(menuReadShortfall(reportOf(outcome), "Editor", true)->wasCutShort);
    }
}

} // namespace
} // namespace tovrel
