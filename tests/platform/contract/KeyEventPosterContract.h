#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "model/VirtualKeyCodes.h"
#include "platform/KeyEventPoster.h"

namespace tovrel {

/// What each poster of keys promises. A rig has one on a desktop that lets keys be posted, and a window that
/// has the focus. It offers:
///
///     KeyEventPoster& poster()
///     bool until(condition)     lets the main thread work until the condition holds
///     auto& typed()             the presses that the window has got, those of modifier keys aside: pairs of
///                               virtual key code and ModifierFlags
///     void hold(ModifierFlags)  the user presses one modifier key and keeps it down
///     void letGo(ModifierFlags)
///     ModifierFlags held()      the modifiers that are in force
template <typename Rig>
class KeyEventPosterContract : public testing::Test {};

TYPED_TEST_SUITE_P(KeyEventPosterContract);

TYPED_TEST_P(KeyEventPosterContract, TypesAKeyWithExactlyTheModifiersAskedFor) {
    TypeParam rig;
    using Typed = std::vector<std::pair<std::uint16_t, ModifierFlags>>;
    constexpr std::uint16_t keyK = 40;
    constexpr std::uint16_t keyP = key_codes::p;
    const ModifierFlags three = modifier_flags::command | modifier_flags::option | modifier_flags::shift;
    EXPECT_TRUE(rig.poster().canPost());
    EXPECT_FALSE(rig.poster().postKeyPress(key_codes::unknown, modifier_flags::command));
    EXPECT_EQ(rig.held(), 0U);
    EXPECT_TRUE(rig.poster().postKeyPress(keyK, three));
    EXPECT_TRUE(rig.poster().postKeyPress(keyP, 0));
    EXPECT_TRUE(rig.until([&] { return rig.typed() == (Typed{{keyK, three}, {keyP, 0}}); }));
    EXPECT_EQ(rig.held(), 0U);

    // The user's own are left out of it, and are in force again.
    rig.hold(modifier_flags::shift);
    EXPECT_TRUE(rig.poster().postKeyPress(keyK, modifier_flags::control));
    EXPECT_TRUE(rig.until([&] { return rig.typed().size() == 3; }));
    EXPECT_EQ(rig.typed().back(), std::pair(keyK, ModifierFlags(modifier_flags::control)));
    EXPECT_EQ(rig.held(), modifier_flags::shift);
    rig.letGo(modifier_flags::shift);
    EXPECT_EQ(rig.held(), 0U);
}

REGISTER_TYPED_TEST_SUITE_P(KeyEventPosterContract, TypesAKeyWithExactlyTheModifiersAskedFor);

} // namespace tovrel
