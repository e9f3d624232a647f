#include "hotkeys/FrontmostAppMonitor.h"

#include <utility>

namespace tovrel {

FrontmostAppMonitor::FrontmostAppMonitor(Workspace& workspace, FrontmostAppResolver resolver)
    : workspace_(&workspace), resolver_(std::move(resolver)) {}

void FrontmostAppMonitor::start() {
    remember(workspace_->frontApplication());
    activationObserver_ = workspace_->onActivation(
        [this](const std::shared_ptr<RunningApplication>& application) { remember(application); });
}

std::shared_ptr<RunningApplication> FrontmostAppMonitor::resolveTargetApplication() {
    std::shared_ptr<RunningApplication> front = workspace_->frontApplication();
    if (!front) {
        return nullptr;
    }
    remember(front);
    if (resolver_.isExternal(*front)) {
        return front;
    }
    const bool isUsable = cachedExternalApplication_ && !cachedExternalApplication_->isTerminated();
    return isUsable ? cachedExternalApplication_ : nullptr;
}

void FrontmostAppMonitor::remember(const std::shared_ptr<RunningApplication>& application) {
    if (application && resolver_.isExternal(*application)) {
        cachedExternalApplication_ = application;
    }
}

} // namespace tovrel
