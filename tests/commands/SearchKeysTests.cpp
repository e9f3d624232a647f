#include "commands/SearchKeys.h"

#include <gtest/gtest.h>

namespace tovrel {
namespace {

TEST(SearchKeys, KeysKeepLettersMarksAndNumbersOnly) {
    const TextServices english("en_US");
    const auto key = [&](std::string_view text) { return normalizedKey(text, english); };
    EXPECT_EQ(key("Save As…"), "saveas");
    EXPECT_EQ(key("save  as"), "saveas");
    EXPECT_EQ(key("⌘⇧S"), "s");
    EXPECT_EQ(key("…  ›\t\n"), "");
    EXPECT_EQ(key("H₂O Ⅳ ½"), "h₂oⅳ½");
    EXPECT_EQ(key("ＡＢ"), "ａｂ"); // width is kept
    EXPECT_EQ(key("Straße"), "strasse");
}

TEST(SearchKeys, DiacriticsGoFromLatinGreekAndCyrillicOnly) {
    const TextServices english("en_US");
    const auto key = [&](std::string_view text) { return normalizedKey(text, english); };
    EXPECT_EQ(key("Édition"), "edition");
    EXPECT_EQ(key("E\u0301dition"), "edition");
    EXPECT_EQ(key("Ø Ł"), "øł"); // a stroke is no diacritic
    EXPECT_EQ(key("Άλφα Ϊ"), "αλφαι");
    EXPECT_EQ(key("Ёлка Й"), "елкаи");
    EXPECT_EQ(key("İstanbul"), "istanbul");
    // The vowel signs, nukta and voicing marks of other scripts make other letters.
    EXPECT_EQ(key("हिन्दी"), "हिन्दी");
    EXPECT_EQ(key("が"), key("か\u3099"));
    EXPECT_NE(key("が"), key("か"));
    EXPECT_EQ(key("שָׁלוֹם"), key("ש\u05C1\u05B8לו\u05B9ם"));
    EXPECT_NE(key("שָׁלוֹם"), "שלום");
    EXPECT_EQ(key("각"), key("\u1100\u1161\u11A8"));
    // A mark composes with the letter before it once the character between them is dropped.
    EXPECT_EQ(key("か-\u3099"), "が");
}

TEST(SearchKeys, LocalesOfDottedAndDotlessI) {
    const TextServices turkish("tr_TR");
    EXPECT_EQ(normalizedKey("DIŞ", turkish), "dıs");
    EXPECT_EQ(normalizedKey("İş", turkish), "is");
    EXPECT_EQ(normalizedKey("I\u0307ş", turkish), "is");
    EXPECT_EQ(normalizedKey("TITLE", turkish), "tıtle");
    EXPECT_EQ(queryKeys("TITLE", turkish), (std::vector<std::string>{"tıtle", "title"}));
    EXPECT_EQ(queryKeys("İzle title", turkish), std::vector<std::string>{"izletitle"});
    EXPECT_EQ(searchVariants("Insert", turkish).byDefault, (TextKeys{"insert", std::nullopt}));
    EXPECT_FALSE(searchVariants("İndir ızgara", turkish).byDefault);
    EXPECT_EQ(searchVariants("Имя", turkish).byDefault, (TextKeys{"имя", "ima"}));
    const TextServices lithuanian("lt_LT");
    EXPECT_EQ(normalizedKey("Ìš J\u0303", lithuanian), "isj");
}

TEST(SearchKeys, OtherScriptsHaveALatinVariantToo) {
    const TextServices english("en_US");
    EXPECT_EQ(searchVariants("Файл", english).byLocale, (TextKeys{"фаил", "fajl"}));
    EXPECT_EQ(searchVariants("ファイル", english).byLocale, (TextKeys{"ファイル", "fairu"}));
    EXPECT_EQ(searchVariants("Édition › Coller…", english).byLocale,
              (TextKeys{"editioncoller", std::nullopt}));
    EXPECT_FALSE(searchVariants("Insert", english).byDefault);
    EXPECT_FALSE(TextServices::hasNonLatinScript("Édition › … ½"));
    // Transliteration does not change these texts, so they may count as all Latin.
    for (const char* text : {"Édition…", "Œuvre ‘x’", "naïve – ½ ²", "ﬁn", "Ｆｉｌｅ"}) {
        EXPECT_EQ(english.transliteratedToLatin(text), text);
    }
}

} // namespace
} // namespace tovrel
