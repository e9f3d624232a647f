#include "SettingsStage.h"

#include <QTest>
#include <utility>

#include "KeyboardShortcuts/SymbolicText.h"
#include "model/MenuPath.h"
#include "support/Fatal.h"

namespace tovrel {
namespace {

/// The virtual key code for a display's key number (evdev plus 8), for the keys that the tests press.
std::optional<std::uint32_t> keyCodeFromScanCode(std::uint32_t scanCode) {
    switch (scanCode - 8) {
    case 14: // Backspace
        return 51;
    case 15: // Tab
        return 48;
    case 25: // P
        return 35;
    case 17: // W
        return 13;
    case 37: // K
        return 40;
    default:
        return std::nullopt;
    }
}

QQuickItem* findVisible(QQuickItem* item, const QString& name) {
    if (!item->isVisible()) {
        return nullptr;
    }
    if (item->objectName() == name) {
        return item;
    }
    const QList<QQuickItem*> children = item->childItems();
    for (QQuickItem* child : children) {
        if (QQuickItem* found = findVisible(child, name)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

SettingsStage::SettingsStage(const char* locale)
    : translations(locale), togglePalette(shortcuts.makeName("togglePalette", Shortcut{35, 768})),
      window({.engine = engine,
              .windowSystem = windowSystem,
              .makeRecorder = [this] { return makeRecorder(); },
              .workspace = workspace,
              .textServices = textServices,
              .keyCodeFromScanCode = keyCodeFromScanCode,
              .openURL = [this](const Text& url) { openedURLs.push_back(url); },
              .onMenuAction = [this](window_menu::Action action) { actions.push_back(action); }}) {}

std::shared_ptr<SettingsViewModel> SettingsStage::makeModel() {
    return std::make_shared<SettingsViewModel>(
        SettingsStores{rules, history, customCommands, paletteSettings, notifications,
                       preferences.unstoredChange()},
        SettingsProviders{.currentApplication = [this] { return application; },
                          .menuItems = [this] { return menuItems; },
                          .accessibilityPermission = [this] { return isTrusted; }});
}

void SettingsStage::show(SettingsTab tab) {
    auto state = std::make_unique<SettingsViewState>(makeModel());
    state_ = state.get();
    window.setContent(std::move(state));
    window.showAndMakeKey();
    if (!QTest::qWaitForWindowActive(&window.window())) {
        fatal("the settings never became active");
    }
    state_->selectedTab.set(tab);
    QCoreApplication::processEvents();
}

QQuickItem* SettingsStage::find(const QString& name, QQuickItem* within) {
    return findVisible(within != nullptr ? within : window.window().contentItem(), name);
}

QQuickItem* SettingsStage::row(const QString& list, int index) {
    QQuickItem* item = nullptr;
    QMetaObject::invokeMethod(find(list), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(int, index));
    return item;
}

void SettingsStage::click(const QQuickItem* item) {
    QTest::mouseClick(&window.window(), Qt::LeftButton, {},
                      item->mapToScene(item->boundingRect().center()).toPoint());
    QCoreApplication::processEvents();
}

void SettingsStage::type(const QString& text) {
    for (const QChar character : text) {
        QTest::keyClick(&window.window(), character.toLatin1());
    }
}

void SettingsStage::press(int key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&window.window(), static_cast<Qt::Key>(key), modifiers);
    QCoreApplication::processEvents();
}

void SettingsStage::pressPhysical(int key, quint32 evdev, Qt::KeyboardModifiers modifiers) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, evdev + 8, 0, 0);
        QCoreApplication::sendEvent(&window.window(), &event);
    }
    QCoreApplication::processEvents();
}

std::unique_ptr<RecorderCocoa> SettingsStage::makeRecorder() {
    return std::make_unique<RecorderCocoa>(
        RecorderSurroundings{
            .shortcuts = shortcuts,
            .hotKeyCenter = hotKeyCenter,
            .userInterface = userInterface,
            .localized = localizedByQt(),
            .textOf =
                [this](const Shortcut& shortcut) {
                    return symbolicText(
                        shortcut,
                        [this](std::uint32_t code) { return hotKeyCenter.characterForKeyCode(code); },
                        textServices);
                },
            .menuItemTitle =
                [this](const Shortcut& shortcut) {
                    const auto action = window_menu::actionOf(shortcut, [this](std::uint32_t code) {
                        return hotKeyCenter.characterForKeyCode(code);
                    });
                    return action ? std::optional(window_menu::title(*action, localizedByQt()))
                                  : std::nullopt;
                }},
        togglePalette);
}

ScannedMenuItem menuOf(const Text& title, const std::vector<Text>& commands) {
    ScannedMenuItem menu{
        .id = title, .title = title, .menuPath = {title}, .shortcut = {}, .children = {}, .element = nullptr};
    for (const Text& command : commands) {
        menu.children.push_back({.id = joined({title, command}, menuPathSeparator),
                                 .title = command,
                                 .menuPath = {title, command},
                                 .shortcut = {},
                                 .children = {},
                                 .element = nullptr});
    }
    return menu;
}

} // namespace tovrel
