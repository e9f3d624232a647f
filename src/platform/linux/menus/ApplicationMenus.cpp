#include "platform/linux/menus/ApplicationMenus.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/linux/menus/MenuJoin.h"
#include "platform/linux/menus/MenuPress.h"
#include "platform/linux/menus/accessibility/AtspiMenuReader.h"
#include "platform/linux/menus/accessibility/AtspiMenus.h"
#include "platform/linux/menus/dbusmenu/DBusMenuReader.h"
#include "platform/linux/menus/gtk/GtkMenuReader.h"
#include "platform/linux/menus/source/MenuBounds.h"

namespace tovrel {
namespace {

/// Nothing that lies behind a silent application is worth another wait, and nothing behind one that has gone.
bool isUnreachable(MenuReadOutcome outcome) {
    return outcome == MenuReadOutcome::applicationSilent || outcome == MenuReadOutcome::tooSlow ||
           outcome == MenuReadOutcome::applicationGone;
}

bool hasEntries(const MenuReading& reading) {
    return !reading.tree.empty() && !reading.tree.front().children.empty();
}

/// The limits were met before anything could be made of it.
bool isTooMuch(const MenuReading& reading) {
    return reading.report.outcome == MenuReadOutcome::treeTooLarge;
}

MenuReading nothing() {
    MenuReading reading;
    reading.report.outcome = MenuReadOutcome::noMenuBar;
    return reading;
}

const ApplicationWindow* frontOf(const std::vector<ApplicationWindow>& windows) {
    return windows.empty() ? nullptr : &windows.front();
}

/// The window with a published menu bar; null when there is none. A dialog in front of it has none of its
/// own.
const ApplicationWindow* publisherOf(const std::vector<ApplicationWindow>& windows) {
    const auto window = std::find_if(windows.begin(), windows.end(),
                                     [](const ApplicationWindow& candidate) { return candidate.gtkMenus; });
    return window == windows.end() ? nullptr : &*window;
}

/// Late answers of an application that was given up would else be kept account of by the bus.
template <typename Bus>
void forgetIfAbandoned(Bus& bus, MenuReadOutcome outcome) {
    if (outcome == MenuReadOutcome::applicationSilent || outcome == MenuReadOutcome::tooSlow ||
        outcome == MenuReadOutcome::treeTooLarge) {
        bus.disconnect();
    }
}

} // namespace

ApplicationMenus::ApplicationMenus(MenuBuses buses, Windows windows, const MenuReadLimits& limits,
                                   std::shared_ptr<KnownAccelerators> accelerators,
                                   std::int32_t processIdentifier)
    : buses_(std::move(buses)), windows_(std::move(windows)), limits_(limits),
      accelerators_(std::move(accelerators)), processIdentifier_(processIdentifier) {}

MenuReading ApplicationMenus::read() {
    const SteadyTime started = std::chrono::steady_clock::now();
    const std::vector<ApplicationWindow> windows = this->windows();
    const ApplicationWindow* publisher = publisherOf(windows);
    MenuReading published = publisher != nullptr ? readPublished(*publisher->gtkMenus, started) : nothing();
    if (isUnreachable(published.report.outcome)) {
        return published;
    }
    const bool isWhole =
        hasEntries(published) && accelerators_->addTo(published.tree, publisher->gtkMenus->busName, started);
    MenuReading reading = isWhole ? nothing()
                                  : readAccessible(publisher != nullptr ? publisher : frontOf(windows),
                                                   published.tree, started);
    std::size_t calls = published.report.calls + reading.report.calls;
    if (hasEntries(published) || (reading.tree.empty() && isTooMuch(published))) {
        reading = std::move(published);
    }
    if (!isUnreachable(reading.report.outcome) && (!hasEntries(reading) || hasEmptyMenu(reading.tree))) {
        const auto menu = registeredMenu(windows, started);
        MenuReading registered = menu ? readRegistered(*menu, started) : nothing();
        calls += registered.report.calls;
        if (!hasEntries(reading) && (hasEntries(registered) || isTooMuch(registered))) {
            reading = std::move(registered);
        } else {
            joinMenus(reading.tree, registered.tree);
        }
    }
    if (boundPaths(reading.tree, limits_.pathBytes) && reading.report.outcome == MenuReadOutcome::completed) {
        reading.report.outcome = MenuReadOutcome::treeTooLarge;
    }
    reading.report.calls = calls;
    reading.report.elapsed =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - started);
    return reading;
}

bool ApplicationMenus::press(const MenuTree& tree, std::size_t node) {
    const std::vector<ApplicationWindow> windows = this->windows();
    if (!windows.empty() && windows.front().isModal) {
        return false;
    }
    const MenuItemSource& source = tree[node].source;
    if (std::holds_alternative<GtkAction>(source)) {
        return pressPublished(tree, node, windows);
    }
    return std::holds_alternative<DBusMenuItem>(source) ? pressRegistered(tree, node, windows)
                                                        : pressAccessible(tree, node, windows);
}

