#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <map>
#include <optional>
#include <vector>

#include "platform/Workspace.h"
#include "settings/SettingsViewState.h"
#include "support/Observable.h"
#include "support/TextServices.h"
#include "views/settings/pages/SettingsRowsModel.h"

namespace tovrel {

/// What the page "Apps" binds to. An index of a behaviour is its place among `behaviorLabels`.
class AppsSettings : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The settings' window makes it.")
    Q_PROPERTY(QList<QString> behaviorLabels READ behaviorLabels CONSTANT FINAL)
    Q_PROPERTY(tovrel::SettingsRowsModel* behaviors READ behaviors CONSTANT FINAL)
    Q_PROPERTY(int defaultBehavior READ defaultBehavior NOTIFY changed FINAL)
    Q_PROPERTY(bool hasCurrentApplication READ hasCurrentApplication NOTIFY changed FINAL)
    Q_PROPERTY(QString currentName READ currentName NOTIFY changed FINAL)
    Q_PROPERTY(QString currentBundleID READ currentBundleID NOTIFY changed FINAL)
    Q_PROPERTY(QUrl currentIcon READ currentIcon NOTIFY changed FINAL)
    Q_PROPERTY(int currentBehavior READ currentBehavior NOTIFY changed FINAL)
    Q_PROPERTY(int newBehavior READ newBehavior NOTIFY changed FINAL)
    Q_PROPERTY(tovrel::SettingsRowsModel* rules READ rules CONSTANT FINAL)
    Q_PROPERTY(tovrel::SettingsRowsModel* applications READ applications CONSTANT FINAL)

  public:
    /// All that the arguments refer to outlives the object.
    AppsSettings(SettingsViewState& state, Workspace& workspace, const TextServices& textServices,
                 QObject* parent = nullptr);

    [[nodiscard]] QStringList behaviorLabels() const;
    /// The behaviours as choices of a picker.
    [[nodiscard]] SettingsRowsModel* behaviors() { return &behaviors_; }
    [[nodiscard]] int defaultBehavior() const;
    [[nodiscard]] bool hasCurrentApplication() const;
    [[nodiscard]] QString currentName() const;
    [[nodiscard]] QString currentBundleID() const;
    [[nodiscard]] QUrl currentIcon() const;
    [[nodiscard]] int currentBehavior() const;
    [[nodiscard]] int newBehavior() const;
    [[nodiscard]] SettingsRowsModel* rules() { return &rules_; }
    /// The installed applications by name; empty until they are loaded.
    [[nodiscard]] SettingsRowsModel* applications() { return &applications_; }

    Q_INVOKABLE void setDefaultBehavior(int index);
    Q_INVOKABLE void setCurrentBehavior(int index);
    Q_INVOKABLE void setNewBehavior(int index);
    /// Sets the behaviour with this id among `behaviors` for the application.
    Q_INVOKABLE void setBehavior(const QString& bundleID, const QString& behaviorID);
    Q_INVOKABLE void removeRule(const QString& bundleID);
    Q_INVOKABLE void loadApplications();
    Q_INVOKABLE void addRule(const QString& bundleID);

  Q_SIGNALS:
    void changed();

  private:
    void showRules();
    const std::optional<InstalledApplication>& installed(const Text& bundleID) const;

    SettingsViewState* state_;
    Workspace* workspace_;
    const TextServices* textServices_;
    SettingsRowsModel behaviors_;
    SettingsRowsModel rules_;
    SettingsRowsModel applications_;
    mutable std::map<Text, std::optional<InstalledApplication>> installed_; ///< A cache by identifier.
    std::vector<Subscription> subscriptions_;
};

} // namespace tovrel
