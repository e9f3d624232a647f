#include "views/settings/pages/AppsSettings.h"

#include <algorithm>
#include <utility>

#include "qt/QtText.h"
#include "views/settings/pages/SettingsLabels.h"
#include "views/shared/AppIconImages.h"

namespace tovrel {
namespace {

QUrl iconOf(const std::optional<InstalledApplication>& application) {
    return application && application->icon ? appIconUrl(qtString(application->icon->name)) : QUrl();
}

} // namespace

AppsSettings::AppsSettings(SettingsViewState& state, Workspace& workspace, const TextServices& textServices,
                           QObject* parent)
    : QObject(parent), state_(&state), workspace_(&workspace), textServices_(&textServices) {
    behaviors_.assign(settings_labels::choices(allAppBehaviorRules));
    const SettingsViewModel& model = state.viewModel();
    subscriptions_.push_back(model.currentApplication().subscribe([this] { Q_EMIT changed(); }));
    subscriptions_.push_back(model.defaultBehavior().subscribe([this] { Q_EMIT changed(); }));
    subscriptions_.push_back(model.currentBehavior().subscribe([this] { Q_EMIT changed(); }));
    subscriptions_.push_back(state.newAppBehavior.subscribe([this] { Q_EMIT changed(); }));
    subscriptions_.push_back(model.appBehaviorSettings().subscribe([this] { showRules(); }));
    showRules();
}

QStringList AppsSettings::behaviorLabels() const {
    return settings_labels::labels(allAppBehaviorRules);
}

int AppsSettings::defaultBehavior() const {
    return static_cast<int>(state_->viewModel().defaultBehavior().get());
}

bool AppsSettings::hasCurrentApplication() const {
    return state_->viewModel().currentApplication().get().has_value();
}

QString AppsSettings::currentName() const {
    const auto& application = state_->viewModel().currentApplication().get();
    return application ? qtString(application->name) : QString();
}

QString AppsSettings::currentBundleID() const {
    const auto& application = state_->viewModel().currentApplication().get();
    return application ? qtString(application->bundleID) : QString();
}

QUrl AppsSettings::currentIcon() const {
    const auto& application = state_->viewModel().currentApplication().get();
    return application ? iconOf(installed(application->bundleID)) : QUrl();
}

int AppsSettings::currentBehavior() const {
    return static_cast<int>(state_->viewModel().currentBehavior().get());
}

int AppsSettings::newBehavior() const {
    return static_cast<int>(state_->newAppBehavior.get());
}

void AppsSettings::setDefaultBehavior(int index) {
    if (const auto rule = settings_labels::choiceAt(allAppBehaviorRules, index)) {
        state_->viewModel().setDefaultBehavior(*rule);
    }
}

void AppsSettings::setCurrentBehavior(int index) {
    if (const auto rule = settings_labels::choiceAt(allAppBehaviorRules, index)) {
        state_->viewModel().setCurrentBehavior(*rule);
    }
}

void AppsSettings::setNewBehavior(int index) {
    if (const auto rule = settings_labels::choiceAt(allAppBehaviorRules, index)) {
        state_->newAppBehavior.set(*rule);
    }
}

void AppsSettings::setBehavior(const QString& bundleID, const QString& behaviorID) {
    if (const auto rule = settings_labels::choiceNamed(allAppBehaviorRules, behaviorID)) {
        state_->viewModel().setAppBehavior(*rule, textFrom(bundleID));
    }
}

void AppsSettings::removeRule(const QString& bundleID) {
    state_->viewModel().removeAppBehavior(textFrom(bundleID));
}

void AppsSettings::loadApplications() {
    std::vector<InstalledApplication> applications = workspace_->installedApplications();
    std::stable_sort(applications.begin(), applications.end(), [this](const auto& left, const auto& right) {
        return textServices_->isOrderedBefore(left.name, right.name);
    });
    std::vector<SettingsRow> rows;
    rows.reserve(applications.size());
    for (const InstalledApplication& application : applications) {
        rows.push_back({.id = qtString(application.bundleIdentifier),
                        .title = qtString(application.name),
                        .detail = qtString(application.bundleIdentifier),
                        .icon = iconOf(application)});
    }
    applications_.assign(std::move(rows));
}

void AppsSettings::addRule(const QString& bundleID) {
    state_->addAppRule(textFrom(bundleID));
}

void AppsSettings::showRules() {
    std::vector<SettingsRow> rows;
    for (const AppBehaviorSetting& setting : state_->viewModel().appBehaviorSettings().get()) {
        const std::optional<InstalledApplication>& application = installed(setting.bundleID);
        rows.push_back({.id = qtString(setting.bundleID),
                        .title = qtString(application ? application->name : setting.bundleID),
                        .detail = qtString(setting.bundleID),
                        .icon = iconOf(application),
                        .value = settings_labels::label(setting.behavior)});
    }
    rules_.assign(std::move(rows));
}

const std::optional<InstalledApplication>& AppsSettings::installed(const Text& bundleID) const {
    const auto found = installed_.find(bundleID);
    return found != installed_.end()
               ? found->second
               : installed_.emplace(bundleID, workspace_->installedApplication(bundleID)).first->second;
}

} // namespace tovrel
