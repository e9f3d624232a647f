#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "platform/linux/dbus/DBus.h"
#include "platform/linux/menus/source/MenuReadLimits.h"

namespace tovrel::fuzzing {

/// The only peer of a connection, on a socket of this process: bus and application in one. It answers every
/// call with a message whose values are made from the input, of the proper type or another. So the readers
/// are tested as a whole, with real messages, through their public interface.
class FuzzedPeer {
  public:
    /// The one peer of the process.
    static FuzzedPeer& instance();

    /// The end of the connection that the readers use.
    [[nodiscard]] DBusConnection& connection();

    /// The name under which the application is addressed.
    static constexpr const char* busName = ":1.7";

    /// Small limits, so that an input costs little and a lost answer soon shows.
    static MenuReadLimits limits();

    /// Makes all further answers from these bytes, starting with the first.
    void answerWith(const std::uint8_t* data, std::size_t size);

  private:
    struct Implementation;

    FuzzedPeer();

    Implementation* implementation_; ///< Lives as long as the process, as its thread does.
};

} // namespace tovrel::fuzzing
