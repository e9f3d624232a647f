#pragma once

#include <map>
#include <set>

#include "platform/HotKeyCenter.h"

namespace tovrel {

/// Hot keys that are pressed by calling `press` and `release`.
class MemoryHotKeyCenter : public HotKeyCenter {
  public:
    [[nodiscard]] std::variant<HotKeyHandle, HotKeyError>
    registerHotKey(std::uint32_t keyCode, std::uint32_t carbonModifiers,
                   HotKeyIdentifier identifier) override;
    void unregisterHotKey(HotKeyHandle handle) override { registered_.erase(handle); }
    void setHotKeyHandler(HotKeyHandler handler) override { hotKeyHandler_ = std::move(handler); }
    void setRawKeyHandler(RawKeyHandler handler) override { rawKeyHandler_ = std::move(handler); }
    [[nodiscard]] bool isSystemShortcut(const Shortcut& shortcut) override {
        return refused_.contains(shortcut);
    }
    [[nodiscard]] std::optional<Text> characterForKeyCode(std::uint32_t keyCode) override;

    /// From now on the combination is refused, as one that another program has.
    void refuse(const Shortcut& shortcut) { refused_.insert(shortcut); }

    /// Whether a handler took the key. A combination that nobody registered goes to the raw key handler only.
    bool press(const Shortcut& shortcut);
    bool release(const Shortcut& shortcut);

    /// How often a combination is registered now.
    [[nodiscard]] std::size_t registrations(const Shortcut& shortcut) const;
    [[nodiscard]] bool listensToRawKeys() const { return static_cast<bool>(rawKeyHandler_); }

  private:
    struct Registration {
        Shortcut shortcut;
        HotKeyIdentifier identifier;
    };

    bool deliver(const Shortcut& shortcut, HotKeyEventKind kind);

    HotKeyHandle lastHandle_ = 0;
    std::map<HotKeyHandle, Registration> registered_;
    std::set<Shortcut> refused_;
    HotKeyHandler hotKeyHandler_;
    RawKeyHandler rawKeyHandler_;
};

} // namespace tovrel
