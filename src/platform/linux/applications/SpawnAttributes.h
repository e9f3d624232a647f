#pragma once

#include <csignal>
#include <cstring>
#include <spawn.h>

namespace tovrel {

/// Attributes that start a program in a session of its own, with no signal blocked and each at its default
/// action. Otherwise a program would inherit the signals that this one blocks and ignores, which few expect.
class SpawnAttributes {
  public:
    SpawnAttributes() {
        posix_spawnattr_init(&attributes_);
        sigset_t none;
        sigemptyset(&none);
        posix_spawnattr_setsigmask(&attributes_, &none);
        // sigfillset leaves out the two signals that the C library keeps for itself; without them in the set,
        // posix_spawn would have the program ignore them.
        sigset_t all;
        std::memset(&all, 0xFF, sizeof all);
        posix_spawnattr_setsigdefault(&attributes_, &all);
        posix_spawnattr_setflags(&attributes_,
                                 POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSID);
    }
    ~SpawnAttributes() { posix_spawnattr_destroy(&attributes_); }
    SpawnAttributes(const SpawnAttributes&) = delete;
    SpawnAttributes& operator=(const SpawnAttributes&) = delete;

    [[nodiscard]] const posix_spawnattr_t* get() const { return &attributes_; }

  private:
    posix_spawnattr_t attributes_{};
};

} // namespace tovrel
