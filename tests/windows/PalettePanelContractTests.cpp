#include "platform/contract/PalettePanelContract.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include "qt/QtText.h"
#include "views/palette/PaletteStage.h"

namespace tovrel {
namespace {

/// Beside the panel there is a window that has the focus before.
class QtPalettePanelRig {
  public:
    QtPalettePanelRig() {
        another_.show();
        turnAway();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&another_));
    }

    PalettePanel& panel() { return stage_.panel; }
    template <typename Condition>
    bool until(Condition condition) {
        return QTest::qWaitFor(condition);
    }
    bool isKey() { return view().isActive(); }
    void type(char character) { QTest::keyClick(&view(), character); }
    Text query() { return stage_.viewModel.query().get(); }
    void turnAway() { another_.requestActivate(); }
    static Text screen() { return textFrom(QGuiApplication::primaryScreen()->name()); }
    PalettePlacement placement() {
        const QRect visible = view().screen()->availableGeometry();
        const QRect frame = view().geometry();
        return {textFrom(view().screen()->name()),
                {.x = static_cast<double>(frame.left() - visible.left()),
                 .y = static_cast<double>(visible.bottom() - frame.bottom())}};
    }

  private:
    QQuickView& view() { return stage_.panel.window(); }

    WindowSystem windowSystem() {
        WindowSystem system;
        system.rememberFocus = [this] { return [this] { turnAway(); }; };
        return system;
    }

    QWindow another_;
    PaletteStage stage_{windowSystem()};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, PalettePanelContract, QtPalettePanelRig);

} // namespace
} // namespace tovrel
