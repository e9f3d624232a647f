#pragma once

#include <QObject>
#include <QQuickView>
#include <QVariantMap>

#include "windows/ViewEngine.h"
#include "windows/WindowActivation.h"
#include "windows/WindowSystem.h"

namespace tovrel {

/// A window without a frame, with round corners, above all others. Made hidden; hiding keeps it.
class FloatingWindow : public QObject {
    Q_OBJECT

  public:
    struct Description {
        QString view; ///< Name of a view of the module Tovrel.Views, with a signal "moveWanted".
        QVariantMap properties;
        QString title;
        Qt::WindowType type = Qt::Tool;
    };

    FloatingWindow(ViewEngine& engine, WindowSystem windowSystem, const Description& description);

    [[nodiscard]] QQuickView& view() { return view_; }
    [[nodiscard]] const QQuickView& view() const { return view_; }
    [[nodiscard]] bool hasInputFocus() const { return windowSystem_.hasInputFocus(view_); }

    void show();
    /// Takes the keyboard focus; for a window that is shown.
    void takeFocus() { activation_.takeFocus(); }
    /// The focus goes back to where it was.
    void hide() { activation_.hide(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private Q_SLOTS:
    void beginMove();

  private:
    void shape();

    WindowSystem windowSystem_;
    QQuickView view_;
    WindowActivation activation_;
    bool isMoveAskedFor_ = false;
};

} // namespace tovrel
