#pragma once

#include <QColor>
#include <QFont>
#include <QQmlEngine>
#include <QQuickPaintedItem>
#include <QStringList>
#include <vector>

namespace tovrel {

/// A shortcut as a row of key caps. It is painted as a whole, because every keystroke changes the caps of all
/// rows, and making new items for them would take longer than everything else.
class ShortcutKeycaps : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<QString> texts READ texts WRITE setTexts NOTIFY textsChanged FINAL)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged FINAL)
    Q_PROPERTY(QColor ink MEMBER ink_ NOTIFY coloursChanged FINAL)
    Q_PROPERTY(QColor borderColour MEMBER borderColour_ NOTIFY coloursChanged FINAL)

  public:
    explicit ShortcutKeycaps(QQuickItem* parent = nullptr);

    [[nodiscard]] const QStringList& texts() const { return texts_; }
    void setTexts(const QStringList& texts);
    [[nodiscard]] const QFont& font() const { return font_; }
    void setFont(const QFont& font);

    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void textsChanged();
    void fontChanged();
    void coloursChanged();

  private:
    void measure();

    QStringList texts_;
    QFont font_;
    QColor ink_;
    QColor borderColour_;
    std::vector<int> widths_;
    int contentWidth_ = 0;
};

} // namespace tovrel
