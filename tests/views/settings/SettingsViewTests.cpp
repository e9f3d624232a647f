#include <QAccessible>
#include <QTest>
#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "SettingsStage.h"
#include "views/settings/SettingsPages.h"
#include "views/settings/pages/RecorderAdapter.h"
#include "views/settings/pages/SettingsLabels.h"
#include "views/shared/SymbolImages.h"

namespace tovrel {
namespace {

using testing::ElementsAre;

class SettingsViewTest : public testing::Test {
  protected:
    void haveFeatherPad() {
        stage_.application = CurrentApplicationContext{"FeatherPad", "featherpad"};
        stage_.menuItems = {menuOf("File", {"Open", "Save"}), menuOf("Edit", {"Copy"})};
    }

    /// Scrolls to the visible item with that name and returns it.
    QQuickItem* item(const QString& name, QQuickItem* within = nullptr) {
        QQuickItem* found = stage_.find(name, within);
        if (found == nullptr) {
            ADD_FAILURE() << "not to be seen: " << name.toStdString();
            return stage_.window.window().contentItem();
        }
        reveal(found);
        return found;
    }

    void reveal(QQuickItem* item) {
        QQuickItem* page = stage_.find(QStringLiteral("page"));
        const double top = item->mapToItem(page, QPointF(0, 0)).y();
        if (top < 0 || top + item->height() > page->height()) {
            const double last = page->property("contentHeight").toDouble() - page->height();
            page->setProperty("contentY",
                              std::clamp(page->property("contentY").toDouble() + top - 40, 0.0, last));
        }
    }

    void click(const QString& name) { stage_.click(item(name)); }

    void clickInRow(const QString& list, int index, const QString& button) {
        QQuickItem* row = stage_.row(list, index);
        ASSERT_NE(row, nullptr) << list.toStdString() << ' ' << index;
        stage_.click(item(button, row));
    }

    /// Chooses a segment with the pointer.
    void clickSegment(const QString& picker, int index, int count) {
        const QQuickItem* track = item(picker);
        const QPointF place(track->width() * (index + 0.5) / count, track->height() / 2);
        QTest::mouseClick(&stage_.window.window(), Qt::LeftButton, {}, track->mapToScene(place).toPoint());
    }

    void choose(const QString& picker, const QString& filter) {
        click(picker);
        stage_.type(filter);
        stage_.press(Qt::Key_Return);
    }

    QString textOf(const QString& name) { return item(name)->property("text").toString(); }
    bool isSeen(const QString& name) { return stage_.find(name) != nullptr; }

    /// Presses Tab until the item has the focus; returns false if it never does.
    bool tabTo(const QString& name) {
        for (int i = 0; i < 60; ++i) {
            stage_.press(Qt::Key_Tab);
            const QQuickItem* focused = stage_.window.window().activeFocusItem();
            for (const QQuickItem* each = focused; each != nullptr; each = each->parentItem()) {
                if (each->objectName() == name) {
                    return true;
                }
            }
        }
        return false;
    }

