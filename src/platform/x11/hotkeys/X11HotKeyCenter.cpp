#include "platform/x11/hotkeys/X11HotKeyCenter.h"

#include <algorithm>
#include <utility>

#include "model/VirtualKeyCodes.h"
#include "platform/linux/keyboard/VirtualKeyCodes.h"
#include "platform/x11/hotkeys/UngrabKeyboard.h"

namespace tovrel {
namespace {

/// The bits of an event's state that are modifiers; the rest are pointer buttons and the layout's group.
constexpr std::uint16_t modifierBits = 0xFF;

} // namespace

X11HotKeyCenter::X11HotKeyCenter(MainQueue& queue, DestinationOfKeys destination, const char* display)
    : queue_(queue), destination_(std::move(destination)), connection_(display),
      guard_([this] { ungrabKeyboard(connection_.handle()); }), reader_(connection_, guard_),
      xkb_(connection_.handle()), rawKeys_(connection_.handle(), connection_.root()), focusWait_(connection_),
      takenKeyboard_(connection_, guard_) {
    xkb_.useDetectableAutoRepeat();
    xkb_.selectKeyboardEvents();
    keyMap_ = X11KeyMap::read(connection_.handle());
}

HotKeyHandle X11HotKeyCenter::registerHotKey(std::uint32_t keyCode, std::uint32_t carbonModifiers,
                                             HotKeyIdentifier identifier, Completion completion) {
    Registration registration;
    registration.handle = ++lastHandle_;
    registration.identifier = identifier;
    registration.keyCode = keyCode;
    registration.modifiers = modifierFlags(carbonModifiers);
    const HotKeyHandle handle = registration.handle;
    completion(registered(std::move(registration)));
    return handle;
}

HotKeyOutcome X11HotKeyCenter::registered(Registration registration) {
    auto grab = grabFor(registration.keyCode, registration.modifiers);
    if (const HotKeyError* error = std::get_if<HotKeyError>(&grab)) {
        return *error;
    }
    registration.grab = std::get<X11HotKeyGrab>(std::move(grab));
    if (std::any_of(registrations_.begin(), registrations_.end(),
                    [&](const Registration& other) { return other.grab == registration.grab; })) {
        return HotKeyError::alreadyRegistered;
    }
    if (const auto refusal = take(registration.grab)) {
        waitForServer();
        return *refusal;
    }
    // Releases are selected before the server is asked, so that none is missed in between.
    registration.state = KeyState::heldBefore;
    registrations_.push_back(std::move(registration));
    selectRawKeys();
    reportKeysFoundUp();
    return connection_.isOpen() ? HotKeyOutcome(HotKeyRegistered()) : HotKeyError::noHotKeys;
}

void X11HotKeyCenter::unregisterHotKey(HotKeyHandle handle) {
    const Registration* found = find(handle);
    if (found == nullptr) {
        return;
    }
    found->grab.giveBack(connection_.handle(), connection_.root());
    std::erase_if(registrations_,
                  [&](const Registration& registration) { return registration.handle == handle; });
    selectRawKeys();
    if (heldFor_ == handle) {
        letGo();
    }
    waitForServer();
}

std::optional<HotKeyError> X11HotKeyCenter::refusal(HotKeyHandle handle) const {
    const auto found =
        std::find_if(registrations_.begin(), registrations_.end(),
                     [&](const Registration& registration) { return registration.handle == handle; });
    return found == registrations_.end() ? std::nullopt : found->refusal;
}

void X11HotKeyCenter::setHotKeyHandler(HotKeyHandler handler) {
    handler_ = std::move(handler);
}

void X11HotKeyCenter::setRawKeyHandler(RawKeyHandler handler) {
    rawHandler_ = std::move(handler);
    xkb_.selectStateEvents(rawHandler_ != nullptr);
    selectRawKeys();
    if (rawHandler_) {
        keyboardState_ = xkb_.state().value_or(XkbExtension::State());
    }
    xcb_flush(connection_.handle());
}

bool X11HotKeyCenter::takeKeyboard(KeyHandler handler, std::function<void()> onLoss) {
    return keyMap_ && connection_.isOpen() && takenKeyboard_.take(std::move(handler), std::move(onLoss));
}

void X11HotKeyCenter::giveKeyboardBack(bool passesKeyOn) {
    takenKeyboard_.giveBack(passesKeyOn);
}

bool X11HotKeyCenter::isSystemShortcut(const Shortcut& shortcut) {
    const auto tried =
        grabFor(static_cast<std::uint32_t>(shortcut.carbonKeyCode), modifierFlags(shortcut.carbonModifiers));
    const auto* grab = std::get_if<X11HotKeyGrab>(&tried);
    if (grab == nullptr ||
        std::any_of(registrations_.begin(), registrations_.end(),
                    [&](const Registration& own) { return !own.refusal && own.grab == *grab; })) {
        return false;
    }
    const bool isRefused = take(*grab).has_value();
    if (!isRefused) {
        grab->giveBack(connection_.handle(), connection_.root());
    }
    waitForServer();
    return isRefused;
}

std::optional<Text> X11HotKeyCenter::characterForKeyCode(std::uint32_t keyCode) {
    const auto key = xkbKeyCode(keyCode);
    if (!key || !connection_.isOpen()) {
        return std::nullopt;
    }
    return text(*key, xkb_.state().value_or(XkbExtension::State()).group, false);
}

void X11HotKeyCenter::dispatch() {
    for (;;) {
        if (const X11EventReader::Event next = reader_.next()) {
            handle(*next.event, next.hold);
        } else if (std::exchange(hasKeyboardChanged_, false)) {
            adoptKeyboard();
        } else {
            break;
        }
    }
    xcb_flush(connection_.handle());
}

std::variant<X11HotKeyGrab, HotKeyError> X11HotKeyCenter::grabFor(std::uint32_t keyCode,
                                                                  ModifierFlags modifiers) const {
    if (!keyMap_ || !connection_.isOpen() || !rawKeys_.isAvailable()) {
        return HotKeyError::noHotKeys;
    }
    const auto key = xkbKeyCode(keyCode);
    if (!key || !keyMap_->hasKey(*key)) {
        return HotKeyError::noSuchKey;
    }
    const auto x11Modifiers = keyMap_->modifiersFor(modifiers);
    if (!x11Modifiers) {
        return HotKeyError::noSuchModifier;
    }
    return X11HotKeyGrab{*key, *x11Modifiers, keyMap_->lockCombinations()};
}

std::optional<HotKeyError> X11HotKeyCenter::take(const X11HotKeyGrab& grab) const {
    const auto error = grab.take(connection_.handle(), connection_.root());
    if (!error) {
        return std::nullopt;
    }
    return *error == XCB_ACCESS ? HotKeyError::takenByAnother : HotKeyError::refused;
}

X11HotKeyCenter::Registration* X11HotKeyCenter::find(HotKeyHandle handle) {
    const auto found =
        std::find_if(registrations_.begin(), registrations_.end(),
                     [&](const Registration& registration) { return registration.handle == handle; });
    return found == registrations_.end() ? nullptr : &*found;
}

void X11HotKeyCenter::handle(const xcb_generic_event_t& event, KeyboardGuard::Hold hold) {
    if (const auto key = rawKeys_.keyOf(event)) {
        handleRawKey(*key);
    } else if (const auto state = xkb_.stateOf(event)) {
        keyboardState_ = *state;
    } else if (xkb_.isKeyboardChange(event)) {
        hasKeyboardChanged_ = true;
    } else {
        switch (event.response_type & 0x7FU) {
        case XCB_KEY_PRESS:
        case XCB_KEY_RELEASE:
            handleKey(reinterpret_cast<const xcb_key_press_event_t&>(event), hold);
            break;
        case XCB_FOCUS_IN:
        case XCB_FOCUS_OUT:
        case XCB_PROPERTY_NOTIFY:
            if (focusWait_.isWaiting() && focusWait_.isReached()) {
                letGo();
            }
            break;
        case XCB_MAPPING_NOTIFY:
            hasKeyboardChanged_ = true;
            break;
        default: // Errors too: a window that is gone never gets the focus.
            break;
        }
    }
}

void X11HotKeyCenter::handleKey(const xcb_key_press_event_t& event, KeyboardGuard::Hold hold) {
    if (hold == 0) {
        return; // Another client has sent it.
    }
    const bool isPress = event.response_type == XCB_KEY_PRESS;
    if (takenKeyboard_.isTaken()) {
        handleTakenKey(event, isPress, hold);
    } else if (isPress) {
        handlePress(event, hold);
    } else {
        guard_.end(hold, [this] { ungrabKeyboard(connection_.handle()); });
    }
}

void X11HotKeyCenter::handlePress(const xcb_key_press_event_t& event, KeyboardGuard::Hold hold) {
    endHold(); // The previous hold is over, or this press would not have come.
    currentHold_ = hold;
    lastPressTime_ = event.time;
    const auto pressed =
        std::find_if(registrations_.begin(), registrations_.end(), [&](const Registration& registration) {
            return registration.grab.matches(event.detail, event.state & modifierBits);
        });
    if (pressed == registrations_.end() || pressed->state == KeyState::heldBefore) {
        letGo();
        return;
    }
    heldFor_ = pressed->handle;
    const HotKeyIdentifier identifier = pressed->identifier;
    if (pressed->state == KeyState::down) { // The key repeats: nothing will change the focus.
        endHold();
        report(identifier, HotKeyEventKind::pressed);
        reportKeysFoundUp();
        return;
    }
    pressed->state = KeyState::down;
    selectRawKeys();
    holdAtFocusedWindow(event.time);
    report(identifier, HotKeyEventKind::pressed);
    if (currentHold_ != hold) {
        return; // The handler has unregistered the key.
    }
    focusWait_.begin(destination_ ? destination_() : KeyDestination());
    if (!guard_.isHeld(hold) || focusWait_.isReached()) {
        letGo();
    } else {
        letGoAfter(longestFocusWait);
    }
}

void X11HotKeyCenter::handleTakenKey(const xcb_key_press_event_t& event, bool isPress,
                                     KeyboardGuard::Hold hold) {
    KeyEvent key;
    key.type = isPress ? KeyEventType::keyDown : KeyEventType::keyUp;
    key.keyCode = virtualKeyCodeOfXkb(event.detail).value_or(key_codes::unknown);
    key.modifierFlags = keyMap_->flagsFor(event.state & modifierBits);
    takenKeyboard_.handleKey(key, hold);
}

void X11HotKeyCenter::handleRawKey(const X11RawKeys::Key& key) {
    const auto keyCode = virtualKeyCodeOfXkb(key.keyCode);
    if (rawHandler_ && keyCode && keyMap_) {
        const RawKeyHandler handler = rawHandler_; // it may replace itself
        KeyEvent event;
        event.type = key.isPress ? KeyEventType::keyDown : KeyEventType::keyUp;
        event.keyCode = *keyCode;
        event.modifierFlags = keyMap_->flagsFor(keyboardState_.modifiers);
        event.charactersIgnoringModifiers =
            text(static_cast<xcb_keycode_t>(key.keyCode), keyboardState_.group,
                 (event.modifierFlags & modifier_flags::shift) != 0);
        handler(event);
    }
    if (!key.isPress) {
        std::vector<HotKeyHandle> handles;
        for (const Registration& registration : registrations_) {
            if (registration.grab.key == key.keyCode) {
                handles.push_back(registration.handle);
            }
        }
        std::for_each(handles.begin(), handles.end(), [this](HotKeyHandle handle) { released(handle); });
    }
}

void X11HotKeyCenter::released(HotKeyHandle handle) {
    Registration* registration = find(handle);
    if (registration == nullptr || registration->state == KeyState::up) {
        return;
    }
    const KeyState before = std::exchange(registration->state, KeyState::up);
    selectRawKeys();
    if (before == KeyState::down) {
        report(registration->identifier, HotKeyEventKind::released);
    }
}

void X11HotKeyCenter::report(HotKeyIdentifier identifier, HotKeyEventKind kind) {
    const HotKeyHandler handler = handler_; // it may replace itself
    if (handler) {
        handler({identifier, kind});
    }
}

void X11HotKeyCenter::holdAtFocusedWindow(xcb_timestamp_t time) {
    xcb_connection_t* connection = connection_.handle();
    const XcbOwned<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    const bool isWindow =
        focus && focus->focus > XCB_INPUT_FOCUS_POINTER_ROOT && focus->focus != connection_.root();
    // The server ends a grab whose window disappears, as the panel's is about to.
    if (!isWindow || (destination_ && destination_().window == focus->focus)) {
        return;
    }
    xcb_grab_keyboard_cookie_t moved{};
    const bool isAsked = guard_.during(currentHold_, [&] {
        moved = xcb_grab_keyboard(connection, 0, focus->focus, time, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_SYNC);
    });
    if (isAsked) { // A refusal, for instance because the window is gone, changes nothing.
        const XcbOwned<xcb_grab_keyboard_reply_t> answer(xcb_grab_keyboard_reply(connection, moved, nullptr));
    }
}

void X11HotKeyCenter::letGoAfter(std::chrono::milliseconds limit) {
    queue_.postAfter(limit, [this, life = std::weak_ptr(life_), hold = currentHold_] {
        if (!life.expired() && currentHold_ == hold) {
            letGo();
            dispatch();
        }
    });
}

void X11HotKeyCenter::letGo() {
    endHold();
    reportKeysFoundUp();
}

void X11HotKeyCenter::endHold() {
    heldFor_ = 0;
    focusWait_.end();
    guard_.end(std::exchange(currentHold_, 0), [this] { ungrabKeyboard(connection_.handle()); });
    xcb_flush(connection_.handle());
}

void X11HotKeyCenter::reportKeysFoundUp() {
    const auto down = keysDown(connection_.handle());
    if (!down) {
        return;
    }
    std::vector<HotKeyHandle> handles;
    for (const Registration& registration : registrations_) {
        if (registration.state != KeyState::up && !down->test(registration.grab.key)) {
            handles.push_back(registration.handle);
        }
    }
    std::for_each(handles.begin(), handles.end(), [this](HotKeyHandle handle) { released(handle); });
}

void X11HotKeyCenter::adoptKeyboard() {
    layout_.reset();
    if (auto keyMap = X11KeyMap::read(connection_.handle())) {
        keyMap_ = std::move(keyMap);
    }
    for (Registration& registration : registrations_) {
        auto grab = grabFor(registration.keyCode, registration.modifiers);
        const auto* wanted = std::get_if<X11HotKeyGrab>(&grab);
        if (!registration.refusal && wanted != nullptr && *wanted == registration.grab) {
            continue;
        }
        registration.grab.giveBack(connection_.handle(), connection_.root());
        if (wanted == nullptr) {
            registration.refusal = std::get<HotKeyError>(grab);
        } else {
            registration.grab = *wanted;
            registration.refusal = take(*wanted);
        }
    }
    if (const KeyboardHandler handler = keyboardHandler_) {
        handler();
    }
}

void X11HotKeyCenter::selectRawKeys() {
    const bool isAnyDown =
        std::any_of(registrations_.begin(), registrations_.end(),
                    [](const Registration& registration) { return registration.state != KeyState::up; });
    rawKeys_.select(rawHandler_ != nullptr, rawHandler_ != nullptr || isAnyDown);
}

void X11HotKeyCenter::waitForServer() {
    // Any question will do, because the server answers it after all earlier requests.
    static_cast<void>(keysDown(connection_.handle()));
}

std::optional<Text> X11HotKeyCenter::text(xcb_keycode_t key, std::uint32_t group, bool withShift) {
    if (!layout_) {
        layout_.emplace(connection_.handle());
    }
    return layout_->text(key, group, withShift);
}

} // namespace tovrel
