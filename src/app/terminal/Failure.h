#pragma once

#include <stdexcept>

namespace tovrel {

/// Thrown when the program cannot do what it was asked to. The message is one line, shown after "tovrel: ";
/// the exit status is 1.
class Failure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

} // namespace tovrel
