#pragma once

#include <filesystem>

/// Changes to directories that survive a loss of power: POSIX makes a new, renamed or removed entry durable
/// only once its directory has been synchronised (fsync). Each operation throws std::system_error.
namespace tovrel::files {

/// Writes the directory's entries to the medium.
void syncDirectory(const std::filesystem::path& directory);

/// Creates the directory and missing ones above it, for the user alone (mode 0700, as the XDG Base Directory
/// standard demands). An existing directory is left as it is.
void createPrivateDirectory(const std::filesystem::path& directory);

/// Creates the empty file, readable and writable by the user alone (mode 0600); an existing file is left as
/// it is.
void createPrivateFile(const std::filesystem::path& file);

/// Renames a damaged SQLite database and the journals beside it to a fresh name in the same directory and
/// returns the database's new path, e.g. "preferences.sqlite.damaged-20260131T120000Z". No existing file is
/// replaced. The journals keep their suffixes, so that a repair tool finds them. The caller must hold the
/// directory's lock exclusively.
std::filesystem::path setAside(const std::filesystem::path& database);

} // namespace tovrel::files