    SettingsStage stage_;
};

TEST_F(SettingsViewTest, EmptyPagesSaySo) {
    stage_.isTrusted = false;
    stage_.show();
    EXPECT_EQ(textOf("access"), "Needs Permission");
    click("openPrivacySettings");
    EXPECT_THAT(stage_.openedURLs,
                ElementsAre("x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility"));
    // The permission is given elsewhere, and seen after a refresh.
    stage_.isTrusted = true;
    click("refresh");
    EXPECT_EQ(textOf("access"), "Ready");
    EXPECT_FALSE(isSeen("openPrivacySettings"));

    stage_.show(SettingsTab::appRules);
    EXPECT_EQ(textOf("noCurrentApplication"), "No frontmost app found");
    EXPECT_FALSE(isSeen("currentBehavior"));
    EXPECT_EQ(textOf("noRules"), "No saved app rules");
    const QString noCommands = "No menu commands detected. Open the app you want to tune, then refresh.";
    stage_.show(SettingsTab::menuRules);
    EXPECT_EQ(textOf("noCandidates"), noCommands);
    EXPECT_FALSE(isSeen("hideSelected"));
    EXPECT_EQ(textOf("noRules"), "No hidden menu items");
    stage_.show(SettingsTab::commands);
    EXPECT_EQ(item("usesCurrentApp")->property("title").toString(), "Only show for current app");
    EXPECT_EQ(textOf("noCommands"), "No custom commands");
    stage_.show(SettingsTab::search);
    EXPECT_EQ(textOf("noMenuCommands"), noCommands);
    EXPECT_FALSE(isSeen("save"));
    EXPECT_EQ(textOf("noEntries"), "No command usage recorded yet");
    // Empty lists fill when there is something to list.
    haveFeatherPad();
    click("refresh");
    EXPECT_FALSE(isSeen("noMenuCommands"));
    EXPECT_TRUE(isSeen("save"));
}

TEST_F(SettingsViewTest, EveryPageOfTheTableOpens) {
    for (const SettingsPageEntry& page : settingsPages()) {
        stage_.show(page.tab);
        EXPECT_EQ(textOf("header"), page.title);
        EXPECT_TRUE(isSeen("page")) << page.file;
    }
}

TEST_F(SettingsViewTest, AChangeThatCannotBeStoredIsToldOverEveryPage) {
    stage_.show();
    stage_.stored.refusesWrites = true;
    stage_.stored.failure = {PreferencesObstacle::laterVersion, "not shown"};
    EXPECT_FALSE(isSeen("unstoredChange"));
    click("showCheckedStatus");
    ASSERT_TRUE(isSeen("unstoredChange"));
    const QQuickItem* notice = stage_.find("unstoredChange");
    EXPECT_EQ(notice->property("text").toString(),
              "A later version of Tovrel wrote the preferences, so they are left alone.");
    const QQuickItem* page = stage_.find("page");
    EXPECT_GE(page->mapToScene({}).y(), notice->mapToScene({0, notice->height()}).y());
    stage_.state().selectedTab.set(SettingsTab::commands);
    EXPECT_TRUE(isSeen("unstoredChange"));

    stage_.stored.failure = {PreferencesObstacle::other, "Input/output error"};
    stage_.model().clearHistory();
    EXPECT_EQ(notice->property("text").toString(), "Input/output error");
    stage_.stored.refusesWrites = false;
    stage_.model().clearHistory();
    EXPECT_FALSE(isSeen("unstoredChange"));
}

TEST_F(SettingsViewTest, GeneralAndAppRulesReachTheStores) {
    haveFeatherPad();
    stage_.workspace.install({.bundleIdentifier = "org.example.web", .name = "Web", .icon = {}});
    stage_.workspace.install({.bundleIdentifier = "org.example.mail", .name = "mail", .icon = {}});
    stage_.show();
    click("showCheckedStatus");
    EXPECT_FALSE(stage_.paletteSettings.showCheckedStatus().get());
    EXPECT_FALSE(item("showCheckedStatus")->property("isOn").toBool());
    click("notifiesOfCommandFailures");
    EXPECT_FALSE(stage_.notifications.commandFailures());
    EXPECT_FALSE(item("notifiesOfCommandFailures")->property("isOn").toBool());

    stage_.show(SettingsTab::appRules);
    EXPECT_EQ(textOf("currentName"), "FeatherPad");
    clickSegment("currentBehavior", 2, 3);
    EXPECT_EQ(stage_.rules.behavior("featherpad"), AppBehaviorRule::automatic);
    clickSegment("defaultBehavior", 1, 3);
    EXPECT_EQ(stage_.rules.defaultBehavior(), AppBehaviorRule::disabled);
    EXPECT_EQ(item("defaultBehavior")->property("selection").toInt(), 1);

    // The dialog lists by name, ignoring case, and adds the chosen application with the behaviour chosen
    // before.
    clickSegment("newBehavior", 0, 3);
    click("chooseApplication");
    QQuickItem* list = stage_.find("applications");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(stage_.row("applications", 0)->property("title").toString(), "mail");
    stage_.press(Qt::Key_Escape);
    EXPECT_FALSE(isSeen("applications"));
    EXPECT_EQ(stage_.window.window().activeFocusItem()->objectName(), "chooseApplication");
    stage_.press(Qt::Key_Space);
    stage_.type("we");
    stage_.click(stage_.find("add"));
    EXPECT_FALSE(isSeen("applications"));
    EXPECT_EQ(stage_.rules.behavior("org.example.web"), AppBehaviorRule::enabled);
    ASSERT_EQ(item("rules")->property("count").toInt(), 2);
    EXPECT_EQ(stage_.row("rules", 0)->property("title").toString(), "featherpad");
    EXPECT_EQ(stage_.row("rules", 1)->property("title").toString(), "Web");
    // Nothing is added with the default behaviour.
    clickSegment("newBehavior", 1, 3);
    click("chooseApplication");
    stage_.type("mail");
    stage_.press(Qt::Key_Return);
    EXPECT_EQ(stage_.rules.appBehaviorSettings().size(), 2U);

    clickInRow("rules", 1, "behavior");
    stage_.press(Qt::Key_Down);
    stage_.press(Qt::Key_Down);
    stage_.press(Qt::Key_Return);
    EXPECT_EQ(stage_.rules.behavior("org.example.web"), AppBehaviorRule::automatic);
    clickInRow("rules", 0, "remove");
    EXPECT_EQ(stage_.rules.appBehaviorSettings().size(), 1U);
    clickInRow("rules", 0, "remove");
    EXPECT_EQ(textOf("noRules"), "No saved app rules");
}

TEST_F(SettingsViewTest, MenuItemsAreHiddenAndShownAgain) {
    haveFeatherPad();
    stage_.show(SettingsTab::menuRules);
    // Nothing happens without a selection.
    click("hideSelected");
    EXPECT_TRUE(stage_.rules.menuBlacklistRules().empty());
    choose("candidate", "save");
    EXPECT_EQ(textOf("candidate"), "File > Save");
    EXPECT_EQ(textOf("mode"), "Hide Item and Submenus");
    click("mode");
    stage_.press(Qt::Key_Up);
    stage_.press(Qt::Key_Up);
    stage_.press(Qt::Key_Space);
    EXPECT_EQ(textOf("mode"), "Hide Item Only");
    click("hideSelected");
    const std::vector<MenuBlacklistRule> rules = stage_.rules.menuBlacklistRules();
    ASSERT_EQ(rules.size(), 1U);
    EXPECT_THAT(rules[0].targetPath, ElementsAre("File", "Save"));
    EXPECT_EQ(rules[0].mode, MenuBlacklistMode::excludeSelf);
    EXPECT_EQ(textOf("candidate"), "");
    EXPECT_EQ(stage_.row("rules", 0)->property("detail").toString(),
              QString::fromUtf8("featherpad · Hide Item Only"));
    stage_.rules.addMenuBlacklistRule(std::nullopt, {"Help"}, MenuBlacklistMode::excludeSelf);
    click("refresh");
    EXPECT_EQ(stage_.row("rules", 1)->property("detail").toString(),
              QString::fromUtf8("All Apps · Hide Item Only"));
    clickInRow("rules", 0, "remove");
    ASSERT_EQ(stage_.rules.menuBlacklistRules().size(), 1U);
    EXPECT_THAT(stage_.rules.menuBlacklistRules()[0].targetPath, ElementsAre("Help"));
}

TEST_F(SettingsViewTest, TheCommandFormFillsSavesAndClears) {
    haveFeatherPad();
    stage_.show(SettingsTab::commands);
    EXPECT_EQ(item("form")->property("title").toString(), "Add Command");
    EXPECT_FALSE(isSeen("cancel"));
    click("title");
    stage_.type(" Back up ");
    clickSegment("kind", 0, 4);
    EXPECT_EQ(item("payload")->property("placeholder").toString(), "Shell command or script path");
    click("payload");
    stage_.type("true");
    click("aliases");
    stage_.type("one, two");
    EXPECT_EQ(item("usesCurrentApp")->property("title").toString(), "Only show in FeatherPad");
    click("usesCurrentApp");
    click("isEnabled");
    click("save");
    ASSERT_EQ(stage_.customCommands.customCommands().size(), 1U);
    const CustomCommand saved = stage_.customCommands.customCommands()[0];
    EXPECT_EQ(saved.title, "Back up");
    EXPECT_EQ(saved.kind, CustomCommandKind::shellScript);
    EXPECT_EQ(saved.payload, "true");
    EXPECT_EQ(saved.appScope, Text("featherpad"));
    EXPECT_THAT(saved.aliases, ElementsAre("one", "two"));
    EXPECT_FALSE(saved.isEnabled);
    EXPECT_EQ(textOf("title") + textOf("payload") + textOf("aliases"), "");
    EXPECT_FALSE(item("usesCurrentApp")->property("isOn").toBool());
    EXPECT_TRUE(item("isEnabled")->property("isOn").toBool());
    EXPECT_EQ(stage_.row("commands", 0)->property("detail").toString(),
              QString::fromUtf8("Shell · featherpad"));

    clickInRow("commands", 0, "edit");
    EXPECT_EQ(item("form")->property("title").toString(), "Edit Command");
    EXPECT_EQ(textOf("save"), "Save Changes");
    EXPECT_EQ(textOf("aliases"), "one, two");
    // The title has the focus and gets the typed text.
    stage_.press(Qt::Key_End);
    stage_.type("!");
    click("usesCurrentApp");
    click("save");
    ASSERT_EQ(stage_.customCommands.customCommands().size(), 1U);
    EXPECT_EQ(stage_.customCommands.customCommands()[0].title, "Back up!");
    EXPECT_EQ(stage_.customCommands.customCommands()[0].appScope, std::nullopt);

    clickInRow("commands", 0, "edit");
    click("cancel");
    EXPECT_EQ(textOf("save"), "Add Command");
    EXPECT_EQ(textOf("title"), "");
    clickInRow("commands", 0, "edit");
    clickInRow("commands", 0, "remove");
    EXPECT_TRUE(stage_.customCommands.customCommands().empty());
    EXPECT_EQ(textOf("title"), "");
    EXPECT_EQ(textOf("noCommands"), "No custom commands");
}

TEST_F(SettingsViewTest, SearchRulesAreSavedAndTheHistoryIsCleared) {
    haveFeatherPad();
    const Text save = "menu:featherpad:File/Save";
    stage_.history.recordUse(save, PointInTime{.secondsSinceReferenceDate = 1e300});
    stage_.history.recordUse("custom:gone", PointInTime{});
    stage_.history.recordUse("custom:gone", PointInTime{});
    stage_.show(SettingsTab::search);
    const auto title = [&](int row) { return stage_.row("entries", row)->property("title").toString(); };
    const auto detail = [&](int row) { return stage_.row("entries", row)->property("detail").toString(); };
    EXPECT_EQ(title(0), "File > Save");
    EXPECT_TRUE(detail(0).startsWith(QString::fromUtf8("Used 1 time · Last used ")))
        << detail(0).toStdString();
    EXPECT_EQ(title(1), "custom:gone");
    EXPECT_TRUE(detail(1).startsWith(QString::fromUtf8("Used 2 times · Last used ")))
        << detail(1).toStdString();

    choose("menuCommand", "save");
    EXPECT_EQ(textOf("menuCommand"), "File > Save");
    click("aliases");
    stage_.type("keep, ,Keep");
    click("favorite");
    EXPECT_TRUE(stage_.rules.menuCommandAliasRules().empty());
    click("save");
    ASSERT_EQ(stage_.rules.menuCommandAliasRules().size(), 1U);
    EXPECT_THAT(stage_.rules.menuCommandAliasRules()[0].aliases, ElementsAre("keep"));
    EXPECT_TRUE(stage_.history.rankSignals(save).isFavorite);
    EXPECT_TRUE(stage_.row("entries", 0)->property("isMarked").toBool());
    // Another command's values replace those in the form.
    choose("menuCommand", "copy");
    EXPECT_EQ(textOf("aliases"), "");
    EXPECT_FALSE(item("favorite")->property("isOn").toBool());
    choose("menuCommand", "save");
    EXPECT_EQ(textOf("aliases"), "keep");
    click("clear");
    EXPECT_TRUE(stage_.history.entries().empty());
    EXPECT_EQ(textOf("noEntries"), "No command usage recorded yet");
}

TEST_F(SettingsViewTest, APickerFindsOneOfHundreds) {
    std::vector<Text> commands;
    commands.reserve(600);
    for (int i = 0; i < 600; ++i) {
        commands.emplace_back("Entry " + std::to_string(i));
    }
    stage_.application = CurrentApplicationContext{"FeatherPad", "featherpad"};
    stage_.menuItems = {menuOf("Edit", commands)};
    stage_.show(SettingsTab::menuRules);
    click("candidate");
    QQuickItem* choices = stage_.find("choices");
    ASSERT_NE(choices, nullptr);
    EXPECT_EQ(choices->property("count").toInt(), 601);
    EXPECT_LT(choices->property("contentItem").value<QQuickItem*>()->childItems().size(), 60);
    stage_.type("entry 59");
    EXPECT_EQ(choices->property("count").toInt(), 11);
    stage_.press(Qt::Key_Down);
    stage_.press(Qt::Key_Return);
    EXPECT_EQ(textOf("candidate"), "Edit > Entry 590");
    EXPECT_FALSE(isSeen("choices"));
    // Nothing matches, and nothing is chosen; Escape changes nothing.
    stage_.press(Qt::Key_Space);
    stage_.type("zzz");
    stage_.press(Qt::Key_Return);
    EXPECT_TRUE(isSeen("choices"));
    stage_.press(Qt::Key_Escape);
    EXPECT_FALSE(isSeen("choices"));
    EXPECT_EQ(textOf("candidate"), "Edit > Entry 590");
    EXPECT_EQ(stage_.window.window().activeFocusItem()->objectName(), "candidate");
    // A click beside it does the same.
    stage_.press(Qt::Key_Down);
    QTest::mouseClick(&stage_.window.window(), Qt::LeftButton, {}, QPoint(300, 40));
    QCoreApplication::processEvents();
    EXPECT_FALSE(isSeen("choices"));
}

TEST_F(SettingsViewTest, TheKeyboardAloneIsEnough) {
    haveFeatherPad();
    stage_.show();
    // Goes to the sidebar, and down to the commands.
    stage_.press(Qt::Key_Tab);
    for (int i = 0; i < 3; ++i) {
        stage_.press(Qt::Key_Down);
    }
    EXPECT_EQ(stage_.state().selectedTab.get(), SettingsTab::commands);
    ASSERT_TRUE(tabTo("title"));
    stage_.type("Say hello");
    ASSERT_TRUE(tabTo("kind"));
    stage_.press(Qt::Key_Left);
    stage_.press(Qt::Key_Left);
    EXPECT_EQ(stage_.state().customCommand.get().kind, CustomCommandKind::shellScript);
    ASSERT_TRUE(tabTo("payload"));
    stage_.type("echo");
    ASSERT_TRUE(tabTo("isEnabled"));
    stage_.press(Qt::Key_Space);
    ASSERT_TRUE(tabTo("save"));
    stage_.press(Qt::Key_Return);
    ASSERT_EQ(stage_.customCommands.customCommands().size(), 1U);
    EXPECT_EQ(stage_.customCommands.customCommands()[0].title, "Say hello");
    EXPECT_FALSE(stage_.customCommands.customCommands()[0].isEnabled);
    ASSERT_TRUE(tabTo("remove"));
    // The control with the focus is visible.
    const QQuickItem* button = stage_.window.window().activeFocusItem();
    const QQuickItem* page = stage_.find("page");
    EXPECT_TRUE(page->contains(button->mapToItem(page, QPointF(0, 0))));
    EXPECT_TRUE(page->contains(button->mapToItem(page, QPointF(button->width(), button->height()))));
    stage_.press(Qt::Key_Space);
    EXPECT_TRUE(stage_.customCommands.customCommands().empty());
}

TEST_F(SettingsViewTest, ARowThatStaysKeepsTheFocus) {
    for (const char* id : {"a", "b", "c"}) {
        stage_.rules.setBehavior(AppBehaviorRule::disabled, id);
    }
    stage_.show(SettingsTab::appRules);
    QQuickItem* row = stage_.row("rules", 1);
    item("behavior", row)->forceActiveFocus();
    stage_.press(Qt::Key_Space);
    stage_.press(Qt::Key_Down);
    stage_.press(Qt::Key_Return);
    EXPECT_EQ(stage_.rules.behavior("b"), AppBehaviorRule::automatic);
    EXPECT_EQ(stage_.row("rules", 1), row);
    EXPECT_TRUE(item("behavior", row)->hasActiveFocus());
}

TEST_F(SettingsViewTest, TheRecorderTakesKeysWhileItRecords) {
    stage_.show();
    const QQuickItem* field = item("recorder");
    const auto* recorder = field->property("recorder").value<RecorderAdapter*>();
    ASSERT_NE(recorder, nullptr);
    ASSERT_TRUE(tabTo("recorder"));
    EXPECT_TRUE(recorder->isRecording());
    // Without a modifier a key is refused, and goes nowhere else.
    stage_.pressPhysical(Qt::Key_K, 37);
    EXPECT_EQ(stage_.userInterface.beeps(), 1);
    stage_.pressPhysical(Qt::Key_K, 37, Qt::ControlModifier);
    EXPECT_EQ(stage_.shortcuts.getShortcut(stage_.togglePalette), (Shortcut{40, 0x100}));
    EXPECT_FALSE(recorder->isRecording());
    // While it has the focus, a key starts it again; Escape changes nothing.
    stage_.press(Qt::Key_Space);
    EXPECT_TRUE(recorder->isRecording());
    stage_.press(Qt::Key_Escape);
    EXPECT_FALSE(recorder->isRecording());
    EXPECT_TRUE(stage_.window.window().isVisible());
    // A click records, and one elsewhere ends it.
    stage_.click(field);
    EXPECT_TRUE(recorder->isRecording());
    QTest::mouseClick(&stage_.window.window(), Qt::LeftButton, {}, QPoint(500, 600));
    EXPECT_FALSE(recorder->isRecording());
    // Backspace removes the shortcut, and recording goes on.
    stage_.click(field);
    stage_.pressPhysical(Qt::Key_Backspace, 14);
    QCoreApplication::processEvents();
    EXPECT_EQ(stage_.shortcuts.getShortcut(stage_.togglePalette), std::nullopt);
    EXPECT_EQ(recorder->text(), "");
    EXPECT_TRUE(recorder->isRecording());
    stage_.pressPhysical(Qt::Key_P, 25, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(stage_.shortcuts.getShortcut(stage_.togglePalette), (Shortcut{35, 0x300}));
    stage_.click(field);
    stage_.pressPhysical(Qt::Key_Tab, 15);
    EXPECT_FALSE(recorder->isRecording());
    EXPECT_NE(stage_.window.window().activeFocusItem(), field);
    // A hidden window no longer records.
    stage_.click(field);
    stage_.window.window().close();
    EXPECT_FALSE(recorder->isRecording());
}

TEST_F(SettingsViewTest, ANewViewWaitsForTheAnswerAboutAShortcut) {
    stage_.hotKeyCenter.refuse(Shortcut{40, 0x100});
    stage_.userInterface.setAnswer(AlertAnswer::secondButton);
    stage_.show();
    stage_.click(item("recorder"));
    const QQuickItem* before = stage_.window.window().rootObject();
    const QQuickItem* during = nullptr;
    stage_.userInterface.whileAsking = [&] {
        stage_.show();
        during = stage_.window.window().rootObject();
    };
    stage_.pressPhysical(Qt::Key_K, 37, Qt::ControlModifier);
    EXPECT_EQ(stage_.userInterface.alerts().size(), 1U);
    EXPECT_EQ(during, before);
    EXPECT_EQ(stage_.shortcuts.getShortcut(stage_.togglePalette), (Shortcut{40, 0x100}));
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return stage_.find("recorder")->property("recorder").value<RecorderAdapter*>()->text() != "";
    }));
    // The view that waited is shown, and it works.
    click("showCheckedStatus");
    EXPECT_FALSE(stage_.model().showCheckedStatus().get());
}

