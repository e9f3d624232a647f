#pragma once

#include <QAbstractListModel>
#include <QQmlEngine>
#include <QString>
#include <QUrl>
#include <vector>

namespace tovrel {

/// One row of a list, or one choice of a picker. Each list uses the members that it needs.
struct SettingsRow {
    QString id = {};
    QString title = {};
    QString detail = {};
    QString symbol = {};
    QUrl icon = {};     ///< Empty when there is none.
    QString value = {}; ///< The value that the row's picker shows.
    bool isMarked = false;

    friend bool operator==(const SettingsRow&, const SettingsRow&) = default;
};

/// Rows of a list. New rows are assigned as a whole. The view is told only of differences, so that unchanged
/// rows keep their place and the keyboard focus.
class SettingsRowsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The settings' adapters make it.")
    Q_PROPERTY(int count READ count NOTIFY countChanged FINAL)

  public:
    enum Role {
        idRole = Qt::UserRole,
        titleRole,
        detailRole,
        symbolRole,
        iconRole,
        valueRole,
        isMarkedRole,
    };

    using QAbstractListModel::QAbstractListModel;

    void assign(std::vector<SettingsRow> rows);
    [[nodiscard]] const std::vector<SettingsRow>& rows() const { return rows_; }

    /// The title of the first row with the id; empty when there is none.
    [[nodiscard]] QString titleOf(const QString& id) const;

    /// The id of the first row with the title; empty when there is none.
    Q_INVOKABLE [[nodiscard]] QString idOf(const QString& title) const;

    [[nodiscard]] int count() const { return static_cast<int>(rows_.size()); }
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  Q_SIGNALS:
    void countChanged();

  private:
    void replace(int first, int removed, std::vector<SettingsRow> inserted);

    std::vector<SettingsRow> rows_;
};

} // namespace tovrel
