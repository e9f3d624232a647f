#include <QAccessible>
#include <QGuiApplication>
#include <QQuickItem>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <set>
#include <tuple>

#include <gtest/gtest.h>

#include "PaletteStage.h"
#include "RecordedCommands.h"
#include "commands/CommandSamples.h"
#include "model/VirtualKeyCodes.h"
#include "palette/CommandIcon.h"
#include "palette/PaletteKeyboardAction.h"
#include "qt/QtText.h"
#include "views/palette/PaletteResultsModel.h"
#include "views/shared/SymbolImages.h"

namespace tovrel {
namespace {

using samples::menuCommand;

class PaletteViewTest : public testing::Test {
  protected:
    void showMousepad() {
        stage_.show(recordedCommands("mousepad", stage_.textServices), Text("Mousepad"));
        ASSERT_GT(stage_.viewModel.results().get().size(), 10U);
    }

    void type(const std::string& text) {
        for (const char character : text) {
            QTest::keyClick(&window(), character);
        }
    }

    QQuickView& window() { return stage_.panel.window(); }
    QQuickItem* item(const char* name) { return window().rootObject()->findChild<QQuickItem*>(name); }
    QQuickItem* list() { return item("results"); }
    QAbstractItemModel* model() { return list()->property("model").value<PaletteResultsModel*>(); }
    QQuickItem* selectedRow() { return list()->property("currentItem").value<QQuickItem*>(); }

    /// The items of the rows that have been made.
    QList<QQuickItem*> rowItems() {
        QMetaObject::invokeMethod(list(), "forceLayout");
        return list()->property("contentItem").value<QQuickItem*>()->childItems();
    }

    QQuickItem* row(const QString& title) {
        const QList<QQuickItem*> items = rowItems();
        for (QQuickItem* item : items) {
            if (item->isVisible() && item->property("title").toString() == title) {
                return item;
            }
        }
        ADD_FAILURE() << "no row shows " << title.toStdString();
        return list();
    }

    /// Whether the highlighted row is wholly visible, with the highlight behind it.
    bool isHighlightInSight() {
        const QQuickItem* row = selectedRow();
        const QQuickItem* highlight = item("highlight");
        return row != nullptr &&
               row->property("index").toLongLong() == stage_.viewModel.selectedIndex().get() &&
               row->property("isSelected").toBool() && highlight->isVisible() && highlight->y() == row->y() &&
               highlight->height() == row->height() && isWithinList(row);
    }

    bool isWithinList(const QQuickItem* item) {
        const QRectF place = item->mapRectToItem(list(), item->boundingRect());
        return list()->boundingRect().contains(place);
    }

    void click(const QQuickItem* item) {
        QTest::mouseClick(&window(), Qt::LeftButton, {},
                          item->mapToScene(item->boundingRect().center()).toPoint());
    }

