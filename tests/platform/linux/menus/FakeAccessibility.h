#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <limits>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <systemd/sd-bus.h>

#include "platform/linux/ServerProcess.h"

namespace tovrel {

/// A connection to a bus that a thread serves until the object ends.
class FakeService {
  public:
    using Answer = std::function<void(sd_bus_message* call)>;

    /// `answer` is called for every method call, from the thread.
    FakeService(const std::string& address, const std::vector<std::string>& names, Answer answer);
    ~FakeService();
    FakeService(const FakeService&) = delete;
    FakeService& operator=(const FakeService&) = delete;

    [[nodiscard]] const std::string& uniqueName() const { return uniqueName_; }
    /// Leaves the bus; called on the thread.
    void vanish() { sd_bus_close(bus_.get()); }

  private:
    struct Close {
        void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
    };
    void serve();

    std::unique_ptr<sd_bus, Close> bus_;
    std::string uniqueName_;
    Answer answer_;
    std::atomic<bool> isStopping_ = false;
    std::thread thread_;
};

/// A private message bus with the session's accessibility object and the registry of applications. The
/// environment of this process points to it.
class FakeAccessibility {
  public:
    FakeAccessibility();
    ~FakeAccessibility();
    FakeAccessibility(const FakeAccessibility&) = delete;
    FakeAccessibility& operator=(const FakeAccessibility&) = delete;

    [[nodiscard]] const std::string& address() const { return daemon_->announced(); }
    void add(const std::string& uniqueName);
    std::atomic<bool> isEnabled = true;
    std::atomic<bool> isSilent = false;       ///< Whether it behaves as if it were stopped.
    std::atomic<bool> refusesAddress = false; ///< Whether it answers with an error whose text is the address.

  private:
    void answer(sd_bus_message* call);

    std::filesystem::path folder_;
    std::unique_ptr<ServerProcess> daemon_;
    std::mutex mutex_;
    std::vector<std::string> applications_;
    std::unique_ptr<FakeService> service_;
};

/// One object of a fake application.
struct FakeNode {
    std::uint32_t role = 0;
    std::string name;
    std::uint64_t states = 0;
    std::string keyBinding;
    std::vector<std::size_t> children;
    bool hasComponent = true;
};

/// An application whose objects have numbers; 0 is the application itself.
class FakeApplication {
  public:
    static constexpr std::size_t never = std::numeric_limits<std::size_t>::max();

    struct Manners {
        std::string toolkit = "gtk";
        std::chrono::microseconds delay{0}; ///< The delay before every answer.
        std::size_t hangsAfter = never;     ///< The number of calls answered before it hangs.
        std::size_t vanishesAfter = never;  ///< The number of calls answered before it leaves the bus.
        bool answersWithWrongTypes = false; ///< Every answer below the menu bar is a double.
        std::size_t wrongTypesFrom = 3;     ///< The first such object.
        bool rebuildsBeforePress = false;   ///< All objects have new paths by the first press.
        bool answersPresses = true;         ///< False for a program that waits for its dialog.
    };
    using Nodes = std::function<FakeNode(std::size_t number)>;

    FakeApplication(FakeAccessibility& accessibility, Nodes nodes, Manners manners);

    /// The names of the objects pressed so far.
    [[nodiscard]] std::vector<std::string> pressed();
    [[nodiscard]] std::size_t calls() const { return calls_; }

  private:
    void answer(sd_bus_message* call);
    void answerRead(sd_bus_message* call, std::size_t number);
    void answerPress(sd_bus_message* call, std::size_t number);
    [[nodiscard]] std::string path(std::size_t number) const;

    Nodes nodes_;
    Manners manners_;
    std::atomic<std::size_t> calls_ = 0;
    std::size_t generation_ = 0;
    std::mutex mutex_;
    std::vector<std::string> pressed_;
    std::unique_ptr<FakeService> service_;
};

} // namespace tovrel
