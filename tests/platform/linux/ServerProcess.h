#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace tovrel {

/// A program that runs beside a test and ends with it.
class ServerProcess {
  public:
    /// Starts the program with a pipe whose number replaces "{fd}" in the arguments, and reads the first line
    /// from it: servers write their address there once they listen.
    explicit ServerProcess(std::vector<std::string> arguments);
    ~ServerProcess();
    ServerProcess(const ServerProcess&) = delete;
    ServerProcess& operator=(const ServerProcess&) = delete;

    /// The announced line; empty when the program could not be started.
    [[nodiscard]] const std::string& announced() const { return announced_; }

  private:
    pid_t process_ = -1;
    std::string announced_;
};

} // namespace tovrel
