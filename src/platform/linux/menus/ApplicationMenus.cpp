#include "platform/linux/menus/ApplicationMenus.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/linux/menus/MenuJoin.h"
#include "platform/linux/menus/dbusmenu/DBusMenuSource.h"
#include "platform/linux/menus/gtk/GtkMenuSource.h"
#include "platform/linux/menus/source/MenuBounds.h"

namespace tovrel {
namespace {

/// Places in `MenuSources::all`.
constexpr std::size_t publishing = 0;
constexpr std::size_t accessible = 1;
constexpr std::size_t firstFurther = 2;

bool hasEntries(const MenuReading& reading) {
    return !reading.tree.empty() && !reading.tree.front().children.empty();
}

/// Whether the limits were reached before the reading gave anything.
bool isTooMuch(const MenuReading& reading) {
    return reading.report.outcome == MenuReadOutcome::treeTooLarge;
}

/// Whether a further source could add anything.
bool hasGaps(const MenuReading& reading) {
    return !hasEntries(reading) || hasEmptyMenu(reading.tree);
}

/// Puts the window that publishes a menu bar first, so that its accessible menu bar is read.
MenuReadRequest withPublisherFirst(MenuReadRequest request) {
    if (const ApplicationWindow* publisher = publisherOf(request.windows)) {
        const auto place = request.windows.begin() + (publisher - request.windows.data());
        std::rotate(request.windows.begin(), place, place + 1);
    }
    return request;
}

/// The reading with its gaps filled from the other; the other if the reading has nothing.
MenuReading filled(MenuReading reading, MenuReading other) {
    const std::size_t calls = reading.report.calls + other.report.calls;
    if (!hasEntries(reading) && (hasEntries(other) || isTooMuch(other))) {
        reading = std::move(other);
    } else {
        joinMenus(reading.tree, other.tree);
    }
    reading.report.calls = calls;
    return reading;
}

} // namespace

MenuSources::MenuSources(const MenuBuses& buses)
    : accessible(std::make_shared<AtspiMenuSource>(buses.accessibility)),
      all{
          std::make_shared<GtkMenuSource>(buses.session),
          accessible,
          std::make_shared<DBusMenuSource>(buses.session),
      } {}

ApplicationMenus::ApplicationMenus(std::shared_ptr<MenuSources> sources, Windows windows,
                                   const MenuReadLimits& limits, std::int32_t processIdentifier)
    : sources_(std::move(sources)), windows_(std::move(windows)), limits_(limits),
      processIdentifier_(processIdentifier) {}

MenuReading ApplicationMenus::read() {
    const MenuReadRequest request = this->request();
    MenuReading reading = readFrom(publishing, request);
    bool isAnswering = !isUnreachable(reading.report.outcome);
    if (isAnswering) {
        reading = withAccessible(std::move(reading), request);
        isAnswering = !isUnreachable(reading.report.outcome);
    }
    for (std::size_t source = firstFurther; source < sources_->all.size() && isAnswering && hasGaps(reading);
         ++source) {
        MenuReading further = readFrom(source, request);
        isAnswering = !isUnreachable(further.report.outcome);
        reading = filled(std::move(reading), std::move(further));
    }
    if (boundPaths(reading.tree, limits_.pathBytes) && reading.report.outcome == MenuReadOutcome::completed) {
        reading.report.outcome = MenuReadOutcome::treeTooLarge;
    }
    reading.report.elapsed = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now() - request.started);
    return reading;
}

bool ApplicationMenus::press(const MenuTree& tree, std::size_t node) {
    MenuReadRequest request = this->request();
    const bool isModal = !request.windows.empty() && request.windows.front().isModal;
    if (isModal || !tree[node].item.has_value()) {
        return false;
    }
    ApplicationMenuSource& source = *sources_->all[tree[node].source];
    if (source.hasLastingItems()) {
        const PressResult result = source.press(tree[node].item);
        if (result != PressResult::itemGone) {
            return result == PressResult::accepted;
        }
    }
    request.started = std::chrono::steady_clock::now();
    const MenuReading now = source.read(request);
    const auto found = counterpart(tree, node, now.tree);
    return found && source.press(now.tree[*found].item) == PressResult::accepted;
}

MenuReadRequest ApplicationMenus::request() const {
    MenuReadRequest request;
    request.processIdentifier = processIdentifier_;
    request.started = std::chrono::steady_clock::now();
    request.limits = limits_;
    if (windows_) {
        request.windows = windows_(processIdentifier_);
    }
    return request;
}

MenuReading ApplicationMenus::readFrom(std::size_t source, const MenuReadRequest& request) {
    MenuReading reading = sources_->all[source]->read(request);
    for (MenuNode& node : reading.tree) {
        node.source = source;
    }
    return reading;
}

MenuReading ApplicationMenus::withAccessible(MenuReading published, const MenuReadRequest& request) {
    KnownAccelerators& accelerators = sources_->accelerators;
    if (hasEntries(published) && accelerators.addTo(published.tree, request.started)) {
        return published;
    }
    MenuReading reading;
    if (published.tree.empty()) {
        reading = readFrom(accessible, withPublisherFirst(request));
    } else {
        const auto added = sources_->accessible->addTo(published.tree, withPublisherFirst(request));
        if (added.hasAddedAccelerators) {
            accelerators.learn(published.tree, request.started);
        }
        reading.report = added.report;
    }
    const std::size_t calls = published.report.calls + reading.report.calls;
    if (hasEntries(published) || (reading.tree.empty() && isTooMuch(published))) {
        reading = std::move(published);
    }
    reading.report.calls = calls;
    return reading;
}

} // namespace tovrel
