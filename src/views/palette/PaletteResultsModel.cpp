#include "views/palette/PaletteResultsModel.h"

#include <QColor>
#include <QStringList>
#include <algorithm>
#include <utility>

#include "menus/ShortcutNames.h"
#include "palette/CommandIcon.h"
#include "palette/Keycaps.h"
#include "qt/QtText.h"

namespace tovrel {
namespace {

QColor qtColour(const Colour& colour) {
    return {colour.red, colour.green, colour.blue};
}

QStringList keycapNames(const Command& command, const TextServices& textServices) {
    QStringList names;
    if (command.shortcut) {
        for (const Text& keycap : keycaps(*command.shortcut, textServices)) {
            names.append(qtString(keycapWithKeyName(keycap)));
        }
    }
    return names;
}

QString spokenName(const Command& command) {
    QStringList parts{qtString(command.title)};
    if (command.subtitle && !command.subtitle->empty()) {
        parts.append(qtString(*command.subtitle));
    }
    if (command.shortcut) {
        parts.append(qtString(shortcutWithKeyNames(*command.shortcut)));
    }
    return parts.join(QStringLiteral(", "));
}

} // namespace

PaletteResultsModel::PaletteResultsModel(const PaletteViewModel& viewModel, const TextServices& textServices,
                                         QObject* parent)
    : QAbstractListModel(parent), viewModel_(&viewModel), textServices_(&textServices),
      count_(static_cast<int>(viewModel.results().get().size())) {}

void PaletteResultsModel::resultsChanged() {
    const auto newCount = static_cast<int>(viewModel_->results().get().size());
    const int oldCount = count_;
    if (newCount < oldCount) {
        beginRemoveRows({}, newCount, oldCount - 1);
        count_ = newCount;
        endRemoveRows();
    }
    if (const int kept = std::min(oldCount, newCount); kept > 0) {
        Q_EMIT dataChanged(index(0), index(kept - 1));
    }
    if (newCount > oldCount) {
        beginInsertRows({}, oldCount, newCount - 1);
        count_ = newCount;
        endInsertRows();
    }
    if (newCount != oldCount) {
        Q_EMIT countChanged();
    }
}

int PaletteResultsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count_;
}

QVariant PaletteResultsModel::data(const QModelIndex& index, int role) const {
    const CommandSearchResults& results = viewModel_->results().get();
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= results.size()) {
        return {};
    }
    const Command& command = results[row].command;
    switch (role) {
    case Qt::DisplayRole:
    case titleRole:
        return qtString(command.title);
    case subtitleRole:
        return command.subtitle ? qtString(*command.subtitle) : QString();
    case keycapsRole:
        return keycapNames(command, *textServices_);
    case spokenNameRole:
        return spokenName(command);
    case symbolRole: {
        const std::string_view symbol = commandIcon(command, *textServices_).symbol;
        return QString::fromUtf8(symbol.data(), static_cast<qsizetype>(symbol.size()));
    }
    case accentRole:
        return qtColour(commandIcon(command, *textServices_).colours.accent);
    case tintRole:
        return qtColour(commandIcon(command, *textServices_).colours.tint);
    case isCheckedRole:
        return command.isChecked;
    default:
        return {};
    }
}

QHash<int, QByteArray> PaletteResultsModel::roleNames() const {
    return {{titleRole, "title"},     {subtitleRole, "subtitle"},
            {keycapsRole, "keycaps"}, {spokenNameRole, "spokenName"},
            {symbolRole, "symbol"},   {accentRole, "accent"},
            {tintRole, "tint"},       {isCheckedRole, "isChecked"}};
}

} // namespace tovrel
