#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

#include "platform/Workspace.h"
#include "settings/SettingsViewState.h"
#include "support/TextServices.h"
#include "views/settings/pages/AppRulesSettings.h"
#include "views/settings/pages/CustomCommandsSettings.h"
#include "views/settings/pages/GeneralSettings.h"
#include "views/settings/pages/HistorySettings.h"
#include "views/settings/pages/MenuFilterSettings.h"
#include "views/settings/pages/RecorderAdapter.h"
#include "views/settings/pages/SettingsRowsModel.h"

namespace tovrel {

/// What the settings' view binds to: which page is open, and one object for each page.
class SettingsViewAdapter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The settings' window makes it.")
    Q_PROPERTY(tovrel::SettingsRowsModel* tabs READ tabs CONSTANT FINAL)
    Q_PROPERTY(int selectedTab READ selectedTab NOTIFY selectedTabChanged FINAL)
    Q_PROPERTY(QString tabLabel READ tabLabel NOTIFY selectedTabChanged FINAL)
    Q_PROPERTY(QString tabSubtitle READ tabSubtitle NOTIFY selectedTabChanged FINAL)
    Q_PROPERTY(QString tabBadge READ tabBadge NOTIFY selectedTabChanged FINAL)
    Q_PROPERTY(QString unstoredChange READ unstoredChange NOTIFY unstoredChangeChanged FINAL)
    Q_PROPERTY(tovrel::GeneralSettings* general READ general CONSTANT FINAL)
    Q_PROPERTY(tovrel::AppRulesSettings* appRules READ appRules CONSTANT FINAL)
    Q_PROPERTY(tovrel::MenuFilterSettings* menuFilter READ menuFilter CONSTANT FINAL)
    Q_PROPERTY(tovrel::CustomCommandsSettings* commands READ commands CONSTANT FINAL)
    Q_PROPERTY(tovrel::HistorySettings* history READ history CONSTANT FINAL)

  public:
    struct Surroundings {
        Workspace& workspace;
        const TextServices& textServices;
        GeneralSettings::OpenURL openURL;
    };

    /// Everything referred to outlives the adapter.
    SettingsViewAdapter(SettingsViewState& state, RecorderAdapter& recorder, const Surroundings& surroundings,
                        QObject* parent = nullptr);

    /// In the order of the sidebar.
    [[nodiscard]] SettingsRowsModel* tabs() { return &tabs_; }
    /// The place among `tabs`.
    [[nodiscard]] int selectedTab() const;
    [[nodiscard]] QString tabLabel() const;
    [[nodiscard]] QString tabSubtitle() const;
    [[nodiscard]] QString tabBadge() const;
    /// Why the last change could not be stored, as a sentence; empty when it could.
    [[nodiscard]] QString unstoredChange() const;
    [[nodiscard]] GeneralSettings* general() { return &general_; }
    [[nodiscard]] AppRulesSettings* appRules() { return &appRules_; }
    [[nodiscard]] MenuFilterSettings* menuFilter() { return &menuFilter_; }
    [[nodiscard]] CustomCommandsSettings* commands() { return &commands_; }
    [[nodiscard]] HistorySettings* history() { return &history_; }

    Q_INVOKABLE void selectTab(int index);
    Q_INVOKABLE void refresh();

  Q_SIGNALS:
    void selectedTabChanged();
    void unstoredChangeChanged();

  private:
    SettingsViewState* state_;
    SettingsRowsModel tabs_;
    GeneralSettings general_;
    AppRulesSettings appRules_;
    MenuFilterSettings menuFilter_;
    CustomCommandsSettings commands_;
    HistorySettings history_;
    Subscription tabSelection_;
    Subscription unstoredChange_;
};

} // namespace tovrel
