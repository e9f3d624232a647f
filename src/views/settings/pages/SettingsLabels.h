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

/// The settings' names for the choices, in the user's language.
namespace tovrel::settings_labels {

QString label(AppBehaviorRule rule);
QString label(MenuBlacklistMode mode);
QString label(CustomCommandKind kind);

/// Why a change could not be stored; an unforeseen reason is given in the system's words.
QString sentence(const PreferencesFailure& failure);

const char* symbol(CustomCommandKind kind);

/// The placeholder of the payload field for such a command.
QString payloadPlaceholder(CustomCommandKind kind);

/// Where a rule or a command applies: the application's identifier, or all of them.
QString scope(const std::optional<Text>& appScope);

/// The choices in their order, as rows whose ids are the stored names.
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

/// The choice at an index of the list; absent when the index is out of range.
template <typename Value, std::size_t count>
std::optional<Value> choiceAt(const std::array<Value, count>& values, int index) {
    return index >= 0 && index < static_cast<int>(count)
               ? std::optional(values[static_cast<std::size_t>(index)])
               : std::nullopt;
}

/// The choice that is stored under the name; absent for an unknown name.
template <typename Value, std::size_t count>
std::optional<Value> choiceNamed(const std::array<Value, count>& values, const QString& name) {
    const auto found = std::find_if(values.begin(), values.end(),
                                    [&](Value value) { return name == QLatin1String(rawValue(value)); });
    return found == values.end() ? std::nullopt : std::optional(*found);
}

} // namespace tovrel::settings_labels
