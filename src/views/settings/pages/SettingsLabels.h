#pragma once

#include <QString>
#include <QStringList>
#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "model/CustomCommand.h"
#include "model/Rules.h"
#include "platform/PreferencesDomain.h"
#include "views/settings/pages/SettingsRowsModel.h"

/// How the settings name what there is to choose from, in the user's language.
namespace tovrel::settings_labels {

QString label(AppBehaviorRule rule);
QString label(MenuBlacklistMode mode);
QString label(CustomCommandKind kind);

/// Why a change could not be stored; what nobody thought of is said in the system's words.
QString sentence(const PreferencesFailure& failure);

const char* symbol(CustomCommandKind kind);

/// What the field for the payload of such a command asks for.
QString payloadPlaceholder(CustomCommandKind kind);

/// Where a rule or a command applies: the application's identifier, or all of them.
QString scope(const std::optional<Text>& appScope);

/// The choices in their order, as rows with the names they are stored under.
template <typename Value, std::size_t count>
std::vector<SettingsRow> choices(const std::array<Value, count>& values) {
    std::vector<SettingsRow> rows;
    rows.reserve(count);
    for (const Value value : values) {
        rows.push_back({.id = QString::fromLatin1(rawValue(value)), .title = label(value)});
    }
    return rows;
}

template <typename Value, std::size_t count>
QStringList labels(const std::array<Value, count>& values) {
    QStringList list;
    for (const Value value : values) {
        list.append(label(value));
    }
    return list;
}

/// The choice at a place of the list; absent when it has no such place.
template <typename Value, std::size_t count>
std::optional<Value> choiceAt(const std::array<Value, count>& values, int index) {
    return index >= 0 && index < static_cast<int>(count)
               ? std::optional(values[static_cast<std::size_t>(index)])
               : std::nullopt;
}

/// The choice that is stored under the name; absent when none is.
template <typename Value, std::size_t count>
std::optional<Value> choiceNamed(const std::array<Value, count>& values, const QString& name) {
    const auto found = std::find_if(values.begin(), values.end(),
                                    [&](Value value) { return name == QLatin1String(rawValue(value)); });
    return found == values.end() ? std::nullopt : std::optional(*found);
}

} // namespace tovrel::settings_labels
