#pragma once

#include <csignal>
#include <spawn.h>

namespace tovrel {

/// How a program is to start: as from a shell, with no signal blocked and SIGPIPE, which this program
/// ignores, ending it. A program inherits both otherwise, and few expect it.
class SpawnAttributes {
  public:
    SpawnAttributes() {
        posix_spawnattr_init(&attributes_);
        sigset_t none;
        sigemptyset(&none);
        posix_spawnattr_setsigmask(&attributes_, &none);
        sigset_t reset;
        sigemptyset(&reset);
        sigaddset(&reset, SIGPIPE);
        posix_spawnattr_setsigdefault(&attributes_, &reset);
        posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~SpawnAttributes() { posix_spawnattr_destroy(&attributes_); }
    SpawnAttributes(const SpawnAttributes&) = delete;
    SpawnAttributes& operator=(const SpawnAttributes&) = delete;

    [[nodiscard]] const posix_spawnattr_t* get() const { return &attributes_; }

  private:
    posix_spawnattr_t attributes_{};
};

} // namespace tovrel
