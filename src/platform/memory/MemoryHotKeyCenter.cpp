#include "platform/memory/MemoryHotKeyCenter.h"

#include <algorithm>
#include <utility>

#include "model/VirtualKeyCodes.h"

namespace tovrel {
namespace {

KeyEvent keyEvent(const Shortcut& shortcut, HotKeyEventKind kind) {
    return {kind == HotKeyEventKind::pressed ? KeyEventType::keyDown : KeyEventType::keyUp,
            static_cast<std::uint32_t>(shortcut.carbonKeyCode), std::nullopt,
            modifierFlags(shortcut.carbonModifiers)};
}

} // namespace

HotKeyHandle MemoryHotKeyCenter::registerHotKey(std::uint32_t keyCode, std::uint32_t carbonModifiers,
                                                HotKeyIdentifier identifier, Completion completion) {
    const HotKeyHandle handle = ++lastHandle_;
    Question question{{Shortcut{keyCode, carbonModifiers}, identifier}, std::move(completion)};
    if (answersLate_) {
        waiting_.emplace(handle, std::move(question));
    } else {
        complete(handle, question);
    }
    return handle;
}

void MemoryHotKeyCenter::unregisterHotKey(HotKeyHandle handle) {
    waiting_.erase(handle);
    registered_.erase(handle);
}

void MemoryHotKeyCenter::answer() {
    const HotKeyHandle last = lastHandle_;
    while (!waiting_.empty() && waiting_.begin()->first <= last) {
        const auto [handle, question] = *waiting_.begin();
        waiting_.erase(waiting_.begin());
        complete(handle, question);
    }
}

void MemoryHotKeyCenter::complete(HotKeyHandle handle, const Question& question) {
    const Shortcut& shortcut = question.registration.shortcut;
    if (shortcut.carbonKeyCode == key_codes::unknown) {
        question.completion(HotKeyError::noSuchKey);
        return;
    }
    if (refused_.contains(shortcut)) {
        question.completion(HotKeyError::takenByAnother);
        return;
    }
    if (registrations(shortcut) > 0) {
        question.completion(HotKeyError::alreadyRegistered);
        return;
    }
    registered_.emplace(handle, question.registration);
    const auto trigger = triggers_.find(shortcut);
    question.completion(
        HotKeyRegistered{trigger == triggers_.end() ? std::nullopt : std::optional(trigger->second)});
}

std::optional<Text> MemoryHotKeyCenter::characterForKeyCode(std::uint32_t keyCode) {
    return keyCode == key_codes::p ? std::optional<Text>("p") : std::nullopt;
}

std::optional<HotKeyError> MemoryHotKeyCenter::refusal(HotKeyHandle handle) const {
    const auto found = registered_.find(handle);
    return found != registered_.end() && refused_.contains(found->second.shortcut)
               ? std::optional(HotKeyError::takenByAnother)
               : std::nullopt;
}

bool MemoryHotKeyCenter::takeKeyboard(KeyHandler handler, std::function<void()> onLoss) {
    if (keyHandler_) {
        return false;
    }
    keyHandler_ = std::move(handler);
    onKeyboardLoss_ = std::move(onLoss);
    return true;
}

void MemoryHotKeyCenter::giveKeyboardBack(bool passesKeyOn) {
    keysPassedOn_ += keyHandler_ && passesKeyOn ? 1 : 0;
    keyHandler_ = nullptr;
}

void MemoryHotKeyCenter::changeKeyboard() const {
    if (keyboardHandler_) {
        keyboardHandler_();
    }
}

void MemoryHotKeyCenter::loseKeyboard() {
    keyHandler_ = nullptr;
    onKeyboardLoss_();
}

bool MemoryHotKeyCenter::rawKey(const KeyEvent& event) const {
    const RawKeyHandler handler = rawKeyHandler_; // it may replace itself
    return handler && handler(event);
}

bool MemoryHotKeyCenter::press(const Shortcut& shortcut) {
    return deliver(shortcut, HotKeyEventKind::pressed);
}

bool MemoryHotKeyCenter::release(const Shortcut& shortcut) {
    return deliver(shortcut, HotKeyEventKind::released);
}

std::size_t MemoryHotKeyCenter::registrations(const Shortcut& shortcut) const {
    return static_cast<std::size_t>(
        std::count_if(registered_.begin(), registered_.end(),
                      [&](const auto& entry) { return entry.second.shortcut == shortcut; }));
}

bool MemoryHotKeyCenter::deliver(const Shortcut& shortcut, HotKeyEventKind kind) {
    if (keyHandler_) {
        const KeyHandler handler = keyHandler_;
        handler(keyEvent(shortcut, kind));
        return true;
    }
    const auto found = std::find_if(registered_.begin(), registered_.end(), [&](const auto& entry) {
        return entry.second.shortcut == shortcut && !refused_.contains(shortcut);
    });
    if (found != registered_.end() && hotKeyHandler_) {
        const HotKeyHandler handler = hotKeyHandler_;
        return handler({found->second.identifier, kind});
    }
    return rawKey(keyEvent(shortcut, kind));
}

} // namespace tovrel
