#include "app/resident/DBusService.h"

#include <QCoreApplication>
#include <utility>

#include "app/seat/ResidentSeat.h"

namespace tovrel {

DBusService::DBusService(std::weak_ptr<AppCoordinator> coordinator, ShortcutTexts shortcutTexts,
                         std::function<void()> quit)
    : coordinator_(std::move(coordinator)), shortcutTexts_(std::move(shortcutTexts)), quit_(std::move(quit)) {
}

QString DBusService::version() const {
    return TOVREL_VERSION;
}

uint DBusService::processIdentifier() const {
    return static_cast<uint>(QCoreApplication::applicationPid());
}

bool DBusService::isPaletteVisible() const {
    const auto coordinator = coordinator_.lock();
    return coordinator && coordinator->isPaletteVisible();
}

bool DBusService::isAccessibilityTrusted() const {
    const auto coordinator = coordinator_.lock();
    return coordinator && coordinator->isAccessibilityTrusted();
}

QString DBusService::shortcut() const {
    return QString::fromStdString(shortcutTexts_.shortcut().utf8());
}

QString DBusService::shortcutProblem() const {
    return QString::fromStdString(shortcutTexts_.problem().utf8());
}

QString DBusService::target() const {
    const auto coordinator = coordinator_.lock();
    const auto application = coordinator ? coordinator->currentApplication() : nullptr;
    const auto identifier = application ? application->bundleIdentifier() : std::nullopt;
    return identifier ? QString::fromStdString(identifier->utf8()) : QString();
}

QString DBusService::display() const {
    return QString::fromStdString(displayName());
}

QString DBusService::unstoredChange() const {
    const auto coordinator = coordinator_.lock();
    const auto failure = coordinator ? coordinator->unstoredChange() : std::nullopt;
    return failure ? QString::fromStdString(failure->reason) : QString();
}

void DBusService::Toggle() {
    if (const auto coordinator = coordinator_.lock()) {
        coordinator->handleTogglePalette();
    }
}

void DBusService::Show() {
    if (const auto coordinator = coordinator_.lock()) {
        coordinator->showPalette();
    }
}

void DBusService::ShowSettings() {
    if (const auto coordinator = coordinator_.lock()) {
        coordinator->showSettings();
    }
}

void DBusService::Quit() {
    quit_();
}

} // namespace tovrel
