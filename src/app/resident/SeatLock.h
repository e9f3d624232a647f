#pragma once

#include "app/seat/ResidentSeat.h"
#include "platform/posix/FileDescriptor.h"

namespace tovrel {

/// Has the seat of the resident program, or tries to, as long as the object lives; however the process ends,
/// the seat is free then.
class SeatLock {
  public:
    /// Does not wait for who has it.
    explicit SeatLock(const ResidentSeat& seat);

    /// Whether another process has the seat. Where the file can be neither made nor locked, nobody has it.
    [[nodiscard]] bool isTakenByAnother() const { return isTakenByAnother_; }

  private:
    FileDescriptor descriptor_;
    bool isTakenByAnother_ = false;
};

} // namespace tovrel
