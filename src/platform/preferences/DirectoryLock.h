#pragma once

#include <filesystem>
#include <stdexcept>

#include "platform/posix/FileDescriptor.h"
#include "platform/preferences/LockPatience.h"

namespace tovrel {

/// An advisory lock on a directory (flock), held as long as the object lives. It needs no separate file and
/// no right to write, and ends with the process however that ends.
class DirectoryLock {
  public:
    enum class Kind { shared, exclusive };

    /// Thrown when another process holds the lock.
    class Held : public std::runtime_error {
      public:
        using std::runtime_error::runtime_error;
    };

    /// Waits for other processes as long as the patience lasts, then throws Held. Does not lock a directory
    /// that is missing or cannot be locked (some network file systems), because preferences without a lock
    /// are better than none.
    DirectoryLock(const std::filesystem::path& directory, Kind kind, LockPatience& patience);

  private:
    FileDescriptor descriptor_;
};

} // namespace tovrel
