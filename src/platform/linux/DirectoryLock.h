#pragma once

#include <filesystem>

#include "platform/linux/FileDescriptor.h"

namespace tovrel {

/// An advisory lock on a directory (flock), held as long as the object lives. It needs no file of its own and
/// no right to write, and ends with the process however that ends.
class DirectoryLock {
  public:
    enum class Kind { shared, exclusive };

    /// Waits up to five seconds for other processes, then throws std::runtime_error. A directory that is
    /// missing or that cannot be locked (some network file systems) is not locked: going without is better
    /// than going without preferences.
    DirectoryLock(const std::filesystem::path& directory, Kind kind);

  private:
    FileDescriptor descriptor_;
};

} // namespace tovrel
