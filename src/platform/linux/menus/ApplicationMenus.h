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

/// What the menus of applications are read from. The buses are never null.
struct MenuBuses {
    std::shared_ptr<AtspiBus> accessibility;
    std::shared_ptr<SessionBus> session;
};

/// The sources of menus, and what is known from earlier reads. All applications share one object, which
/// outlives everything that was read from it.
struct MenuSources {
    explicit MenuSources(const MenuBuses& buses);

    std::shared_ptr<AtspiMenuSource>
        accessible; ///< Also one of `all`, for what it adds to the menus of others.
    /// The one that publishes, the accessible one, and behind them those that are asked in turn for what is
    /// missing.
    std::vector<std::shared_ptr<ApplicationMenuSource>> all;
    KnownAccelerators accelerators;
};

/// Access to the menus of one running application, shared by the elements read from it: the one place that
/// knows which source is taken for what.
///
/// - What the front window publishes as org.gtk.Menus is its menu bar: all that the user sees there, with
///   current states, at a hundredth of the calls that the accessibility bus takes, and pressed by its
///   actions. That is so in GTK 4, in applications of GTK 3 that make their menus from a model, and in
///   LibreOffice.
/// - The accessibility bus adds what is not published: the current states in LibreOffice, shortcuts in GTK 3,
///   which are then kept for a while (see KnownAccelerators.h). Where nothing is published it is the source
///   of everything: GTK 2, other applications of GTK 3, Qt, Gecko.
/// - Every other source is asked only when those before it gave nothing or left menus without entries, and
///   fills these: com.canonical.dbusmenu, where the desktop runs the registrar of application menus, has
///   those that are filled when they open.
///
/// An application that does not answer one source is not asked for the next.
class ApplicationMenus {
  public:
    /// The windows of a process, the front one first; empty where they are not known.
    using Windows = std::function<std::vector<ApplicationWindow>(std::int32_t processIdentifier)>;

    /// `sources` is never null.
    ApplicationMenus(std::shared_ptr<MenuSources> sources, Windows windows, const MenuReadLimits& limits,
                     std::int32_t processIdentifier);

    /// Reads everything anew, within the limits. The report is that of the source the menus are taken from,
    /// with the calls of all; where the tree is empty it says why.
    MenuReading read();

    /// Presses a node of a tree that was read before. When the application no longer knows it, its menus are
    /// read once more from the same source, and the node with the same titles is pressed instead, if exactly
    /// as many nodes have these titles as before. Items of a source that has no lasting ones are always
    /// looked up so.
    ///
    /// Refused while a modal window is in front, which keeps the user from the menu bar too: applications do
    /// not expect commands then, and open their dialog a second time.
    bool press(const MenuTree& tree, std::size_t node);

  private:
    [[nodiscard]] MenuReadRequest request() const;
    MenuReading readFrom(std::size_t source, const MenuReadRequest& request);
    /// What is published with what the accessible form adds, or that form where nothing is.
    MenuReading withAccessible(MenuReading published, const MenuReadRequest& request);

    std::shared_ptr<MenuSources> sources_;
    Windows windows_;
    MenuReadLimits limits_;
    std::int32_t processIdentifier_;
};

} // namespace tovrel
