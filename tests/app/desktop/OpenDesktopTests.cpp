#include "app/desktop/OpenDesktop.h"

#include <cstdlib>
#include <optional>
#include <string>
#include <unistd.h>

#include <gtest/gtest.h>

#include "app/terminal/Failure.h"
#include "app/verbs/MenuSource.h"
#include "platform/memory/ManualQueue.h"

namespace tovrel {
namespace {

/// The error of a process with this environment that looks for the front application.
std::string failureWith(const char* display, const char* waylandDisplay) {
    setenv("DISPLAY", display, 1);
    setenv("WAYLAND_DISPLAY", waylandDisplay, 1);
    try {
        static_cast<void>(liveMenuSource({}));
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "found";
}

TEST(OpenDesktop, WithoutADisplaySaysWhichOneIsMissing) {
    const std::string onX11 =
        "there is no X display to find the front application on; name one with --pid or --app";
    const std::string onWayland =
        "Wayland is not supported yet, and there is no X display to find the front application on; "
        "name one with --pid or --app";
    EXPECT_EQ(failureWith("", ""), onX11);
    EXPECT_EQ(failureWith(":60987", ""), onX11);
    EXPECT_EQ(failureWith("", "wayland-0"), onWayland);
    EXPECT_EQ(failureWith(":60987", "wayland-0"), onWayland);
}

TEST(OpenDesktop, WithoutADisplayIsADesktopAllTheSame) {
    setenv("DISPLAY", "", 1);
    const auto desktop = openDesktop();
    ASSERT_NE(desktop, nullptr);
    EXPECT_EQ(desktop->name(), "X11");
    EXPECT_FALSE(desktop->windows().isAvailable());
    EXPECT_EQ(desktop->workspace().frontApplication(), nullptr);
    EXPECT_NE(desktop->applicationWithProcessIdentifier(getpid()), nullptr);
    EXPECT_EQ(desktop->keyCode(33), 35U) << "the key of P";

    ManualQueue queue;
    const ResidentSeams seams = desktop->makeResidentSeams(queue, nullptr, {});
    std::optional<HotKeyOutcome> outcome;
    static_cast<void>(
        seams.hotKeys->registerHotKey(35, 768, {}, [&](const HotKeyOutcome& answer) { outcome = answer; }));
    EXPECT_EQ(outcome, HotKeyOutcome(HotKeyError::noHotKeys));
    EXPECT_FALSE(seams.keyPoster->canPost());
    EXPECT_FALSE(seams.keyPoster->postKeyPress(35, 0));
    EXPECT_EQ(seams.windowSystem, nullptr);
    for (const WatchedEvents& events : seams.events) {
        events.source->dispatch();
    }
}

} // namespace
} // namespace tovrel