TEST_F(SettingsViewTest, TheWindowHidesAndStartsAnew) {
    stage_.show(SettingsTab::search);
    QQuickView& window = stage_.window.window();
    EXPECT_EQ(window.title(), "Tovrel");
    EXPECT_EQ(window.size(), QSize(920, 620));
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
    stage_.press(Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_TRUE(window.isVisible());
    stage_.press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window.isVisible());
    stage_.window.showAndMakeKey();
    stage_.press(Qt::Key_Q, Qt::ControlModifier);
    stage_.press(Qt::Key_W, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(stage_.actions, ElementsAre(window_menu::Action::openSettings,
                                            window_menu::Action::closeWindow, window_menu::Action::quit));
    stage_.show();
    EXPECT_EQ(textOf("header"), "General");
}

TEST_F(SettingsViewTest, AssistiveTechnologySeesTheControls) {
    QAccessible::setActive(true);
    haveFeatherPad();
    stage_.rules.setBehavior(AppBehaviorRule::disabled, "featherpad");
    const auto interfaceOf = [&](const QString& name, QQuickItem* within = nullptr) {
        return QAccessible::queryAccessibleInterface(item(name, within));
    };
    stage_.show();
    QAccessibleInterface* toggle = interfaceOf("showCheckedStatus");
    EXPECT_EQ(toggle->role(), QAccessible::CheckBox);
    EXPECT_EQ(toggle->text(QAccessible::Name), "Show checked status of menu items");
    EXPECT_TRUE(toggle->state().checked);
    toggle->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_FALSE(stage_.paletteSettings.showCheckedStatus().get());
    EXPECT_FALSE(toggle->state().checked);
    EXPECT_EQ(interfaceOf("recorder")->text(QAccessible::Name), "Command Palette");
    stage_.show(SettingsTab::appRules);
    EXPECT_EQ(interfaceOf("defaultBehavior")->role(), QAccessible::Grouping);
    EXPECT_EQ(interfaceOf("defaultBehavior")->text(QAccessible::Description), "Enabled");
    QQuickItem* row = stage_.row("rules", 0);
    EXPECT_EQ(interfaceOf("behavior", row)->role(), QAccessible::ComboBox);
    EXPECT_EQ(interfaceOf("behavior", row)->text(QAccessible::Name), "Behavior of featherpad");
    QAccessibleInterface* remove = interfaceOf("remove", row);
    EXPECT_EQ(remove->role(), QAccessible::Button);
    EXPECT_EQ(remove->text(QAccessible::Name), "Remove featherpad");
    remove->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(stage_.rules.appBehaviorSettings().empty());
    QAccessible::setActive(false);
}

TEST(SettingsRowsModelTest, RowsComeAndGoWhereTheyAreDifferent) {
    const auto rows = [](const char* ids) {
        std::vector<SettingsRow> made;
        for (const char* id = ids; *id != '\0'; ++id) {
            made.push_back({.id = QString(QLatin1Char(*id)), .title = QString(QLatin1Char(*id)).toUpper()});
        }
        return made;
    };
    SettingsRowsModel model;
    // A copy that follows the model's signals.
    QStringList copy;
    int told = 0;
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &model,
                     [&](const QModelIndex&, int first, int last) {
                         copy.erase(copy.begin() + first, copy.begin() + last + 1);
                         told += last - first + 1;
                     });
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, &model,
                     [&](const QModelIndex&, int first, int last) {
                         for (int row = first; row <= last; ++row) {
                             copy.insert(row, model.index(row).data(SettingsRowsModel::idRole).toString());
                             ++told;
                         }
                     });
    const struct {
        const char* ids;
        int changes;
    } steps[] = {{"abc", 3}, {"abc", 0}, {"axbc", 1}, {"abc", 1}, {"ac", 1},   {"acc", 1}, {"ccc", 2},
                 {"cc", 1},  {"", 2},    {"ab", 2},   {"ba", 4},  {"bxya", 2}, {"a", 3}};
    for (const auto& step : steps) {
        told = 0;
        model.assign(rows(step.ids));
        EXPECT_EQ(copy.join(QString()).toStdString(), step.ids);
        EXPECT_EQ(model.rows(), rows(step.ids));
        EXPECT_EQ(told, step.changes) << step.ids;
    }
}

