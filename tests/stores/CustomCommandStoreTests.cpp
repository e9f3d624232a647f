#include "stores/CustomCommandStore.h"

#include <gmock/gmock.h>

#include "stores/FailingPreferencesDomain.h"

namespace tovrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

CustomCommand command(const Text& id, const Text& title) {
    return {id, title, CustomCommandKind::shellScript, "echo", std::nullopt, {}, true};
}

TEST(CustomCommands, AreReplacedInPlaceAppendedAndRemovedByID) {
    FailingPreferencesDomain domain;
    CustomCommandStore store(domain, "customCommands");
    EXPECT_THAT(store.customCommands(), IsEmpty());
    store.saveCustomCommand(command("A", ""));
    EXPECT_EQ(
        dataValue(domain, "customCommands"),
        R"([{"aliases":[],"id":"A","isEnabled":true,"kind":"shellScript","payload":"echo","title":""}])");
    const CustomCommand b{"B", "b", CustomCommandKind::open, "x-y:z", "org.b", {"pdf", "PDF"}, false};
    store.saveCustomCommand(b);
    store.saveCustomCommand(command("A", "new"));
    EXPECT_THAT(CustomCommandStore(domain, "customCommands").customCommands(),
                ElementsAre(command("A", "new"), b));
    store.deleteCustomCommand("a"); // case counts
    EXPECT_EQ(store.customCommands().size(), 2U);
    store.deleteCustomCommand("A");
    EXPECT_THAT(store.customCommands(), ElementsAre(b));
    domain.refusesWrites = true;
    store.deleteCustomCommand("B");
    EXPECT_THAT(store.customCommands(), ElementsAre(b));
}

TEST(CustomCommands, AKindThatIsNoneIsNotTakenForAnother) {
    const auto none = static_cast<CustomCommandKind>(allCustomCommandKinds.size());
    EXPECT_DEATH(rawValue(none), "CustomCommandKind");
    EXPECT_DEATH(paletteLabel(none), "CustomCommandKind");
}

TEST(CustomCommands, OneBadElementSpoilsTheListWhichTheNextChangeReplaces) {
    FailingPreferencesDomain domain;
    CustomCommandStore store(domain, "customCommands");
    const auto put = [&](const std::string& elements) {
        domain.set("customCommands", PreferenceData{"[" + elements + "]"});
    };
    const std::string good =
        R"({"id": "A", "title": "", "kind": "shellScript", "payload": "echo", "appScope": null, "aliases": [], "isEnabled": true, "x": 1})";
    put(good + "," + good);
    EXPECT_THAT(store.customCommands(), ElementsAre(command("A", ""), command("A", "")));
    store.saveCustomCommand(command("A", "first only"));
    EXPECT_THAT(store.customCommands(), ElementsAre(command("A", "first only"), command("A", "")));
    store.deleteCustomCommand("A");
    EXPECT_THAT(store.customCommands(), IsEmpty());

    for (
        const char* bad :
        {R"({"id": "B", "title": "", "kind": "shell", "payload": "", "aliases": [], "isEnabled": true})",
         R"({"id": "B", "title": "", "kind": "open", "payload": "", "isEnabled": true})",
         R"({"id": "B", "title": "", "kind": "open", "payload": "", "aliases": [], "isEnabled": 1})",
         R"({"id": "B", "title": "", "kind": "open", "payload": "", "appScope": 1, "aliases": [], "isEnabled": true})"}) {
        put(good + "," + bad);
        EXPECT_THAT(store.customCommands(), IsEmpty()) << bad;
    }
    store.saveCustomCommand(command("C", "c"));
    EXPECT_THAT(store.customCommands(), ElementsAre(command("C", "c")));
}

} // namespace
} // namespace tovrel
