#include "platform/contract/PalettePanelContract.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWindow>
#include <functional>
#include <memory>
#include <utility>

#include "qt/QtText.h"
#include "views/palette/PaletteStage.h"
#include "windows/QtWindowSystem.h"

namespace tovrel {
namespace {

/// Gives the focus back as a display does; Qt alone leaves that to it.
class FocusReturner : public QtWindowSystem {
  public:
    explicit FocusReturner(std::function<void()> giveBack) : giveBack_(std::move(giveBack)) {}
    [[nodiscard]] std::function<void()> rememberFocus() const override { return giveBack_; }

  private:
    std::function<void()> giveBack_;
};

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

    QWindow another_;
    PaletteStage stage_{std::make_unique<FocusReturner>([this] { turnAway(); })};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, PalettePanelContract, QtPalettePanelRig);

} // namespace
} // namespace tovrel
