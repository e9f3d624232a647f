#include "platform/linux/AtspiApplicationMenus.h"

#include <algorithm>
#include <utility>

#include "platform/linux/AtspiPress.h"

namespace tovrel {
namespace {

/// The nodes that show these titles, in the order of the tree.
std::vector<std::size_t> nodesWithPath(const AtspiMenuSnapshot& snapshot, const std::vector<Text>& path) {
    std::vector<std::size_t> found;
    for (std::size_t node = 1; node < snapshot.tree.nodes.size(); ++node) {
        // The last title is compared first: building the path of every node would be slow.
        if (snapshot.attributes[node].title == path.back() &&
            atspiMenuPath(snapshot.tree, snapshot.attributes, node) == path) {
            found.push_back(node);
        }
    }
    return found;
}

std::optional<std::size_t> counterpart(const AtspiMenuSnapshot& before, std::size_t node,
                                       const AtspiMenuSnapshot& now) {
    const std::vector<Text> path = atspiMenuPath(before.tree, before.attributes, node);
    if (path.empty() || before.attributes[node].title.empty()) {
        return std::nullopt;
    }
    const std::vector<std::size_t> alikeBefore = nodesWithPath(before, path);
    const std::vector<std::size_t> alikeNow = nodesWithPath(now, path);
    const auto position = std::find(alikeBefore.begin(), alikeBefore.end(), node);
    if (alikeBefore.size() != alikeNow.size() || position == alikeBefore.end()) {
        return std::nullopt;
    }
    return alikeNow[static_cast<std::size_t>(position - alikeBefore.begin())];
}

} // namespace

AtspiApplicationMenus::AtspiApplicationMenus(std::shared_ptr<AtspiBus> bus,
                                             std::vector<AtspiApplication> connections,
                                             WindowTitle windowTitle, const AtspiLimits& limits)
    : bus_(std::move(bus)), connections_(std::move(connections)), windowTitle_(std::move(windowTitle)),
      limits_(limits) {}

std::shared_ptr<const AtspiMenuSnapshot> AtspiApplicationMenus::read(MenuReadReport& report) {
    const SteadyTime started = std::chrono::steady_clock::now();
    report = {};
    report.outcome = MenuReadOutcome::noAccessibilityBus;
    for (const AtspiApplication& application : connections_) {
        DBusConnection* connection = bus_->connection();
        if (connection == nullptr) {
            break;
        }
        const std::optional<Text> title =
            windowTitle_ ? windowTitle_(application.processIdentifier) : std::nullopt;
        AtspiMenuReading reading =
            readAtspiMenus(*connection, application.busName, application.root, title, limits_, started);
        report = reading.report;
        const bool isAbandoned = report.outcome == MenuReadOutcome::applicationSilent ||
                                 report.outcome == MenuReadOutcome::tooSlow;
        if (isAbandoned) {
            bus_->disconnect(); // Else the bus would keep account of the missing answers.
        }
        if (!reading.tree.nodes.empty()) {
            auto snapshot = std::make_shared<AtspiMenuSnapshot>();
            snapshot->attributes = atspiAttributes(reading.tree);
            snapshot->tree = std::move(reading.tree);
            return snapshot;
        }
        if (isAbandoned) {
            break;
        }
    }
    return nullptr;
}

bool AtspiApplicationMenus::press(const AtspiMenuSnapshot& snapshot, std::size_t node) {
    DBusConnection* connection = bus_->connection();
    if (connection == nullptr) {
        return false;
    }
    const AtspiPressResult result =
        pressAtspiObject(*connection, snapshot.tree.busName, snapshot.tree.nodes[node].path);
    if (result != AtspiPressResult::itemGone) {
        return result == AtspiPressResult::accepted;
    }
    MenuReadReport report;
    const auto now = read(report);
    connection = bus_->connection();
    const auto found = now ? counterpart(snapshot, node, *now) : std::nullopt;
    return found && connection != nullptr &&
           pressAtspiObject(*connection, now->tree.busName, now->tree.nodes[*found].path) ==
               AtspiPressResult::accepted;
}

} // namespace tovrel
