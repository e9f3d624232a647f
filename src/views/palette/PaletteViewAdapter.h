#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QUrl>
#include <functional>
#include <vector>

#include "palette/PaletteWindowController.h"
#include "support/Observable.h"
#include "support/TextServices.h"
#include "views/palette/PaletteResultsModel.h"

namespace tovrel {

/// What the palette's view binds to: the observable models as properties, and the user's actions.
class PaletteViewAdapter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The palette's panel makes it.")
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    Q_PROPERTY(bool isQueryBlank READ isQueryBlank NOTIFY queryChanged FINAL)
    Q_PROPERTY(tovrel::PaletteResultsModel* results READ results CONSTANT FINAL)
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged FINAL)
    Q_PROPERTY(QString appName READ appName NOTIFY appNameChanged FINAL)
    Q_PROPERTY(QUrl appIconSource READ appIconSource NOTIFY appIconSourceChanged FINAL)
    Q_PROPERTY(bool showCheckedStatus READ showCheckedStatus NOTIFY showCheckedStatusChanged FINAL)

  public:
    /// All that the arguments refer to outlives the adapter.
    PaletteViewAdapter(PaletteViewContext context, const TextServices& textServices,
                       QObject* parent = nullptr);

    [[nodiscard]] QString query() const;
    void setQuery(const QString& query);
    /// Whether the query is empty or only white space.
    [[nodiscard]] bool isQueryBlank() const;
    [[nodiscard]] PaletteResultsModel* results() { return &results_; }
    [[nodiscard]] int selectedIndex() const;
    /// Empty when there is none.
    [[nodiscard]] QString appName() const;
    /// The address of the application's icon; empty when the desktop has no such icon.
    [[nodiscard]] QUrl appIconSource() const;
    [[nodiscard]] bool showCheckedStatus() const;

    Q_INVOKABLE void moveSelection(int delta);
    Q_INVOKABLE void executeSelection();
    /// Highlights the row and runs its command. A row that is not there is ignored.
    Q_INVOKABLE void executeRow(int row);
    Q_INVOKABLE void dismiss();

  Q_SIGNALS:
    void queryChanged();
    void selectedIndexChanged();
    void appNameChanged();
    void appIconSourceChanged();
    void showCheckedStatusChanged();
    /// Asks the search field to take the keyboard focus.
    void searchFocusRequested();

  private:
    PaletteViewContext context_;
    PaletteResultsModel results_;
    std::vector<Subscription> subscriptions_;
};

} // namespace tovrel
