#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <vector>

#include "settings/SettingsViewState.h"
#include "support/Observable.h"
#include "views/settings/pages/SettingsRowsModel.h"

namespace tovrel {

/// What the page "History" binds to.
class HistorySettings : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The settings' window makes it.")
    Q_PROPERTY(tovrel::SettingsRowsModel* menuCommands READ menuCommands CONSTANT FINAL)
    Q_PROPERTY(QString selectedID READ selectedID NOTIFY changed FINAL)
    Q_PROPERTY(QString selectedTitle READ selectedTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString aliases READ aliases WRITE setAliases NOTIFY changed FINAL)
    Q_PROPERTY(bool isFavorite READ isFavorite WRITE setFavorite NOTIFY changed FINAL)
    Q_PROPERTY(tovrel::SettingsRowsModel* entries READ entries CONSTANT FINAL)

  public:
    /// `state` outlives the object.
    explicit HistorySettings(SettingsViewState& state, QObject* parent = nullptr);

    [[nodiscard]] SettingsRowsModel* menuCommands() { return &menuCommands_; }
    [[nodiscard]] QString selectedID() const;
    /// Empty when nothing is selected, or the selected command no longer exists.
    [[nodiscard]] QString selectedTitle() const;
    [[nodiscard]] QString aliases() const;
    void setAliases(const QString& aliases);
    [[nodiscard]] bool isFavorite() const;
    void setFavorite(bool isFavorite);
    [[nodiscard]] SettingsRowsModel* entries() { return &entries_; }

    Q_INVOKABLE void select(const QString& id);
    Q_INVOKABLE void save();
    Q_INVOKABLE void clear();

  Q_SIGNALS:
    void changed();

  private:
    void showMenuCommands();
    void showEntries();

    SettingsViewState* state_;
    SettingsRowsModel menuCommands_;
    SettingsRowsModel entries_;
    std::vector<Subscription> subscriptions_;
};

} // namespace tovrel
