#include "platform/linux/dbus/MenuReadBudget.h"

#include "model/MenuTitle.h"

namespace tovrel {

bool MenuReadBudget::look() {
    constexpr std::size_t betweenLooksAtTheClock = 1024;
    ++values_;
    if (values_ > limits_.values ||
        (values_ % betweenLooksAtTheClock == 0 && std::chrono::steady_clock::now() >= end_)) {
        isExhausted_ = true;
    }
    return !isExhausted_;
}

std::string MenuReadBudget::kept(std::string_view text, std::size_t limit) {
    if (text.size() > limit) {
        return {};
    }
    textBytes_ += text.size();
    isExhausted_ = isExhausted_ || textBytes_ > limits_.textBytes;
    return isExhausted_ ? std::string() : std::string(text);
}

std::string_view MenuReadBudget::keptTitle(std::string_view text) {
    const std::string_view title = text.substr(0, longestMenuName);
    textBytes_ += title.size();
    isExhausted_ = isExhausted_ || textBytes_ > limits_.textBytes;
    return isExhausted_ ? std::string_view() : title;
}

bool MenuReadBudget::keepsValue(std::size_t bytes) {
    valueBytes_ += bytes;
    isExhausted_ = isExhausted_ || valueBytes_ > limits_.valueBytes;
    return !isExhausted_;
}

} // namespace tovrel
