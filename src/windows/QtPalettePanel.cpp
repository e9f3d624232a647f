#include "windows/QtPalettePanel.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <utility>

#include "qt/QtText.h"
#include "views/palette/PaletteViewAdapter.h"
#include "windows/ScreenCoordinates.h"

namespace tovrel {

QtPalettePanel::QtPalettePanel(PaletteViewContext context, const TextServices& textServices,
                               ViewEngine& engine, WindowSystem& windowSystem,
                               KeyCodeFromScanCode keyCodeFromScanCode)
    : adapter_(std::make_unique<PaletteViewAdapter>(std::move(context), textServices)),
      keyCodeFromScanCode_(std::move(keyCodeFromScanCode)),
      window_(engine, windowSystem,
              {.view = QStringLiteral("PaletteView"),
               .properties = {{QStringLiteral("palette"), QVariant::fromValue(adapter_.get())}},
               .title = QStringLiteral("Tovrel")}),
      focusLoss_([this] { return window_.hasInputFocus(); },
                 [this] {
                     if (resignKeyHandler_) {
                         resignKeyHandler_();
                     }
                 }) {
    window().installEventFilter(this);
    QObject::connect(&window(), &QWindow::activeChanged, this, [this] {
        if (isVisible()) {
            focusLoss_.activeChanged(window().isActive());
        }
    });
}

QtPalettePanel::~QtPalettePanel() {
    // The window changes its state once more while it is destroyed.
    window().removeEventFilter(this);
    QObject::disconnect(&window(), nullptr, this, nullptr);
}

bool QtPalettePanel::isVisible() const {
    return window_.view().isVisible();
}

Size QtPalettePanel::frameSize() const {
    return {.width = static_cast<double>(window_.view().width()),
            .height = static_cast<double>(window_.view().height())};
}

void QtPalettePanel::place(const PalettePlacement& placement) {
    const QScreen* primary = QGuiApplication::primaryScreen();
    const QScreen* screen = placement.screen ? screenNamed(qtString(*placement.screen)) : nullptr;
    if (screen == nullptr) {
        screen = primary;
    }
    if (screen == nullptr) {
        return;
    }
    const Point corner = upwards(screen->availableGeometry(), *primary).origin;
    const Point origin{corner.x + placement.offset.x, corner.y + placement.offset.y};
    window().setPosition(downwards(origin, window().size(), *primary));
}

void QtPalettePanel::close() {
    focusLoss_.stop();
    window_.hide();
}

bool QtPalettePanel::eventFilter(QObject* watched, QEvent* event) {
    if (!keyHandler_) {
        return QObject::eventFilter(watched, event);
    }
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept(); // not a shortcut: the key comes again as a key press
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        const KeyHandler handler = keyHandler_; // the handler may replace itself
        if (handler(keyEventFrom(*static_cast<QKeyEvent*>(event), keyCodeFromScanCode_))) {
            event->accept();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tovrel
