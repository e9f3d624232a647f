#include "palette/PaletteViewModel.h"

#include <algorithm>
#include <utility>

#include "support/CheckedMath.h"

namespace tovrel {

PaletteViewModel::PaletteViewModel(std::vector<Command> commands, const TextServices& textServices)
    : textServices_(&textServices), searchIndex_(std::move(commands), textServices),
      results_(CommandSearchResults(searchIndex_, {})) {
    refreshResults();
}

void PaletteViewModel::setQuery(const Text& query) {
    const bool isDifferent = query != query_.get();
    query_.set(query);
    if (isDifferent) {
        selectedIndex_.set(0);
    }
    refreshResults();
}

void PaletteViewModel::refreshResults() {
    results_.set(search_.search(query_.get(), searchIndex_));
    const auto count = static_cast<std::int64_t>(results_.get().size());
    if (selectedIndex_.get() >= count) {
        selectedIndex_.set(std::max<std::int64_t>(count - 1, 0));
    }
}

void PaletteViewModel::moveSelection(std::int64_t delta) {
    if (results_.get().empty()) {
        selectedIndex_.set(0);
        return;
    }
    const auto last = static_cast<std::int64_t>(results_.get().size()) - 1;
    selectedIndex_.set(std::clamp<std::int64_t>(checkedAdd(selectedIndex_.get(), delta), 0, last));
}

std::optional<Command> PaletteViewModel::selectedCommand() const {
    const auto index = static_cast<std::size_t>(selectedIndex_.get());
    if (index >= results_.get().size()) {
        return std::nullopt;
    }
    return results_.get()[index].command;
}

void PaletteViewModel::updateCommands(std::vector<Command> commands, std::optional<Text> appName,
                                      std::optional<ApplicationIcon> appIcon) {
    appName_.set(std::move(appName));
    appIcon_.set(std::move(appIcon));
    searchIndex_ = CommandSearchIndex(std::move(commands), *textServices_);
    selectedIndex_.set(0);
    if (query_.get().empty()) {
        refreshResults();
    } else {
        setQuery("");
    }
}

std::optional<Command> PaletteViewModel::commandForShortcut(const Text& shortcut) const {
    const std::vector<Command>& commands = searchIndex_.commands();
    const auto found = std::find_if(commands.begin(), commands.end(), [&](const Command& command) {
        return command.isEnabled && command.shortcut == shortcut;
    });
    return found == commands.end() ? std::nullopt : std::optional(*found);
}

void PaletteViewModel::requestSearchFocus() {
    searchFocusRequest_.set(checkedAdd(searchFocusRequest_.get(), 1));
}

} // namespace tovrel
