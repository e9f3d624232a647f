#include "platform/linux/menus/ApplicationMenus.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/linux/menus/FakeAccessibility.h"
#include "platform/linux/menus/dbusmenu/DBusMenuSource.h"
#include "platform/linux/menus/gtk/GtkMenuSource.h"

namespace tovrel {
namespace {

/// A source with one menu. An item is the title of an entry and the number of the read.
class ListedSource : public ApplicationMenuSource {
  public:
    explicit ListedSource(std::vector<std::string> entries) : entries_(std::move(entries)) {}

    MenuReading read(const MenuReadRequest& request) override {
        lastRequest = request;
        ++reads;
        MenuReading reading = emptyReading();
        reading.report.calls = 10;
        if (entries_.empty()) {
            reading.report.outcome = outcomeOfNothing;
            return reading;
        }
        reading.report.outcome = MenuReadOutcome::completed;
        reading.tree.resize(1);
        add(reading.tree, 0, entries_.front()).isMenu = true;
        for (std::size_t entry = 1; entry < entries_.size(); ++entry) {
            add(reading.tree, 1, entries_[entry]).item = entries_[entry] + std::to_string(reads);
        }
        return reading;
    }
    PressResult press(const MenuItem& item) override {
        pressed.push_back(std::any_cast<std::string>(item));
        return pressed.back() == gone ? PressResult::itemGone : PressResult::accepted;
    }
    [[nodiscard]] bool hasLastingItems() const override { return isLasting; }

    MenuReadOutcome outcomeOfNothing = MenuReadOutcome::noMenuBar;
    bool isLasting = false;
    std::string gone;
    int reads = 0;
    std::vector<std::string> pressed;
    MenuReadRequest lastRequest;

  private:
    static MenuNode& add(MenuTree& tree, std::size_t parent, const std::string& title) {
        tree[parent].children.push_back(tree.size());
        MenuNode node;
        node.title = Text(title);
        node.parent = parent;
        tree.push_back(node);
        return tree.back();
    }

    std::vector<std::string> entries_;
};

/// The program's sources on a bus without applications, and two more after them.
class ApplicationMenusTest : public testing::Test {
  protected:
    void behindTheOthers(std::vector<std::string> entries, std::vector<std::string> entriesOfLast) {
        first_ = std::make_shared<ListedSource>(std::move(entries));
        last_ = std::make_shared<ListedSource>(std::move(entriesOfLast));
        sources_->all.push_back(first_);
        sources_->all.push_back(last_);
    }

    FakeAccessibility bus_;
    std::shared_ptr<MenuSources> sources_ = std::make_shared<MenuSources>(
        MenuBuses{std::make_shared<AtspiBus>(), std::make_shared<SessionBus>()});
    std::shared_ptr<ListedSource> first_;
    std::shared_ptr<ListedSource> last_;
    ApplicationWindow window_;
    ApplicationMenus menus_{
        sources_, [this](std::int32_t) { return std::vector<ApplicationWindow>{window_}; }, {}, 4711};
};

TEST_F(ApplicationMenusTest, AFurtherSourceIsAskedForWhatIsMissingAndPressesWhatItGave) {
    behindTheOthers({"Recent"}, {"Recent", "notes"});
    const MenuReading reading = menus_.read();
    EXPECT_EQ(reading.report.outcome, MenuReadOutcome::completed);
    EXPECT_EQ(reading.report.calls, 20U);
    EXPECT_EQ(last_->lastRequest.processIdentifier, 4711);
    EXPECT_EQ(last_->lastRequest.windows.size(), 1U);
    EXPECT_EQ(last_->lastRequest.started, first_->lastRequest.started) << "they share the time";
    ASSERT_EQ(reading.tree.size(), 3U);
    EXPECT_EQ(reading.tree[2].title, Text("notes"));

    EXPECT_TRUE(menus_.press(reading.tree, 2));
    EXPECT_EQ(last_->pressed, std::vector<std::string>{"notes2"}) << "it was looked up anew";
    EXPECT_EQ(first_->reads, 1);
    EXPECT_FALSE(menus_.press(reading.tree, 1)) << "no source has an item for it";
    window_.isModal = true;
    EXPECT_FALSE(menus_.press(reading.tree, 2));
    EXPECT_EQ(last_->reads, 2);
}

TEST_F(ApplicationMenusTest, AFurtherSourceIsNotAskedInVain) {
    behindTheOthers({"File", "New"}, {"File", "Old"});
    EXPECT_EQ(menus_.read().tree.size(), 3U);
    EXPECT_EQ(last_->reads, 0) << "nothing is missing";
    sources_->all.resize(3);
    behindTheOthers({}, {"File", "Old"});
    first_->outcomeOfNothing = MenuReadOutcome::applicationSilent;
    EXPECT_TRUE(menus_.read().tree.empty());
    EXPECT_EQ(first_->reads, 1);
    EXPECT_EQ(last_->reads, 0) << "the application does not answer";
}

TEST_F(ApplicationMenusTest, ALastingItemIsLookedUpOnlyWhenItIsGone) {
    behindTheOthers({"File", "New", "New"}, {});
    first_->isLasting = true;
    const MenuReading reading = menus_.read();
    EXPECT_TRUE(menus_.press(reading.tree, 3));
    EXPECT_EQ(first_->reads, 1);
    first_->gone = "New1";
    EXPECT_TRUE(menus_.press(reading.tree, 3));
    EXPECT_EQ(first_->pressed, (std::vector<std::string>{"New1", "New1", "New2"}));
}

TEST_F(ApplicationMenusTest, ASourceRefusesWhatIsNotItsOwn) {
    for (const auto& source : sources_->all) {
        EXPECT_EQ(source->press(MenuItem()), PressResult::refused);
        EXPECT_EQ(source->press(MenuItem(std::string("New"))), PressResult::refused);
    }
}

} // namespace
} // namespace tovrel
