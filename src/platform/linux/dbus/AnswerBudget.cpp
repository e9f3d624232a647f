#include "platform/linux/dbus/AnswerBudget.h"

#include <chrono>

namespace tovrel {

bool AnswerBudget::look() {
    constexpr std::size_t betweenLooksAtTheClock = 1024;
    ++values_;
    if (values_ > limits_.values ||
        (values_ % betweenLooksAtTheClock == 0 && std::chrono::steady_clock::now() >= end_)) {
        isExhausted_ = true;
    }
    return !isExhausted_;
}

std::string AnswerBudget::kept(std::string_view text, std::size_t limit) {
    return text.size() > limit ? std::string() : std::string(keptInFull(text));
}

std::string_view AnswerBudget::keptInFull(std::string_view text) {
    textBytes_ += text.size();
    isExhausted_ = isExhausted_ || textBytes_ > limits_.textBytes;
    return isExhausted_ ? std::string_view() : text;
}

bool AnswerBudget::keepsValue(std::size_t bytes) {
    valueBytes_ += bytes;
    isExhausted_ = isExhausted_ || valueBytes_ > limits_.valueBytes;
    return !isExhausted_;
}

} // namespace tovrel
