#pragma once

#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>

#include "views/settings/pages/RecorderAdapter.h"

namespace tovrel {

/// The part of a recorder's field that has the keyboard focus. Taking the focus starts recording, unless the
/// field only gets it with its window; Return and Space start it again.
class RecorderInput : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tovrel::RecorderAdapter* recorder READ recorder WRITE setRecorder NOTIFY recorderChanged FINAL)

  public:
    explicit RecorderInput(QQuickItem* parent = nullptr);
    ~RecorderInput() override;
    RecorderInput(const RecorderInput&) = delete;
    RecorderInput& operator=(const RecorderInput&) = delete;

    [[nodiscard]] RecorderAdapter* recorder() const { return recorder_; }
    void setRecorder(RecorderAdapter* recorder);

    /// Takes the focus and starts recording, as a click on the field does.
    Q_INVOKABLE void record();

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    void recorderChanged();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

  private:
    QPointer<RecorderAdapter> recorder_;
    QPointer<QQuickWindow> watched_;
    bool recordsWhenActive_ = false;
};

} // namespace tovrel
