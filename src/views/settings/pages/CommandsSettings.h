#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "settings/SettingsViewState.h"
#include "support/Observable.h"
#include "views/settings/pages/SettingsRowsModel.h"

namespace tovrel {

/// What the page "Commands" binds to. The form's fields change as the user types.
class CommandsSettings : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The settings' window makes it.")
    Q_PROPERTY(bool isEditing READ isEditing NOTIFY changed FINAL)
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY changed FINAL)
    Q_PROPERTY(QList<QString> kindLabels READ kindLabels CONSTANT FINAL)
    Q_PROPERTY(int kind READ kind WRITE setKind NOTIFY changed FINAL)
    Q_PROPERTY(QString payload READ payload WRITE setPayload NOTIFY changed FINAL)
    Q_PROPERTY(QString payloadPlaceholder READ payloadPlaceholder NOTIFY changed FINAL)
    Q_PROPERTY(QString aliases READ aliases WRITE setAliases NOTIFY changed FINAL)
    Q_PROPERTY(bool usesCurrentApp READ usesCurrentApp WRITE setUsesCurrentApp NOTIFY changed FINAL)
    Q_PROPERTY(QString usesCurrentAppLabel READ usesCurrentAppLabel NOTIFY changed FINAL)
    Q_PROPERTY(bool isEnabled READ isEnabled WRITE setEnabled NOTIFY changed FINAL)
    Q_PROPERTY(tovrel::SettingsRowsModel* commands READ commands CONSTANT FINAL)

  public:
    /// `state` outlives the object.
    explicit CommandsSettings(SettingsViewState& state, QObject* parent = nullptr);

    [[nodiscard]] bool isEditing() const { return form().editingID.has_value(); }
    [[nodiscard]] QString title() const;
    void setTitle(const QString& title);
    [[nodiscard]] QStringList kindLabels() const;
    /// The kind's place among `kindLabels`.
    [[nodiscard]] int kind() const { return static_cast<int>(form().kind); }
    void setKind(int index);
    [[nodiscard]] QString payload() const;
    void setPayload(const QString& payload);
    [[nodiscard]] QString payloadPlaceholder() const;
    [[nodiscard]] QString aliases() const;
    void setAliases(const QString& aliases);
    [[nodiscard]] bool usesCurrentApp() const { return form().usesCurrentApp; }
    void setUsesCurrentApp(bool isUsed);
    [[nodiscard]] QString usesCurrentAppLabel() const;
    [[nodiscard]] bool isEnabled() const { return form().isEnabled; }
    void setEnabled(bool isEnabled);
    [[nodiscard]] SettingsRowsModel* commands() { return &commands_; }

    Q_INVOKABLE void save();
    Q_INVOKABLE void cancel();
    Q_INVOKABLE void edit(const QString& id);
    Q_INVOKABLE void remove(const QString& id);

  Q_SIGNALS:
    void changed();

  private:
    [[nodiscard]] const CustomCommandForm& form() const { return state_->customCommand.get(); }
    void change(const std::function<void(CustomCommandForm&)>& edit);
    void showCommands();

    SettingsViewState* state_;
    SettingsRowsModel commands_;
    std::vector<Subscription> subscriptions_;
};

} // namespace tovrel
