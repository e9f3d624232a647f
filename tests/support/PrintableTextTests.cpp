#include "support/PrintableText.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/Json.h"

namespace tovrel {
namespace {

TEST(PrintableText, NothingThatControlsATerminalGetsThrough) {
    EXPECT_EQ(printable("a\x1b[31mb\r\n\t\x7F"), "a␛[31mb␍␊␉␡");
    EXPECT_EQ(printable(std::string(1, '\0')), "␀");
    EXPECT_EQ(printable("\u0080\u009B31m\u009F\u2028\u2029"), "\uFFFD\uFFFD31m\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(printable("cut\xC3"), "cut\uFFFD");
    EXPECT_EQ(printable("Édition ファイル 👍🏽 \u00A0\u200D"),
              "Édition ファイル 👍🏽 \u00A0\u200D");
    EXPECT_EQ(printableLines("a\r\n\u202Eb\n"), "a␍\n\uFFFDb\n");
    for (const char* direction : {"\u061C", "\u200E", "\u200F", "\u202A", "\u202B", "\u202C", "\u202D",
                                  "\u202E", "\u2066", "\u2067", "\u2068", "\u2069"}) {
        EXPECT_EQ(printable(direction), "\uFFFD");
        const std::string json = printableJson(json::dump(json::toJson(Text(direction))));
        EXPECT_EQ(printable(json), json);
        EXPECT_EQ(json::parse(json), direction);
    }
}

TEST(PrintableText, JsonStaysTheSameDocument) {
    const json::Value value{{"é\x7F", {"\u0080\u009F\u2028", "a\\\u0085\"\x1b", "👍🏽", 1.5}}};
    const std::string json = printableJson(value.dump(2));
    EXPECT_EQ(printableLines(json), json);
    EXPECT_EQ(json::parse(json), value);
    EXPECT_EQ(printableJson("[\"\u009B\x7F\u202e\"]"), R"(["\u009b\u007f\u202e"])");
}

} // namespace
} // namespace tovrel
