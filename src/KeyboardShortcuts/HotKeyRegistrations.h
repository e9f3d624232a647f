#pragma once

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <map>
#include <optional>
#include <set>

#include "model/Shortcut.h"
#include "platform/HotKeyCenter.h"
#include "support/TextServices.h"

namespace tovrel {

/// The shortcuts that this module has registered system-wide, and their events.
///
/// The desktop may answer a registration at once or later. Until then the shortcut keeps its previous state.
///
/// While one of the program's menus is open, the desktop delivers no hot keys. They are then given back, and
/// raw key events that reach the menu are matched instead. The release of a shortcut is seen even if a menu
/// opens or closes while it is down.
class HotKeyRegistrations {
  public:
    /// Gets the shortcut that went down or up.
    using Callback = std::function<void(const Shortcut&)>;

    /// Each refused registration writes one line to `output`. `onLateOutcome` is called when the desktop
    /// answers later, not during one of the operations below. All references must outlive the object.
    HotKeyRegistrations(HotKeyCenter& center, const TextServices& textServices, std::ostream& output,
                        Callback onKeyDown, Callback onKeyUp, std::function<void()> onLateOutcome);
    ~HotKeyRegistrations();
    HotKeyRegistrations(const HotKeyRegistrations&) = delete;
    HotKeyRegistrations& operator=(const HotKeyRegistrations&) = delete;

    /// Registers the shortcut; a refused one does not fire until a retry succeeds. A key code or modifiers
    /// outside 32 bits end the process.
    void registerShortcut(const Shortcut& shortcut);
    void unregisterShortcut(const Shortcut& shortcut);

    /// Tries refused shortcuts again, without another line of output.
    void retryRefused();

    /// The registered shortcuts that do not fire, and why.
    [[nodiscard]] std::map<Shortcut, HotKeyError> refusals() const;

    /// The desktop's own words for what to press (HotKeyRegistered), for the shortcuts that have them.
    [[nodiscard]] std::map<Shortcut, Text> desktopTriggers() const;

    /// Whether one of this program's menus is open. Initially none is.
    void setMenuOpen(bool isOpen);

  private:
    enum class State { givenBack, asked, registered, refused };
    struct Record {
        explicit Record(const Shortcut& wanted) : shortcut(wanted) {}

        Shortcut shortcut;
        State state = State::givenBack;
        HotKeyHandle handle = 0;            ///< The handle while the shortcut is requested or registered.
        std::optional<HotKeyError> refusal; ///< The latest answer if it was a refusal.
        std::optional<Text> desktopTrigger; ///< The latest trigger.

        [[nodiscard]] bool isHeld() const { return state == State::asked || state == State::registered; }
    };

    void take(std::uint32_t id, Record& record);
    void giveBack(Record& record);
    void complete(std::uint32_t id, const HotKeyOutcome& outcome);
    void refuse(Record& record, HotKeyError error);
    void installHandlerOnce();
    void updateEventHandler();
    bool handleHotKey(const HotKeyEvent& event);
    bool handleRawKey(const KeyEvent& event);

    HotKeyCenter* center_;
    const TextServices* textServices_;
    std::ostream* output_;
    Callback onKeyDown_;
    Callback onKeyUp_;
    std::function<void()> onLateOutcome_;
    std::map<std::uint32_t, Record> records_; ///< The records by hot-key id.
    std::int64_t lastId_ = 0;
    bool isTaking_ = false; ///< Set while `take` asks, because the outcome may come before the call returns.
    bool isHandlerInstalled_ = false;
    bool isMenuOpen_ = false;
    std::set<Shortcut> down_; ///< The shortcuts that fired and have not come up.
};

} // namespace tovrel