    PaletteStage stage_;
};

TEST_F(PaletteViewTest, TypingFiltersWithoutStartingAnew) {
    showMousepad();
    QSignalSpy resets(model(), &QAbstractItemModel::modelReset);
    QSignalSpy layouts(model(), &QAbstractItemModel::layoutChanged);
    std::vector<std::tuple<bool, int, int>> changes;
    QObject context;
    QObject::connect(
        model(), &QAbstractItemModel::rowsInserted, &context,
        [&](const QModelIndex&, int first, int last) { changes.emplace_back(true, first, last); });
    QObject::connect(
        model(), &QAbstractItemModel::rowsRemoved, &context,
        [&](const QModelIndex&, int first, int last) { changes.emplace_back(false, first, last); });
    const int before = model()->rowCount();
    type("save as");
    EXPECT_EQ(stage_.viewModel.query().get(), "save as");
    EXPECT_LT(model()->rowCount(), before);
    EXPECT_EQ(selectedRow()->property("title").toString(), "Save As...");
    EXPECT_EQ(selectedRow()->property("subtitle").toString(), "File");
    for (std::size_t i = 0; i < 7; ++i) {
        QTest::keyClick(&window(), Qt::Key_Backspace);
    }
    EXPECT_EQ(model()->rowCount(), before);
    EXPECT_EQ(resets.count() + layouts.count(), 0);
    // Rows come and go only at the end.
    int count = before;
    ASSERT_FALSE(changes.empty());
    for (const auto& [isInsertion, first, last] : changes) {
        if (isInsertion) {
            EXPECT_EQ(first, count);
            count = last + 1;
        } else {
            EXPECT_EQ(last, count - 1);
            count = first;
        }
    }
    EXPECT_EQ(count, before);
}

TEST_F(PaletteViewTest, TheRowsShowWhatTheResultsHold) {
    showMousepad();
    stage_.viewModel.setQuery("e");
    const CommandSearchResults& results = stage_.viewModel.results().get();
    ASSERT_EQ(static_cast<std::size_t>(model()->rowCount()), results.size());
    for (int i = 0; i < model()->rowCount(); ++i) {
        const Command& command = results[static_cast<std::size_t>(i)].command;
        const QModelIndex index = model()->index(i, 0);
        EXPECT_EQ(index.data(PaletteResultsModel::titleRole).toString().toStdString(), command.title.utf8());
        EXPECT_EQ(index.data(PaletteResultsModel::symbolRole).toString().toStdString(),
                  commandIcon(command, stage_.textServices).symbol);
        EXPECT_EQ(index.data(PaletteResultsModel::keycapsRole).toStringList().isEmpty(),
                  !command.shortcut.has_value());
    }
    stage_.show({menuCommand({"File", "Save As…"}, "⌘⇧S"), menuCommand({"View", "Next"}, "⌥⇟")});
    const QQuickItem* save = row(QString::fromUtf8("Save As…"));
    EXPECT_EQ(save->property("keycaps").toStringList(), (QStringList{"Ctrl", "Shift", "S"}));
    EXPECT_EQ(save->property("spokenName").toString(), QString::fromUtf8("Save As…, File, Ctrl+Shift+S"));
    EXPECT_EQ(row("Next")->property("keycaps").toStringList(), (QStringList{"Alt", "Page Down"}));
}

TEST_F(PaletteViewTest, TheSelectedRowIsAlwaysInSight) {
    showMousepad();
    for (int i = 0; i < 12; ++i) {
        QTest::keyClick(&window(), Qt::Key_Down);
        ASSERT_EQ(stage_.viewModel.selectedIndex().get(), i + 1);
        ASSERT_EQ(selectedRow()->property("index").toInt(), i + 1);
        EXPECT_TRUE(isHighlightInSight()) << i;
    }
    EXPECT_GT(list()->property("contentY").toDouble(), 0);
    for (int i = 0; i < 30; ++i) {
        QTest::keyClick(&window(), Qt::Key_Up);
        EXPECT_TRUE(isHighlightInSight()) << i;
    }
    EXPECT_EQ(stage_.viewModel.selectedIndex().get(), 0);
    for (const int row : {3, 12, 19, 2, 14}) {
        stage_.viewModel.moveSelection(row - stage_.viewModel.selectedIndex().get());
        EXPECT_TRUE(isHighlightInSight()) << row;
        QCoreApplication::processEvents();
        EXPECT_TRUE(isHighlightInSight()) << row;
        // It must not be faded at the ends of the list either.
        const QImage picture = window().grabWindow();
        for (const int y : {10, 40}) {
            const QPoint besideTheBadge = selectedRow()->mapToScene(QPointF(6, y)).toPoint();
            EXPECT_NEAR(picture.pixelColor(besideTheBadge).red(), 25, 4) << row;
        }
    }
    // A new query starts at the top.
    stage_.viewModel.moveSelection(15);
    type("e");
    EXPECT_EQ(list()->property("contentY").toDouble(), 0);
    EXPECT_TRUE(isHighlightInSight());
    // So does a new list, and results that come back.
    stage_.viewModel.moveSelection(15);
    showMousepad();
    EXPECT_EQ(list()->property("contentY").toDouble(), 0);
    stage_.viewModel.setQuery("zzyzx");
    stage_.viewModel.setQuery("");
    EXPECT_EQ(list()->property("currentIndex").toInt(), 0);
    EXPECT_TRUE(isHighlightInSight());
}

TEST_F(PaletteViewTest, AClickRunsTheRowItIsOn) {
    showMousepad();
    click(row("Copy"));
    ASSERT_EQ(stage_.executed.size(), 1U);
    EXPECT_EQ(stage_.executed[0].title, "Copy");
    EXPECT_EQ(stage_.viewModel.selectedCommand().value().title, "Copy");
    // Moving the pointer alone chooses nothing.
    const QQuickItem* other = row("Cut");
    QTest::mouseMove(&window(), other->mapToScene(other->boundingRect().center()).toPoint());
    EXPECT_EQ(stage_.viewModel.selectedCommand().value().title, "Copy");
    EXPECT_EQ(stage_.executed.size(), 1U);
}

TEST_F(PaletteViewTest, ReturnAndEscapeWorkWithoutAKeyHandler) {
    showMousepad();
    QTest::keyClick(&window(), Qt::Key_Down);
    QTest::keyClick(&window(), Qt::Key_Return);
    ASSERT_EQ(stage_.executed.size(), 1U);
    EXPECT_EQ(stage_.executed[0], stage_.viewModel.results().get()[1].command);
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_EQ(stage_.dismissals, 1);
    stage_.viewModel.setQuery("zzyzx");
    QTest::keyClick(&window(), Qt::Key_Return);
    EXPECT_EQ(stage_.executed.size(), 1U);
}

TEST_F(PaletteViewTest, TheKeyHandlerSeesKeysFirstAndKeepsWhatItUses) {
    showMousepad();
    std::vector<KeyEvent> seen;
    stage_.panel.setKeyHandler([&](const KeyEvent& event) {
        if (event.charactersIgnoringModifiers || event.keyCode != key_codes::unknown) {
            seen.push_back(event); // without the modifier keys, which are pressed too
        }
        return keyboardAction(event, stage_.textServices).has_value();
    });
    QTest::keyClick(&window(), Qt::Key_Down);
    EXPECT_EQ(stage_.viewModel.selectedIndex().get(), 0);
    QTest::keyClick(&window(), 'v', Qt::ControlModifier);
    QTest::keyClick(&window(), 'A', Qt::ShiftModifier);
    EXPECT_EQ(stage_.viewModel.query().get(), "");
    QTest::keyClick(&window(), 'v');
    EXPECT_EQ(stage_.viewModel.query().get(), "v");
    QTest::keyClick(&window(), Qt::Key_Backspace, Qt::ShiftModifier);
    EXPECT_EQ(stage_.viewModel.query().get(), "");
    ASSERT_EQ(seen.size(), 4U);
    EXPECT_EQ(seen[0].keyCode, 125U);
    EXPECT_EQ(seen[1].charactersIgnoringModifiers, Text("v"));
    EXPECT_EQ(seen[1].modifierFlags, modifier_flags::command);
}

TEST_F(PaletteViewTest, TextOfAnInputMethodReachesTheQuery) {
    showMousepad();
    stage_.panel.setKeyHandler([](const KeyEvent&) { return true; });
    QInputMethodEvent composing(QString::fromUtf8("か"), {});
    QCoreApplication::sendEvent(window().activeFocusItem(), &composing);
    EXPECT_EQ(stage_.viewModel.query().get(), "");
    QInputMethodEvent done;
    done.setCommitString(QString::fromUtf8("é"));
    QCoreApplication::sendEvent(window().activeFocusItem(), &done);
    EXPECT_EQ(stage_.viewModel.query().get(), "é");
}

TEST_F(PaletteViewTest, ThePanelGoesWhereItIsPlacedOnItsScreen) {
    const QScreen& screen = *QGuiApplication::primaryScreen();
    const QRect visible = screen.availableGeometry();
    for (const auto& identifier :
         {std::optional(textFrom(screen.name())), std::optional<Text>("unplugged"), std::optional<Text>()}) {
        stage_.panel.place({std::nullopt, {0, 0}});
        stage_.panel.place({identifier, {20.5, 30}});
        EXPECT_EQ(window().position(),
                  QPoint(visible.left() + 21, visible.top() + visible.height() - 30 - window().height()));
    }
}

TEST_F(PaletteViewTest, EmptyStatesAndTheFocus) {
    stage_.show({});
    EXPECT_FALSE(list()->isVisible());
    EXPECT_EQ(item("empty")->property("headline").toString(), "Start typing");
    EXPECT_EQ(item("empty")->property("line").toString(), "Search the front app's menu commands");
    type("  ");
    EXPECT_EQ(item("empty")->property("headline").toString(), "Start typing");
    type("zz");
    EXPECT_EQ(item("empty")->property("headline").toString(), "No commands");
    EXPECT_EQ(item("empty")->property("line").toString(), "Try a different keyword");
    showMousepad();
    EXPECT_TRUE(list()->isVisible());
    EXPECT_FALSE(item("empty")->isVisible());

    const QQuickItem* input = window().activeFocusItem();
    window().activeFocusItem()->setFocus(false);
    ASSERT_NE(window().activeFocusItem(), input);
    stage_.viewModel.requestSearchFocus();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window().activeFocusItem() == input; }));
    type("c");
    EXPECT_EQ(stage_.viewModel.query().get(), "c");
}

