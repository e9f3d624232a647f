#include "platform/contract/AccessibilityContract.h"

#include <atomic>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

#include "platform/linux/menus/FakeAccessibility.h"
#include "platform/linux/menus/LinuxAccessibility.h"
#include "platform/linux/menus/accessibility/AtspiNode.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

/// The menus of an application of GTK on the accessibility bus.
class LinuxAccessibilityRig {
  public:
    Accessibility& accessibility() { return accessibility_; }
    static std::int32_t process() { return getpid(); }
    void setTrusted(bool isTrusted) { bus_.isEnabled = isTrusted; }
    void renameNew() { isRenamed_ = true; }
    std::vector<std::string> pressed() { return application_->pressed(); }
    /// The application answers on a thread of its own.
    template <typename Condition>
    bool until(Condition condition) {
        const auto deadline = std::chrono::steady_clock::now() + 10s;
        while (!condition() && std::chrono::steady_clock::now() < deadline) {
            std::this_thread::yield();
        }
        return condition();
    }
    void quit() { application_.reset(); }

  private:
    [[nodiscard]] FakeNode node(std::size_t number) const {
        constexpr auto bit = [](AtspiState state) {
            return std::uint64_t{1} << static_cast<unsigned>(state);
        };
        constexpr auto known = [](AtspiRole role) { return static_cast<std::uint32_t>(role); };
        const std::uint64_t shown = bit(AtspiState::visible);
        const std::uint64_t usable = shown | bit(AtspiState::sensitive);
        switch (number) {
        case 0:
            return {75, "editor", 0, "", {1}, true};
        case 1:
            return {known(AtspiRole::frame), "Editor", usable | bit(AtspiState::active), "", {2}, true};
        case 2:
            return {known(AtspiRole::menuBar), "", usable, "", {3}, true};
        case 3:
            return {known(AtspiRole::menu), "File", usable, "", {4, 5, 6}, true};
        case 4:
            return {known(AtspiRole::menuItem),
                    isRenamed_ ? "New Window" : "New",
                    usable,
                    "n;<Alt>f:n;<Primary>n",
                    {},
                    true};
        case 5:
            return {known(AtspiRole::menuItem), "Save", shown, "s;<Alt>f:s;<Primary><Shift>s", {}, true};
        default:
            return {known(AtspiRole::checkMenuItem), "Wrap", usable | bit(AtspiState::checked), "", {}, true};
        }
    }

    FakeAccessibility bus_;
    std::atomic<bool> isRenamed_ = false;
    std::optional<FakeApplication> application_{
        std::in_place, bus_, [this](std::size_t number) { return node(number); }, FakeApplication::Manners()};
    LinuxAccessibility accessibility_{{std::make_shared<AtspiBus>(), std::make_shared<SessionBus>()}};
};

INSTANTIATE_TYPED_TEST_SUITE_P(AccessibilityBus, AccessibilityContract, LinuxAccessibilityRig);

} // namespace
} // namespace tovrel
