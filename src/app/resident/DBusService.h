#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>

#include "app/coordinator/AppCoordinator.h"

namespace tovrel {

/// The D-Bus service of the resident program. It runs no command: it can only show the palette and the
/// settings, where the user chooses.
class DBusService : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.tovrel.Tovrel")
    Q_PROPERTY(QString Version READ version CONSTANT)
    Q_PROPERTY(uint ProcessIdentifier READ processIdentifier CONSTANT)
    Q_PROPERTY(bool PaletteVisible READ isPaletteVisible)
    Q_PROPERTY(bool AccessibilityTrusted READ isAccessibilityTrusted)
    Q_PROPERTY(QString Shortcut READ shortcut)
    Q_PROPERTY(QString ShortcutProblem READ shortcutProblem)
    Q_PROPERTY(QString Target READ target)
    Q_PROPERTY(QString Display READ display CONSTANT)
    Q_PROPERTY(QString UnstoredChange READ unstoredChange)

  public:
    /// Texts about the shortcut for people; each may be empty.
    struct ShortcutTexts {
        std::function<Text()> shortcut;
        std::function<Text()> problem; ///< Why it does not work.
    };

    DBusService(std::weak_ptr<AppCoordinator> coordinator, ShortcutTexts shortcutTexts,
                std::function<void()> quit);

    [[nodiscard]] QString version() const;
    [[nodiscard]] uint processIdentifier() const;
    [[nodiscard]] bool isPaletteVisible() const;
    [[nodiscard]] bool isAccessibilityTrusted() const;
    [[nodiscard]] QString shortcut() const;
    [[nodiscard]] QString shortcutProblem() const;
    [[nodiscard]] QString target() const;
    [[nodiscard]] QString display() const;
    [[nodiscard]] QString unstoredChange() const;

    // Methods on the bus have such names. NOLINTBEGIN(readability-identifier-naming)
  public Q_SLOTS:
    void Toggle();
    void Show();
    void ShowSettings();
    void Quit();
    // NOLINTEND(readability-identifier-naming)

  private:
    std::weak_ptr<AppCoordinator> coordinator_;
    ShortcutTexts shortcutTexts_;
    std::function<void()> quit_;
};

} // namespace tovrel
