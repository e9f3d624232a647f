#pragma once

#include <QObject>
#include <QQmlEngine>
#include <functional>
#include <vector>

#include "settings/SettingsViewState.h"
#include "support/Observable.h"
#include "views/settings/pages/RecorderAdapter.h"

namespace tovrel {

/// What the page "General" binds to.
class GeneralSettings : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The settings' window makes it.")
    Q_PROPERTY(bool isAccessibilityTrusted READ isAccessibilityTrusted NOTIFY changed FINAL)
    Q_PROPERTY(bool showCheckedStatus READ showCheckedStatus WRITE setShowCheckedStatus NOTIFY changed FINAL)
    Q_PROPERTY(bool notifiesOfCommandFailures READ notifiesOfCommandFailures WRITE
                   setNotifiesOfCommandFailures NOTIFY changed FINAL)
    Q_PROPERTY(tovrel::RecorderAdapter* recorder READ recorder CONSTANT FINAL)

  public:
    using OpenURL = std::function<void(const Text&)>;

    /// All that the arguments refer to outlives the object.
    GeneralSettings(SettingsViewState& state, RecorderAdapter& recorder, OpenURL openURL,
                    QObject* parent = nullptr);

    [[nodiscard]] bool isAccessibilityTrusted() const;
    [[nodiscard]] bool showCheckedStatus() const;
    void setShowCheckedStatus(bool isShown);
    [[nodiscard]] bool notifiesOfCommandFailures() const;
    void setNotifiesOfCommandFailures(bool isWanted);
    [[nodiscard]] RecorderAdapter* recorder() const { return recorder_; }

    /// Opens the page of the desktop's settings that gives the permission.
    Q_INVOKABLE void openPrivacySettings();

  Q_SIGNALS:
    void changed();

  private:
    SettingsViewState* state_;
    RecorderAdapter* recorder_;
    OpenURL openURL_;
    std::vector<Subscription> subscriptions_;
};

} // namespace tovrel
