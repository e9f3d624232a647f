#include "platform/linux/ChildProcess.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <system_error>
#include <unistd.h>
#include <utility>

#include <sys/wait.h>

namespace tovrel {
namespace {

void require(bool condition, const char* what) {
    if (!condition) {
        throw std::system_error(errno, std::generic_category(), what);
    }
}

} // namespace

Pipe::Pipe() {
    std::array<int, 2> ends{};
    require(pipe(ends.data()) == 0, "pipe");
    input = FileDescriptor(ends[0]);
    output = FileDescriptor(ends[1]);
}

void Barrier::pass(int times) const {
    for (int i = 0; i < times; ++i) {
        require(write(pipe_.output.get(), ".", 1) == 1, "write");
    }
}

void Barrier::wait(int times) const {
    for (int i = 0; i < times; ++i) {
        char byte = 0;
        require(read(pipe_.input.get(), &byte, 1) == 1, "read");
    }
}

ChildProcess::ChildProcess(const std::function<int(int)>& function) {
    Pipe pipe;
    processIdentifier_ = fork();
    require(processIdentifier_ >= 0, "fork");
    if (processIdentifier_ == 0) {
        // A forgotten child would outlive a test that was ended; the deadline is that of the test program.
        alarm(100);
        pipe.input = FileDescriptor();
        const int status = function(pipe.output.get());
        _exit(status); // without the parent's exit handlers and buffers
    }
    output_ = std::move(pipe.input);
}

ChildProcess::ChildProcess(ChildProcess&& other) noexcept
    : processIdentifier_(std::exchange(other.processIdentifier_, -1)), output_(std::move(other.output_)) {}

ChildProcess::~ChildProcess() {
    if (processIdentifier_ > 0) {
        kill();
        exitStatus();
    }
}

void ChildProcess::kill() {
    ::kill(processIdentifier_, SIGKILL);
}

int ChildProcess::exitStatus() {
    int status = 0;
    while (waitpid(processIdentifier_, &status, 0) < 0 && errno == EINTR) {
    }
    processIdentifier_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

std::string ChildProcess::output() {
    std::string bytes;
    std::array<char, 4096> buffer{};
    ssize_t count = 0;
    while ((count = read(output_.get(), buffer.data(), buffer.size())) > 0) {
        bytes.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return bytes;
}

std::string inChildProcess(const std::function<std::string()>& function) {
    ChildProcess child([&](int output) {
        const std::string result = function();
        return write(output, result.data(), result.size()) == static_cast<ssize_t>(result.size()) ? 0 : 1;
    });
    const std::string result = child.output();
    return child.exitStatus() == 0 ? result : "the child process failed: " + result;
}

} // namespace tovrel
