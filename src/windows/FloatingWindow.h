#pragma once

#include <QObject>
#include <QQuickView>
#include <QVariantMap>

#include "platform/WindowSystem.h"
#include "windows/ViewEngine.h"
#include "windows/WindowActivation.h"

namespace tovrel {

/// A frameless window with round corners, above all others. It is made hidden; hiding keeps it.
class FloatingWindow : public QObject {
    Q_OBJECT

  public:
    struct Description {
        /// The name of a view of the module Tovrel.Views. The view has a signal "moveWanted", the radius of
        /// its corners as "cornerRadius" and the colour of its edge as "edge", and determines the window's
        /// size.
        QString view;
        QVariantMap properties;
        QString title;
        Qt::WindowType type = Qt::Tool;
    };

    /// `engine` and `windowSystem` outlive it.
    FloatingWindow(ViewEngine& engine, WindowSystem& windowSystem, const Description& description);

    [[nodiscard]] QQuickView& view() { return view_; }
    [[nodiscard]] const QQuickView& view() const { return view_; }
    [[nodiscard]] bool hasInputFocus() const;

    void show();
    /// Takes the keyboard focus. The window must be shown.
    void takeFocus() { activation_.takeFocus(); }
    /// Hides the window; the focus goes back to where it was.
    void hide() { activation_.hide(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private Q_SLOTS:
    void beginMove();

  private:
    void shape();

    WindowSystem* windowSystem_;
    QQuickView view_;
    WindowActivation activation_;
    bool isMoveAskedFor_ = false;
};

} // namespace tovrel
