#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/posix/FileDescriptor.h"

namespace tovrel {

/// Passes a bus's messages on to the library that decodes them, and refuses long ones. The library itself
/// would receive a message of 128 MB, which anybody on the bus may send, and has no setting against that. The
/// inlet looks only at the length of each message.
class DBusInlet {
  public:
    /// The longest message that is passed on. The longest answer met, an office suite's published menus of
    /// one window, has 300 KB; an object with 100,000 children, such as a view of pictures, would answer with
    /// 5 MB.
    static constexpr std::size_t longestMessage = std::size_t{8} << 20U;

    /// Reads from `source` and writes to `sink`, neither of which may block.
    DBusInlet(FileDescriptor source, FileDescriptor sink)
        : source_(std::move(source)), sink_(std::move(sink)) {}

    /// Passes on a piece of the input. Returns false when there is no input, or the reader has to read first.
    bool pass();

    /// False once the bus has ended the connection or a message was too long. The reader can still read the
    /// messages passed on before, and then finds the end.
    [[nodiscard]] bool isOpen() const { return sink_.isOpen(); }

    /// Whether a message was too long.
    [[nodiscard]] bool hasRefused() const { return isTooLong_; }

    /// The descriptor to wait at for more input.
    [[nodiscard]] int source() const { return source_.get(); }

    /// The bytes received so far.
    [[nodiscard]] std::uint64_t received() const { return received_; }

  private:
    /// How many of these bytes may be passed on; the rest is incomplete. Sets `isTooLong_` when a message is
    /// too long.
    std::size_t passable(std::string_view bytes);
    bool flush();
    void end() { sink_ = FileDescriptor(); }

    FileDescriptor source_;
    FileDescriptor sink_;
    std::array<char, std::size_t{64} << 10U> buffer_{};
    std::size_t passed_ = 0;      ///< The buffer's bytes before this have been passed on.
    std::size_t passable_ = 0;    ///< The bytes before this may be passed on.
    std::size_t filled_ = 0;      ///< The bytes before this are filled.
    std::size_t messageLeft_ = 0; ///< Bytes still to come of the current message.
    bool isTooLong_ = false;      ///< No further input is passed on.
    std::uint64_t received_ = 0;
};

} // namespace tovrel
