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

/// The shortcuts this module has registered system-wide, and the events that come of them.
///
/// The desktop may answer a registration at once or later. Until it has, nothing is said of the shortcut but
/// what was the case before: it is neither refused anew nor had.
///
/// While one of the program's menus is open the desktop delivers no hot keys: they are then given back, and
/// the raw key events that reach the menu are matched instead. A shortcut that is down when a menu opens or
/// closes is followed to its release all the same.
class HotKeyRegistrations {
  public:
    /// Told the shortcut that went down or up.
    using Callback = std::function<void(const Shortcut&)>;

    /// Of a refused registration one line is written to `output`. `onLateOutcome` is called when the desktop
    /// has answered, except while one of the operations below has just asked it. All references must outlive
    /// the object.
    HotKeyRegistrations(HotKeyCenter& center, const TextServices& textServices, std::ostream& output,
                        Callback onKeyDown, Callback onKeyUp, std::function<void()> onLateOutcome);
    ~HotKeyRegistrations();
    HotKeyRegistrations(const HotKeyRegistrations&) = delete;
    HotKeyRegistrations& operator=(const HotKeyRegistrations&) = delete;

    /// A refused shortcut does not fire until it can be had. A key code or modifiers outside 32 bits end the
    /// process.
    void registerShortcut(const Shortcut& shortcut);
    void unregisterShortcut(const Shortcut& shortcut);

    /// Tries what was refused once more, without another line of output.
    void retryRefused();

    /// The registered shortcuts that do not fire, and why.
    [[nodiscard]] std::map<Shortcut, HotKeyError> refusals() const;

    /// What to press for those shortcuts of which the desktop has its own words (HotKeyRegistered).
    [[nodiscard]] std::map<Shortcut, Text> desktopTriggers() const;

    /// Whether one of this program's menus is open. Initially none is.
    void setMenuOpen(bool isOpen);

  private:
    enum class State { givenBack, asked, registered, refused };
    struct Record {
        explicit Record(const Shortcut& wanted) : shortcut(wanted) {}

        Shortcut shortcut;
        State state = State::givenBack;
        HotKeyHandle handle = 0;            ///< While it is asked for or registered.
        std::optional<HotKeyError> refusal; ///< The latest answer, where that was one.
        std::optional<Text> desktopTrigger; ///< The latest that was told.

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
    std::map<std::uint32_t, Record> records_; ///< By hot-key id.
    std::int64_t lastId_ = 0;
    bool isTaking_ = false; ///< The outcome may come before the call returns that asks for it.
    bool isHandlerInstalled_ = false;
    bool isMenuOpen_ = false;
    std::set<Shortcut> down_; ///< Those that fired and have not come up.
};

} // namespace tovrel
