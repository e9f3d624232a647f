#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace tovrel {

/// Keeps an observer registered until it is destroyed or assigned to. May outlive the observed value.
class Subscription {
  public:
    Subscription() = default;
    explicit Subscription(std::function<void()> cancel) : cancel_(std::move(cancel)) {}
    ~Subscription() { cancel(); }
    Subscription(Subscription&& other) noexcept : cancel_(std::exchange(other.cancel_, nullptr)) {}
    Subscription& operator=(Subscription&& other) noexcept {
        if (this != &other) {
            cancel();
            cancel_ = std::exchange(other.cancel_, nullptr);
        }
        return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;

  private:
    void cancel() {
        if (const auto cancelOnce = std::exchange(cancel_, nullptr)) {
            cancelOnce();
        }
    }

    std::function<void()> cancel_;
};

/// Observers that are called in the order in which they subscribed. While they are being called, they may
/// subscribe others (called from the next time on), cancel any of them (no longer called), and destroy the
/// list itself.
template <typename... Arguments>
class ObserverList {
  public:
    using Observer = std::function<void(Arguments...)>;

    ObserverList() = default;
    ~ObserverList() = default;
    ObserverList(const ObserverList&) = delete; // two values would call each other's observers
    ObserverList& operator=(const ObserverList&) = delete;

    [[nodiscard]] Subscription subscribe(Observer observer) const {
        const std::uint64_t id = observers_->nextId++;
        observers_->byId.emplace(id, std::move(observer));
        return Subscription([weak = std::weak_ptr(observers_), id] {
            if (const auto observers = weak.lock()) {
                observers->byId.erase(id);
            }
        });
    }

    void notify(Arguments... arguments) const {
        const std::shared_ptr<Observers> observers = observers_;
        std::vector<std::uint64_t> ids;
        for (const auto& [id, observer] : observers->byId) {
            ids.push_back(id);
        }
        for (const std::uint64_t id : ids) {
            if (const auto found = observers->byId.find(id); found != observers->byId.end()) {
                const Observer observer = found->second; // it may cancel itself
                observer(arguments...);
            }
        }
    }

  private:
    struct Observers {
        std::uint64_t nextId = 0;
        std::map<std::uint64_t, Observer> byId;
    };

    std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
};

/// A value that tells its observers of every assignment, even if the value stays the same.
template <typename T>
class Observable {
  public:
    Observable() = default;
    explicit Observable(T initial) : value_(std::move(initial)) {}

    [[nodiscard]] const T& get() const { return value_; }

    /// Observers are called before this returns.
    void set(T value) {
        value_ = std::move(value);
        observers_.notify();
    }

    /// A reader may observe, because that does not change the value.
    [[nodiscard]] Subscription subscribe(std::function<void()> observer) const {
        return observers_.subscribe(std::move(observer));
    }

  private:
    T value_{};
    ObserverList<> observers_;
};

} // namespace tovrel
