#include "platform/linux/menus/LinuxAccessibility.h"

#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "platform/linux/menus/FakeAccessibility.h"
#include "platform/linux/menus/accessibility/AtspiNode.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

constexpr std::uint64_t bit(unsigned state) {
    return std::uint64_t{1} << state;
}
constexpr std::uint64_t usable = bit(8) | bit(24) | bit(30);

constexpr std::uint32_t role(AtspiRole known) {
    return static_cast<std::uint32_t>(known);
}
constexpr std::uint32_t filler = 20;

FakeNode menu(const std::string& name, std::vector<std::size_t> children) {
    return {role(AtspiRole::menu), name, usable, "", std::move(children), true};
}
FakeNode item(const std::string& name, const std::string& binding) {
    return {role(AtspiRole::menuItem), name, usable, binding, {}, true};
}

/// 0 is the application, 1 a window, 2 its menu bar; `below` gives the objects from 3 on.
FakeApplication::Nodes application(std::vector<std::size_t> entries,
                                   std::function<FakeNode(std::size_t)> below) {
    return [entries = std::move(entries), below = std::move(below)](std::size_t number) -> FakeNode {
        switch (number) {
        case 0:
            return {75, "fake", 0, "", {1}, true};
        case 1:
            return {role(AtspiRole::frame), "Fake", usable | bit(1), "", {2}, true};
        case 2:
            return {role(AtspiRole::menuBar), "", usable, "", entries, true};
        default:
            return below(number);
        }
    };
}

FakeApplication::Nodes smallEditor() {
    return application({3}, [](std::size_t number) {
        const std::map<std::size_t, FakeNode> nodes{
            {3, menu("File", {4, 5, 6})},
            {4, item("New      ", "n;<Alt>f:n;<Primary>n")},
            {5, {role(AtspiRole::separator), "", 0, "", {}, true}},
            {6, item("Quit", "q;<Alt>f:q;<Primary>q")},
        };
        return nodes.at(number);
    });
}

class LinuxAccessibilityTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_FALSE(accessibility_.address().empty()) << "dbus-daemon is needed"; }

    void start(FakeApplication::Nodes nodes, FakeApplication::Manners manners = {}) {
        application_ =
            std::make_unique<FakeApplication>(accessibility_, std::move(nodes), std::move(manners));
    }

    std::shared_ptr<AccessibilityElement> menuBar() {
        root_ = linux_.applicationElement(getpid());
        return root_ ? root_->element("AXMenuBar") : nullptr;
    }

    static std::vector<std::shared_ptr<AccessibilityElement>> children(AccessibilityElement& element) {
        return element.elements("AXChildren").value_or(std::vector<std::shared_ptr<AccessibilityElement>>());
    }

    /// Every title below the element in its order.
    static std::vector<std::string> titles(AccessibilityElement& element) {
        std::vector<std::string> all;
        for (const auto& child : children(element)) {
            all.push_back(child->string("AXTitle").value_or("?").utf8());
            const auto below = titles(*child);
            all.insert(all.end(), below.begin(), below.end());
        }
        return all;
    }

    /// Waits for the application's thread: a press that was accepted may still be on its way.
    std::vector<std::string> pressedOnceThereAre(std::size_t count) {
        const auto deadline = std::chrono::steady_clock::now() + 5s;
        while (application_->pressed().size() < count && std::chrono::steady_clock::now() < deadline) {
            std::this_thread::yield();
        }
        return application_->pressed();
    }

    MenuReadOutcome outcome() { return linux_.lastReport().value().outcome; }

    static MenuBuses buses() { return {std::make_shared<AtspiBus>(), std::make_shared<SessionBus>()}; }

    static MenuReadLimits limits() {
        MenuReadLimits small;
        small.silence = 100ms;
        small.total = 400ms;
        small.nodes = 500;
        return small;
    }

    FakeAccessibility accessibility_;
    LinuxAccessibility linux_{buses(), {}, limits()};
    std::shared_ptr<AccessibilityElement> root_;
    std::unique_ptr<FakeApplication> application_;
};

TEST_F(LinuxAccessibilityTest, ReadsTheMenusOnceAndAnswersFromThat) {
    start(smallEditor());
    const auto bar = menuBar();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(titles(*bar), (std::vector<std::string>{"File", "New", "Quit"}));
    EXPECT_EQ(outcome(), MenuReadOutcome::completed);
    EXPECT_EQ(linux_.lastReport()->nodes, 5U);
    EXPECT_EQ(linux_.lastReport()->calls, application_->calls());
    EXPECT_NE(root_->element("AXMenuBar"), nullptr);
    EXPECT_EQ(linux_.lastReport()->calls, application_->calls()) << "read twice";
}

TEST_F(LinuxAccessibilityTest, TrustNeedsTheBusAndTheSwitch) {
    EXPECT_TRUE(linux_.isTrusted());
    accessibility_.isEnabled = false;
    EXPECT_FALSE(linux_.isTrusted());
    EXPECT_EQ(menuBar(), nullptr);
    EXPECT_EQ(outcome(), MenuReadOutcome::notRegistered);

    setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent", 1);
    LinuxAccessibility unreachable(buses());
    EXPECT_FALSE(unreachable.isTrusted());
    EXPECT_EQ(unreachable.applicationElement(getpid())->element("AXMenuBar"), nullptr);
    EXPECT_EQ(unreachable.lastReport()->outcome, MenuReadOutcome::noAccessibilityBus);
}

