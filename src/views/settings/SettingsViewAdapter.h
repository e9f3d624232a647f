#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

#include "platform/Workspace.h"
#include "settings/SettingsViewState.h"
#include "support/TextServices.h"
#include "views/settings/SettingsPages.h"
#include "views/settings/pages/AppsSettings.h"
#include "views/settings/pages/CommandsSettings.h"
#include "views/settings/pages/GeneralSettings.h"
#include "views/settings/pages/HistorySettings.h"
#include "views/settings/pages/MenuFilterSettings.h"
#include "views/settings/pages/RecorderAdapter.h"
#include "views/settings/pages/SettingsRowsModel.h"

namespace tovrel {

/// What the settings' view binds to: the open page, and one object for each page.
class SettingsViewAdapter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The settings' window makes it.")
    Q_PROPERTY(tovrel::SettingsRowsModel* pages READ pages CONSTANT FINAL)
    Q_PROPERTY(int selectedPage READ selectedPage NOTIFY selectedPageChanged FINAL)
    Q_PROPERTY(QString pageFile READ pageFile NOTIFY selectedPageChanged FINAL)
    Q_PROPERTY(QString pageTitle READ pageTitle NOTIFY selectedPageChanged FINAL)
    Q_PROPERTY(QString pageSubtitle READ pageSubtitle NOTIFY selectedPageChanged FINAL)
    Q_PROPERTY(QString pageBadge READ pageBadge NOTIFY selectedPageChanged FINAL)
    Q_PROPERTY(QString unstoredChange READ unstoredChange NOTIFY unstoredChangeChanged FINAL)
    Q_PROPERTY(tovrel::GeneralSettings* general READ general CONSTANT FINAL)
    Q_PROPERTY(tovrel::AppsSettings* apps READ apps CONSTANT FINAL)
    Q_PROPERTY(tovrel::MenuFilterSettings* menuFilter READ menuFilter CONSTANT FINAL)
    Q_PROPERTY(tovrel::CommandsSettings* commands READ commands CONSTANT FINAL)
    Q_PROPERTY(tovrel::HistorySettings* history READ history CONSTANT FINAL)

  public:
    struct Surroundings {
        Workspace& workspace;
        const TextServices& textServices;
        GeneralSettings::OpenURL openURL;
    };

    /// All that the arguments refer to outlives the adapter.
    SettingsViewAdapter(SettingsViewState& state, RecorderAdapter& recorder, const Surroundings& surroundings,
                        QObject* parent = nullptr);

    /// The pages in the order of the sidebar.
    [[nodiscard]] SettingsRowsModel* pages() { return &pages_; }
    /// The index of the open page among `pages`.
    [[nodiscard]] int selectedPage() const;
    /// The open page's file in the module Tovrel.Views.
    [[nodiscard]] QString pageFile() const;
    [[nodiscard]] QString pageTitle() const;
    [[nodiscard]] QString pageSubtitle() const;
    [[nodiscard]] QString pageBadge() const;
    /// Why the last change could not be stored, as a sentence; empty when it could.
    [[nodiscard]] QString unstoredChange() const;
    [[nodiscard]] GeneralSettings* general() { return &general_; }
    [[nodiscard]] AppsSettings* apps() { return &apps_; }
    [[nodiscard]] MenuFilterSettings* menuFilter() { return &menuFilter_; }
    [[nodiscard]] CommandsSettings* commands() { return &commands_; }
    [[nodiscard]] HistorySettings* history() { return &history_; }

    Q_INVOKABLE void selectPage(int index);
    Q_INVOKABLE void refresh();

  Q_SIGNALS:
    void selectedPageChanged();
    void unstoredChangeChanged();

  private:
    [[nodiscard]] const SettingsPageEntry& page() const { return settingsPage(state_->selectedTab.get()); }

    SettingsViewState* state_;
    SettingsRowsModel pages_;
    GeneralSettings general_;
    AppsSettings apps_;
    MenuFilterSettings menuFilter_;
    CommandsSettings commands_;
    HistorySettings history_;
    Subscription pageSelection_;
    Subscription unstoredChange_;
};

} // namespace tovrel
