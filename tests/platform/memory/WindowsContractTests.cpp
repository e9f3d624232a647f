#include <functional>
#include <memory>
#include <vector>

#include "platform/contract/StatusItemContract.h"
#include "platform/contract/UserInterfaceContract.h"
#include "platform/memory/MemoryUserInterface.h"

namespace tovrel {
namespace {

class MemoryUserInterfaceRig {
  public:
    UserInterface& userInterface() { return userInterface_; }
    AlertAnswer ask(AlertAnswer answer, std::function<void()> whileAsked) {
        userInterface_.setAnswer(answer);
        userInterface_.duringAlert = std::move(whileAsked);
        return userInterface_.runAlert({"Run?", "It can do anything.", "Run", "Cancel"});
    }
    void showWindow() { activationsBefore_ = userInterface_.activations(); }
    [[nodiscard]] bool isActive() const { return userInterface_.activations() > activationsBefore_; }
    void turnAway() { userInterface_.resignActive(); }
    template <typename Condition>
    bool until(Condition condition) {
        return condition();
    }
    bool endsMainLoop(const std::function<void()>& task) {
        task();
        return userInterface_.isTerminated();
    }

    bool hasMenu() { return userInterface_.statusItem() != nullptr; }
    std::vector<ShownMenuLine> lines() {
        std::vector<ShownMenuLine> lines;
        for (const StatusMenuItem& item : userInterface_.statusItem()->menu) {
            lines.push_back({item.title, item.keyEquivalent});
        }
        return lines;
    }
    void openMenu() { userInterface_.setMenuOpen(true); }
    void choose(std::size_t line) {
        userInterface_.closeMenu();
        if (const auto& action = userInterface_.statusItem()->menu.at(line).action) {
            action();
        }
    }

  private:
    MemoryUserInterface userInterface_;
    int activationsBefore_ = 0;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, StatusItemContract, MemoryUserInterfaceRig);
INSTANTIATE_TYPED_TEST_SUITE_P(Memory, UserInterfaceContract, MemoryUserInterfaceRig);

} // namespace
} // namespace tovrel
