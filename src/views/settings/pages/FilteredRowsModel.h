#pragma once

#include <QQmlEngine>
#include <QSortFilterProxyModel>
#include <QString>

#include "views/settings/pages/SettingsRowsModel.h"

namespace tovrel {

/// The rows of another list whose titles contain the typed text, whatever its case; all rows without a text.
class FilteredRowsModel : public QSortFilterProxyModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tovrel::SettingsRowsModel* source READ source WRITE setSource NOTIFY sourceChanged FINAL)
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY filterChanged FINAL)

  public:
    explicit FilteredRowsModel(QObject* parent = nullptr);

    [[nodiscard]] SettingsRowsModel* source() const {
        return qobject_cast<SettingsRowsModel*>(sourceModel());
    }
    void setSource(SettingsRowsModel* source);
    [[nodiscard]] const QString& filter() const { return filter_; }
    void setFilter(const QString& filter);

    /// The id of a row that is shown; empty when the row is not there.
    Q_INVOKABLE QString idAt(int row) const;
    /// The place of the first shown row with the id; -1 when no such row is shown.
    Q_INVOKABLE int rowOf(const QString& id) const;

  Q_SIGNALS:
    void sourceChanged();
    void filterChanged();

  private:
    QString filter_;
};

} // namespace tovrel
