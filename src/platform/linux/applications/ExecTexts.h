#pragma once

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace tovrel {

/// Texts in the form that `exec` takes: an array of pointers with a null at its end.
class ExecTexts {
  public:
    explicit ExecTexts(std::vector<std::string> texts) : texts_(std::move(texts)) {
        pointers_.reserve(texts_.size() + 1);
        std::transform(texts_.begin(), texts_.end(), std::back_inserter(pointers_),
                       [](std::string& text) { return text.data(); });
        pointers_.push_back(nullptr);
    }
    ExecTexts(const ExecTexts&) = delete;
    ExecTexts& operator=(const ExecTexts&) = delete;
    ExecTexts(ExecTexts&&) = default; // the texts stay where they are
    ExecTexts& operator=(ExecTexts&&) = default;
    ~ExecTexts() = default;

    [[nodiscard]] char* const* get() const { return pointers_.data(); }

  private:
    std::vector<std::string> texts_;
    std::vector<char*> pointers_;
};

} // namespace tovrel