TEST_F(PaletteViewTest, CheckMarksFollowTheSetting) {
    std::vector<Command> commands{menuCommand({"View", "Toolbar"}, "F1"),
                                  menuCommand({"View", "Zoom"}, "F2")};
    commands[0].isChecked = true;
    stage_.show(commands);
    const auto hasCheck = [&](const QString& title) {
        return row(title)->findChild<QQuickItem*>("check")->isVisible();
    };
    EXPECT_TRUE(hasCheck("Toolbar"));
    EXPECT_FALSE(hasCheck("Zoom"));
    stage_.settings.setShowCheckedStatus(false);
    EXPECT_FALSE(hasCheck("Toolbar"));
}

TEST_F(PaletteViewTest, AssistiveTechnologySeesTheFieldAndTheRows) {
    QAccessible::setActive(true);
    showMousepad();
    QAccessibleInterface* field = QAccessible::queryAccessibleInterface(window().activeFocusItem());
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->role(), QAccessible::EditableText);
    EXPECT_EQ(field->text(QAccessible::Name), "Commands");
    EXPECT_EQ(field->text(QAccessible::Description), "Mousepad");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(list())->role(), QAccessible::List);

    QAccessibleInterface* copy = QAccessible::queryAccessibleInterface(row("Copy"));
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->role(), QAccessible::ListItem);
    EXPECT_EQ(copy->text(QAccessible::Name), "Copy, Edit, Ctrl+C");
    const auto position = row("Copy")->property("index").toInt();
    EXPECT_EQ(copy->text(QAccessible::Description),
              QStringLiteral("%1 of %2").arg(position + 1).arg(model()->rowCount()));
    EXPECT_FALSE(copy->state().selected);
    stage_.viewModel.moveSelection(position);
    EXPECT_TRUE(copy->state().selected);
    ASSERT_TRUE(copy->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    copy->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    ASSERT_EQ(stage_.executed.size(), 1U);
    EXPECT_EQ(stage_.executed[0].title, "Copy");
    QAccessible::setActive(false);
}

