#include "support/Text.h"

#include <algorithm>
#include <unordered_set>

#include <gtest/gtest.h>
#include <unicode/locid.h>

#include "support/TextServices.h"
#include "support/Utf8.h"

namespace tovrel {
namespace {

TEST(Text, EqualityOrderAndHashFollowCanonicalEquivalence) {
    const Text precomposed = "\u00c9dition";
    const Text decomposed = "E\u0301dition";
    EXPECT_EQ(precomposed, decomposed);
    EXPECT_EQ(precomposed <=> decomposed, std::weak_ordering::equivalent);
    EXPECT_EQ(precomposed.hash(), decomposed.hash());
    EXPECT_TRUE((std::unordered_set<Text>{precomposed}.contains(decomposed)));

    // Marks of different classes commute; a singleton equals its decomposition; Hangul composes.
    EXPECT_EQ(Text("q\u0307\u0323"), Text("q\u0323\u0307"));
    EXPECT_EQ(Text("\u212B"), Text("\u00C5"));
    EXPECT_EQ(Text("\uAC01"), Text("\u1100\u1161\u11A8"));

    EXPECT_NE(Text("Save"), Text("save"));
    EXPECT_NE(Text("\u00e9"), Text("e"));
    EXPECT_NE(Text("\uFF21"), Text("A")); // compatibility is not canonical equivalence
    EXPECT_LT(Text("a"), Text("b"));
    EXPECT_LT(Text("z"), Text("\u00e9"));
}

TEST(Text, KeepsItsBytesAndRepairsIllFormedOnes) {
    EXPECT_EQ(Text("E\u0301").utf8(), "E\xCC\x81");
    EXPECT_EQ(Text("a\xFF"
                   "b")
                  .utf8(),
              "a\uFFFDb");
    EXPECT_EQ(Text("\xED\xA0\x80").view().substr(0, 3), "\uFFFD"); // a surrogate is not a character
    EXPECT_EQ(Text("cut\xC3").utf8(), "cut\uFFFD");
    EXPECT_FALSE(isWellFormedUtf8("\xC0\xAF"));
    EXPECT_TRUE(isWellFormedUtf8("\xF0\x9F\x8E\xA8"));
}

TEST(TextServices, TitlesAreOrderedForPeopleInEveryLocale) {
    const icu::Locale before = icu::Locale::getDefault();
    for (const char* environment : {"en_US_POSIX", "de_DE"}) { // ICU's locale for LC_ALL=C, and a real one
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale::setDefault(icu::Locale(environment), status);
        for (const char* identifier : {"", "C", "POSIX", "C.UTF-8", "C.utf8", "en_US_POSIX", "xx", "en_US"}) {
            const TextServices services(identifier);
            std::vector<Text> titles{"Zoom", "archive", "Édition", "Bold", "file", "About"};
            std::sort(titles.begin(), titles.end(), [&](const Text& left, const Text& right) {
                return services.isOrderedBefore(left, right);
            });
            EXPECT_EQ(joined(titles, " "), "About archive Bold Édition file Zoom") << identifier;
        }
    }
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(before, status);
}

TEST(Text, TrimsUnicodeWhiteSpaceAtBothEnds) {
    EXPECT_EQ(trimmed(" \t\u3000Save As\u00A0\r\n").utf8(), "Save As");
    EXPECT_EQ(trimmed(" \n ").utf8(), "");
    EXPECT_EQ(trimmed("\u00e9").utf8(), "\u00e9");
    EXPECT_EQ(joined({"File", "Export", "PDF"}, "/").utf8(), "File/Export/PDF");
}

} // namespace
} // namespace tovrel
