#include "views/settings/pages/SettingsLabels.h"

#include <QCoreApplication>
#include <utility>

#include "qt/QtText.h"

namespace tovrel::settings_labels {
namespace {

struct KindTexts {
    const char* symbol;
    const char* label;
    const char* payloadPlaceholder;
};

/// In declaration order of CustomCommandKind.
constexpr std::array<KindTexts, allCustomCommandKinds.size()> kindTexts{{
    {"terminal", QT_TRANSLATE_NOOP("SettingsLabels", "Shell"),
     QT_TRANSLATE_NOOP("SettingsLabels", "Shell command or script path")},
    {"scroll", QT_TRANSLATE_NOOP("SettingsLabels", "AppleScript"),
     QT_TRANSLATE_NOOP("SettingsLabels", "AppleScript text or .scpt path")},
    {"folder", QT_TRANSLATE_NOOP("SettingsLabels", "Open"),
     QT_TRANSLATE_NOOP("SettingsLabels", "App, file, folder, or URL")},
    {"bolt", QT_TRANSLATE_NOOP("SettingsLabels", "Shortcut"),
     QT_TRANSLATE_NOOP("SettingsLabels", "Shortcut name or URL")},
}};

/// In declaration order of AppBehaviorRule.
constexpr std::array<const char*, allAppBehaviorRules.size()> behaviorLabels{
    QT_TRANSLATE_NOOP("SettingsLabels", "Enabled"), QT_TRANSLATE_NOOP("SettingsLabels", "Disabled"),
    QT_TRANSLATE_NOOP("SettingsLabels", "Auto")};

/// In declaration order of PreferencesObstacle, except for its last one.
constexpr std::array<const char*, static_cast<std::size_t>(PreferencesObstacle::other)> obstacleSentences{
    QT_TRANSLATE_NOOP("SettingsLabels", "Another program keeps the preferences locked. Try again."),
    QT_TRANSLATE_NOOP("SettingsLabels", "There is no room left on the disk for the preferences."),
    QT_TRANSLATE_NOOP("SettingsLabels", "You are not allowed to change the file of the preferences."),
    QT_TRANSLATE_NOOP("SettingsLabels",
                      "A later version of Tovrel wrote the preferences, so they are left alone."),
    QT_TRANSLATE_NOOP("SettingsLabels", "Another program's file is in the place of the preferences."),
    QT_TRANSLATE_NOOP("SettingsLabels", "Something that is no file is in the place of the preferences.")};

/// In declaration order of MenuBlacklistMode.
constexpr std::array<const char*, allMenuBlacklistModes.size()> modeLabels{
    QT_TRANSLATE_NOOP("SettingsLabels", "Hide Item Only"),
    QT_TRANSLATE_NOOP("SettingsLabels", "Hide Submenus"),
    QT_TRANSLATE_NOOP("SettingsLabels", "Hide Item and Submenus")};

template <typename Texts, typename Value>
const auto& of(const Texts& texts, Value value) {
    return texts.at(static_cast<std::size_t>(value));
}

QString translated(const char* key) {
    return QCoreApplication::translate("SettingsLabels", key);
}

} // namespace

QString label(AppBehaviorRule rule) {
    return translated(of(behaviorLabels, rule));
}

QString label(MenuBlacklistMode mode) {
    return translated(of(modeLabels, mode));
}

QString label(CustomCommandKind kind) {
    return translated(of(kindTexts, kind).label);
}

QString sentence(const PreferencesFailure& failure) {
    const auto index = static_cast<std::size_t>(failure.obstacle);
    return index < obstacleSentences.size() ? translated(obstacleSentences[index])
                                            : QString::fromStdString(failure.reason);
}

const char* symbol(CustomCommandKind kind) {
    return of(kindTexts, kind).symbol;
}

QString payloadPlaceholder(CustomCommandKind kind) {
    return translated(of(kindTexts, kind).payloadPlaceholder);
}

QString scope(const std::optional<Text>& appScope) {
    return appScope ? qtString(*appScope) : QCoreApplication::translate("SettingsLabels", "All Apps");
}

} // namespace tovrel::settings_labels
