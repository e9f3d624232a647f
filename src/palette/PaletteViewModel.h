#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "commands/CommandSearch.h"
#include "commands/CommandSearchIndex.h"
#include "commands/CommandSearchResults.h"
#include "model/ApplicationIcon.h"
#include "model/Command.h"
#include "support/Observable.h"
#include "support/Text.h"
#include "support/TextServices.h"

namespace tovrel {

/// The state of the palette: the typed text, its ranked results, the highlighted row, and the target
/// application. Typing searches at once.
///
/// After every operation the selected index is a row of the results, or 0 when there are none.
class PaletteViewModel {
  public:
    /// `textServices` must outlive the model.
    PaletteViewModel(std::vector<Command> commands, const TextServices& textServices);

    /// The view observes these; only the operations below change them.
    [[nodiscard]] const Observable<Text>& query() const { return query_; }
    [[nodiscard]] const Observable<CommandSearchResults>& results() const { return results_; }
    /// The highlighted row.
    [[nodiscard]] const Observable<std::int64_t>& selectedIndex() const { return selectedIndex_; }
    /// Each change asks the view to put the keyboard focus into the search field; the value means nothing.
    [[nodiscard]] const Observable<std::int64_t>& searchFocusRequest() const { return searchFocusRequest_; }
    /// Name and icon of the target application, for the header.
    [[nodiscard]] const Observable<std::optional<Text>>& appName() const { return appName_; }
    [[nodiscard]] const Observable<std::optional<ApplicationIcon>>& appIcon() const { return appIcon_; }

    /// Stores the text and searches. A different text puts the highlight on the first row.
    void setQuery(const Text& query);

    /// Searches again and keeps the highlight within the results.
    void refreshResults();

    /// Moves the highlight by `delta` rows, stopping at both ends. An overflow of the sum ends the process.
    void moveSelection(std::int64_t delta);

    /// The highlighted command; absent when there are no results.
    [[nodiscard]] std::optional<Command> selectedCommand() const;

    /// Starts again with another command list: the query is empty and the first row highlighted.
    void updateCommands(std::vector<Command> commands, std::optional<Text> appName,
                        std::optional<ApplicationIcon> appIcon);

    /// The first enabled command whose shortcut text is exactly `shortcut`, whether or not the results show
    /// it.
    [[nodiscard]] std::optional<Command> commandForShortcut(const Text& shortcut) const;

    /// Asks for the keyboard focus. An overflow of the counter ends the process.
    void requestSearchFocus();

  private:
    const TextServices* textServices_;
    CommandSearchIndex searchIndex_;
    CommandSearch search_;
    Observable<Text> query_;
    Observable<CommandSearchResults> results_;
    Observable<std::int64_t> selectedIndex_;
    Observable<std::int64_t> searchFocusRequest_;
    Observable<std::optional<Text>> appName_;
    Observable<std::optional<ApplicationIcon>> appIcon_;
};

} // namespace tovrel
