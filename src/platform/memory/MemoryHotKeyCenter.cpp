#include "platform/memory/MemoryHotKeyCenter.h"

#include <algorithm>

#include "model/VirtualKeyCodes.h"

namespace tovrel {
namespace {

/// What the platform answers for a combination that exists already.
constexpr HotKeyError combinationTaken = -9878;

} // namespace

std::variant<HotKeyHandle, HotKeyError> MemoryHotKeyCenter::registerHotKey(std::uint32_t keyCode,
                                                                           std::uint32_t carbonModifiers,
                                                                           HotKeyIdentifier identifier) {
    const Shortcut shortcut{keyCode, carbonModifiers};
    if (refused_.contains(shortcut)) {
        return combinationTaken;
    }
    registered_.emplace(++lastHandle_, Registration{shortcut, identifier});
    return lastHandle_;
}

std::optional<Text> MemoryHotKeyCenter::characterForKeyCode(std::uint32_t keyCode) {
    return keyCode == key_codes::p ? std::optional<Text>("p") : std::nullopt;
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
    const auto found = std::find_if(registered_.begin(), registered_.end(),
                                    [&](const auto& entry) { return entry.second.shortcut == shortcut; });
    if (found != registered_.end() && hotKeyHandler_) {
        const HotKeyHandler handler = hotKeyHandler_;
        return handler({found->second.identifier, kind});
    }
    if (!rawKeyHandler_) {
        return false;
    }
    const RawKeyHandler handler = rawKeyHandler_;
    return handler({kind == HotKeyEventKind::pressed ? KeyEventType::keyDown : KeyEventType::keyUp,
                    static_cast<std::uint32_t>(shortcut.carbonKeyCode), std::nullopt,
                    modifierFlags(shortcut.carbonModifiers)});
}

} // namespace tovrel
