#include "platform/linux/LinuxHotKeyCenter.h"

#include <memory>
#include <numeric>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Shortcut.h"
#include "platform/linux/VirtualKeyCodes.h"
#include "platform/linux/X11ServerFixture.h"
#include "platform/linux/X11TestClient.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

constexpr std::uint32_t keyP = 35;
constexpr std::uint32_t keyK = 40;
constexpr std::uint32_t keyReturn = 36;
constexpr std::uint32_t keyControl = 55;
constexpr std::uint32_t keyShift = 56;
constexpr std::uint32_t keyCapsLock = 57;
constexpr std::uint32_t keyAlt = 58;
constexpr std::uint32_t keySuper = 59;
constexpr std::uint32_t keyNumLock = 71;
constexpr std::uint32_t commandShift =
    static_cast<std::uint32_t>(carbon_modifiers::command | carbon_modifiers::shift);

/// The keys 0 to 9: A, S, D, F, H, G, Z, X, C, V.
std::vector<std::uint32_t> tenKeys() {
    std::vector<std::uint32_t> keys(10);
    std::iota(keys.begin(), keys.end(), 0);
    return keys;
}

/// A front window, and a palette that the hot key Ctrl+Shift+P shows and hides.
class LinuxHotKeyCenterTest : public X11ServerTest {
  protected:
    void SetUp() override {
        X11ServerTest::SetUp();
        if (HasFatalFailure()) {
            return;
        }
        for (EventSource* source : std::initializer_list<EventSource*>{&center_, &front_, &panel_}) {
            loop_.watch(*source);
        }
        center_.setHotKeyHandler([this](const HotKeyEvent& event) {
            events_.push_back(event.kind);
            if (event.kind == HotKeyEventKind::pressed && onPress) {
                onPress();
            }
            return true;
        });
    }

    HotKeyHandle registered(std::uint32_t keyCode = keyP, std::uint32_t modifiers = commandShift) {
        const auto result = center_.registerHotKey(keyCode, modifiers, {0x5456484B, 1});
        EXPECT_TRUE(std::holds_alternative<HotKeyHandle>(result)) << std::get<HotKeyError>(result);
        return std::get<HotKeyHandle>(result);
    }

    /// Without a window manager each window takes the focus for itself when it is its turn.
    void focusByThemselves() {
        panel_.onVisibility = [this](bool isVisible) { (isVisible ? panel_ : front_).focus(); };
        front_.map();
        ASSERT_TRUE(loop_.runUntil([&] { return front_.isMapped(); }));
        front_.focus();
        ASSERT_TRUE(loop_.runUntil([&] { return front_.hasFocus(); }));
    }
    void toggleOnPress() {
        onPress = [this] {
            const bool wasShown = isPanelShown_;
            isPanelShown_ = !wasShown;
            wasShown ? panel_.unmap() : panel_.map();
        };
    }

    void pressHotKey() {
        for (const std::uint32_t key : {keyControl, keyShift, keyP}) {
            keyboard_.press(key);
        }
    }
    void releaseHotKey() {
        for (const std::uint32_t key : {keyP, keyShift, keyControl}) {
            keyboard_.release(key);
        }
    }
    void typeTenKeys() {
        for (const std::uint32_t key : tenKeys()) {
            keyboard_.tap(key);
        }
    }
    int count(HotKeyEventKind kind) const {
        return static_cast<int>(std::count(events_.begin(), events_.end(), kind));
    }
    int presses() const { return count(HotKeyEventKind::pressed); }
    int releases() const { return count(HotKeyEventKind::released); }

    X11TestClient front_{display_};
    X11TestClient panel_{display_};
    bool isPanelShown_ = false;
    std::function<void()> onPress;
    std::function<KeyDestination()> destination_ = [this] {
        return KeyDestination{panel_.window(), isPanelShown_};
    };
    LinuxHotKeyCenter center_{loop_, [this] { return destination_(); }, display_.c_str()};
    X11TestKeyboard keyboard_{display_};
    std::vector<HotKeyEventKind> events_;

    /// Ctrl+Shift+P and ten keys in one write, the panel being hidden and shown in turn: the keys must all
    /// reach the window that the hot key leaves in front, and no other.
    void toggleAndType(int rounds) {
        const std::vector<std::uint32_t> modifierKeys{keyControl, keyShift};
        for (int round = 0; round < rounds; ++round) {
            X11TestClient& before = isPanelShown_ ? panel_ : front_;
            X11TestClient& after = isPanelShown_ ? front_ : panel_;
            before.forget();
            after.forget();
            events_.clear();
            pressHotKey();
            releaseHotKey();
            typeTenKeys();
            keyboard_.flush();
            ASSERT_TRUE(loop_.runUntil([&] {
                return after.presses().size() >= 10 && releases() == 1 && after.hasFocus();
            })) << "round "
                << round << ": " << after.presses().size() << " keys arrived, " << before.presses().size()
                << " behind";
            EXPECT_EQ(after.presses(), tenKeys()) << "round " << round;
            EXPECT_EQ(before.presses(), modifierKeys) << "round " << round;
            EXPECT_EQ(presses(), 1);
            ASSERT_FALSE(HasFailure()) << "round " << round;
        }
        EXPECT_TRUE(keyboard_.down().empty());
    }
};

TEST_F(LinuxHotKeyCenterTest, LosesAndLeaksNoKeyWhereWindowsTakeTheFocus) {
    focusByThemselves();
    toggleOnPress();
    registered();
    toggleAndType(100);
}

TEST_F(LinuxHotKeyCenterTest, LosesAndLeaksNoKeyUnderAWindowManager) {
    startWindowManager();
    front_.map();
    ASSERT_TRUE(loop_.runUntil([&] { return front_.hasFocus(); }));
    toggleOnPress();
    registered();
    toggleAndType(100);
}

} // namespace
} // namespace tovrel
