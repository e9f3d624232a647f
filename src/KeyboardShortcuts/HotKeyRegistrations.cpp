#include "KeyboardShortcuts/HotKeyRegistrations.h"

#include <algorithm>
#include <limits>
#include <ostream>
#include <utility>

#include "KeyboardShortcuts/SymbolicText.h"
#include "support/CheckedMath.h"
#include "support/Fatal.h"
#include "support/PrintableText.h"

namespace tovrel {
namespace {

/// "TVHK" identifies this module's hot keys.
constexpr std::uint32_t signature = 0x5456484B;

std::uint32_t unsigned32(std::int64_t value) {
    if (value < 0 || value > std::numeric_limits<std::uint32_t>::max()) {
        fatal("a hot key's number does not fit 32 bits");
    }
    return static_cast<std::uint32_t>(value);
}

} // namespace

HotKeyRegistrations::HotKeyRegistrations(HotKeyCenter& center, const TextServices& textServices,
                                         std::ostream& output, Callback onKeyDown, Callback onKeyUp,
                                         std::function<void()> onLateOutcome)
    : center_(&center), textServices_(&textServices), output_(&output), onKeyDown_(std::move(onKeyDown)),
      onKeyUp_(std::move(onKeyUp)), onLateOutcome_(std::move(onLateOutcome)) {}

HotKeyRegistrations::~HotKeyRegistrations() {
    center_->setHotKeyHandler(nullptr);
    center_->setRawKeyHandler(nullptr);
    for (auto& [id, record] : records_) {
        giveBack(record);
    }
}

void HotKeyRegistrations::registerShortcut(const Shortcut& shortcut) {
    lastId_ = checkedAdd(lastId_, 1);
    const std::uint32_t id = unsigned32(lastId_);
    take(id, records_.emplace(id, Record(shortcut)).first->second);
    installHandlerOnce();
}

void HotKeyRegistrations::unregisterShortcut(const Shortcut& shortcut) {
    for (auto& [id, record] : records_) {
        if (record.shortcut == shortcut) {
            giveBack(record);
        }
    }
    std::erase_if(records_, [&](const auto& entry) { return entry.second.shortcut == shortcut; });
    down_.erase(shortcut);
}

void HotKeyRegistrations::retryRefused() {
    if (isMenuOpen_) {
        return; // all are tried when the menu closes
    }
    for (auto& [id, record] : records_) {
        if (const auto refusal =
                record.state == State::registered ? center_->refusal(record.handle) : std::nullopt) {
            giveBack(record);
            record.refusal = refusal;
        }
        if (!record.isHeld()) {
            take(id, record);
        }
    }
    installHandlerOnce();
}

std::map<Shortcut, HotKeyError> HotKeyRegistrations::refusals() const {
    std::map<Shortcut, HotKeyError> refusals;
    for (const auto& [id, record] : records_) {
        if (record.refusal) {
            refusals.emplace(record.shortcut, *record.refusal);
        }
    }
    return refusals;
}

std::map<Shortcut, Text> HotKeyRegistrations::desktopTriggers() const {
    std::map<Shortcut, Text> triggers;
    for (const auto& [id, record] : records_) {
        if (record.desktopTrigger) {
            triggers.emplace(record.shortcut, *record.desktopTrigger);
        }
    }
    return triggers;
}

void HotKeyRegistrations::setMenuOpen(bool isOpen) {
    if (std::exchange(isMenuOpen_, isOpen) != isOpen && isHandlerInstalled_) {
        updateEventHandler();
    }
}

void HotKeyRegistrations::take(std::uint32_t id, Record& record) {
    const Shortcut& shortcut = record.shortcut;
    record.state = State::asked;
    const bool wasTaking = std::exchange(isTaking_, true);
    record.handle = center_->registerHotKey(
        unsigned32(shortcut.carbonKeyCode), unsigned32(shortcut.carbonModifiers), {signature, id},
        [this, id](const HotKeyOutcome& outcome) { complete(id, outcome); });
    isTaking_ = wasTaking;
}

void HotKeyRegistrations::giveBack(Record& record) {
    if (record.isHeld()) {
        record.state = State::givenBack;
        center_->unregisterHotKey(record.handle);
    }
}

void HotKeyRegistrations::complete(std::uint32_t id, const HotKeyOutcome& outcome) {
    Record& record = records_.at(id); // no outcome is reported after a registration is given back
    if (const auto* registered = std::get_if<HotKeyRegistered>(&outcome)) {
        record.state = State::registered;
        record.refusal.reset();
        record.desktopTrigger = registered->desktopTrigger;
    } else {
        refuse(record, std::get<HotKeyError>(outcome));
    }
    if (!isTaking_) {
        installHandlerOnce();
        onLateOutcome_();
    }
}

void HotKeyRegistrations::refuse(Record& record, HotKeyError error) {
    record.state = State::refused;
    record.desktopTrigger.reset();
    if (!std::exchange(record.refusal, error)) {
        const Text text = symbolicText(
            record.shortcut, [this](std::uint32_t keyCode) { return center_->characterForKeyCode(keyCode); },
            *textServices_);
        *output_ << "Error registering hotkey " << printable(text.utf8()) << ": "
                 << static_cast<std::int32_t>(error) << std::endl;
    }
}

void HotKeyRegistrations::installHandlerOnce() {
    const bool isNeeded = std::any_of(records_.begin(), records_.end(), [](const auto& entry) {
        return entry.second.state == State::registered;
    });
    if (isNeeded && !std::exchange(isHandlerInstalled_, true)) {
        updateEventHandler();
    }
}

void HotKeyRegistrations::updateEventHandler() {
    if (isMenuOpen_) {
        for (auto& [id, record] : records_) {
            giveBack(record);
        }
        center_->setHotKeyHandler(nullptr);
        center_->setRawKeyHandler([this](const KeyEvent& event) { return handleRawKey(event); });
        return;
    }
    for (auto& [id, record] : records_) {
        if (!record.isHeld()) {
            take(id, record);
        }
    }
    if (down_.empty()) {
        center_->setRawKeyHandler(nullptr);
    }
    center_->setHotKeyHandler([this](const HotKeyEvent& event) { return handleHotKey(event); });
}

bool HotKeyRegistrations::handleHotKey(const HotKeyEvent& event) {
    const auto found = records_.find(event.identifier.id);
    if (event.identifier.signature != signature || found == records_.end()) {
        return false;
    }
    const Shortcut shortcut = found->second.shortcut; // the callback may unregister the shortcut
    if (event.kind == HotKeyEventKind::pressed) {
        down_.insert(shortcut);
        onKeyDown_(shortcut);
    } else {
        down_.erase(shortcut);
        onKeyUp_(shortcut);
    }
    return true;
}

bool HotKeyRegistrations::handleRawKey(const KeyEvent& event) {
    if (event.type == KeyEventType::keyUp) {
        // The modifiers may have come up before the key.
        const auto found = std::find_if(down_.begin(), down_.end(), [&](const Shortcut& shortcut) {
            return shortcut.carbonKeyCode == event.keyCode;
        });
        if (found == down_.end()) {
            return false;
        }
        const Shortcut released = *found;
        down_.erase(found);
        if (!isMenuOpen_ && down_.empty()) {
            center_->setRawKeyHandler(nullptr);
        }
        onKeyUp_(released);
        return true;
    }
    const Shortcut pressed{event.keyCode, carbonModifiers(event.modifierFlags)};
    const bool isOurs = isMenuOpen_ && std::any_of(records_.begin(), records_.end(), [&](const auto& entry) {
                            return entry.second.shortcut == pressed && !entry.second.refusal;
                        });
    if (isOurs) {
        down_.insert(pressed);
        onKeyDown_(pressed);
    }
    return isOurs;
}

} // namespace tovrel