TEST(SettingsLabelsTest, EveryChoiceHasItsLabelAndSymbol) {
    EXPECT_EQ(settings_labels::labels(allCustomCommandKinds),
              (QStringList{"Shell", "AppleScript", "Open", "Shortcut"}));
    EXPECT_EQ(settings_labels::labels(allAppBehaviorRules), (QStringList{"Enabled", "Disabled", "Auto"}));
    std::vector<std::string> names{"arrow.clockwise",
                                   "arrow.up.forward.app",
                                   "checkmark.seal.fill",
                                   "clock",
                                   "clock.arrow.circlepath",
                                   "eye.slash",
                                   "keyboard",
                                   "lock.shield",
                                   "plus",
                                   "line.3.horizontal.decrease.circle",
                                   "tray",
                                   "trash",
                                   "terminal",
                                   "pencil",
                                   "chevron.up.chevron.down",
                                   "xmark.circle.fill",
                                   "star.fill"};
    for (const SettingsPageEntry& page : settingsPages()) {
        names.emplace_back(page.symbol);
    }
    for (const CustomCommandKind kind : allCustomCommandKinds) {
        names.emplace_back(settings_labels::symbol(kind));
    }
    for (const std::string& name : names) {
        const QImage image = symbolImage(QString::fromStdString(name), Qt::black, {48, 48});
        ASSERT_FALSE(image.isNull()) << name;
        int painted = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                painted += image.pixelColor(x, y).alpha() > 200 ? 1 : 0;
            }
        }
        EXPECT_GT(painted, 100) << name;
        EXPECT_LT(painted, 48 * 48 * 4 / 5) << name;
    }
}

} // namespace
} // namespace tovrel
