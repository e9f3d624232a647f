#pragma once

namespace tovrel {

/// A source of events outside this process. The main loop watches its descriptor and calls `dispatch`
/// whenever that is readable.
class EventSource {
  public:
    virtual ~EventSource() = default;

    /// The descriptor to watch for reading; -1 when there is none, or when the other side is gone. Ask for it
    /// again after each `dispatch`: a descriptor whose other side is gone stays readable forever.
    [[nodiscard]] virtual int fileDescriptor() const = 0;

    /// Handles every event that has arrived, including those already in memory, and returns without waiting
    /// for more.
    virtual void dispatch() = 0;
};

} // namespace tovrel