TEST_F(LinuxAccessibilityTest, ASilentLauncherStandsByItsLastAnswer) {
    ASSERT_TRUE(linux_.isTrusted());
    accessibility_.isSilent = true;
    accessibility_.isEnabled = false;
    EXPECT_TRUE(linux_.isTrusted());
    EXPECT_FALSE(AtspiBus().isEnabled()) << "nobody knows who never got an answer";
}

TEST_F(LinuxAccessibilityTest, TakesTheTitledWindowsBarElseTheActiveOnesAndNoneOfContent) {
    // Windows 1 to 4 are an active dialog without a bar, a window, an active one and the titled one. The bar
    // of the last is below a filler; the bars in its document and in a root pane are not the one that the
    // user sees.
    const auto nodes = [](std::size_t number) -> FakeNode {
        const std::map<std::size_t, FakeNode> known{
            {0, {75, "fake", 0, "", {1, 17, 2, 3}, true}},
            {1, {16, "Settings", bit(1), "", {}, true}},
            {2, {role(AtspiRole::frame), "One", bit(1), "", {4}, true}},
            {3, {role(AtspiRole::frame), "Two", 0, "", {5, 6}, true}},
            {4, {role(AtspiRole::menuBar), "", 0, "", {10}, true}},
            {5, {role(AtspiRole::documentWeb), "", 0, "", {7}, true}},
            {6, {filler, "", 0, "", {13, 8}, true}},
            {7, {role(AtspiRole::menuBar), "", 0, "", {11}, true}},
            {8, {filler, "", 0, "", {9, 14}, true}},
            {9, {role(AtspiRole::menuBar), "an empty one", 0, "", {}, true}},
            {10, menu("Of One", {})},
            {11, menu("Of a page", {})},
            {12, menu("Of Two", {})},
            {13, {role(AtspiRole::rootPane), "", 0, "", {15}, true}},
            {14, {role(AtspiRole::menuBar), "", 0, "", {12}, true}},
            {15, {role(AtspiRole::menuBar), "", 0, "", {16}, true}},
            {16, menu("Of a root pane", {})},
            {17, {role(AtspiRole::frame), "Behind", 0, "", {18}, true}},
            {18, {role(AtspiRole::menuBar), "", 0, "", {19}, true}},
            {19, menu("Of the one behind", {})},
        };
        return known.at(number);
    };
    start(nodes);
    const auto first = menuBar();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(titles(*first), std::vector<std::string>{"Of One"});

    LinuxAccessibility titled(buses(), [](std::int32_t) {
        ApplicationWindow window;
        window.title = Text("Two");
        return std::vector<ApplicationWindow>{window};
    });
    const auto element = titled.applicationElement(getpid());
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(titles(*element->element("AXMenuBar")), std::vector<std::string>{"Of Two"});
}

TEST_F(LinuxAccessibilityTest, CyclesEndAndEachObjectIsMetOnce) {
    start(application({3, 3}, [](std::size_t number) {
        return menu("Menu " + std::to_string(number),
                    number == 3 ? std::vector<std::size_t>{4, 2} : std::vector<std::size_t>{3, 4, 1, 0});
    }));
    const auto bar = menuBar();
    ASSERT_NE(bar, nullptr);
    // Window and application are not parts of the menus into which they were put.
    EXPECT_EQ(titles(*bar), (std::vector<std::string>{"Menu 3", "Menu 4"}));
    EXPECT_EQ(outcome(), MenuReadOutcome::completed);
}

TEST_F(LinuxAccessibilityTest, EndlessTreesEndAtTheLimits) {
    start(application({3}, [](std::size_t number) { return menu("Menu", {number + 1}); }));
    auto bar = menuBar();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(outcome(), MenuReadOutcome::treeTooLarge);
    EXPECT_EQ(titles(*bar).size(), limits().depth);
}

