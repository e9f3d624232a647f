#pragma once

#include "platform/ProcessRunner.h"

namespace tovrel {

/// Runs nothing: keeps the requests and answers each as told.
class MemoryProcessRunner : public ProcessRunner {
  public:
    [[nodiscard]] std::variant<std::int32_t, LaunchFailure>
    run(const CommandProcessRequest& request) override {
        requests_.push_back(request);
        return outcome_;
    }

    void setOutcome(std::variant<std::int32_t, LaunchFailure> outcome) { outcome_ = outcome; }
    [[nodiscard]] const std::vector<CommandProcessRequest>& requests() const { return requests_; }

  private:
    std::vector<CommandProcessRequest> requests_;
    std::variant<std::int32_t, LaunchFailure> outcome_ = 0;
};

} // namespace tovrel
