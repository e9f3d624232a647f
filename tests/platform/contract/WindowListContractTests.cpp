#include <array>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/WindowList.h"
#include "platform/linux/TestLoop.h"
#include "platform/memory/MemoryWindowList.h"
#include "platform/x11/X11WindowStage.h"
#include "platform/x11/windows/X11WindowList.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

std::chrono::steady_clock::time_point after(std::chrono::milliseconds duration) {
    return std::chrono::steady_clock::now() + duration;
}

/// Plays the user and the desktop; each implementation has such a stage for the suite.
class MemoryStage {
  public:
    WindowIdentifier open(std::int32_t process, const std::string& title) {
        ApplicationWindow window;
        window.identifier = "window " + title;
        window.processIdentifier = process;
        window.title = Text(title);
        list.open(window);
        return window.identifier;
    }
    void setActive(const std::optional<WindowIdentifier>& window) { list.setActive(window); }
    std::vector<WindowIdentifier> askedToActivate() { return list.askedToActivate(); }
    static WindowIdentifier ofNoWindow() { return "window of another display"; }

    TestLoop loop;
    MemoryWindowList list;
};

class X11Stage {
  public:
    X11Stage() { loop.watch(list.activationEvents()); }

    WindowIdentifier open(std::int32_t process, const std::string& title) {
        return std::to_string(display_.open(static_cast<std::uint32_t>(process), title));
    }
    void setActive(const std::optional<WindowIdentifier>& window) {
        display_.setActive(window ? static_cast<xcb_window_t>(std::stoul(*window)) : 0);
    }
    std::vector<WindowIdentifier> askedToActivate() {
        std::vector<WindowIdentifier> asked;
        for (const X11WindowStage::Request& request : display_.requests("_NET_ACTIVE_WINDOW")) {
            asked.push_back(std::to_string(request.window));
        }
        return asked;
    }
    static WindowIdentifier ofNoWindow() { return "0x400001"; }

  private:
    X11WindowStage display_;

  public:
    TestLoop loop;
    X11WindowList list{display_.name().c_str()};
};

template <typename Stage>
class WindowListContract : public testing::Test {
  protected:
    [[nodiscard]] WindowList& list() { return stage_.list; }
    [[nodiscard]] std::vector<std::string> titles(const std::vector<ApplicationWindow>& windows) const {
        std::vector<std::string> found;
        found.reserve(windows.size());
        for (const ApplicationWindow& window : windows) {
            found.push_back(window.title.utf8());
        }
        return found;
    }

    Stage stage_;
};

using Titles = std::vector<std::string>;
using Stages = testing::Types<MemoryStage, X11Stage>;

class StageNames {
  public:
    template <typename Stage>
    static std::string GetName(int index) { // NOLINT(readability-identifier-naming): a name of the framework
        constexpr std::array names{"Memory", "X11"};
        return names.at(static_cast<std::size_t>(index));
    }
};

TYPED_TEST_SUITE(WindowListContract, Stages, StageNames);

TYPED_TEST(WindowListContract, TopmostWindowsComeFirstAndOfAProcessTheActiveOne) {
    EXPECT_TRUE(this->list().isAvailable());
    EXPECT_TRUE(this->list().windows().empty());
    const auto lower = this->stage_.open(11, "Lower");
    this->stage_.open(11, "Upper ✓");
    const auto other = this->stage_.open(12, "Other");
    EXPECT_EQ(this->titles(this->list().windows()), (Titles{"Other", "Upper ✓", "Lower"}));
    EXPECT_EQ(this->titles(this->list().windowsOf(11)), (Titles{"Upper ✓", "Lower"}));
    EXPECT_TRUE(this->list().windowsOf(13).empty());
    this->stage_.setActive(lower);
    EXPECT_EQ(this->titles(this->list().windowsOf(11)), (Titles{"Lower", "Upper ✓"}));
    EXPECT_EQ(this->titles(this->list().windows()), (Titles{"Other", "Upper ✓", "Lower"}));
    this->stage_.setActive(other);
    EXPECT_EQ(this->titles(this->list().windowsOf(11)), (Titles{"Upper ✓", "Lower"}));
    EXPECT_EQ(this->list().windowsOf(12).front().identifier, other);
    EXPECT_EQ(this->list().windowsOf(12).front().processIdentifier, 12);
}

TYPED_TEST(WindowListContract, OneWindowIsActiveOrNone) {
    const auto window = this->stage_.open(11, "Only");
    this->stage_.setActive(std::nullopt);
    EXPECT_FALSE(this->list().activeWindow(after(20ms)));
    EXPECT_FALSE(this->list().waitUntilActive(11, after(20ms)));
    this->stage_.setActive(window);
    const auto active = this->list().activeWindow(after(0ms));
    ASSERT_TRUE(active);
    EXPECT_EQ(active->identifier, window);
    EXPECT_TRUE(this->list().waitUntilActive(11, after(0ms)));
    EXPECT_FALSE(this->list().waitUntilActive(12, after(20ms)));
}

TYPED_TEST(WindowListContract, TheDesktopIsAskedToActivateAWindowOfItsOwn) {
    const auto first = this->stage_.open(11, "First");
    const auto second = this->stage_.open(11, "Second");
    EXPECT_FALSE(this->list().activate(this->stage_.ofNoWindow()));
    EXPECT_FALSE(this->list().activate(""));
    EXPECT_TRUE(this->list().activate(second));
    EXPECT_TRUE(this->list().activate(first));
    EXPECT_EQ(this->stage_.askedToActivate(), (std::vector<WindowIdentifier>{second, first}));
}

TYPED_TEST(WindowListContract, EachOtherWindowThatBecomesActiveIsToldOnce) {
    const auto first = this->stage_.open(11, "First");
    const auto second = this->stage_.open(12, "Second");
    Titles told;
    Titles toldToAnother;
    const auto noteIn = [](Titles& titles) {
        return [&titles](const ApplicationWindow& window) { titles.push_back(window.title.utf8()); };
    };
    const Subscription subscription = this->list().onActivation(noteIn(told));
    Subscription another = this->list().onActivation(noteIn(toldToAnother));
    const auto activate = [&](const WindowIdentifier& window) {
        const std::size_t before = told.size();
        this->stage_.setActive(window);
        EXPECT_TRUE(this->stage_.loop.runUntil([&] { return told.size() > before; })) << window;
    };
    activate(first);
    this->stage_.setActive(std::nullopt);
    this->stage_.setActive(first);
    activate(second);
    EXPECT_EQ(toldToAnother, (Titles{"First", "Second"}));
    another = {};
    activate(first);
    EXPECT_EQ(told, (Titles{"First", "Second", "First"}));
    EXPECT_EQ(toldToAnother.size(), 2U);
}

} // namespace
} // namespace tovrel
