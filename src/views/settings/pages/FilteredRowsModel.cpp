#include "views/settings/pages/FilteredRowsModel.h"

namespace tovrel {

FilteredRowsModel::FilteredRowsModel(QObject* parent) : QSortFilterProxyModel(parent) {
    setFilterRole(SettingsRowsModel::titleRole);
    setFilterCaseSensitivity(Qt::CaseInsensitive);
}

void FilteredRowsModel::setSource(SettingsRowsModel* source) {
    setSourceModel(source);
    Q_EMIT sourceChanged();
}

void FilteredRowsModel::setFilter(const QString& filter) {
    filter_ = filter;
    setFilterFixedString(filter.trimmed());
    Q_EMIT filterChanged();
}

QString FilteredRowsModel::idAt(int row) const {
    return index(row, 0).data(SettingsRowsModel::idRole).toString();
}

int FilteredRowsModel::rowOf(const QString& id) const {
    for (int row = 0; row < rowCount(); ++row) {
        if (idAt(row) == id) {
            return row;
        }
    }
    return -1;
}

} // namespace tovrel
