#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "model/Command.h"
#include "palette/PaletteKeyboardAction.h"
#include "palette/PalettePanel.h"
#include "palette/PaletteViewModel.h"
#include "platform/UserInterface.h"
#include "platform/Workspace.h"
#include "stores/PaletteSettingsStore.h"
#include "support/Observable.h"
#include "support/TextServices.h"

namespace tovrel {

/// What the palette's view shows and calls. The models outlive the view.
struct PaletteViewContext {
    PaletteViewModel& viewModel;
    PaletteSettingsStore& settingsStore;
    std::function<void(const Command&)> onExecute;
    std::function<void()> onDismiss;
};

/// Makes the palette's window with its view, hidden.
using PalettePanelFactory = std::function<std::unique_ptr<PalettePanel>(PaletteViewContext)>;

/// What the controller needs from outside. Everything outlives it.
struct PaletteSurroundings {
    UserInterface& userInterface;
    Workspace& workspace;
    PaletteSettingsStore& settingsStore;
    const TextServices& textServices;
    std::optional<Text> ownBundleIdentifier;
    PalettePanelFactory makePanel;
};

/// Shows the palette's panel, turns keys into actions, and closes the panel when the user turns to something
/// else.
class PaletteWindowController {
  public:
    /// `onExecute` runs a chosen command and also closes the palette.
    PaletteWindowController(PaletteSurroundings surroundings, std::function<void(const Command&)> onExecute);
    ~PaletteWindowController() = default;
    PaletteWindowController(const PaletteWindowController&) = delete;
    PaletteWindowController& operator=(const PaletteWindowController&) = delete;

    /// The application for which the palette was last shown. The caller that shows the palette sets and reads
    /// it; closing keeps it.
    std::optional<Text> presentedTargetIdentifier;

    [[nodiscard]] PaletteViewModel& viewModel() { return viewModel_; }
    [[nodiscard]] bool isVisible() const { return panel_->isVisible(); }

    /// Moves the panel to the main screen without resizing it.
    void positionWindow();
    /// Starts and stops watching keys, which is needed only while the panel is shown. A repeated call has no
    /// effect.
    void startKeyboardMonitoring();
    void stopKeyboardMonitoring();
    void showWindowAndMakeKey();

    /// Closes the panel; has no effect when it is closed already.
    void close();

    /// Performs the action. Always true: a recognised action is used up even if there is nothing to do.
    bool handleKeyboardAction(const PaletteKeyboardAction& action);

  private:
    bool handleKey(const KeyEvent& event);
    void closeIfVisible();
    void executeShortcut(const Text& shortcut);
    void executeIfPresent(const std::optional<Command>& command);

    PaletteSurroundings surroundings_;
    std::function<void(const Command&)> onExecute_;
    PaletteViewModel viewModel_;
    std::unique_ptr<PalettePanel> panel_;
    bool isMonitoringKeyboard_ = false;
    Subscription appDeactivationObserver_;
    Subscription workspaceActivationObserver_;
};

} // namespace tovrel