TEST_F(PaletteViewTest, LongListsMakeOnlyTheRowsInSight) {
    std::vector<Command> commands;
    commands.reserve(3000);
    for (int i = 0; i < 3000; ++i) {
        commands.push_back(menuCommand({"Edit", "Entry " + std::to_string(i)}, "⌘E"));
    }
    stage_.show(commands);
    type("entry");
    ASSERT_EQ(model()->rowCount(), 3000);
    stage_.viewModel.moveSelection(2999);
    EXPECT_TRUE(isHighlightInSight());
    stage_.viewModel.moveSelection(-1500);
    EXPECT_TRUE(isHighlightInSight());
    EXPECT_LT(rowItems().size(), 40);
}

TEST(SymbolImagesTest, EverySymbolIsThereInTheColourAskedFor) {
    const TextServices services("en_US");
    std::set<std::string> names{"magnifyingglass", "leaf.fill",   "checkmark",
                                "gearshape",       "power",       "sparkles",
                                "scissors",        "MenuBarIcon", "exclamationmark.triangle"};
    for (const char* recording : {"mousepad", "featherpad", "firefox"}) {
        for (const Command& command : recordedCommands(recording, services)) {
            names.emplace(commandIcon(command, services).symbol);
        }
    }
    EXPECT_GE(names.size(), 15U);
    for (const std::string& name : names) {
        const QImage image = symbolImage(QString::fromStdString(name), QColor(255, 0, 0), {48, 48});
        ASSERT_FALSE(image.isNull()) << name;
        int painted = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour = image.pixelColor(x, y);
                painted += colour.alpha() > 200 ? 1 : 0;
                ASSERT_TRUE(colour.alpha() == 0 || colour.green() < 8) << name;
            }
        }
        EXPECT_GT(painted, 100) << name;
    }
    EXPECT_TRUE(symbolImage("no such symbol", Qt::black, {16, 16}).isNull());
}

} // namespace
} // namespace tovrel
