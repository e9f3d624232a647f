#include "commands/CommandIndex.h"

#include <gtest/gtest.h>

#include "model/MenuPath.h"
#include "platform/memory/MemoryPreferencesDomain.h"

namespace tovrel {
namespace {

ScannedMenuItem item(std::vector<Text> path, std::vector<ScannedMenuItem> children = {}) {
    return {.id = joined(path, menuPathSeparator),
            .title = path.empty() ? Text() : path.back(),
            .menuPath = std::move(path),
            .shortcut = std::nullopt,
            .isEnabled = true,
            .isChecked = false,
            .children = std::move(children),
            .element = nullptr};
}

/// File with Save and Export › PDF, in the form of a toolkit with untitled submenu containers.
std::vector<ScannedMenuItem> fileMenu() {
    ScannedMenuItem container = item({"File", "Export"}, {item({"File", "Export", "PDF"})});
    container.title = "";
    return {item({"File"}, {item({"File", "Save"}), item({"File", "Export"}, {std::move(container)})})};
}

class CommandIndexTest : public testing::Test {
  protected:
    std::vector<std::string> ids(const std::vector<ScannedMenuItem>& items,
                                 const std::optional<Text>& bundleID,
                                 const std::vector<MenuBlacklistRule>& blacklist = {},
                                 const std::vector<CustomCommand>& custom = {}) {
        std::vector<std::string> ids;
        for (const Command& command : build(items, bundleID, blacklist, {}, custom)) {
            ids.push_back(command.id.utf8());
        }
        return ids;
    }

    std::vector<Command> build(const std::vector<ScannedMenuItem>& items, const std::optional<Text>& bundleID,
                               const std::vector<MenuBlacklistRule>& blacklist = {},
                               const std::vector<MenuCommandAliasRule>& aliases = {},
                               const std::vector<CustomCommand>& custom = {}) {
        return CommandIndex::buildCommands(items, custom, bundleID, blacklist, aliases, history_);
    }

