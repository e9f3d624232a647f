#include "platform/linux/dbus/DBusInlet.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <sys/socket.h>

namespace tovrel {
namespace {

/// The fixed part of a message's header.
constexpr std::size_t headerSize = 16;

std::uint32_t numberAt(std::string_view bytes, std::size_t place, bool isLittleEndian) {
    std::uint32_t number = 0;
    for (std::size_t index = 0; index < 4; ++index) {
        const std::size_t next = isLittleEndian ? place + 3 - index : place + index;
        number = number << 8U | static_cast<unsigned char>(bytes[next]);
    }
    return number;
}

/// The size of the message with this header. The protocol pads the header fields to a multiple of 8.
std::uint64_t messageSize(std::string_view header) {
    const bool isLittleEndian = header.front() == 'l';
    const std::uint64_t body = numberAt(header, 4, isLittleEndian);
    const std::uint64_t fields = numberAt(header, 12, isLittleEndian);
    return headerSize + (fields + 7) / 8 * 8 + body;
}

} // namespace

bool DBusInlet::pass() {
    if (!isOpen()) {
        return false;
    }
    if (passed_ < passable_) {
        return flush();
    }
    if (isTooLong_) {
        end();
        return true;
    }
    std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(passed_),
              buffer_.begin() + static_cast<std::ptrdiff_t>(filled_), buffer_.begin());
    filled_ -= passed_;
    passed_ = passable_ = 0;
    const ssize_t count =
        recv(source_.get(), buffer_.data() + filled_, buffer_.size() - filled_, MSG_DONTWAIT);
    if (count <= 0) {
        const bool hasEnded = count == 0 || (errno != EAGAIN && errno != EINTR);
        if (hasEnded) {
            end();
        }
        return hasEnded;
    }
    received_ += static_cast<std::uint64_t>(count);
    filled_ += static_cast<std::size_t>(count);
    passable_ = passable({buffer_.data(), filled_});
    return flush() || isTooLong_;
}

std::size_t DBusInlet::passable(std::string_view bytes) {
    std::size_t place = 0;
    while (place < bytes.size()) {
        if (messageLeft_ > 0) {
            const std::size_t part = std::min(messageLeft_, bytes.size() - place);
            messageLeft_ -= part;
            place += part;
            continue;
        }
        const std::string_view rest = bytes.substr(place);
        // Lines of text come before the first message. None of them begins with either of the letters that
        // give a message's byte order.
        if (rest.front() != 'l' && rest.front() != 'B') {
            const std::size_t lineEnd = rest.find('\n');
            if (lineEnd == std::string_view::npos) {
                break;
            }
            place += lineEnd + 1;
            continue;
        }
        if (rest.size() < headerSize) {
            break;
        }
        const std::uint64_t size = messageSize(rest.substr(0, headerSize));
        if (size > longestMessage) {
            isTooLong_ = true;
            break;
        }
        messageLeft_ = static_cast<std::size_t>(size);
    }
    // A line that fills the buffer without an end is not from a bus.
    isTooLong_ = isTooLong_ || (place == 0 && bytes.size() == buffer_.size());
    return place;
}

bool DBusInlet::flush() {
    if (passed_ == passable_) {
        return true; // The rest of the message is still to come.
    }
    const ssize_t count =
        send(sink_.get(), buffer_.data() + passed_, passable_ - passed_, MSG_DONTWAIT | MSG_NOSIGNAL);
    if (count <= 0) {
        if (count == 0 || (errno != EAGAIN && errno != EINTR)) {
            end();
        }
        return false;
    }
    passed_ += static_cast<std::size_t>(count);
    return true;
}

} // namespace tovrel
