#include "settings/SettingsText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "settings/WindowMenu.h"

namespace tovrel::settings_text {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SettingsTextTest, PiecesAreTrimmedAndEmptyOnesDropped) {
    EXPECT_THAT(aliasesFrom(" pdf , ,PDF,\u00A0export\n,"),
                ElementsAre(Text("pdf"), Text("PDF"), Text("export")));
    EXPECT_THAT(aliasesFrom(",, ,"), IsEmpty());
    EXPECT_THAT(separated("File > A>B > ", '>'), ElementsAre(Text("File"), Text("A"), Text("B")));
}

TEST(SettingsTextTest, HistoryRowsAreNamedByTheirCommands) {
    CustomCommand backup;
    backup.id = "ID-1";
    backup.title = "Backup";
    EXPECT_EQ(historyRowTitle("custom:ID-1", {backup}), Text("Backup"));
    EXPECT_EQ(historyRowTitle("custom:ID-2", {backup}), Text("custom:ID-2"));
    EXPECT_EQ(historyRowTitle("menu:com.example.app:File/Save", {}), Text("File > Save"));
    EXPECT_EQ(historyRowTitle("menu:global:File/Save: all", {}), Text("File > Save: all"));
    for (const char* other : {"menu:", "menu:File", "", "other:a:b/c"}) {
        EXPECT_EQ(historyRowTitle(other, {}), Text(other));
    }
}

TEST(WindowMenuTest, AnItemIsFoundByTheCharacterOfItsKey) {
    const CharacterForKeyCode layout = [](std::uint32_t keyCode) {
        return keyCode == 13  ? std::optional<Text>("z")
               : keyCode == 6 ? std::optional<Text>("w")
                              : std::nullopt;
    };
    const auto actionOf = [&](std::int64_t keyCode, std::int64_t modifiers) {
        return window_menu::actionOf({keyCode, modifiers}, layout);
    };
    EXPECT_EQ(actionOf(6, carbon_modifiers::command), window_menu::Action::closeWindow);
    EXPECT_EQ(actionOf(13, carbon_modifiers::command), std::nullopt);
    EXPECT_EQ(actionOf(6, carbon_modifiers::command | carbon_modifiers::shift), std::nullopt);
    EXPECT_EQ(actionOf(99, carbon_modifiers::command), std::nullopt);
}

} // namespace
} // namespace tovrel::settings_text
