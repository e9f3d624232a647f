#pragma once

#include <gtest/gtest.h>

#include "palette/PalettePanel.h"

namespace tovrel {

/// What each panel of the palette promises. A rig has one, on a desktop that lets windows be placed, and
/// offers:
///
///     PalettePanel& panel()
///     bool until(condition)         lets the main thread work until the condition holds
///     bool isKey()                  whether it has the keyboard
///     void type(char)               as the user does it, while the panel has the keyboard
///     Text query()                  what the search field holds
///     void turnAway()               to another window, as the user does it
///     Text screen()                 the identifier of a screen
///     PalettePlacement placement()  where the panel is
template <typename Rig>
class PalettePanelContract : public testing::Test {
  protected:
    static void show(Rig& rig) {
        rig.panel().show();
        rig.panel().makeKey();
        ASSERT_TRUE(rig.until([&] { return rig.isKey(); }));
    }
};

TYPED_TEST_SUITE_P(PalettePanelContract);

TYPED_TEST_P(PalettePanelContract, IsHiddenUntilShownAndKeptWhenClosed) {
    TypeParam rig;
    PalettePanel& panel = rig.panel();
    EXPECT_FALSE(panel.isVisible());
    const Size size = panel.frameSize();
    EXPECT_GT(size.width, 0);
    EXPECT_GT(size.height, 0);
    for (const Point offset : {Point{30, 20}, Point{70, 90}}) {
        const PalettePlacement placement{rig.screen(), offset};
        panel.place(placement);
        panel.show();
        EXPECT_TRUE(panel.isVisible());
        EXPECT_EQ(rig.placement(), placement);
        panel.makeKey();
        ASSERT_TRUE(rig.until([&] { return rig.isKey(); }));
        EXPECT_EQ(panel.frameSize(), size);
        panel.close();
        EXPECT_FALSE(panel.isVisible());
        EXPECT_TRUE(rig.until([&] { return !rig.isKey(); }));
        panel.close(); // once more
    }
    panel.place({Text("no such screen"), {10, 10}});
    this->show(rig);
    EXPECT_EQ(panel.frameSize(), size);
}

TYPED_TEST_P(PalettePanelContract, LetsTheHandlerSeeKeysBeforeTheSearchField) {
    TypeParam rig;
    this->show(rig);
    rig.type('a');
    EXPECT_EQ(rig.query(), "a");
    rig.panel().setKeyHandler(
        [](const KeyEvent& event) { return event.charactersIgnoringModifiers == Text("b"); });
    rig.type('b');
    rig.type('c');
    EXPECT_EQ(rig.query(), "ac");
    // It may take itself away.
    rig.panel().setKeyHandler([&](const KeyEvent&) {
        rig.panel().setKeyHandler({});
        return true;
    });
    rig.type('d');
    rig.type('b');
    EXPECT_EQ(rig.query(), "acb");
}

TYPED_TEST_P(PalettePanelContract, TellsWhenItHasLostTheKeyboardButNotWhenItIsClosed) {
    TypeParam rig;
    int losses = 0;
    rig.panel().setResignKeyHandler([&] { ++losses; });
    this->show(rig);
    rig.panel().close();
    ASSERT_TRUE(rig.until([&] { return !rig.isKey(); }));
    this->show(rig);
    rig.turnAway();
    ASSERT_TRUE(rig.until([&] { return losses > 0; }));
    EXPECT_EQ(losses, 1);
    EXPECT_TRUE(rig.panel().isVisible()) << "closing it is for the handler";
    rig.panel().close();
}

REGISTER_TYPED_TEST_SUITE_P(PalettePanelContract, IsHiddenUntilShownAndKeptWhenClosed,
                            LetsTheHandlerSeeKeysBeforeTheSearchField,
                            TellsWhenItHasLostTheKeyboardButNotWhenItIsClosed);

} // namespace tovrel
