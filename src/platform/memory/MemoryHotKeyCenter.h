#pragma once

#include <map>
#include <set>

#include "platform/HotKeyCenter.h"

namespace tovrel {

/// Hot keys that are pressed by calling `press` and `release`.
class MemoryHotKeyCenter : public HotKeyCenter {
  public:
    [[nodiscard]] HotKeyHandle registerHotKey(std::uint32_t keyCode, std::uint32_t carbonModifiers,
                                              HotKeyIdentifier identifier, Completion completion) override;
    void unregisterHotKey(HotKeyHandle handle) override;
    void setHotKeyHandler(HotKeyHandler handler) override { hotKeyHandler_ = std::move(handler); }
    void setRawKeyHandler(RawKeyHandler handler) override { rawKeyHandler_ = std::move(handler); }
    [[nodiscard]] std::optional<HotKeyError> refusal(HotKeyHandle handle) const override;
    void setKeyboardHandler(KeyboardHandler handler) override { keyboardHandler_ = std::move(handler); }
    [[nodiscard]] bool takeKeyboard(KeyHandler handler, std::function<void()> onLoss) override;
    void giveKeyboardBack(bool passesKeyOn) override;
    [[nodiscard]] bool isSystemShortcut(const Shortcut& shortcut) override {
        return refused_.contains(shortcut);
    }
    [[nodiscard]] std::optional<Text> characterForKeyCode(std::uint32_t keyCode) override;

    /// Has the combination refused from now on, as if another program had it; `allow` ends that.
    void refuse(const Shortcut& shortcut) { refused_.insert(shortcut); }
    void allow(const Shortcut& shortcut) { refused_.erase(shortcut); }
    /// Sets the desktop's own words for what the user must press.
    void setDesktopTrigger(const Shortcut& shortcut, const Text& text) { triggers_[shortcut] = text; }
    /// Sets whether outcomes wait for `answer`, as on a desktop that asks the user, or come at once.
    void setAnswersLate(bool answersLate) { answersLate_ = answersLate; }
    /// Completes the waiting registrations in their order.
    void answer();
    /// Reports another keyboard: registered combinations that are refused now no longer fire.
    void changeKeyboard() const;
    /// Ends `takeKeyboard` as if a key had waited too long to be handled.
    void loseKeyboard();

    /// Presses the combination; returns whether a handler took it. A combination that nobody registered goes
    /// to the raw key handler only; while the keyboard is taken, every key goes to its taker.
    bool press(const Shortcut& shortcut);
    bool release(const Shortcut& shortcut);
    /// Sends a key as it comes while a menu is open; returns whether there was a handler.
    bool rawKey(const KeyEvent& event) const;

    /// How often a combination is registered now.
    [[nodiscard]] std::size_t registrations(const Shortcut& shortcut) const;
    [[nodiscard]] bool isKeyboardTaken() const { return static_cast<bool>(keyHandler_); }
    /// How often the keyboard was given back with the key passed on.
    [[nodiscard]] int keysPassedOn() const { return keysPassedOn_; }
    [[nodiscard]] bool listensToRawKeys() const { return static_cast<bool>(rawKeyHandler_); }

  private:
    struct Registration {
        Shortcut shortcut;
        HotKeyIdentifier identifier;
    };
    struct Question {
        Registration registration;
        Completion completion;
    };

    void complete(HotKeyHandle handle, const Question& question);
    bool deliver(const Shortcut& shortcut, HotKeyEventKind kind);

    HotKeyHandle lastHandle_ = 0;
    std::map<HotKeyHandle, Registration> registered_;
    std::map<HotKeyHandle, Question> waiting_;
    bool answersLate_ = false;
    std::map<Shortcut, Text> triggers_;
    std::set<Shortcut> refused_;
    HotKeyHandler hotKeyHandler_;
    RawKeyHandler rawKeyHandler_;
    KeyboardHandler keyboardHandler_;
    KeyHandler keyHandler_;
    std::function<void()> onKeyboardLoss_;
    int keysPassedOn_ = 0;
};

} // namespace tovrel
