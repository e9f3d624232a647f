// Reads a document of any content under the keys of all stores. Reading it must do no harm, and a change must
// leave a document that reads back as written.

#include <sstream>
#include <string>

#include "KeyboardShortcuts/StoredShortcut.h"
#include "app/verbs/PreferencesCommands.h"
#include "commands/CommandIndex.h"
#include "commands/CommandSearch.h"
#include "commands/CommandSearchIndex.h"
#include "fuzz/Fuzzing.h"
#include "platform/memory/MemoryPreferencesDomain.h"
#include "stores/CommandHistoryStore.h"
#include "stores/CustomCommandStore.h"
#include "stores/RulesStore.h"

namespace {

using namespace tovrel;
using fuzzing::require;

/// A search finds the command, whatever counts the history has.
void trySearch(CommandHistoryStore& history, const TextServices& text) {
    ScannedMenuItem save;
    save.title = "Save";
    save.menuPath = {"File", "Save"};
    const CommandSearchIndex index(
        CommandIndex::buildCommands({save}, {}, Text("org.xfce.mousepad"), {}, {}, history), text);
    require(CommandSearch().search("save", index).size() == 1, "the command is found");
}

void tryHistory(MemoryPreferencesDomain& domain, const TextServices& text) {
    CommandHistoryStore history(domain, "document", text);
    trySearch(history, text);
    const std::size_t before = history.entries().size();
    const bool isKnown = history.snapshot()->records().contains("menu:x:File/Save");
    history.setFavorite(true, "menu:x:File/Save");
    require(history.rankSignals("menu:x:File/Save").isFavorite, "a favourite is kept");
    require(history.entries().size() == before + (isKnown ? 0 : 1), "no other record changes");
}

void tryCustomCommands(MemoryPreferencesDomain& domain) {
    CustomCommandStore store(domain, "document");
    const std::vector<CustomCommand> before = store.customCommands();
    store.deleteCustomCommand("an id that nothing has, not even by chance: \x01");
    require(store.customCommands() == before, "a list is written as it was read");
}

void tryRules(MemoryPreferencesDomain& domain, const PreferenceData& document, const TextServices& text) {
    for (const char* key : {"rules.appBehaviors", "rules.defaultAppBehavior", "rules.menuBlacklistRules",
                            "rules.menuCommandAliasRules"}) {
        domain.set(key, document);
    }
    RulesStore rules(domain, text);
    static_cast<void>(rules.appBehaviorSettings());
    static_cast<void>(rules.behavior("org.example"));
    const auto hidden = rules.menuBlacklistRules();
    rules.removeMenuBlacklistRule("no id: \x01");
    require(rules.menuBlacklistRules() == hidden, "a list is written as it was read");
    const auto aliases = rules.menuCommandAliasRules();
    rules.setMenuCommandAliases(Text("no scope: \x01"), {}, {});
    require(rules.menuCommandAliasRules() == aliases, "a list is written as it was read");
}

void tryImport(const std::string& document) {
    MemoryPreferencesDomain domain;
    std::istringstream input(document);
    std::ostringstream output;
    std::ostringstream error;
    if (preferences_commands::importAll(domain, input, error) == 0) {
        require(preferences_commands::exportAll(domain, output, error) == 0,
                "what was imported can be exported");
        MemoryPreferencesDomain copy;
        std::istringstream exported(output.str());
        require(preferences_commands::importAll(copy, exported, error) == 0 && copy.all() == domain.all(),
                "what was exported can be imported");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TextServices text("en_US");
    const PreferenceData document{std::string(fuzzing::textOf(data, size))};
    MemoryPreferencesDomain domain;
    domain.set("document", document);
    tryHistory(domain, text);
    domain.set("document", document);
    tryCustomCommands(domain);
    tryRules(domain, document, text);
    if (const auto shortcut = decodedShortcut(Text(document.bytes))) {
        require(decodedShortcut(encodedShortcut(*shortcut)) == shortcut, "a shortcut is kept");
    }
    tryImport(document.bytes);
    return 0;
}