TEST_F(LinuxAccessibilityTest, HugeFamiliesEndAtTheLimits) {
    std::vector<std::size_t> crowd(100'000);
    for (std::size_t index = 0; index < crowd.size(); ++index) {
        crowd[index] = index + 4;
    }
    start(application({3}, [crowd](std::size_t number) {
        return number == 3 ? menu("Crowd", crowd) : item("One of many", "");
    }));
    MenuReadLimits patient = limits();
    patient.silence = patient.total = 20s;
    LinuxAccessibility linux(buses(), {}, patient);
    const auto element = linux.applicationElement(getpid());
    ASSERT_NE(element, nullptr);
    const auto bar = element->element("AXMenuBar");
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(linux.lastReport()->outcome, MenuReadOutcome::treeTooLarge);
    EXPECT_EQ(linux.lastReport()->nodes, patient.nodes);
    EXPECT_EQ(titles(*bar).size(), patient.nodes - 1);
}

TEST_F(LinuxAccessibilityTest, AnswersOfWrongTypesAreMissing) {
    FakeApplication::Manners manners;
    manners.answersWithWrongTypes = true;
    manners.wrongTypesFrom = 4;
    start(smallEditor(), manners);
    auto bar = menuBar();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(titles(*bar), std::vector<std::string>{"File"});
    EXPECT_EQ(outcome(), MenuReadOutcome::completed);
}

TEST_F(LinuxAccessibilityTest, AHungApplicationCostsTheSilenceOnce) {
    FakeApplication::Manners manners;
    manners.hangsAfter = 0;
    start(smallEditor(), manners);
    EXPECT_EQ(menuBar(), nullptr);
    EXPECT_EQ(outcome(), MenuReadOutcome::applicationSilent);
    EXPECT_LE(application_->calls(), 2U) << "asked again while it was silent";
    EXPECT_EQ(root_->element("AXMenuBar"), nullptr);
    EXPECT_LE(application_->calls(), 2U) << "read again";
}

TEST_F(LinuxAccessibilityTest, WhatCameBeforeTheSilenceIsUsed) {
    // 18 calls find the window and the bar and read File, but not everything.
    FakeApplication::Manners manners;
    manners.hangsAfter = 18;
    start(smallEditor(), manners);
    const auto bar = menuBar();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(outcome(), MenuReadOutcome::applicationSilent);
    const auto found = titles(*bar);
    ASSERT_FALSE(found.empty());
    EXPECT_EQ(found.front(), "File");
    EXPECT_LT(found.size(), 3U);
}

TEST_F(LinuxAccessibilityTest, AnApplicationThatIsSlowButNeverSilentIsCutOff) {
    FakeApplication::Manners manners;
    manners.delay = 20ms;
    std::vector<std::size_t> entries(100);
    for (std::size_t index = 0; index < entries.size(); ++index) {
        entries[index] = index + 3;
    }
    start(application(entries, [](std::size_t number) { return menu("Menu " + std::to_string(number), {}); }),
          manners);
    MenuReadLimits tight = limits();
    tight.silence = 500ms;
    tight.total = 1000ms;
    LinuxAccessibility linux(buses(), {}, tight);
    const auto element = linux.applicationElement(getpid());
    ASSERT_NE(element, nullptr);
    const auto bar = element->element("AXMenuBar");
    EXPECT_EQ(linux.lastReport()->outcome, MenuReadOutcome::tooSlow);
    ASSERT_NE(bar, nullptr);
    EXPECT_LT(titles(*bar).size(), entries.size()) << "all of it came";
}

TEST_F(LinuxAccessibilityTest, AnApplicationThatLeavesIsGone) {
    FakeApplication::Manners manners;
    manners.vanishesAfter = 12;
    start(smallEditor(), manners);
    const auto bar = menuBar();
    EXPECT_EQ(outcome(), MenuReadOutcome::applicationGone);
    ASSERT_NE(bar, nullptr);
    EXPECT_FALSE(bar->perform("AXPress"));
    // The registry still lists it, but the bus knows no process for it.
    EXPECT_EQ(menuBar(), nullptr);
    EXPECT_EQ(outcome(), MenuReadOutcome::notRegistered);
}

TEST_F(LinuxAccessibilityTest, PressesWithoutWaitingForTheCommand) {
    FakeApplication::Manners manners;
    manners.answersPresses = false;
    start(smallEditor(), manners);
    const auto bar = menuBar();
    ASSERT_NE(bar, nullptr);
    const auto fresh = children(*children(*bar).at(0)).at(0);
    EXPECT_FALSE(fresh->perform("AXShowMenu"));
    EXPECT_TRUE(fresh->perform("AXPress"));
    EXPECT_EQ(pressedOnceThereAre(1), std::vector<std::string>{"New      "});
}

TEST_F(LinuxAccessibilityTest, AnItemThatWasRebuiltIsFoundAgainByItsTitles) {
    FakeApplication::Manners manners;
    manners.rebuildsBeforePress = true;
    start(smallEditor(), manners);
    const auto bar = menuBar();
    ASSERT_NE(bar, nullptr);
    EXPECT_TRUE(children(*children(*bar).at(0)).at(1)->perform("AXPress"));
    EXPECT_EQ(application_->pressed(), std::vector<std::string>{"Quit"});
}

TEST_F(LinuxAccessibilityTest, ARebuiltItemThatIsNoLongerToldApartIsNotPressed) {
    FakeApplication::Manners manners;
    manners.rebuildsBeforePress = true;
    const auto isRebuilt = std::make_shared<std::atomic<bool>>(false);
    start(application({3},
                      [isRebuilt](std::size_t number) {
                          return number == 3 ? menu("File", {4, 5})
                                             : item(number == 4 || *isRebuilt ? "Close" : "Open", "");
                      }),
          manners);
    const auto bar = menuBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(titles(*bar), (std::vector<std::string>{"File", "Close", "Open"}));
    *isRebuilt = true;
    EXPECT_FALSE(children(*children(*bar).at(0)).at(0)->perform("AXPress"));
    EXPECT_TRUE(application_->pressed().empty());
}

} // namespace
} // namespace tovrel
