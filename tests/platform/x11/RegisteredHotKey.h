#pragma once

#include <gtest/gtest.h>

#include "platform/x11/hotkeys/X11HotKeyCenter.h"

namespace tovrel {

/// A registration and the X server's answer.
struct RegisteredHotKey {
    HotKeyHandle handle = 0;
    HotKeyOutcome outcome;
};

/// An X server answers before the call returns.
inline RegisteredHotKey registered(X11HotKeyCenter& center, std::uint32_t keyCode, std::uint32_t modifiers,
                                   HotKeyIdentifier identifier = {}) {
    std::vector<HotKeyOutcome> outcomes;
    const HotKeyHandle handle = center.registerHotKey(
        keyCode, modifiers, identifier, [&](const HotKeyOutcome& outcome) { outcomes.push_back(outcome); });
    EXPECT_EQ(outcomes.size(), 1U);
    return {handle, outcomes.empty() ? HotKeyOutcome(HotKeyError::refused) : outcomes.front()};
}

} // namespace tovrel
