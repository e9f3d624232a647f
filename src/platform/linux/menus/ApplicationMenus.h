#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/ApplicationWindow.h"
#include "platform/linux/dbus/MenuReadLimits.h"
#include "platform/linux/dbus/SessionBus.h"
#include "platform/linux/menus/accessibility/AtspiBus.h"
#include "platform/linux/menus/accessibility/KnownAccelerators.h"
#include "platform/linux/menus/dbusmenu/DBusMenuReader.h"
#include "platform/linux/menus/source/MenuReading.h"

namespace tovrel {

/// What the menus of applications are read from. The buses are never null.
struct MenuBuses {
    std::shared_ptr<AtspiBus> accessibility;
    std::shared_ptr<SessionBus> session;
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
/// - com.canonical.dbusmenu is asked only where the desktop runs the registrar of application menus, and only
///   when the others gave nothing or left menus without entries: those that are filled when they open.
///
/// An application that does not answer one source is not asked for the next.
class ApplicationMenus {
  public:
    /// The windows of a process, the front one first; empty where they are not known.
    using Windows = std::function<std::vector<ApplicationWindow>(std::int32_t processIdentifier)>;

    /// `accelerators` is shared by all applications and never null.
    ApplicationMenus(MenuBuses buses, Windows windows, const MenuReadLimits& limits,
                     std::shared_ptr<KnownAccelerators> accelerators, std::int32_t processIdentifier);

    /// Reads everything anew, within the limits. The report is that of the source the menus are taken from,
    /// with the calls of all; where the tree is empty it says why.
    MenuReading read();

    /// Presses a node of a tree that was read before. When the application no longer knows it, its menus are
    /// read once more and the node with the same titles is pressed instead, if exactly as many nodes have
    /// these titles as before. Items that only a number or an action stands for are always looked up anew:
    /// the same one may mean something else by now.
    ///
    /// Refused while a modal window is in front, which keeps the user from the menu bar too: applications do
    /// not expect commands then, and open their dialog a second time.
    bool press(const MenuTree& tree, std::size_t node);

  private:
    /// Adds to what is published in this window, or reads what is not.
    MenuReading readAccessible(const ApplicationWindow* window, MenuTree& published, SteadyTime started);
    MenuReading readPublished(const GtkMenuAddress& address, SteadyTime started);
    MenuReading readRegistered(const DBusMenuAddress& address, SteadyTime started);
    std::optional<DBusMenuAddress> registeredMenu(const std::vector<ApplicationWindow>& windows,
                                                  SteadyTime started);
    [[nodiscard]] std::vector<ApplicationWindow> windows() const;

    bool pressAccessible(const MenuTree& tree, std::size_t node,
                         const std::vector<ApplicationWindow>& windows);
    bool pressPublished(const MenuTree& tree, std::size_t node,
                        const std::vector<ApplicationWindow>& windows);
    bool pressRegistered(const MenuTree& tree, std::size_t node,
                         const std::vector<ApplicationWindow>& windows);

    MenuBuses buses_;
    Windows windows_;
    MenuReadLimits limits_;
    std::shared_ptr<KnownAccelerators> accelerators_;
    std::int32_t processIdentifier_;
};

} // namespace tovrel
