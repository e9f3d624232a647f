#include <cmath>

#include <gtest/gtest.h>

#include "support/JsonDocument.h"

namespace tovrel {
namespace {

bool parses(std::string_view bytes) {
    return json::decodeDocument(bytes, [](const json::Value&) { return true; }).value_or(false);
}

TEST(Json, HostileDocumentsAreRefused) {
    EXPECT_FALSE(parses(""));
    EXPECT_FALSE(parses("not json"));
    EXPECT_FALSE(parses("[1] trailing"));
    EXPECT_FALSE(parses({"[1]\0", 4}));
    EXPECT_FALSE(parses({"[1]\0rubbish", 11}));
    EXPECT_FALSE(parses({"\"a\0b\"", 5}));
    EXPECT_TRUE(parses("\"a\\u0000b\""));
    EXPECT_FALSE(parses("[1] // comment"));
    EXPECT_FALSE(parses("/* comment */ [1]"));
    EXPECT_FALSE(parses("\"\xFF\""));
    EXPECT_FALSE(parses("\"\\ud800\""));
    EXPECT_FALSE(parses("[1e999]"));
    EXPECT_TRUE(parses("\"fragment\""));
    const auto nested = [](std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); };
    EXPECT_TRUE(parses(nested(json::maximumDepth)));
    EXPECT_FALSE(parses(nested(json::maximumDepth + 1)));
    EXPECT_FALSE(parses(std::string(1000000, '[')));
    EXPECT_TRUE(parses("\"" + std::string(1000, '[') + "\\\"" + std::string(1000, '{') + "\""));
}

TEST(Json, NumbersKeepTheirKind) {
    const auto integer = [](const char* text) { return json::decodeDocument(text, json::integerFrom); };
    EXPECT_EQ(integer("3.0"), 3);
    EXPECT_EQ(integer("1e3"), 1000);
    EXPECT_EQ(integer("-9223372036854775808"), INT64_MIN);
    EXPECT_EQ(integer("9223372036854775807"), INT64_MAX);
    for (const char* refused :
         {"2.5", "true", "\"1\"", "null", "9223372036854775808", "1e19", "18446744073709551615",
          "9223372036854775808.0", "9.223372036854775808e18", "-9223372036854775809", "-1e19"}) {
        EXPECT_EQ(integer(refused), std::nullopt) << refused;
    }
    EXPECT_EQ(json::decodeDocument("0", json::pointInTimeFrom), PointInTime{0});
    EXPECT_EQ(json::decodeDocument("false", json::pointInTimeFrom), std::nullopt);
    EXPECT_EQ(json::dump(json::toJson(PointInTime{10})), "10");
    EXPECT_EQ(json::dump(json::toJson(PointInTime{690000000.125})), "690000000.125");
    EXPECT_THROW(json::toJson(PointInTime{std::nan("")}), json::EncodeError);
}

} // namespace
} // namespace tovrel
