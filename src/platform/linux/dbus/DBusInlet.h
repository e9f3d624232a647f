#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/posix/FileDescriptor.h"

namespace tovrel {

/// What a bus sends passes through here on its way to the library that decodes it, which would take a message
/// of 128 MB that anybody on the bus may send it, and has no way to be told otherwise. Only how long each
/// message is is looked at.
class DBusInlet {
  public:
    /// The longest message that is let through. The longest answer met, what an office suite
    /// publishes of one window, has 300 KB; an object with 100,000 children, as views of pictures may be,
    /// would answer with 5 MB.
    static constexpr std::size_t longestMessage = std::size_t{8} << 20U;

    /// Reads from `source` and writes to `sink`, neither of which may block.
    DBusInlet(FileDescriptor source, FileDescriptor sink)
        : source_(std::move(source)), sink_(std::move(sink)) {}

    /// Passes on a piece of what lies ready. False when nothing does, or the reader has to read first.
    bool pass();

    /// False once the bus has ended the connection or a message was too long. What was passed on before is
    /// still to be read; behind it the reader finds the end.
    [[nodiscard]] bool isOpen() const { return sink_.isOpen(); }

    /// Whether a message was too long.
    [[nodiscard]] bool hasRefused() const { return isTooLong_; }

    /// To be waited at for more.
    [[nodiscard]] int source() const { return source_.get(); }

    /// Bytes so far.
    [[nodiscard]] std::uint64_t received() const { return received_; }

  private:
    /// How much at the start of these bytes may be passed on; the rest is incomplete. Marks the end when a
    /// message is too long.
    std::size_t passable(std::string_view bytes);
    bool flush();
    void end() { sink_ = FileDescriptor(); }

    FileDescriptor source_;
    FileDescriptor sink_;
    std::array<char, std::size_t{64} << 10U> buffer_{};
    std::size_t passed_ = 0;      ///< The bytes of the buffer before this have gone.
    std::size_t passable_ = 0;    ///< Those before this may go.
    std::size_t filled_ = 0;      ///< Those before this are there.
    std::size_t messageLeft_ = 0; ///< Of the message that has begun to pass.
    bool isTooLong_ = false;      ///< What follows is not passed on.
    std::uint64_t received_ = 0;
};

} // namespace tovrel
