#pragma once

#include <QColor>
#include <QQmlEngine>
#include <QQuickPaintedItem>
#include <QStringList>
#include <vector>

namespace tovrel {

/// A shortcut as a row of key caps. Painted as a whole: every keystroke changes those of all rows, and making
/// items for them anew would take longer than everything else.
class ShortcutKeycaps : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<QString> texts READ texts WRITE setTexts NOTIFY textsChanged FINAL)
    Q_PROPERTY(bool isSelected READ isSelected WRITE setSelected NOTIFY isSelectedChanged FINAL)

  public:
    explicit ShortcutKeycaps(QQuickItem* parent = nullptr);

    [[nodiscard]] const QStringList& texts() const { return texts_; }
    void setTexts(const QStringList& texts);
    [[nodiscard]] bool isSelected() const { return isSelected_; }
    void setSelected(bool isSelected);

    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void textsChanged();
    void isSelectedChanged();

  private:
    void measure();

    QStringList texts_;
    bool isSelected_ = false;
    std::vector<int> widths_;
    int contentWidth_ = 0;
};

} // namespace tovrel
