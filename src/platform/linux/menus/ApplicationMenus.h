#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "platform/ApplicationWindow.h"
#include "platform/linux/dbus/SessionBus.h"
#include "platform/linux/menus/accessibility/AtspiMenuSource.h"
#include "platform/linux/menus/gtk/KnownAccelerators.h"
#include "platform/linux/menus/source/ApplicationMenuSource.h"

namespace tovrel {

/// The buses over which menus are read; never null.
struct MenuBuses {
    std::shared_ptr<AtspiBus> accessibility;
    std::shared_ptr<SessionBus> session;
};

/// The sources of menus, and knowledge from earlier reads. All applications share one object, which outlives
/// everything that was read from it.
struct MenuSources {
    explicit MenuSources(const MenuBuses& buses);

    std::shared_ptr<AtspiMenuSource> accessible; ///< Also in `all`; it adds to the menus of other sources.
    /// The published source, the accessible one, and the further ones, which are asked in turn for missing
    /// menus.
    std::vector<std::shared_ptr<ApplicationMenuSource>> all;
    KnownAccelerators accelerators;
};

/// Access to the menus of one running application, shared by the elements read from it. Only this class
/// decides which source serves what.
///
/// - The menus that the front window publishes as org.gtk.Menus are its whole menu bar, with current states
///   and with actions to press. They take a hundredth of the calls that the accessibility bus takes. GTK 4,
///   GTK 3 applications that make their menus from a model, and LibreOffice publish them.
/// - The accessibility bus adds what is not published: the current states in LibreOffice, and shortcuts in
///   GTK 3, which are then kept for a while (see KnownAccelerators.h). It is the only source for applications
///   that publish nothing: GTK 2, other applications of GTK 3, Qt, Gecko.
/// - Each other source is asked only when those before it gave nothing or left menus without entries, which
///   it then fills. com.canonical.dbusmenu, where the desktop runs a registrar of application menus, has
///   menus that are filled only when they open.
///
/// An application that does not answer one source is not asked for the next.
class ApplicationMenus {
  public:
    /// The windows of a process, the front one first; empty where they are not known.
    using Windows = std::function<std::vector<ApplicationWindow>(std::int32_t processIdentifier)>;

    /// `sources` is never null.
    ApplicationMenus(std::shared_ptr<MenuSources> sources, Windows windows, const MenuReadLimits& limits,
                     std::int32_t processIdentifier);

    /// Reads everything again, within the limits. The report is from the source of the menus, with the calls
    /// of all sources; if the tree is empty, it says why.
    MenuReading read();

    /// Presses a node of a tree that was read before. When the application no longer knows it, its menus are
    /// read once more from the same source, and the node with the same titles is pressed instead, if exactly
    /// as many nodes have these titles as before. Items of a source without lasting items are always looked
    /// up in this way.
    ///
    /// Refused while a modal window is in front, which blocks the menu bar for the user too: applications do
    /// not expect commands then, and would open their dialog a second time.
    bool press(const MenuTree& tree, std::size_t node);

  private:
    [[nodiscard]] MenuReadRequest request() const;
    MenuReading readFrom(std::size_t source, const MenuReadRequest& request);
    /// The published menus with the additions of the accessible form; only the accessible form if nothing is
    /// published.
    MenuReading withAccessible(MenuReading published, const MenuReadRequest& request);

    std::shared_ptr<MenuSources> sources_;
    Windows windows_;
    MenuReadLimits limits_;
    std::int32_t processIdentifier_;
};

} // namespace tovrel
