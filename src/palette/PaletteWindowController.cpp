#include "palette/PaletteWindowController.h"

#include <utility>

#include "palette/PalettePolicies.h"

namespace tovrel {

PaletteWindowController::PaletteWindowController(PaletteSurroundings surroundings,
                                                 std::function<void(const Command&)> onExecute)
    : surroundings_(std::move(surroundings)), onExecute_(std::move(onExecute)),
      viewModel_({}, surroundings_.textServices),
      panel_(surroundings_.makePanel(
          {viewModel_, surroundings_.settingsStore, onExecute_, [this] { close(); }})),
      appDeactivationObserver_(surroundings_.userInterface.onResignActive([this] { closeIfVisible(); })),
      workspaceActivationObserver_(surroundings_.workspace.onActivation(
          [this](const std::shared_ptr<RunningApplication>& application) {
              const auto identifier = application ? application->bundleIdentifier() : std::nullopt;
              if (PaletteDismissalPolicy::shouldDismiss(identifier, surroundings_.ownBundleIdentifier)) {
                  closeIfVisible();
              }
          })) {
    panel_->setResignKeyHandler([this] { closeIfVisible(); });
}

void PaletteWindowController::positionWindow() {
    const std::optional<Screen> screen = surroundings_.userInterface.mainScreen();
    const Size frame = screen ? screen->visibleSize : PalettePresentationPolicy::fallbackSize;
    panel_->place({screen ? std::optional(screen->identifier) : std::nullopt,
                   PalettePresentationPolicy::panelOffset(frame, panel_->frameSize())});
}

void PaletteWindowController::showWindowAndMakeKey() {
    panel_->show();
    panel_->makeKey();
}

void PaletteWindowController::startKeyboardMonitoring() {
    if (!std::exchange(isMonitoringKeyboard_, true)) {
        panel_->setKeyHandler([this](const KeyEvent& event) { return handleKey(event); });
    }
}

void PaletteWindowController::stopKeyboardMonitoring() {
    if (std::exchange(isMonitoringKeyboard_, false)) {
        panel_->setKeyHandler(nullptr);
    }
}

void PaletteWindowController::close() {
    stopKeyboardMonitoring();
    panel_->close();
}

bool PaletteWindowController::handleKeyboardAction(const PaletteKeyboardAction& action) {
    if (const auto* move = std::get_if<MoveSelection>(&action)) {
        viewModel_.moveSelection(move->delta);
    } else if (const auto* execute = std::get_if<ExecuteShortcut>(&action)) {
        switch (PaletteShortcutRoutingPolicy::route(
            surroundings_.settingsStore.commandShortcutOpensSettings().get())) {
        case PaletteShortcutRoute::commandLookup:
            executeIfPresent(viewModel_.commandForShortcut(execute->shortcut));
        }
    } else if (std::holds_alternative<ExecuteSelection>(action)) {
        executeIfPresent(viewModel_.selectedCommand());
    } else {
        close();
    }
    return true;
}

bool PaletteWindowController::handleKey(const KeyEvent& event) {
    if (!panel_->isVisible()) {
        return false;
    }
    const auto action = keyboardAction(event, surroundings_.textServices);
    return action && handleKeyboardAction(*action);
}

void PaletteWindowController::closeIfVisible() {
    if (panel_->isVisible()) {
        close();
    }
}

void PaletteWindowController::executeIfPresent(const std::optional<Command>& command) {
    if (command) {
        onExecute_(*command);
    }
}

} // namespace tovrel
