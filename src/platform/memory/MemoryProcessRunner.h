#pragma once

#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "platform/MainQueue.h"
#include "platform/ProcessRunner.h"

namespace tovrel {

/// Keeps requests without running them; tests say how their processes end.
class MemoryProcessRunner : public ProcessRunner {
  public:
    explicit MemoryProcessRunner(MainQueue& queue) : queue_(&queue) {}

    void start(const CommandProcessRequest& request, Completion completion) override {
        requests_.push_back(request);
        completions_.push_back(std::move(completion));
        if (launchError_) {
            complete(requests_.size() - 1, LaunchFailure{request.executablePath, *launchError_});
        }
    }

    /// Makes every later start fail with this errno value.
    void refuse(int error) { launchError_ = error; }

    /// Ends the process of a request; it must not have ended yet.
    void end(std::size_t request, ProcessEnd end) { complete(request, end); }

    [[nodiscard]] const std::vector<CommandProcessRequest>& requests() const { return requests_; }

  private:
    void complete(std::size_t request, const ProcessOutcome& outcome) {
        queue_->post([completion = std::move(completions_.at(request)), outcome,
                      runner = std::weak_ptr<const bool>(isThere_)] {
            if (!runner.expired()) {
                completion(outcome);
            }
        });
    }

    MainQueue* queue_;
    std::optional<int> launchError_;
    std::vector<CommandProcessRequest> requests_;
    std::vector<Completion> completions_;
    std::shared_ptr<const bool> isThere_ = std::make_shared<const bool>(true);
};

} // namespace tovrel
