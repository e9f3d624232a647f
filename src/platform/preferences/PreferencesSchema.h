#pragma once

#include "platform/preferences/SqliteConnection.h"

/// The layout of preferences in an SQLite database: one table `preferences` of keys and values, where a
/// value's storage class is its type (BLOB data, TEXT string, INTEGER 0 or 1 boolean).
namespace tovrel::preferences_schema {

enum class State {
    empty,   ///< No table yet: a new file.
    current, ///< This program's layout.
    newer,   ///< Written by a later version of the program.
    foreign, ///< A sound database that belongs to another program.
    damaged, ///< Ours, but not in order.
};

/// The state of the database according to its header and schema. Must be called inside a transaction, because
/// it reads several times. Throws sqlite::Error.
State stateOf(sqlite::Connection& connection);

/// Whether every page of the file is in order and every value has a known type. Throws sqlite::Error.
bool isSound(sqlite::Connection& connection);

/// Creates the table and marks the file as ours. Must be called inside a write transaction.
void create(sqlite::Connection& connection);

} // namespace tovrel::preferences_schema
