#pragma once

#include <csignal>
#include <functional>
#include <string>

#include <sys/types.h>

#include "platform/posix/FileDescriptor.h"

namespace tovrel {

/// A pipe with a reading and a writing end.
struct Pipe {
    Pipe();
    FileDescriptor input;
    FileDescriptor output;
};

/// Holds processes back until others have reached a point. Must be made before the processes are forked.
class Barrier {
  public:
    void pass(int times = 1) const;
    void wait(int times = 1) const;

  private:
    Pipe pipe_;
};

/// A fork of the test program that runs a function and ends with its result as exit status.
class ChildProcess {
  public:
    /// The function gets a descriptor to write to; `output` reads it.
    explicit ChildProcess(const std::function<int(int output)>& function);
    ChildProcess(ChildProcess&& other) noexcept;
    ChildProcess& operator=(ChildProcess&&) = delete;
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    /// Kills the process if it still runs.
    ~ChildProcess();

    void kill();
    /// Waits for the end and returns the exit status, or the negative number of the signal that ended the
    /// process.
    int exitStatus();
    /// Everything that the process has written and will write until its end.
    std::string output();

  private:
    pid_t processIdentifier_;
    FileDescriptor output_;
};

/// Runs the function in a child process and returns its result, e.g. a description of a failure.
std::string inChildProcess(const std::function<std::string()>& function);

} // namespace tovrel
