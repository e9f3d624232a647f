#include "PaletteStage.h"

#include <QTest>
#include <utility>

#include "support/Fatal.h"

namespace tovrel {

void PaletteStage::show(std::vector<Command> commands, std::optional<Text> appName,
                        std::optional<ApplicationIcon> appIcon) {
    viewModel.updateCommands(std::move(commands), std::move(appName), std::move(appIcon));
    panel.show();
    panel.makeKey();
    viewModel.requestSearchFocus();
    if (!QTest::qWaitForWindowActive(&panel.window())) {
        fatal("the palette never became active");
    }
}

} // namespace tovrel
