#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/Workspace.h"

namespace tovrel {

/// What each workspace promises. A rig has a desktop on which two applications run and none is in front, and
/// offers:
///
///     Workspace& workspace()
///     bool until(condition)        lets the main thread work until the condition holds
///     std::int32_t one(), two()    process identifiers of the two
///     void switchTo(process)       as the user does it
///     void switchToUnknown()       to a window of which nothing tells whose it is
///     std::shared_ptr<RunningApplication> windowless()   an application that shows no window
///     void grant()                 the desktop does what `activate` asked for
///     void install(application)    for the user
///     std::vector<Text> opened()   the URLs that were handed over
template <typename Rig>
class WorkspaceContract : public testing::Test {};

TYPED_TEST_SUITE_P(WorkspaceContract);

TYPED_TEST_P(WorkspaceContract, KnowsAndTellsWhichApplicationCameToTheFront) {
    TypeParam rig;
    Workspace& workspace = rig.workspace();
    std::vector<std::int32_t> told; // 0 when it was not told which
    const auto note = [&](const std::shared_ptr<RunningApplication>& application) {
        told.push_back(application ? application->processIdentifier() : 0);
    };
    auto first = workspace.onActivation(note);
    EXPECT_EQ(workspace.frontApplication(), nullptr);
    rig.switchTo(rig.one());
    ASSERT_TRUE(rig.until([&] { return told == std::vector{rig.one()}; }));
    const auto front = workspace.frontApplication();
    ASSERT_NE(front, nullptr);
    EXPECT_EQ(front->processIdentifier(), rig.one());
    EXPECT_FALSE(front->isTerminated());
    rig.switchTo(rig.two());
    ASSERT_TRUE(rig.until([&] { return told == (std::vector{rig.one(), rig.two()}); }));
    EXPECT_EQ(workspace.frontApplication()->processIdentifier(), rig.two());

    EXPECT_FALSE(workspace.activate(*rig.windowless()));
    EXPECT_TRUE(workspace.activate(*front));
    rig.grant();
    ASSERT_TRUE(rig.until([&] { return told == (std::vector{rig.one(), rig.two(), rig.one()}); }));
    rig.switchToUnknown();
    ASSERT_TRUE(rig.until([&] { return told.back() == 0; }));
    EXPECT_EQ(workspace.frontApplication(), nullptr);

    // Who no longer listens is not told.
    const std::size_t before = told.size();
    std::size_t others = 0;
    const auto second = workspace.onActivation([&](const auto&) { ++others; });
    first = {};
    rig.switchTo(rig.two());
    ASSERT_TRUE(rig.until([&] { return others == 1; }));
    EXPECT_EQ(told.size(), before);
}

TYPED_TEST_P(WorkspaceContract, KnowsWhatIsInstalledAndHandsUrlsOver) {
    TypeParam rig;
    Workspace& workspace = rig.workspace();
    EXPECT_TRUE(workspace.installedApplications().empty());
    const InstalledApplication editor{"org.example.Editor", "Éditeur", ApplicationIcon{"editor"}};
    const InstalledApplication player{"org.example.Player", "Player", std::nullopt};
    rig.install(editor);
    rig.install(player);
    const auto all = workspace.installedApplications();
    EXPECT_EQ(all.size(), 2U);
    for (const InstalledApplication& each : {editor, player}) {
        EXPECT_EQ(workspace.installedApplication(each.bundleIdentifier), each);
        EXPECT_NE(std::find(all.begin(), all.end(), each), all.end()) << each.name.utf8();
    }
    EXPECT_EQ(workspace.installedApplication("org.example"), std::nullopt);

    const Text url = "https://example.org/a?b='c'&d=\"$e\"";
    workspace.open(url);
    EXPECT_TRUE(rig.until([&] { return rig.opened() == std::vector{url}; }));
}

REGISTER_TYPED_TEST_SUITE_P(WorkspaceContract, KnowsAndTellsWhichApplicationCameToTheFront,
                            KnowsWhatIsInstalledAndHandsUrlsOver);

} // namespace tovrel
