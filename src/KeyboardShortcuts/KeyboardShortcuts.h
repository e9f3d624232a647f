#pragma once

#include <functional>
#include <iosfwd>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "KeyboardShortcuts/HotKeyRegistrations.h"
#include "model/Shortcut.h"
#include "platform/HotKeyCenter.h"
#include "platform/PreferencesDomain.h"
#include "platform/UserInterface.h"
#include "support/Observable.h"
#include "support/TextServices.h"

namespace tovrel {

/// Named global shortcuts that the user can change: each is kept in the preferences, registered system-wide,
/// and calls the handlers of its name when it goes down and up.
///
/// Under the key "KeyboardShortcuts_" + name the preferences hold the shortcut's JSON text, or false when the
/// user removed the shortcut of a name that has a default. Any other value counts as no shortcut and is not
/// changed.
class KeyboardShortcuts {
  public:
    struct Name {
        std::string rawValue;
        std::optional<Shortcut> defaultShortcut;
    };

    using Handler = std::function<void()>;

    /// All references must outlive the object. `output` gets a line for each combination that was refused.
    KeyboardShortcuts(PreferencesDomain& defaults, HotKeyCenter& center, UserInterface& userInterface,
                      const TextServices& textServices, std::ostream& output);
    ~KeyboardShortcuts();
    KeyboardShortcuts(const KeyboardShortcuts&) = delete;
    KeyboardShortcuts& operator=(const KeyboardShortcuts&) = delete;

    /// Makes a name usable: stores its default when nothing at all is stored for it yet. If the stored value
    /// cannot be read, or the default cannot be stored, the default applies as if it were stored.
    Name makeName(std::string rawValue, std::optional<Shortcut> defaultShortcut);

    /// Stores the defaults that could not be stored yet. The user's own shortcut replaces the default if it
    /// can be read by now. Returns true when nothing is left to be stored.
    bool storeDefaults();

    [[nodiscard]] std::optional<Shortcut> getShortcut(const Name& name) const;

    /// Stores and registers the shortcut in place of the previous one; an absent shortcut removes that one.
    /// Nothing changes when a name without a shortcut loses it, or when the change cannot be stored.
    void setShortcut(const std::optional<Shortcut>& shortcut, const Name& name);

    /// Why the name's shortcut does not fire although it is registered; absent while it does, and until the
    /// desktop has answered.
    [[nodiscard]] std::optional<HotKeyError> refusal(const Name& name) const;

    /// The desktop's own words for what the user must press instead of the name's shortcut, where the desktop
    /// has chosen the combination or lets the user change it. Absent where the shortcut applies.
    [[nodiscard]] std::optional<Text> desktopTrigger(const Name& name) const;

    /// Tries refused shortcuts again, because no event tells when another program gives a combination up. A
    /// change of the keyboard does this automatically.
    void retryRefused();

    /// The observer is called when a shortcut was refused, was registered after a refusal, or got another
    /// trigger from the desktop.
    [[nodiscard]] Subscription onAvailabilityDidChange(std::function<void()> observer) const {
        return availabilityDidChange_.subscribe(std::move(observer));
    }

    /// Adds a handler, called after those added before. Registers the name's shortcut if it is not yet.
    void onKeyDown(const Name& name, Handler handler);
    void onKeyUp(const Name& name, Handler handler);

    /// `disable` unregisters the names' shortcuts; `enable` registers them again. Handlers stay.
    void disable(const std::vector<Name>& names);
    void enable(const std::vector<Name>& names);

    /// Tells that a recorder starts (true) or stops recording. No handler is called while it records.
    void setRecorderActive(bool isActive);

    /// Calls the observer each time a recorder starts or stops, with whether it is recording.
    [[nodiscard]] Subscription onRecorderActiveStatusDidChange(std::function<void(bool)> observer) const {
        return recorderActiveStatusDidChange_.subscribe(std::move(observer));
    }

    /// Calls the observer with each name whose shortcut was set or removed.
    [[nodiscard]] Subscription onShortcutByNameDidChange(std::function<void(const Name&)> observer) const {
        return shortcutByNameDidChange_.subscribe(std::move(observer));
    }

  private:
    struct Handlers {
        Name name;
        std::vector<Handler> handlers;
    };
    using HandlersByName = std::map<std::string, Handlers>;

    void storeDefault(const Name& name);
    bool store(const std::optional<Shortcut>& shortcut, const Name& name);
    void addHandler(HandlersByName& handlersByName, const Name& name, Handler handler);
    void callHandlers(const HandlersByName& handlersByName, const Shortcut& fired) const;
    void registerOnce(const Shortcut& shortcut);
    void unregister(const Shortcut& shortcut);
    void tellAvailability();

    PreferencesDomain* defaults_;
    HotKeyCenter* center_;
    /// Names, by raw value, whose default must still be stored.
    std::map<std::string, Name> unstoredDefaults_;
    HandlersByName keyDownHandlers_;
    HandlersByName keyUpHandlers_;
    std::set<Shortcut> registeredShortcuts_;
    HotKeyRegistrations hotKeys_;
    Subscription menuTracking_;
    bool isPaused_ = false;
    std::map<Shortcut, HotKeyError> toldRefusals_;
    std::map<Shortcut, Text> toldTriggers_;
    ObserverList<> availabilityDidChange_;
    ObserverList<const Name&> shortcutByNameDidChange_;
    ObserverList<bool> recorderActiveStatusDidChange_;
};

} // namespace tovrel
