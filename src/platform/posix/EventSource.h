#pragma once

namespace tovrel {

/// Something outside this process that has events to tell, as the main loop watches it: whenever the
/// descriptor is readable it calls `dispatch`.
class EventSource {
  public:
    virtual ~EventSource() = default;

    /// The descriptor to watch for reading; -1 when there is none, or none any more because the other side is
    /// gone. To be asked again after each `dispatch`: a descriptor whose other side is gone stays readable
    /// for ever.
    [[nodiscard]] virtual int fileDescriptor() const = 0;

    /// Handles every event that has arrived, those included that lie in memory already, and returns without
    /// waiting for more.
    virtual void dispatch() = 0;
};

} // namespace tovrel
