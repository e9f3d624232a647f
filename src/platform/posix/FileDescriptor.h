#pragma once

#include <unistd.h>
#include <utility>

namespace tovrel {

/// Owns an open file descriptor; -1 when there is none.
class FileDescriptor {
  public:
    explicit FileDescriptor(int descriptor = -1) : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() {
        if (descriptor_ >= 0) {
            close(descriptor_);
        }
    }

    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
    [[nodiscard]] int get() const { return descriptor_; }
    /// Gives up the ownership of the descriptor.
    int release() { return std::exchange(descriptor_, -1); }

  private:
    int descriptor_;
};

} // namespace tovrel
