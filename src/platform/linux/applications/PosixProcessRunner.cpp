#include "platform/linux/applications/PosixProcessRunner.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <iterator>
#include <optional>
#include <spawn.h>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

#include <sys/epoll.h>
#include <sys/syscall.h>
#include <sys/wait.h>

#include "platform/linux/applications/ExecTexts.h"
#include "platform/linux/applications/SpawnAttributes.h"
#include "platform/linux/applications/StartEnvironment.h"
#include "platform/posix/FileDescriptor.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

constexpr auto lookInterval = 250ms;

/// How the process ended; absent while it runs. A process that other code has waited for counts as
/// successful, because nothing else is known of it.
std::optional<ProcessEnd> takeEnd(pid_t process) {
    int status = 0;
    const pid_t ended = waitpid(process, &status, WNOHANG);
    if (ended == 0) {
        return std::nullopt;
    }
    if (ended < 0) {
        return ProcessEnd{};
    }
    return WIFEXITED(status) ? ProcessEnd{WEXITSTATUS(status), false} : ProcessEnd{WTERMSIG(status), true};
}

/// Starts a process; returns it or an errno value.
std::variant<pid_t, LaunchFailure> spawn(const CommandProcessRequest& request) {
    std::vector<std::string> texts{std::string(request.executablePath.utf8())};
    std::transform(request.arguments.begin(), request.arguments.end(), std::back_inserter(texts),
                   [](const Text& argument) { return std::string(argument.utf8()); });
    if (std::any_of(texts.begin(), texts.end(),
                    [](const std::string& text) { return text.find('\0') != std::string::npos; })) {
        return LaunchFailure{request.executablePath, EINVAL};
    }
    const ExecTexts words(std::move(texts));
    const ExecTexts environment = startEnvironment();
    const SpawnAttributes attributes;
    pid_t process = 0;
    if (const int error =
            posix_spawn(&process, words.get()[0], nullptr, attributes.get(), words.get(), environment.get());
        error != 0) {
        return LaunchFailure{request.executablePath, error};
    }
    return process;
}

} // namespace

/// The processes that have not ended, shared with the timer that checks them.
class PosixProcessRunner::Children : public std::enable_shared_from_this<Children> {
  public:
    explicit Children(MainQueue& queue) : queue_(&queue), ends_(epoll_create1(EPOLL_CLOEXEC)) {}

    void add(pid_t process, Completion completion) {
        children_.push_back({process, watch(process), std::move(completion)});
        lookLaterIfNeeded();
    }

    void takeEnds() {
        for (auto child = children_.begin(); child != children_.end();) {
            if (const auto end = takeEnd(child->process)) {
                tell(std::move(child->completion), *end);
                child = children_.erase(child);
            } else {
                ++child;
            }
        }
    }

    /// By a task of the main queue, unless the runner is gone by then.
    void tell(Completion completion, ProcessOutcome outcome) {
        queue_->post(
            [weak = weak_from_this(), completion = std::move(completion), outcome = std::move(outcome)] {
                if (!weak.expired()) {
                    completion(outcome);
                }
            });
    }

    [[nodiscard]] int fileDescriptor() const { return ends_.get(); }

  private:
    struct Child {
        pid_t process;
        FileDescriptor end; ///< Becomes readable; not open where it cannot be watched.
        Completion completion;
    };

    [[nodiscard]] FileDescriptor watch(pid_t process) const {
        // A direct system call is needed, because some versions of the C library declare the function wrongly
        // for C++.
        FileDescriptor end(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
        epoll_event event{};
        event.events = EPOLLIN;
        return epoll_ctl(ends_.get(), EPOLL_CTL_ADD, end.get(), &event) == 0 ? std::move(end)
                                                                             : FileDescriptor();
    }

    void lookLaterIfNeeded() {
        if (isToLook_ || std::all_of(children_.begin(), children_.end(),
                                     [](const Child& child) { return child.end.isOpen(); })) {
            return;
        }
        isToLook_ = true;
        queue_->postAfter(lookInterval, [weak = weak_from_this()] {
            if (const auto children = weak.lock()) {
                children->isToLook_ = false;
                children->takeEnds();
                children->lookLaterIfNeeded();
            }
        });
    }

    MainQueue* queue_;
    FileDescriptor ends_; ///< Readable when the `end` of any child is.
    std::vector<Child> children_;
    bool isToLook_ = false;
};

PosixProcessRunner::PosixProcessRunner(MainQueue& queue) : children_(std::make_shared<Children>(queue)) {}

PosixProcessRunner::~PosixProcessRunner() = default;

void PosixProcessRunner::start(const CommandProcessRequest& request, Completion completion) {
    const auto started = spawn(request);
    if (const auto* process = std::get_if<pid_t>(&started)) {
        children_->add(*process, std::move(completion));
        return;
    }
    children_->tell(std::move(completion), std::get<LaunchFailure>(started));
}

int PosixProcessRunner::fileDescriptor() const {
    return children_->fileDescriptor();
}

void PosixProcessRunner::dispatch() {
    children_->takeEnds();
}

} // namespace tovrel
