#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace tovrel {

/// A question with two answers, for AlertView.
class AlertQuestion : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Whoever asks makes it.")
    Q_PROPERTY(QString messageText MEMBER messageText CONSTANT FINAL)
    Q_PROPERTY(QString informativeText MEMBER informativeText CONSTANT FINAL)
    Q_PROPERTY(QString firstButton MEMBER firstButton CONSTANT FINAL)
    Q_PROPERTY(QString secondButton MEMBER secondButton CONSTANT FINAL)

  public:
    QString messageText;
    QString informativeText;
    QString firstButton;
    QString secondButton;

    Q_INVOKABLE void answer(bool isFirst) { Q_EMIT answered(isFirst); }
    Q_INVOKABLE void dismiss() { Q_EMIT dismissed(); }

  Q_SIGNALS:
    void answered(bool isFirst);
    void dismissed();
};

} // namespace tovrel
