#include "platform/contract/UserInterfaceContract.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <memory>
#include <utility>

#include "platform/contract/StatusItemContract.h"
#include "qt/QtText.h"
#include "windows/QtUserInterface.h"
#include "windows/QtWindowSystem.h"

namespace tovrel {
namespace {

class QtUserInterfaceRig {
  public:
    UserInterface& userInterface() { return userInterface_; }
    template <typename Condition>
    bool until(Condition condition) {
        return QTest::qWaitFor(condition);
    }

    AlertAnswer ask(AlertAnswer answer, const std::function<void()>& whileAsked) {
        QTimer::singleShot(0, [&] {
            QWindow* question = QGuiApplication::modalWindow();
            ASSERT_NE(question, nullptr);
            EXPECT_TRUE(QTest::qWaitForWindowActive(question));
            whileAsked();
            if (answer == AlertAnswer::secondButton) {
                QTest::keyClick(question, Qt::Key_Tab);
            }
            QTest::keyClick(question, answer == AlertAnswer::none ? Qt::Key_Escape : Qt::Key_Return);
        });
        return userInterface_.runAlert({"Run?", "It can do anything.", "Run", "Cancel"});
    }

    void showWindow() {
        window_ = std::make_unique<QWindow>();
        window_->setFlags(Qt::ToolTip); // those are shown without the keyboard
        window_->show();
        window_->setFlags(Qt::Window);
    }
    static bool isActive() { return QGuiApplication::focusWindow() != nullptr; }
    /// No display is there to tell Qt.
    void turnAway() {
        window_.reset();
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    }

    static bool endsMainLoop(const std::function<void()>& task) {
        QTimer::singleShot(0, task);
        QTimer patience;
        QObject::connect(&patience, &QTimer::timeout, [] { QCoreApplication::exit(1); });
        patience.start(std::chrono::seconds(5));
        return QApplication::exec() == 0;
    }

    static bool hasMenu() { return findMenu() != nullptr; }
    static std::vector<ShownMenuLine> lines() {
        std::vector<ShownMenuLine> lines;
        for (const QAction* action : findMenu()->actions()) {
            const QString keys = action->shortcut().toString();
            lines.push_back({textFrom(action->text()),
                             keys.isEmpty() ? std::nullopt
                                            : std::optional(textFrom(keys.split("Ctrl+").last().toLower()))});
        }
        return lines;
    }
    static void openMenu() { findMenu()->popup({}); }
    static void choose(std::size_t line) {
        QMenu* menu = findMenu();
        if (!menu->isVisible()) {
            menu->popup({});
        }
        QTest::mouseClick(menu, Qt::LeftButton, {},
                          menu->actionGeometry(menu->actions().at(static_cast<int>(line))).center());
        menu->close(); // a separator leaves it open
    }

  private:
    static QMenu* findMenu() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* menu = qobject_cast<QMenu*>(widget)) {
                return menu;
            }
        }
        return nullptr;
    }

    ViewEngine engine_;
    QtWindowSystem windowSystem_;
    QtUserInterface userInterface_{engine_, windowSystem_};
    std::unique_ptr<QWindow> window_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, UserInterfaceContract, QtUserInterfaceRig);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, StatusItemContract, QtUserInterfaceRig);

} // namespace
} // namespace tovrel
