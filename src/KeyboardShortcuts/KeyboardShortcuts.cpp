#include "KeyboardShortcuts/KeyboardShortcuts.h"

#include <utility>

#include "KeyboardShortcuts/StoredShortcut.h"

namespace tovrel {
namespace {

template <typename Value>
std::optional<Value> ofShortcut(const std::map<Shortcut, Value>& values,
                                const std::optional<Shortcut>& shortcut) {
    const auto found = shortcut ? values.find(*shortcut) : values.end();
    return found == values.end() ? std::nullopt : std::optional(found->second);
}

std::string storageKey(const KeyboardShortcuts::Name& name) {
    return "KeyboardShortcuts_" + name.rawValue;
}

} // namespace

KeyboardShortcuts::KeyboardShortcuts(PreferencesDomain& defaults, HotKeyCenter& center,
                                     UserInterface& userInterface, const TextServices& textServices,
                                     std::ostream& output)
    : defaults_(&defaults), center_(&center),
      hotKeys_(
          center, textServices, output,
          [this](const Shortcut& fired) { callHandlers(keyDownHandlers_, fired); },
          [this](const Shortcut& fired) { callHandlers(keyUpHandlers_, fired); },
          [this] { tellAvailability(); }),
      menuTracking_(userInterface.onMenuTracking([this](bool isOpen) {
          hotKeys_.setMenuOpen(isOpen);
          tellAvailability();
      })) {
    center.setKeyboardHandler([this] { retryRefused(); });
}

KeyboardShortcuts::~KeyboardShortcuts() {
    center_->setKeyboardHandler(nullptr);
}

KeyboardShortcuts::Name KeyboardShortcuts::makeName(std::string rawValue,
                                                    std::optional<Shortcut> defaultShortcut) {
    Name name{std::move(rawValue), defaultShortcut};
    if (defaultShortcut) {
        unstoredDefaults_.insert_or_assign(name.rawValue, name);
        storeDefaults();
    }
    return name;
}

bool KeyboardShortcuts::storeDefaults() {
    const std::map<std::string, Name> names = unstoredDefaults_;
    for (const auto& [rawValue, name] : names) {
        storeDefault(name);
    }
    return unstoredDefaults_.empty();
}

void KeyboardShortcuts::storeDefault(const Name& name) {
    const bool isAnyStored = defaults_->value(storageKey(name)).has_value();
    // A value that could not be read may be the user's shortcut, which the default must not replace.
    if (!defaults_->lastReadSucceeded() ||
        (!isAnyStored && !defaults_->set(storageKey(name), encodedShortcut(*name.defaultShortcut)))) {
        return;
    }
    unstoredDefaults_.erase(name.rawValue);
    if (!isAnyStored) {
        registerOnce(*name.defaultShortcut);
    } else if (registeredShortcuts_.contains(*name.defaultShortcut) &&
               getShortcut(name) != name.defaultShortcut) {
        // The default stood in until the user's own shortcut could be read.
        unregister(*name.defaultShortcut);
        enable({name});
    } else {
        return;
    }
    shortcutByNameDidChange_.notify(name);
}

std::optional<Shortcut> KeyboardShortcuts::getShortcut(const Name& name) const {
    if (unstoredDefaults_.contains(name.rawValue)) {
        return name.defaultShortcut;
    }
    const auto value = defaults_->value(storageKey(name));
    const auto* text = value ? std::get_if<Text>(&*value) : nullptr;
    return text == nullptr ? std::nullopt : decodedShortcut(*text);
}

void KeyboardShortcuts::setShortcut(const std::optional<Shortcut>& shortcut, const Name& name) {
    storeDefaults(); // as far as possible by now
    const std::optional<Shortcut> current = getShortcut(name);
    if (!shortcut && !current) {
        return;
    }
    // The shortcut is stored first: it would never fire otherwise, because presses are compared with stored
    // ones.
    if (store(shortcut, name)) {
        unstoredDefaults_.erase(name.rawValue);
        if (current) {
            unregister(*current);
        }
        if (shortcut) {
            registerOnce(*shortcut);
        }
    }
    shortcutByNameDidChange_.notify(name);
    tellAvailability();
}

std::optional<HotKeyError> KeyboardShortcuts::refusal(const Name& name) const {
    return ofShortcut(hotKeys_.refusals(), getShortcut(name));
}

std::optional<Text> KeyboardShortcuts::desktopTrigger(const Name& name) const {
    return ofShortcut(hotKeys_.desktopTriggers(), getShortcut(name));
}

void KeyboardShortcuts::retryRefused() {
    hotKeys_.retryRefused();
    tellAvailability();
}

bool KeyboardShortcuts::store(const std::optional<Shortcut>& shortcut, const Name& name) {
    if (shortcut) {
        return defaults_->set(storageKey(name), encodedShortcut(*shortcut));
    }
    return name.defaultShortcut ? defaults_->set(storageKey(name), false)
                                : defaults_->remove(storageKey(name));
}

void KeyboardShortcuts::onKeyDown(const Name& name, Handler handler) {
    addHandler(keyDownHandlers_, name, std::move(handler));
}

void KeyboardShortcuts::onKeyUp(const Name& name, Handler handler) {
    addHandler(keyUpHandlers_, name, std::move(handler));
}

void KeyboardShortcuts::disable(const std::vector<Name>& names) {
    for (const Name& name : names) {
        if (const auto shortcut = getShortcut(name)) {
            unregister(*shortcut);
        }
    }
}

void KeyboardShortcuts::enable(const std::vector<Name>& names) {
    for (const Name& name : names) {
        if (const auto shortcut = getShortcut(name)) {
            registerOnce(*shortcut);
        }
    }
    tellAvailability();
}

void KeyboardShortcuts::setRecorderActive(bool isActive) {
    isPaused_ = isActive;
    recorderActiveStatusDidChange_.notify(isActive);
}

void KeyboardShortcuts::addHandler(HandlersByName& handlersByName, const Name& name, Handler handler) {
    Handlers& handlers = handlersByName.try_emplace(name.rawValue, Handlers{name, {}}).first->second;
    handlers.handlers.push_back(std::move(handler));
    enable({name});
}

void KeyboardShortcuts::callHandlers(const HandlersByName& handlersByName, const Shortcut& fired) const {
    if (isPaused_) {
        return;
    }
    std::vector<Handler> toCall; // a copy: a handler may add others
    for (const auto& [rawValue, handlers] : handlersByName) {
        if (getShortcut(handlers.name) == fired) {
            toCall.insert(toCall.end(), handlers.handlers.begin(), handlers.handlers.end());
        }
    }
    for (const Handler& handler : toCall) {
        handler();
    }
}

void KeyboardShortcuts::registerOnce(const Shortcut& shortcut) {
    if (registeredShortcuts_.insert(shortcut).second) {
        hotKeys_.registerShortcut(shortcut);
    }
}

void KeyboardShortcuts::unregister(const Shortcut& shortcut) {
    hotKeys_.unregisterShortcut(shortcut);
    registeredShortcuts_.erase(shortcut);
}

void KeyboardShortcuts::tellAvailability() {
    auto refusals = hotKeys_.refusals();
    auto triggers = hotKeys_.desktopTriggers();
    if (refusals != toldRefusals_ || triggers != toldTriggers_) {
        toldRefusals_ = std::move(refusals);
        toldTriggers_ = std::move(triggers);
        availabilityDidChange_.notify();
    }
}

} // namespace tovrel
