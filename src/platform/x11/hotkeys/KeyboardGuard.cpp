#include "platform/x11/hotkeys/KeyboardGuard.h"

#include <utility>

namespace tovrel {

KeyboardGuard::KeyboardGuard(Request letGo) : letGo_(std::move(letGo)), thread_([this] { watch(); }) {}

KeyboardGuard::~KeyboardGuard() {
    {
        const std::lock_guard lock(mutex_);
        isEnding_ = true;
    }
    changed_.notify_one();
    thread_.join();
}

KeyboardGuard::Hold KeyboardGuard::begin() {
    Hold hold = 0;
    {
        const std::lock_guard lock(mutex_);
        hold = ++last_;
        current_ = hold;
        deadline_ = std::chrono::steady_clock::now() + longestHold;
    }
    changed_.notify_one();
    return hold;
}

bool KeyboardGuard::during(Hold hold, const Request& request) {
    const std::lock_guard lock(mutex_);
    const bool isHeld = hold != 0 && current_ == hold;
    if (isHeld) {
        request();
    }
    return isHeld;
}

bool KeyboardGuard::end(Hold hold, const Request& request) {
    const std::lock_guard lock(mutex_);
    const bool isHeld = hold != 0 && current_ == hold;
    if (isHeld) {
        current_ = 0;
        request();
    }
    return isHeld;
}

bool KeyboardGuard::isHeld(Hold hold) {
    const std::lock_guard lock(mutex_);
    return hold != 0 && current_ == hold;
}

void KeyboardGuard::watch() {
    std::unique_lock lock(mutex_);
    while (!isEnding_) {
        if (current_ == 0) {
            changed_.wait(lock);
        } else if (std::chrono::steady_clock::now() < deadline_) {
            // A hold that ends earlier does not wake this thread; most holds end within a few milliseconds.
            changed_.wait_until(lock, deadline_);
        } else {
            current_ = 0;
            letGo_();
        }
    }
}

} // namespace tovrel
