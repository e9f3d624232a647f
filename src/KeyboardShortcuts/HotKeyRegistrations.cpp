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

/// "TVHK": tells this module's hot keys from any other's.
constexpr std::uint32_t signature = 0x5456484B;

std::uint32_t unsigned32(std::int64_t value) {
    if (value < 0 || value > std::numeric_limits<std::uint32_t>::max()) {
        fatal("a hot key's number does not fit 32 bits");
    }
    return static_cast<std::uint32_t>(value);
}

} // namespace

HotKeyRegistrations::HotKeyRegistrations(HotKeyCenter& center, const TextServices& textServices,
                                         std::ostream& output, Callback onKeyDown, Callback onKeyUp)
    : center_(&center), textServices_(&textServices), output_(&output), onKeyDown_(std::move(onKeyDown)),
      onKeyUp_(std::move(onKeyUp)) {}

HotKeyRegistrations::~HotKeyRegistrations() {
    center_->setHotKeyHandler(nullptr);
    center_->setRawKeyHandler(nullptr);
    for (const auto& [id, record] : records_) {
        if (record.handle) {
            center_->unregisterHotKey(*record.handle);
        }
    }
}

void HotKeyRegistrations::registerShortcut(const Shortcut& shortcut) {
    lastId_ = checkedAdd(lastId_, 1);
    const std::uint32_t id = unsigned32(lastId_);
    const std::optional<HotKeyHandle> handle = take(shortcut, id);
    if (!handle) {
        return;
    }
    records_.emplace(id, Record{shortcut, handle});
    if (!isHandlerInstalled_) {
        isHandlerInstalled_ = true;
        updateEventHandler();
    }
}

void HotKeyRegistrations::unregisterShortcut(const Shortcut& shortcut) {
    std::erase_if(records_, [&](const auto& entry) {
        const Record& record = entry.second;
        if (record.shortcut != shortcut) {
            return false;
        }
        if (record.handle) {
            center_->unregisterHotKey(*record.handle);
        }
        return true;
    });
}

void HotKeyRegistrations::setMenuOpen(bool isOpen) {
    if (std::exchange(isMenuOpen_, isOpen) != isOpen && isHandlerInstalled_) {
        updateEventHandler();
    }
}

std::optional<HotKeyHandle> HotKeyRegistrations::take(const Shortcut& shortcut, std::uint32_t id) {
    const auto result = center_->registerHotKey(unsigned32(shortcut.carbonKeyCode),
                                                unsigned32(shortcut.carbonModifiers), {signature, id});
    if (const auto* error = std::get_if<HotKeyError>(&result)) {
        const Text text = symbolicText(
            shortcut, [this](std::uint32_t keyCode) { return center_->characterForKeyCode(keyCode); },
            *textServices_);
        *output_ << "Error registering hotkey " << printable(text.utf8()) << ": " << *error << std::endl;
        return std::nullopt;
    }
    return std::get<HotKeyHandle>(result);
}

void HotKeyRegistrations::updateEventHandler() {
    if (isMenuOpen_) {
        for (auto& [id, record] : records_) {
            if (const auto handle = std::exchange(record.handle, std::nullopt)) {
                center_->unregisterHotKey(*handle);
            }
        }
        center_->setHotKeyHandler(nullptr);
        center_->setRawKeyHandler([this](const KeyEvent& event) { return handleRawKey(event); });
        return;
    }
    for (auto& [id, record] : records_) {
        if (!record.handle) {
            record.handle = take(record.shortcut, id);
        }
    }
    std::erase_if(records_, [](const auto& entry) { return !entry.second.handle; });
    center_->setRawKeyHandler(nullptr);
    center_->setHotKeyHandler([this](const HotKeyEvent& event) { return handleHotKey(event); });
}

bool HotKeyRegistrations::handleHotKey(const HotKeyEvent& event) {
    const auto found = records_.find(event.identifier.id);
    if (event.identifier.signature != signature || found == records_.end()) {
        return false;
    }
    const Shortcut shortcut = found->second.shortcut; // the callback may unregister it
    (event.kind == HotKeyEventKind::pressed ? onKeyDown_ : onKeyUp_)(shortcut);
    return true;
}

bool HotKeyRegistrations::handleRawKey(const KeyEvent& event) {
    const Shortcut pressed{event.keyCode, carbonModifiers(event.modifierFlags)};
    const auto found = std::find_if(records_.begin(), records_.end(),
                                    [&](const auto& entry) { return entry.second.shortcut == pressed; });
    if (found == records_.end()) {
        return false;
    }
    (event.type == KeyEventType::keyDown ? onKeyDown_ : onKeyUp_)(pressed);
    return true;
}

} // namespace tovrel
