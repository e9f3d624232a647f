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

/// What the palette's view shows, and what it calls. The models outlive the view.
struct PaletteViewContext {
    PaletteViewModel& viewModel;
    PaletteSettingsStore& settingsStore;
    std::function<void(const Command&)> onExecute;
    std::function<void()> onDismiss;
};

/// Makes the palette's window with its view, hidden.
using PalettePanelFactory = std::function<std::unique_ptr<PalettePanel>(PaletteViewContext)>;

/// What the controller needs of its surroundings. Everything outlives it.
struct PaletteSurroundings {
    UserInterface& userInterface;
    Workspace& workspace;
    PaletteSettingsStore& settingsStore;
    const TextServices& textServices;
    std::optional<Text> ownBundleIdentifier;
    PalettePanelFactory makePanel;
};

/// Shows the palette's panel, turns keys into what they mean, and closes the panel when the user turns to
/// something else.
class PaletteWindowController {
  public:
    /// `onExecute` runs a chosen command; whoever runs it also closes the palette.
    PaletteWindowController(PaletteSurroundings surroundings, std::function<void(const Command&)> onExecute);

    /// For whoever shows the palette: which application it was last shown for. Stays on close.
    std::optional<Text> presentedTargetIdentifier;

    [[nodiscard]] PaletteViewModel& viewModel() { return viewModel_; }
    [[nodiscard]] bool isVisible() const { return panel_->isVisible(); }

    /// Puts the panel, whose size stays, on the main screen.
    void positionWindow();
    /// Keys are watched only while the panel is shown. Each may be called again without effect.
    void startKeyboardMonitoring();
    void stopKeyboardMonitoring();
    void showWindowAndMakeKey();

    /// Harmless when the panel is closed already.
    void close();

    /// Always true: a recognised action is used up even if there is nothing to do.
    bool handleKeyboardAction(const PaletteKeyboardAction& action);

  private:
    bool handleKey(const KeyEvent& event);
    void closeIfVisible();
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
