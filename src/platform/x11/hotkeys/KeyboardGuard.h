#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <thread>

namespace tovrel {

/// Lets the user's keyboard go when whoever holds it has not done so within 500 ms, on a thread that does
/// nothing else, so that nothing the program waits for can keep the keys from the user.
///
/// Each time the server gives us the keyboard is a hold of its own, which ends once: what comes too late for
/// its own hold must not end the next.
class KeyboardGuard {
  public:
    /// One hold; no two have the same number, and 0 is none.
    using Hold = std::uint64_t;
    using Request = std::function<void()>;

    /// An application in front that has stopped costs the palette 250 ms, and the focus takes up to 36 ms to
    /// arrive. Whoever types while a keyboard is dead for longer believes that it is broken.
    static constexpr std::chrono::milliseconds longestHold{500};

    /// `letGo` asks the server for the end of whatever hold there is. It is called on the guard's thread, and
    /// must not block.
    explicit KeyboardGuard(Request letGo);
    ~KeyboardGuard();
    KeyboardGuard(const KeyboardGuard&) = delete;
    KeyboardGuard& operator=(const KeyboardGuard&) = delete;

    // All may be called on any thread. Requests are made before anything else can happen to the hold; they
    // must neither block nor call the guard.

    /// The server has given us the keyboard. An earlier hold is over, should nobody have ended it.
    [[nodiscard]] Hold begin();

    /// Makes the request if this is still the hold, which goes on. Whether it was made.
    bool during(Hold hold, const Request& request);

    /// Makes the request that ends the hold, unless it is over. Whether it was made.
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
    std::thread thread_; ///< Last, for it uses the others.
};

} // namespace tovrel
