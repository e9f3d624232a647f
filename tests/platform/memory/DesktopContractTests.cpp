#include <algorithm>
#include <cerrno>
#include <csignal>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/contract/AccessibilityContract.h"
#include "platform/contract/MainQueueContract.h"
#include "platform/contract/PreferencesDomainContract.h"
#include "platform/contract/ProcessRunnerContract.h"
#include "platform/contract/WorkspaceContract.h"
#include "platform/memory/ManualQueue.h"
#include "platform/memory/MemoryAccessibility.h"
#include "platform/memory/MemoryApplication.h"
#include "platform/memory/MemoryElement.h"
#include "platform/memory/MemoryPreferencesDomain.h"
#include "platform/memory/MemoryProcessRunner.h"
#include "platform/memory/MemoryWorkspace.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

class ManualQueueRig {
  public:
    MainQueue& queue() { return *queue_; }
    template <typename Condition>
    bool until(Condition condition) {
        while (!condition() && now_ < 10s) {
            now_ += 1ms;
            queue_->advance(1ms);
        }
        return condition();
    }
    [[nodiscard]] std::chrono::milliseconds now() const { return now_; }
    void end() { queue_.reset(); }

  private:
    std::optional<ManualQueue> queue_{std::in_place};
    std::chrono::milliseconds now_{};
};

class MemoryProcessRunnerRig {
  public:
    ProcessRunner& runner() { return *runner_; }
    void start(ProcessEnd end, ProcessRunner::Completion completion) {
        running_.emplace(runner_->requests().size(), end);
        runner_->start({"/bin/sh", {}}, std::move(completion));
    }
    LaunchFailure startMissing(ProcessRunner::Completion completion) {
        runner_->refuse(ENOENT);
        runner_->start({"/no/such/program", {}}, std::move(completion));
        return {"/no/such/program", ENOENT};
    }
    void letProgramsEnd() {
        for (const auto& [request, end] : std::exchange(running_, {})) {
            ++ended_;
            if (runner_) {
                runner_->end(request, end);
            }
        }
    }
    [[nodiscard]] std::size_t programsEnded() const { return ended_; }
    template <typename Condition>
    bool until(Condition condition) {
        queue_.runDue();
        return condition();
    }
    void endRunner() { runner_.reset(); }
    void runPosted() { queue_.runDue(); }

  private:
    ManualQueue queue_;
    std::optional<MemoryProcessRunner> runner_{queue_};
    std::map<std::size_t, ProcessEnd> running_;
    std::size_t ended_ = 0;
};

class MemoryWorkspaceRig {
  public:
    Workspace& workspace() { return workspace_; }
    template <typename Condition>
    bool until(Condition condition) {
        return condition();
    }
    [[nodiscard]] std::int32_t one() const { return one_->processIdentifier(); }
    [[nodiscard]] std::int32_t two() const { return two_->processIdentifier(); }
    void switchTo(std::int32_t process) { workspace_.bringToFront(process == one() ? one_ : two_); }
    void switchToUnknown() { workspace_.bringToFront(nullptr); }
    static std::shared_ptr<RunningApplication> windowless() {
        auto gone = std::make_shared<MemoryApplication>(3, std::nullopt, std::nullopt);
        gone->setTerminated(true);
        return gone;
    }
    void grant() { switchTo(workspace_.activated().back()); }
    void install(const InstalledApplication& application) { workspace_.install(application); }
    [[nodiscard]] const std::vector<Text>& opened() const { return workspace_.opened(); }

  private:
    MemoryWorkspace workspace_;
    std::shared_ptr<RunningApplication> one_ =
        std::make_shared<MemoryApplication>(1, Text("org.example.One"), Text("One"));
    std::shared_ptr<RunningApplication> two_ =
        std::make_shared<MemoryApplication>(2, std::nullopt, std::nullopt);
};

class MemoryPreferencesRig {
  public:
    PreferencesDomain& domain() { return domain_; }

  private:
    MemoryPreferencesDomain domain_;
};

class MemoryAccessibilityRig {
  public:
    MemoryAccessibilityRig() {
        const auto menu = std::make_shared<MemoryElement>();
        menu->set("AXChildren", std::vector<Element>{items_.begin(), items_.end()});
        const auto bar = std::make_shared<MemoryElement>();
        bar->set("AXChildren", std::vector<Element>{menu});
        const auto root = std::make_shared<MemoryElement>();
        root->set("AXMenuBar", Element(bar));
        accessibility_.setApplicationElement(process(), root);
    }

    Accessibility& accessibility() { return accessibility_; }
    static std::int32_t process() { return 7; }
    void setTrusted(bool isTrusted) { accessibility_.setTrusted(isTrusted); }
    void renameNew() { items_[0]->set("AXTitle", Text("New Window")); }
    [[nodiscard]] std::vector<std::string> pressed() const {
        std::vector<std::string> titles;
        for (const auto& item : items_) {
            titles.insert(titles.end(),
                          static_cast<std::size_t>(std::ranges::count(item->performedActions(), "AXPress")),
                          item->string("AXTitle")->utf8());
        }
        return titles;
    }
    template <typename Condition>
    bool until(Condition condition) {
        return condition();
    }
    void quit() {
        accessibility_.setApplicationElement(process(), nullptr);
        for (const auto& item : items_) {
            item->setAcceptsActions(false);
        }
    }

  private:
    using Element = MemoryElement::Element;

    std::vector<std::shared_ptr<MemoryElement>> items_{
        std::make_shared<MemoryElement>(
            MemoryElement::Attributes{{"AXTitle", Text("New")},
                                      {"AXEnabled", true},
                                      {"AXMenuItemCmdChar", Text("n")},
                                      {"AXMenuItemCmdModifiers", std::int64_t{0}}}),
        std::make_shared<MemoryElement>(
            MemoryElement::Attributes{{"AXTitle", Text("Save")},
                                      {"AXEnabled", false},
                                      {"AXMenuItemCmdChar", Text("s")},
                                      {"AXMenuItemCmdModifiers", std::int64_t{1}}}),
        std::make_shared<MemoryElement>(MemoryElement::Attributes{
            {"AXTitle", Text("Wrap")}, {"AXEnabled", true}, {"AXMenuItemMarkChar", Text("✓")}})};
    MemoryAccessibility accessibility_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, MainQueueContract, ManualQueueRig);
INSTANTIATE_TYPED_TEST_SUITE_P(Memory, ProcessRunnerContract, MemoryProcessRunnerRig);
INSTANTIATE_TYPED_TEST_SUITE_P(Memory, WorkspaceContract, MemoryWorkspaceRig);
INSTANTIATE_TYPED_TEST_SUITE_P(Memory, AccessibilityContract, MemoryAccessibilityRig);
INSTANTIATE_TYPED_TEST_SUITE_P(Memory, PreferencesDomainContract, MemoryPreferencesRig);
INSTANTIATE_TYPED_TEST_SUITE_P(LastKnownOfMemory, PreferencesDomainContract,
                               LastKnownPreferencesRig<MemoryPreferencesRig>);

} // namespace
} // namespace tovrel
