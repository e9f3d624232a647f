#pragma once

#include "app/seat/ResidentSeat.h"
#include "platform/posix/FileDescriptor.h"

namespace tovrel {

/// Tries to take the seat of the resident program and keeps it until the object is destroyed. The seat also
/// becomes free however the process ends.
class SeatLock {
  public:
    /// Does not wait for another process to give the seat up.
    explicit SeatLock(const ResidentSeat& seat);

    /// Whether another process has the seat. Where the file can be neither made nor locked, nobody has it.
    [[nodiscard]] bool isTakenByAnother() const { return isTakenByAnother_; }

  private:
    FileDescriptor descriptor_;
    bool isTakenByAnother_ = false;
};

} // namespace tovrel
