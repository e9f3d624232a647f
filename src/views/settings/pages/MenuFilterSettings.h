#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <vector>

#include "settings/SettingsViewState.h"
#include "support/Observable.h"
#include "views/settings/pages/SettingsRowsModel.h"

namespace tovrel {

/// What the page "Menu Filter" binds to.
class MenuFilterSettings : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The settings' window makes it.")
    Q_PROPERTY(tovrel::SettingsRowsModel* candidates READ candidates CONSTANT FINAL)
    Q_PROPERTY(QString selectedID READ selectedID NOTIFY changed FINAL)
    Q_PROPERTY(QString selectedTitle READ selectedTitle NOTIFY changed FINAL)
    Q_PROPERTY(tovrel::SettingsRowsModel* modes READ modes CONSTANT FINAL)
    Q_PROPERTY(QString modeID READ modeID NOTIFY changed FINAL)
    Q_PROPERTY(QString modeLabel READ modeLabel NOTIFY changed FINAL)
    Q_PROPERTY(tovrel::SettingsRowsModel* rules READ rules CONSTANT FINAL)

  public:
    /// `state` outlives the object.
    explicit MenuFilterSettings(SettingsViewState& state, QObject* parent = nullptr);

    [[nodiscard]] SettingsRowsModel* candidates() { return &candidates_; }
    [[nodiscard]] QString selectedID() const;
    /// Empty when nothing is selected, or the selected item no longer exists.
    [[nodiscard]] QString selectedTitle() const;
    [[nodiscard]] SettingsRowsModel* modes() { return &modes_; }
    [[nodiscard]] QString modeID() const;
    [[nodiscard]] QString modeLabel() const;
    [[nodiscard]] SettingsRowsModel* rules() { return &rules_; }

    Q_INVOKABLE void select(const QString& id);
    Q_INVOKABLE void setMode(const QString& id);
    Q_INVOKABLE void hideSelected();
    Q_INVOKABLE void removeRule(const QString& id);

  Q_SIGNALS:
    void changed();

  private:
    void showCandidates();
    void showRules();

    SettingsViewState* state_;
    SettingsRowsModel candidates_;
    SettingsRowsModel modes_;
    SettingsRowsModel rules_;
    std::vector<Subscription> subscriptions_;
};

} // namespace tovrel
