#include "views/palette/PaletteViewAdapter.h"

#include <QMetaObject>
#include <utility>

#include "qt/QtText.h"
#include "views/shared/AppIconImages.h"

namespace tovrel {

PaletteViewAdapter::PaletteViewAdapter(PaletteViewContext context, const TextServices& textServices,
                                       QObject* parent)
    : QObject(parent), context_(std::move(context)), results_(context_.viewModel, textServices) {
    const PaletteViewModel& model = context_.viewModel;
    subscriptions_.push_back(model.query().subscribe([this] { Q_EMIT queryChanged(); }));
    subscriptions_.push_back(model.selectedIndex().subscribe([this] { Q_EMIT selectedIndexChanged(); }));
    subscriptions_.push_back(model.results().subscribe([this] {
        results_.resultsChanged();
        // A view that ran out of rows has forgotten which one is highlighted.
        Q_EMIT selectedIndexChanged();
    }));
    subscriptions_.push_back(model.appName().subscribe([this] { Q_EMIT appNameChanged(); }));
    subscriptions_.push_back(model.appIcon().subscribe([this] { Q_EMIT appIconSourceChanged(); }));
    // A window that is being shown takes the focus only after this turn of the main loop.
    subscriptions_.push_back(model.searchFocusRequest().subscribe([this] {
        QMetaObject::invokeMethod(this, &PaletteViewAdapter::searchFocusRequested, Qt::QueuedConnection);
    }));
    subscriptions_.push_back(
        context_.settingsStore.showCheckedStatus().subscribe([this] { Q_EMIT showCheckedStatusChanged(); }));
}

QString PaletteViewAdapter::query() const {
    return qtString(context_.viewModel.query().get());
}

void PaletteViewAdapter::setQuery(const QString& query) {
    context_.viewModel.setQuery(textFrom(query));
}

bool PaletteViewAdapter::isQueryBlank() const {
    return trimmed(context_.viewModel.query().get()).empty();
}

int PaletteViewAdapter::selectedIndex() const {
    return static_cast<int>(context_.viewModel.selectedIndex().get());
}

QString PaletteViewAdapter::appName() const {
    const std::optional<Text>& name = context_.viewModel.appName().get();
    return name ? qtString(*name) : QString();
}

QUrl PaletteViewAdapter::appIconSource() const {
    const std::optional<ApplicationIcon>& icon = context_.viewModel.appIcon().get();
    return icon ? appIconUrl(qtString(icon->name)) : QUrl();
}

bool PaletteViewAdapter::showCheckedStatus() const {
    return context_.settingsStore.showCheckedStatus().get();
}

void PaletteViewAdapter::moveSelection(int delta) {
    context_.viewModel.moveSelection(delta);
}

void PaletteViewAdapter::executeSelection() {
    if (const std::optional<Command> command = context_.viewModel.selectedCommand()) {
        context_.onExecute(*command);
    }
}

void PaletteViewAdapter::executeRow(int row) {
    const CommandSearchResults& results = context_.viewModel.results().get();
    if (row < 0 || static_cast<std::size_t>(row) >= results.size()) {
        return;
    }
    const Command command = results[static_cast<std::size_t>(row)].command;
    moveSelection(row - selectedIndex());
    context_.onExecute(command);
}

void PaletteViewAdapter::dismiss() {
    context_.onDismiss();
}

} // namespace tovrel
