#include "PaletteStage.h"

#include <QTest>
#include <utility>

namespace tovrel {

void PaletteStage::show(std::vector<Command> commands, std::optional<Text> appName,
                        std::optional<ApplicationIcon> appIcon) {
    viewModel.updateCommands(std::move(commands), std::move(appName), std::move(appIcon));
    panel.showAndMakeKey();
    viewModel.requestSearchFocus();
    static_cast<void>(QTest::qWaitForWindowActive(&panel.window()));
}

} // namespace tovrel
