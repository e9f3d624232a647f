#pragma once

#include <array>
#include <cstddef>
#include <streambuf>
#include <system_error>

namespace tovrel {

/// Thrown when standard output could not be written.
class OutputError : public std::system_error {
  public:
    using std::system_error::system_error;
};

/// Writes a stream to an open file descriptor, which stays open. A failed write throws OutputError with the
/// reason, which an ordinary file stream would lose. A stream passes the exception on if its exceptions()
/// include std::ios::badbit. Output arrives when the stream is flushed, not on destruction.
class DescriptorBuffer : public std::streambuf {
  public:
    explicit DescriptorBuffer(int fileDescriptor);
    ~DescriptorBuffer() override = default;
    DescriptorBuffer(const DescriptorBuffer&) = delete;
    DescriptorBuffer& operator=(const DescriptorBuffer&) = delete;

  protected:
    int_type overflow(int_type character) override;
    int sync() override;

  private:
    static constexpr std::size_t capacity = std::size_t{64} * 1024;

    int fileDescriptor_;
    std::array<char, capacity> bytes_{};
};

} // namespace tovrel
