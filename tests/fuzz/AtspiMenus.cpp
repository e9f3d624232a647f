// Reads the menus of an application that publishes anything on the accessibility bus.

#include "platform/linux/menus/accessibility/AtspiMenus.h"

#include "fuzz/FuzzedPeer.h"
#include "fuzz/Fuzzing.h"
#include "platform/linux/menus/accessibility/AtspiMenuReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tovrel;
    fuzzing::FuzzedPeer& peer = fuzzing::FuzzedPeer::instance();
    peer.answerWith(data, size);
    const MenuReadLimits limits = fuzzing::FuzzedPeer::limits();
    MenuTree published;
    const AtspiMenuReading reading =
        readAtspiMenus(peer.connection(), fuzzing::FuzzedPeer::busName, "/root", Text("Window"), published,
                       limits, std::chrono::steady_clock::now());
    const MenuTree tree = menuTreeOf(reading.tree);
    fuzzing::require(tree.size() <= limits.nodes, "a tree keeps within the limits");
    fuzzing::require(peer.connection().isOpen(), "the connection stays");
    return 0;
}