    MemoryPreferencesDomain domain_;
    TextServices services_{"en_US"};
    CommandHistoryStore history_{domain_, "Tovrel.commandHistory", services_};
};

using Ids = std::vector<std::string>;

TEST_F(CommandIndexTest, LeavesBecomeCommandsAndCarryTheirHistory) {
    history_.recordUse("menu:org.example:File/Save", PointInTime{5});
    std::vector<ScannedMenuItem> items = fileMenu();
    items.front().children.front().isEnabled = false;
    items.front().children.front().isChecked = true;
    items.front().children.front().shortcut = "⌘S";
    const std::vector<Command> commands = build(items, "org.example");
    ASSERT_EQ(commands.size(), 2U);
    const Command expected{
        .id = "menu:org.example:File/Save",
        .source = CommandSource::menu,
        .appScope = "org.example",
        .title = "Save",
        .subtitle = "File",
        .menuPath = {"File", "Save"},
        .shortcut = "⌘S",
        .aliases = {},
        .searchTokens = {"File", "Save"},
        .isEnabled = false,
        .isChecked = true,
        .rankSignals = {.isFavorite = false, .usageCount = 1, .lastUsedAt = PointInTime{5}},
        .action = MenuAction{{"File", "Save"}}};
    EXPECT_EQ(commands[0], expected);
    EXPECT_EQ(commands[1].id, "menu:org.example:File/Export/PDF");
    EXPECT_EQ(commands[1].subtitle, "File › Export");
}

TEST_F(CommandIndexTest, SystemMenusContainersAndUntitledItemsAreNoCommands) {
    ScannedMenuItem untitled = item({"File", "x"});
    untitled.title = "";
    const std::vector<ScannedMenuItem> items{
        item({"Apple"}, {item({"Apple", "About"})}),
        item({"\uF8FF"}, {item({"\uF8FF", "Sleep"})}),
        item({"apple"}, {item({"apple", "Kept"})}),
        item({"Help"}),
        item({}),
        item({"File"}, {untitled, item({"File", "Twice"}), item({"File", "Twice"})})};
    EXPECT_EQ(ids(items, std::nullopt),
              (Ids{"menu:global:apple/Kept", "menu:global:File/Twice", "menu:global:File/Twice"}));
}

TEST_F(CommandIndexTest, BlacklistRulesHideByScopePathAndMode) {
    const auto left = [&](MenuBlacklistRule rule, const std::optional<Text>& bundleID) {
        return ids(fileMenu(), bundleID, {std::move(rule)}).size();
    };
    const std::vector<Text> exported{"File", "Export"};
    const std::vector<Text> pdf{"File", "Export", "PDF"};
    using enum MenuBlacklistMode;
    EXPECT_EQ(left({"1", std::nullopt, exported, excludeChildren}, "org.example"), 1U);
    EXPECT_EQ(left({"1", std::nullopt, exported, excludeSelf}, "org.example"), 2U);
    EXPECT_EQ(left({"1", std::nullopt, pdf, excludeSelf}, "org.example"), 1U);
    EXPECT_EQ(left({"1", std::nullopt, pdf, excludeChildren}, "org.example"), 2U);
    EXPECT_EQ(left({"1", std::nullopt, pdf, excludeSelfAndChildren}, "org.example"), 1U);
    EXPECT_EQ(left({"1", "org.example", pdf, excludeSelf}, "org.example"), 1U);
    EXPECT_EQ(left({"1", "org.other", pdf, excludeSelf}, "org.example"), 2U);
    EXPECT_EQ(left({"1", "org.example", pdf, excludeSelf}, std::nullopt), 2U);
    EXPECT_EQ(left({"1", std::nullopt, {"file", "export"}, excludeChildren}, "org.example"), 2U);
    EXPECT_EQ(left({"1", std::nullopt, {}, excludeChildren}, "org.example"), 0U);
    EXPECT_EQ(left({"1", std::nullopt, {}, excludeSelfAndChildren}, "org.example"), 0U);
    EXPECT_EQ(left({"1", std::nullopt, {}, excludeSelf}, "org.example"), 2U);
    // Titles are compared by canonical equivalence.
    const std::vector<ScannedMenuItem> accented{item({"\u00c9dition"}, {item({"\u00c9dition", "Copier"})})};
    EXPECT_EQ(ids(accented, "org.example", {{"1", std::nullopt, {"E\u0301dition", "Copier"}, excludeSelf}}),
              Ids{});
}

TEST_F(CommandIndexTest, AliasRulesMatchTheScopeExactly) {
    const auto aliasesOfSave = [&](const std::vector<MenuCommandAliasRule>& rules,
                                   const std::optional<Text>& bundleID) {
        return build(fileMenu(), bundleID, {}, rules).front().aliases;
    };
    const std::vector<Text> save{"File", "Save"};
    EXPECT_EQ(
        aliasesOfSave({{"org.example", save, {"write"}}, {"org.example", save, {"store"}}}, "org.example"),
        (std::vector<Text>{"write"}));
    EXPECT_EQ(aliasesOfSave({{std::nullopt, save, {"write"}}}, "org.example"), std::vector<Text>{});
    EXPECT_EQ(aliasesOfSave({{std::nullopt, save, {"write"}}}, std::nullopt), (std::vector<Text>{"write"}));
    EXPECT_EQ(aliasesOfSave({{"org.example", save, {"write"}}}, std::nullopt), std::vector<Text>{});
}

TEST_F(CommandIndexTest, CustomCommandsFollowInStoredOrder) {
    const CustomCommand everywhere{
        "A", "Backup", CustomCommandKind::shellScript, "make backup", std::nullopt, {"bk"}, true};
    CustomCommand scoped{"B", "Site", CustomCommandKind::open, "https://example.org", "org.example",
                         {},  true};
    CustomCommand disabled = everywhere;
    disabled.isEnabled = false;
    EXPECT_EQ(ids({}, "org.example", {}, {scoped, disabled, everywhere}), (Ids{"custom:B", "custom:A"}));
    EXPECT_EQ(ids({}, "org.other", {}, {scoped, everywhere}), (Ids{"custom:A"}));
    EXPECT_EQ(ids({}, std::nullopt, {}, {scoped, everywhere}), (Ids{"custom:A"}));

    scoped.aliases = {"www"};
    history_.recordUse("custom:B", PointInTime{7});
    const Command expected{
        .id = "custom:B",
        .source = CommandSource::custom,
        .appScope = "org.example",
        .title = "Site",
        .subtitle = "Open",
        .menuPath = {},
        .shortcut = std::nullopt,
        .aliases = {"www"},
        .searchTokens = {"open", "https://example.org"},
        .isEnabled = true,
        .isChecked = false,
        .rankSignals = {.isFavorite = false, .usageCount = 1, .lastUsedAt = PointInTime{7}},
        .action = scoped};
    const Command command = build({}, "org.example", {}, {}, {scoped}).front();
    EXPECT_EQ(command.appScope, expected.appScope);
    EXPECT_EQ(command.rankSignals, expected.rankSignals);
    EXPECT_EQ(command, expected);
}

} // namespace
} // namespace tovrel
