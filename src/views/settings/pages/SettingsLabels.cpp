#include "views/settings/pages/SettingsLabels.h"

#include <QCoreApplication>

#include "qt/QtText.h"
#include "support/Fatal.h"

namespace tovrel::settings_labels {
namespace {

struct KindTexts {
    const char* symbol;
    const char* label;
    const char* payloadPlaceholder;
};

KindTexts textsOf(CustomCommandKind kind) {
    switch (kind) {
    case CustomCommandKind::shellScript:
        return {"terminal", QT_TRANSLATE_NOOP("SettingsLabels", "Shell"),
                QT_TRANSLATE_NOOP("SettingsLabels", "Shell command or script path")};
    case CustomCommandKind::appleScript:
        return {"scroll", QT_TRANSLATE_NOOP("SettingsLabels", "AppleScript"),
                QT_TRANSLATE_NOOP("SettingsLabels", "AppleScript text or .scpt path")};
    case CustomCommandKind::open:
        return {"folder", QT_TRANSLATE_NOOP("SettingsLabels", "Open"),
                QT_TRANSLATE_NOOP("SettingsLabels", "App, file, folder, or URL")};
    case CustomCommandKind::shortcut:
        return {"bolt", QT_TRANSLATE_NOOP("SettingsLabels", "Shortcut"),
                QT_TRANSLATE_NOOP("SettingsLabels", "Shortcut name or URL")};
    }
    noSuchValue("CustomCommandKind");
}

const char* labelOf(AppBehaviorRule rule) {
    switch (rule) {
    case AppBehaviorRule::enabled:
        return QT_TRANSLATE_NOOP("SettingsLabels", "Enabled");
    case AppBehaviorRule::disabled:
        return QT_TRANSLATE_NOOP("SettingsLabels", "Disabled");
    case AppBehaviorRule::automatic:
        return QT_TRANSLATE_NOOP("SettingsLabels", "Auto");
    }
    noSuchValue("AppBehaviorRule");
}

const char* labelOf(MenuBlacklistMode mode) {
    switch (mode) {
    case MenuBlacklistMode::excludeSelf:
        return QT_TRANSLATE_NOOP("SettingsLabels", "Hide Item Only");
    case MenuBlacklistMode::excludeChildren:
        return QT_TRANSLATE_NOOP("SettingsLabels", "Hide Submenus");
    case MenuBlacklistMode::excludeSelfAndChildren:
        return QT_TRANSLATE_NOOP("SettingsLabels", "Hide Item and Submenus");
    }
    noSuchValue("MenuBlacklistMode");
}

/// The sentence for an obstacle; null where only the system has words for it.
const char* sentenceOf(PreferencesObstacle obstacle) {
    switch (obstacle) {
    case PreferencesObstacle::locked:
        return QT_TRANSLATE_NOOP("SettingsLabels",
                                 "Another program keeps the preferences locked. Try again.");
    case PreferencesObstacle::noRoom:
        return QT_TRANSLATE_NOOP("SettingsLabels", "There is no room left on the disk for the preferences.");
    case PreferencesObstacle::notPermitted:
        return QT_TRANSLATE_NOOP("SettingsLabels",
                                 "You are not allowed to change the file of the preferences.");
    case PreferencesObstacle::laterVersion:
        return QT_TRANSLATE_NOOP("SettingsLabels",
                                 "A later version of Tovrel wrote the preferences, so they are left alone.");
    case PreferencesObstacle::foreign:
        return QT_TRANSLATE_NOOP("SettingsLabels",
                                 "Another program's file is in the place of the preferences.");
    case PreferencesObstacle::notAFile:
        return QT_TRANSLATE_NOOP("SettingsLabels",
                                 "Something that is no file is in the place of the preferences.");
    case PreferencesObstacle::other:
        return nullptr;
    }
    noSuchValue("PreferencesObstacle");
}

QString translated(const char* key) {
    return QCoreApplication::translate("SettingsLabels", key);
}

} // namespace

QString label(AppBehaviorRule rule) {
    return translated(labelOf(rule));
}

QString label(MenuBlacklistMode mode) {
    return translated(labelOf(mode));
}

QString label(CustomCommandKind kind) {
    return translated(textsOf(kind).label);
}

QString sentence(const PreferencesFailure& failure) {
    const char* known = sentenceOf(failure.obstacle);
    return known != nullptr ? translated(known) : QString::fromStdString(failure.reason);
}

const char* symbol(CustomCommandKind kind) {
    return textsOf(kind).symbol;
}

QString payloadPlaceholder(CustomCommandKind kind) {
    return translated(textsOf(kind).payloadPlaceholder);
}

QString scope(const std::optional<Text>& appScope) {
    return appScope ? qtString(*appScope) : QCoreApplication::translate("SettingsLabels", "All Apps");
}

} // namespace tovrel::settings_labels
