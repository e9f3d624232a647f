#pragma once

#include <QAbstractListModel>
#include <QQmlEngine>

#include "palette/PaletteViewModel.h"
#include "support/TextServices.h"

namespace tovrel {

/// The results as rows of a view. Reads the model's results only when a row is asked for, so that rows that
/// are not shown cost nothing. Never resets: the view keeps its rows and fills them with other contents.
class PaletteResultsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The palette's panel makes it.")
    Q_PROPERTY(int count READ count NOTIFY countChanged FINAL)

  public:
    enum Role {
        titleRole = Qt::UserRole,
        subtitleRole,   ///< Empty when there is none.
        keycapsRole,    ///< Texts of the key caps, in the names of the user's keyboard.
        spokenNameRole, ///< Title, subtitle and shortcut in words.
        symbolRole,
        accentRole,
        tintRole,
        isCheckedRole,
    };

    /// Both outlive the model.
    PaletteResultsModel(const PaletteViewModel& viewModel, const TextServices& textServices,
                        QObject* parent = nullptr);

    /// Tells the view what has changed; called when the results have been assigned.
    void resultsChanged();

    [[nodiscard]] int count() const { return count_; }
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  Q_SIGNALS:
    void countChanged();

  private:
    const PaletteViewModel* viewModel_;
    const TextServices* textServices_;
    int count_ = 0;
};

} // namespace tovrel
