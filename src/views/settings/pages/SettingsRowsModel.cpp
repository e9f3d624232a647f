#include "views/settings/pages/SettingsRowsModel.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tovrel {

void SettingsRowsModel::assign(std::vector<SettingsRow> rows) {
    const auto isSame = [](const SettingsRow& left, const SettingsRow& right) { return left.id == right.id; };
    const auto firstDifference =
        std::mismatch(rows_.begin(), rows_.end(), rows.begin(), rows.end(), isSame).first;
    const auto first = std::distance(rows_.begin(), firstDifference);
    const auto lastDifference =
        std::mismatch(rows_.rbegin(), std::reverse_iterator(firstDifference), rows.rbegin(),
                      std::reverse_iterator(rows.begin() + first), isSame)
            .first;
    const auto tail = std::distance(rows_.rbegin(), lastDifference);
    const int oldCount = count();
    replace(static_cast<int>(first), static_cast<int>(std::ssize(rows_) - first - tail),
            {rows.begin() + first, rows.end() - tail});
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows_[i] != rows[i]) {
            rows_[i] = std::move(rows[i]);
            const QModelIndex changed = index(static_cast<int>(i));
            Q_EMIT dataChanged(changed, changed);
        }
    }
    if (count() != oldCount) {
        Q_EMIT countChanged();
    }
}

void SettingsRowsModel::replace(int first, int removed, std::vector<SettingsRow> inserted) {
    if (removed > 0) {
        beginRemoveRows({}, first, first + removed - 1);
        rows_.erase(rows_.begin() + first, rows_.begin() + first + removed);
        endRemoveRows();
    }
    if (!inserted.empty()) {
        beginInsertRows({}, first, first + static_cast<int>(inserted.size()) - 1);
        rows_.insert(rows_.begin() + first, std::make_move_iterator(inserted.begin()),
                     std::make_move_iterator(inserted.end()));
        endInsertRows();
    }
}

QString SettingsRowsModel::titleOf(const QString& id) const {
    const auto found =
        std::find_if(rows_.begin(), rows_.end(), [&](const SettingsRow& row) { return row.id == id; });
    return found == rows_.end() ? QString() : found->title;
}

QString SettingsRowsModel::idOf(const QString& title) const {
    const auto found =
        std::find_if(rows_.begin(), rows_.end(), [&](const SettingsRow& row) { return row.title == title; });
    return found == rows_.end() ? QString() : found->id;
}

int SettingsRowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant SettingsRowsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const SettingsRow& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case idRole:
        return row.id;
    case titleRole:
        return row.title;
    case detailRole:
        return row.detail;
    case symbolRole:
        return row.symbol;
    case iconRole:
        return row.icon;
    case valueRole:
        return row.value;
    case isMarkedRole:
        return row.isMarked;
    default:
        return {};
    }
}

QHash<int, QByteArray> SettingsRowsModel::roleNames() const {
    return {{idRole, "rowID"},  {titleRole, "title"}, {detailRole, "detail"},    {symbolRole, "symbol"},
            {iconRole, "icon"}, {valueRole, "value"}, {isMarkedRole, "isMarked"}};
}

} // namespace tovrel
