#pragma once

#include <array>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "platform/PreferencesDomain.h"
#include "stores/LastKnownPreferences.h"

namespace tovrel {

/// The contract of a preferences domain. A rig has an empty one:
///
///     PreferencesDomain& domain()
template <typename Rig>
class PreferencesDomainContract : public testing::Test {
  protected:
    PreferencesDomain& domain() { return rig_.domain(); }

    static std::string everyByte() {
        std::string bytes;
        for (int byte = 0; byte < 256; ++byte) {
            bytes += static_cast<char>(byte);
        }
        return bytes;
    }

  private:
    Rig rig_;
};

/// A rig of the domain that the resident program puts in front of another one.
template <typename StoredRig>
class LastKnownPreferencesRig {
  public:
    PreferencesDomain& domain() { return domain_; }

  private:
    StoredRig stored_;
    LastKnownPreferences domain_{stored_.domain()};
};

TYPED_TEST_SUITE_P(PreferencesDomainContract);

TYPED_TEST_P(PreferencesDomainContract, StartsEmptyAndRemovingNothingSucceeds) {
    PreferencesDomain& domain = this->domain();
    EXPECT_EQ(domain.value("key"), std::nullopt);
    EXPECT_TRUE(domain.lastReadSucceeded());
    EXPECT_TRUE(domain.all().empty());
    EXPECT_TRUE(domain.remove("key"));
    EXPECT_TRUE(domain.setAll({}));
    EXPECT_TRUE(domain.all().empty());
}

TYPED_TEST_P(PreferencesDomainContract, GivesBackEveryValueWithItsTypeAndBytes) {
    PreferencesDomain& domain = this->domain();
    const std::array<PreferenceValue, 10> values{PreferenceData{this->everyByte()},
                                                 PreferenceData{""},
                                                 PreferenceData{"text"},
                                                 PreferenceData{"1"},
                                                 Text("text"),
                                                 Text(""),
                                                 Text(std::string("a\0b", 3)),
                                                 Text("E\u0301 \U0001F3A8"),
                                                 true,
                                                 false};
    for (const PreferenceValue& value : values) {
        ASSERT_TRUE(domain.set("key", value)); // each replaces the previous one, of whatever type
        EXPECT_EQ(domain.value("key"), value) << value.index();
    }
    // Equal texts may differ in their bytes; the given bytes are stored.
    ASSERT_TRUE(domain.set("key", Text("E\u0301")));
    EXPECT_EQ(std::get<Text>(*domain.value("key")).utf8(), "E\u0301");

    const PreferenceData large{std::string(1'000'000, 'x') + this->everyByte()};
    ASSERT_TRUE(domain.set("large", large));
    EXPECT_EQ(domain.value("large"), PreferenceValue(large));
    EXPECT_EQ(dataValue(domain, "large"), large.bytes);
    EXPECT_EQ(dataValue(domain, "key"), std::nullopt); // a string is no data
}

TYPED_TEST_P(PreferencesDomainContract, KeysAreComparedAndOrderedByteByByte) {
    PreferencesDomain& domain = this->domain();
    const std::set<std::string> keys{"",
                                     "A",
                                     "a",
                                     "a b",
                                     "\u00e9",
                                     "e\u0301",
                                     "'; DROP TABLE preferences; --",
                                     std::string("a\0", 2),
                                     std::string("a\0b", 3),
                                     "\xFF\xFE"};
    for (const std::string& key : keys) {
        ASSERT_TRUE(domain.set(key, PreferenceData{"of " + key}));
    }
    auto expected = keys.begin();
    const auto all = domain.all();
    ASSERT_EQ(all.size(), keys.size());
    for (const auto& [key, value] : all) {
        EXPECT_EQ(key, *expected++);
        EXPECT_EQ(value, PreferenceValue(PreferenceData{"of " + key}));
        EXPECT_EQ(domain.value(key), value);
    }
    EXPECT_TRUE(domain.remove("a"));
    EXPECT_EQ(domain.value("a"), std::nullopt);
    EXPECT_EQ(domain.all().size(), keys.size() - 1);
}

TYPED_TEST_P(PreferencesDomainContract, SetsManyValuesAtOnceAndKeepsTheOthers) {
    PreferencesDomain& domain = this->domain();
    ASSERT_TRUE(domain.set("kept", true));
    ASSERT_TRUE(domain.set("replaced", true));
    EXPECT_TRUE(domain.setAll({{"replaced", Text("new")}, {"added", false}, {"added", true}}));
    EXPECT_EQ(domain.all(), (std::vector<std::pair<std::string, PreferenceValue>>{
                                {"added", true}, {"kept", true}, {"replaced", Text("new")}}));
}

TYPED_TEST_P(PreferencesDomainContract, TheRevisionMovesWithEveryChangeAndOnlyThen) {
    PreferencesDomain& domain = this->domain();
    std::set<std::uint64_t> seen{domain.revision()};
    const auto isNew = [&] { return seen.insert(domain.revision()).second; };
    EXPECT_TRUE(domain.set("key", true) && isNew());
    EXPECT_TRUE(domain.setAll({{"other", Text("x")}}) && isNew());
    EXPECT_TRUE(domain.remove("key") && isNew());
    EXPECT_EQ(domain.value("other"), PreferenceValue(Text("x")));
    EXPECT_EQ(domain.all().size(), 1U);
    EXPECT_FALSE(isNew());
    EXPECT_FALSE(isNew());
}

REGISTER_TYPED_TEST_SUITE_P(PreferencesDomainContract, StartsEmptyAndRemovingNothingSucceeds,
                            GivesBackEveryValueWithItsTypeAndBytes, KeysAreComparedAndOrderedByteByByte,
                            SetsManyValuesAtOnceAndKeepsTheOthers,
                            TheRevisionMovesWithEveryChangeAndOnlyThen);

} // namespace tovrel
