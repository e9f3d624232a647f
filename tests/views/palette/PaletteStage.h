#pragma once

#include <QQuickView>
#include <memory>
#include <utility>
#include <vector>

#include "palette/PaletteViewModel.h"
#include "platform/memory/MemoryPreferencesDomain.h"
#include "stores/PaletteSettingsStore.h"
#include "windows/QtPalettePanel.h"
#include "windows/QtWindowSystem.h"
#include "windows/ViewEngine.h"

namespace tovrel {

/// A palette's panel with its models, and a record of its calls.
struct PaletteStage {
    explicit PaletteStage(std::unique_ptr<WindowSystem> system = std::make_unique<QtWindowSystem>())
        : windowSystem(std::move(system)),
          panel({viewModel, settings, [this](const Command& command) { executed.push_back(command); },
                 [this] { ++dismissals; }},
                textServices, engine, *windowSystem, nullptr) {}

    /// Shows the commands and waits until the window is ready for keys.
    void show(std::vector<Command> commands, std::optional<Text> appName = std::nullopt,
              std::optional<ApplicationIcon> appIcon = std::nullopt);

    TextServices textServices{"en_US"};
    MemoryPreferencesDomain preferences;
    PaletteSettingsStore settings{preferences, "paletteSettings"};
    PaletteViewModel viewModel{{}, textServices};
    std::vector<Command> executed;
    int dismissals = 0;
    ViewEngine engine;
    std::unique_ptr<WindowSystem> windowSystem;
    QtPalettePanel panel;
};

} // namespace tovrel
