#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "model/VirtualKeyCodes.h"
#include "platform/contract/PalettePanelContract.h"
#include "platform/contract/StatusItemContract.h"
#include "platform/contract/UserInterfaceContract.h"
#include "platform/memory/MemoryPalettePanel.h"
#include "platform/memory/MemoryUserInterface.h"

namespace tovrel {
namespace {

class MemoryUserInterfaceRig {
  public:
    MemoryUserInterfaceRig() { userInterface_.setMainScreen(Screen{"screen", {1000, 800}}); }

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

class MemoryPalettePanelRig {
  public:
    PalettePanel& panel() { return panel_; }
    template <typename Condition>
    bool until(Condition condition) {
        return condition();
    }
    [[nodiscard]] bool isKey() const { return panel_.isKey(); }
    void type(char character) {
        const Text text(std::string(1, character));
        if (!panel_.type({KeyEventType::keyDown, key_codes::unknown, text, 0})) {
            query_ += text.utf8();
        }
    }
    [[nodiscard]] Text query() const { return query_; }
    void turnAway() { panel_.resignKey(); }
    static Text screen() { return "screen"; }
    [[nodiscard]] PalettePlacement placement() const { return panel_.placement(); }

  private:
    MemoryPalettePanel panel_;
    std::string query_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, PalettePanelContract, MemoryPalettePanelRig);
INSTANTIATE_TYPED_TEST_SUITE_P(Memory, StatusItemContract, MemoryUserInterfaceRig);
INSTANTIATE_TYPED_TEST_SUITE_P(Memory, UserInterfaceContract, MemoryUserInterfaceRig);

} // namespace
} // namespace tovrel
