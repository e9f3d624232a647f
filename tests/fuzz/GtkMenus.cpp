// Reads the menus of a window that publishes anything as org.gtk.Menus and org.gtk.Actions.

#include "fuzz/FuzzedPeer.h"
#include "fuzz/Fuzzing.h"
#include "platform/linux/menus/gtk/GtkMenuReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tovrel;
    fuzzing::FuzzedPeer& peer = fuzzing::FuzzedPeer::instance();
    peer.answerWith(data, size);
    const MenuReadLimits limits = fuzzing::FuzzedPeer::limits();
    const MenuReading reading =
        readGtkMenuBar(peer.connection(), {fuzzing::FuzzedPeer::busName, "/bar", "/application", "/window"},
                       limits, std::chrono::steady_clock::now());
    fuzzing::require(reading.tree.size() <= limits.nodes, "a tree keeps within the limits");
    fuzzing::require(peer.connection().isOpen(), "the connection stays");
    return 0;
}
