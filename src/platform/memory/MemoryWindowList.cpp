#include "platform/memory/MemoryWindowList.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tovrel {

std::optional<ApplicationWindow>
MemoryWindowList::activeWindow(std::chrono::steady_clock::time_point /*deadline*/) {
    return active_ ? std::optional(*find(*active_)) : std::nullopt;
}

std::vector<ApplicationWindow> MemoryWindowList::windowsOf(std::int32_t processIdentifier) {
    std::vector<ApplicationWindow> found;
    std::copy_if(windows_.begin(), windows_.end(), std::back_inserter(found),
                 [&](const ApplicationWindow& each) { return each.processIdentifier == processIdentifier; });
    std::stable_partition(found.begin(), found.end(),
                          [this](const ApplicationWindow& each) { return each.identifier == active_; });
    return found;
}

bool MemoryWindowList::activate(const WindowIdentifier& window) {
    if (find(window) == windows_.end()) {
        return false;
    }
    asked_.push_back(window);
    return true;
}

bool MemoryWindowList::waitUntilActive(std::int32_t processIdentifier,
                                       std::chrono::steady_clock::time_point deadline) {
    const auto active = activeWindow(deadline);
    return active && active->processIdentifier == processIdentifier;
}

void MemoryWindowList::open(ApplicationWindow window) {
    windows_.insert(windows_.begin(), std::move(window));
}

void MemoryWindowList::close(const WindowIdentifier& window) {
    if (active_ == window) {
        active_.reset();
    }
    std::erase_if(windows_, [&](const ApplicationWindow& each) { return each.identifier == window; });
}

void MemoryWindowList::setActive(const std::optional<WindowIdentifier>& window) {
    active_ = window && find(*window) != windows_.end() ? window : std::nullopt;
    if (active_ && std::exchange(lastTold_, *active_) != *active_) {
        activations_.notify(*find(*active_));
    }
}

std::vector<ApplicationWindow>::const_iterator MemoryWindowList::find(const WindowIdentifier& window) const {
    return std::find_if(windows_.begin(), windows_.end(),
                        [&](const ApplicationWindow& each) { return each.identifier == window; });
}

} // namespace tovrel
