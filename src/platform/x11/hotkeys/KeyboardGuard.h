#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <thread>

namespace tovrel {

/// Releases the user's keyboard if its holder has not done so within 500 ms. It runs on its own thread, so
/// that the program never keeps the keys from the user, whatever it waits for.
///
/// A hold begins each time the server gives us the keyboard, and ends once: a request that comes too late for
/// its hold must not end the next one.
class KeyboardGuard {
  public:
    /// The number of a hold, never reused; 0 means none.
    using Hold = std::uint64_t;
    using Request = std::function<void()>;

    /// A hung application in front delays the palette by 250 ms, and the focus takes up to 36 ms to arrive.
    /// Users believe that a keyboard is broken if it is dead for longer while they type.
    static constexpr std::chrono::milliseconds longestHold{500};

    /// `letGo` asks the server to end the current hold. It is called on the guard's thread and must not
    /// block.
    explicit KeyboardGuard(Request letGo);
    ~KeyboardGuard();
    KeyboardGuard(const KeyboardGuard&) = delete;
    KeyboardGuard& operator=(const KeyboardGuard&) = delete;

    // All functions may be called on any thread. They call requests before anything else can happen to the
    // hold; a request must neither block nor call the guard.

    /// Begins a hold, when the server has given us the keyboard. An earlier hold is over, even if nobody
    /// ended it.
    [[nodiscard]] Hold begin();

    /// Makes the request if this hold still lasts; the hold goes on. Returns whether the request was made.
    bool during(Hold hold, const Request& request);

    /// Makes the request that ends the hold, unless the hold is over. Returns whether the request was made.
    bool end(Hold hold, const Request& request);

    [[nodiscard]] bool isHeld(Hold hold);

  private:
    void watch();

    Request letGo_;
    std::mutex mutex_;
    std::condition_variable changed_;
    bool isEnding_ = false;
    Hold last_ = 0;
    Hold current_ = 0;
    std::chrono::steady_clock::time_point deadline_;
    std::thread thread_; ///< Last, because it uses the other members.
};

} // namespace tovrel
