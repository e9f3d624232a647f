#include "hotkeys/HotKeyManager.h"

#include <sstream>

#include <gtest/gtest.h>

#include "hotkeys/PaletteHotKeyRoutingPolicy.h"
#include "platform/memory/ManualQueue.h"
#include "platform/memory/MemoryHotKeyCenter.h"
#include "platform/memory/MemoryKeyEventPoster.h"
#include "platform/memory/MemoryPreferencesDomain.h"
#include "platform/memory/MemoryUserInterface.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

constexpr Shortcut standard{35, 768};
using Presses = std::vector<std::pair<std::uint16_t, ModifierFlags>>;

class HotKeyManagerTest : public testing::Test {
  protected:
    HotKeyManagerTest() {
        manager_->onTogglePalette = [this] { ++toggles_; };
    }

    TextServices textServices_{"en"};
    MemoryPreferencesDomain preferences_;
    MemoryHotKeyCenter center_;
    MemoryUserInterface userInterface_;
    std::ostringstream output_;
    KeyboardShortcuts shortcuts_{preferences_, center_, userInterface_, textServices_, output_};
    KeyboardShortcuts::Name name_ = shortcuts_.makeName("togglePalette", standard);
    MemoryKeyEventPoster poster_;
    ManualQueue queue_;
    std::shared_ptr<HotKeyManager> manager_ = HotKeyManager::make(shortcuts_, name_, poster_, queue_);
    int toggles_ = 0;
};

TEST_F(HotKeyManagerTest, OneTogglePerPhysicalPress) {
    for (int repeat = 0; repeat < 5; ++repeat) {
        manager_->handleKeyDown();
    }
    EXPECT_EQ(toggles_, 1);
    manager_->handleKeyUp();
    manager_->handleKeyUp();
    manager_->handleKeyDown();
    EXPECT_EQ(toggles_, 2);
}

TEST_F(HotKeyManagerTest, ForwardingGivesTheKeyBackPostsItAndTakesItAgain) {
    manager_->handleKeyDown();
    manager_->forwardToggleShortcut();
    EXPECT_EQ(center_.registrations(standard), 0U);
    manager_->forwardToggleShortcut(); // a forwarding is under way
    queue_.advance(49ms);
    EXPECT_EQ(poster_.presses(), Presses{});
    queue_.advance(1ms);
    EXPECT_EQ(poster_.presses(), (Presses{{35, modifier_flags::command | modifier_flags::shift}}));
    queue_.advance(149ms);
    EXPECT_EQ(center_.registrations(standard), 0U);
    queue_.advance(1ms);
    EXPECT_EQ(center_.registrations(standard), 1U);
    EXPECT_EQ(poster_.presses().size(), 1U);

    manager_->handleKeyDown(); // the key-up of the first press was never seen
    EXPECT_EQ(toggles_, 2);
    manager_->forwardToggleShortcut();
    queue_.advance(200ms);
    EXPECT_EQ(poster_.presses().size(), 2U);
}

TEST_F(HotKeyManagerTest, TheShortcutComesBackWithoutTheManager) {
    shortcuts_.setShortcut(Shortcut{35, carbon_modifiers::function | carbon_modifiers::control}, name_);
    manager_->forwardToggleShortcut();
    manager_.reset();
    queue_.advance(200ms);
    EXPECT_EQ(poster_.presses(), (Presses{{35, modifier_flags::control}})) << "without the function key";
    EXPECT_EQ(center_.registrations(*shortcuts_.getShortcut(name_)), 1U);
}

TEST_F(HotKeyManagerTest, NothingIsForwardedWithoutAShortcut) {
    shortcuts_.setShortcut(std::nullopt, name_);
    manager_->forwardToggleShortcut();
    EXPECT_EQ(queue_.waitingTasks(), 0U);
    EXPECT_TRUE(manager_->canForwardToggleShortcut());
    poster_.setCanPost(false);
    EXPECT_FALSE(manager_->canForwardToggleShortcut()) << "the desktop lets no program post keys";
}

TEST(PaletteHotKeyRoutingPolicyTest, OnlyAKnownDisabledApplicationGetsTheShortcut) {
    using Policy = PaletteHotKeyRoutingPolicy;
    EXPECT_TRUE(Policy::shouldForwardToggleShortcut(true, "org.editor", AppBehaviorRule::disabled));
    EXPECT_FALSE(Policy::shouldForwardToggleShortcut(false, "org.editor", AppBehaviorRule::disabled));
    EXPECT_FALSE(Policy::shouldForwardToggleShortcut(true, std::nullopt, AppBehaviorRule::disabled));
    EXPECT_FALSE(Policy::shouldForwardToggleShortcut(true, "org.editor", AppBehaviorRule::automatic));
    EXPECT_FALSE(Policy::shouldForwardToggleShortcut(true, "org.editor", AppBehaviorRule::enabled));
}

} // namespace
} // namespace tovrel
