#pragma once

#include <QObject>
#include <QQuickView>
#include <functional>
#include <memory>

#include "palette/PalettePanel.h"
#include "palette/PaletteWindowController.h"
#include "platform/WindowSystem.h"
#include "qt/QtKeyEvents.h"
#include "windows/FloatingWindow.h"
#include "windows/FocusLossWatch.h"
#include "windows/ViewEngine.h"

namespace tovrel {

class PaletteViewAdapter;

/// The palette's window. It loads its view at once, so that the first showing is as fast as any other.
class QtPalettePanel final : public QObject, public PalettePanel {
  public:
    /// `engine`, `windowSystem`, `textServices` and all that `context` refers to outlive the panel.
    QtPalettePanel(PaletteViewContext context, const TextServices& textServices, ViewEngine& engine,
                   WindowSystem& windowSystem, KeyCodeFromScanCode keyCodeFromScanCode);
    ~QtPalettePanel() override;
    QtPalettePanel(const QtPalettePanel&) = delete;
    QtPalettePanel& operator=(const QtPalettePanel&) = delete;

    [[nodiscard]] bool isVisible() const override;
    [[nodiscard]] Size frameSize() const override;
    void place(const PalettePlacement& placement) override;
    void show() override { window_.show(); }
    void makeKey() override { window_.takeFocus(); }
    void close() override;
    void setKeyHandler(KeyHandler handler) override { keyHandler_ = std::move(handler); }
    void setResignKeyHandler(std::function<void()> handler) override {
        resignKeyHandler_ = std::move(handler);
    }

    [[nodiscard]] QQuickView& window() { return window_.view(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::unique_ptr<PaletteViewAdapter> adapter_;
    KeyCodeFromScanCode keyCodeFromScanCode_;
    KeyHandler keyHandler_;
    std::function<void()> resignKeyHandler_;
    FloatingWindow window_;
    FocusLossWatch focusLoss_;
};

} // namespace tovrel
