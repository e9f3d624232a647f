// Reads the menus of an application that serves anything as com.canonical.dbusmenu.

#include "fuzz/FuzzedPeer.h"
#include "fuzz/Fuzzing.h"
#include "platform/linux/menus/dbusmenu/DBusMenuReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tovrel;
    fuzzing::FuzzedPeer& peer = fuzzing::FuzzedPeer::instance();
    peer.answerWith(data, size);
    const MenuReadLimits limits = fuzzing::FuzzedPeer::limits();
    const MenuReading reading = readDBusMenuBar(peer.connection(), {fuzzing::FuzzedPeer::busName, "/menu"},
                                                limits, std::chrono::steady_clock::now());
    fuzzing::require(reading.tree.size() <= limits.nodes, "a tree keeps within the limits");
    fuzzing::require(peer.connection().isOpen(), "the connection stays");
    return 0;
}