MenuReading ApplicationMenus::readAccessible(const ApplicationWindow* window, MenuTree& published,
                                             SteadyTime started) {
    MenuReading reading;
    auto applications = buses_.accessibility->applications();
    reading.report.outcome =
        applications ? MenuReadOutcome::notRegistered : MenuReadOutcome::noAccessibilityBus;
    const auto title = window == nullptr ? std::nullopt : std::optional(window->title);
    // A process with two toolkits in it has two connections.
    for (const AtspiApplication& application :
         std::move(applications).value_or(std::vector<AtspiApplication>())) {
        DBusConnection* connection = buses_.accessibility->connection();
        if (application.processIdentifier != processIdentifier_ || connection == nullptr) {
            continue;
        }
        AtspiMenuReading answered = readAtspiMenus(*connection, application.busName, application.root, title,
                                                   published, limits_, started);
        if (answered.hasAddedAccelerators) {
            accelerators_->learn(published, window->gtkMenus->busName, started);
        }
        reading = {menuTreeOf(answered.tree), answered.report};
        if (answered.tree.toolkit == AtspiToolkit::gecko &&
            reading.report.outcome == MenuReadOutcome::completed && hasOnlyEmptyMenus(reading.tree)) {
            reading.report.outcome = MenuReadOutcome::menusUnfilled;
        }
        forgetIfAbandoned(*buses_.accessibility, reading.report.outcome);
        if (!reading.tree.empty() || isUnreachable(reading.report.outcome)) {
            break;
        }
    }
    return reading;
}

MenuReading ApplicationMenus::readPublished(const GtkMenuAddress& address, SteadyTime started) {
    DBusConnection* connection = buses_.session->connection();
    if (connection == nullptr) {
        return nothing();
    }
    MenuReading reading = readGtkMenuBar(*connection, address, limits_, started);
    forgetIfAbandoned(*buses_.session, reading.report.outcome);
    return reading;
}

MenuReading ApplicationMenus::readRegistered(const DBusMenuAddress& address, SteadyTime started) {
    DBusConnection* connection = buses_.session->connection();
    if (connection == nullptr) {
        return nothing();
    }
    MenuReading reading = readDBusMenuBar(*connection, address, limits_, started);
    forgetIfAbandoned(*buses_.session, reading.report.outcome);
    return reading;
}

std::optional<DBusMenuAddress> ApplicationMenus::registeredMenu(const std::vector<ApplicationWindow>& windows,
                                                                SteadyTime started) {
    const auto window = windows.empty() ? std::nullopt : windows.front().registrarIdentifier;
    DBusConnection* connection = window ? buses_.session->connection() : nullptr;
    return connection == nullptr ? std::nullopt
                                 : tovrel::registeredMenu(*connection, *window, limits_, started);
}

std::vector<ApplicationWindow> ApplicationMenus::windows() const {
    return windows_ ? windows_(processIdentifier_) : std::vector<ApplicationWindow>();
}

bool ApplicationMenus::pressAccessible(const MenuTree& tree, std::size_t node,
                                       const std::vector<ApplicationWindow>& windows) {
    DBusConnection* connection = buses_.accessibility->connection();
    if (connection == nullptr) {
        return false;
    }
    const PressResult result = pressItem(*connection, std::get<AtspiObject>(tree[node].source));
    if (result != PressResult::itemGone) {
        return result == PressResult::accepted;
    }
    MenuTree nothingPublished;
    const MenuReading now =
        readAccessible(frontOf(windows), nothingPublished, std::chrono::steady_clock::now());
    const auto found = counterpart(tree, node, now.tree);
    connection = buses_.accessibility->connection();
    return found && connection != nullptr &&
           pressItem(*connection, std::get<AtspiObject>(now.tree[*found].source)) == PressResult::accepted;
}

bool ApplicationMenus::pressPublished(const MenuTree& tree, std::size_t node,
                                      const std::vector<ApplicationWindow>& windows) {
    const ApplicationWindow* publisher = publisherOf(windows);
    if (publisher == nullptr) {
        return false;
    }
    const GtkMenuAddress& address = *publisher->gtkMenus;
    const MenuReading now = readPublished(address, std::chrono::steady_clock::now());
    const auto found = counterpart(tree, node, now.tree);
    DBusConnection* connection = buses_.session->connection();
    return found && connection != nullptr &&
           pressItem(*connection, address.busName, std::get<GtkAction>(now.tree[*found].source)) ==
               PressResult::accepted;
}

bool ApplicationMenus::pressRegistered(const MenuTree& tree, std::size_t node,
                                       const std::vector<ApplicationWindow>& windows) {
    const SteadyTime started = std::chrono::steady_clock::now();
    const auto address = registeredMenu(windows, started);
    if (!address) {
        return false;
    }
    const MenuReading now = readRegistered(*address, started);
    const auto found = counterpart(tree, node, now.tree);
    DBusConnection* connection = buses_.session->connection();
    return found && connection != nullptr &&
           pressItem(*connection, address->busName, address->path,
                     std::get<DBusMenuItem>(now.tree[*found].source)) == PressResult::accepted;
}

} // namespace tovrel
