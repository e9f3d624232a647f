#include <utility>
#include <vector>

#include "platform/contract/HotKeyCenterContract.h"
#include "platform/contract/KeyEventPosterContract.h"
#include "platform/memory/MemoryHotKeyCenter.h"
#include "platform/memory/MemoryKeyEventPoster.h"

namespace tovrel {
namespace {

class MemoryHotKeyCenterRig {
  public:
    HotKeyCenter& center() { return center_; }
    template <typename Condition>
    bool until(Condition condition) {
        center_.answer();
        return condition();
    }
    void press(const Shortcut& shortcut) { center_.press(shortcut); }
    void release(const Shortcut& shortcut) { center_.release(shortcut); }
    void releaseModifiersFirst(const Shortcut& shortcut) { center_.release(shortcut); }
    void takeByAnother(const Shortcut& shortcut) { center_.refuse(shortcut); }
    void giveBackByAnother(const Shortcut& shortcut) { center_.allow(shortcut); }
    void openMenu() {}
    std::size_t passedOn(std::uint32_t /*keyCode*/) {
        return static_cast<std::size_t>(center_.keysPassedOn());
    }
    void outwait() { center_.loseKeyboard(); }
    void unplug(const Shortcut& shortcut) {
        center_.refuse(shortcut);
        center_.changeKeyboard();
    }
    void plugIn(const Shortcut& shortcut) {
        center_.allow(shortcut);
        center_.changeKeyboard();
    }

  protected:
    MemoryHotKeyCenter center_;
};

/// As on a desktop that asks the user.
class LateMemoryHotKeyCenterRig : public MemoryHotKeyCenterRig {
  public:
    LateMemoryHotKeyCenterRig() { center_.setAnswersLate(true); }
};

class MemoryKeyEventPosterRig {
  public:
    KeyEventPoster& poster() { return poster_; }
    template <typename Condition>
    bool until(Condition condition) {
        return condition();
    }
    [[nodiscard]] const auto& typed() const { return poster_.presses(); }
    void hold(ModifierFlags flag) { held_ |= flag; }
    void letGo(ModifierFlags flag) { held_ &= ~flag; }
    [[nodiscard]] ModifierFlags held() const { return held_; }

  private:
    MemoryKeyEventPoster poster_;
    ModifierFlags held_ = 0;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, HotKeyCenterContract, MemoryHotKeyCenterRig);
INSTANTIATE_TYPED_TEST_SUITE_P(LateMemory, HotKeyCenterContract, LateMemoryHotKeyCenterRig);
INSTANTIATE_TYPED_TEST_SUITE_P(Memory, KeyEventPosterContract, MemoryKeyEventPosterRig);

} // namespace
} // namespace tovrel
