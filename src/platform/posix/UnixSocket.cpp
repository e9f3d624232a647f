#include "platform/posix/UnixSocket.h"

#include <charconv>
#include <cstddef>
#include <cstring>
#include <optional>
#include <string_view>
#include <vector>

#include <sys/socket.h>
#include <sys/un.h>

namespace tovrel {
namespace {

std::vector<std::string_view> partsOf(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(separator, start), text.size());
        parts.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

/// Decodes a value of an address, in which most bytes are written as "%" and two hexadecimal digits.
std::optional<std::string> unescaped(std::string_view value) {
    std::string bytes;
    for (std::size_t index = 0; index < value.size(); ++index) {
        if (value[index] != '%') {
            bytes += value[index];
            continue;
        }
        const std::string_view digits = value.substr(index + 1, 2);
        unsigned char byte = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16);
        if (digits.size() != 2 || error != std::errc() || end != digits.data() + 2) {
            return std::nullopt;
        }
        bytes += static_cast<char>(byte);
        index += 2;
    }
    return bytes;
}

/// The name of the socket in the kernel's form: a path, or a NUL and an abstract name.
std::optional<std::string> socketName(std::string_view address) {
    constexpr std::string_view transport = "unix:";
    if (!address.starts_with(transport)) {
        return std::nullopt;
    }
    for (const std::string_view entry : partsOf(address.substr(transport.size()), ',')) {
        const std::size_t equals = entry.find('=');
        const std::string_view key = entry.substr(0, equals);
        if (equals == std::string_view::npos || (key != "path" && key != "abstract")) {
            continue; // another key, such as "guid", which identifies a bus
        }
        const auto value = unescaped(entry.substr(equals + 1));
        if (!value || value->empty() || value->find('\0') != std::string::npos) {
            return std::nullopt;
        }
        return key == "path" ? *value : std::string(1, '\0') + *value;
    }
    return std::nullopt;
}

FileDescriptor connectedTo(const std::string& name) {
    sockaddr_un address{};
    if (name.size() >= sizeof(address.sun_path)) {
        return FileDescriptor();
    }
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, name.data(), name.size());
    const bool isAbstract = name.front() == '\0';
    const auto size =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + name.size() + (isAbstract ? 0 : 1));
    FileDescriptor connected(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    // The socket functions take all kinds of addresses as this type.
    const auto* generic = reinterpret_cast<const sockaddr*>(&address); // NOLINT(*-reinterpret-cast)
    return connected.isOpen() && connect(connected.get(), generic, size) == 0 ? std::move(connected)
                                                                              : FileDescriptor();
}

} // namespace

FileDescriptor connectedUnixSocket(const std::string& addresses) {
    std::vector<std::string> names;
    for (const std::string_view address : partsOf(addresses, ';')) {
        if (address.empty()) {
            continue;
        }
        auto name = socketName(address);
        if (!name) {
            return FileDescriptor();
        }
        names.push_back(std::move(*name));
    }
    for (const std::string& name : names) {
        if (FileDescriptor connected = connectedTo(name); connected.isOpen()) {
            return connected;
        }
    }
    return FileDescriptor();
}

} // namespace tovrel
