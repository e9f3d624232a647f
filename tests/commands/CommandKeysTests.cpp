#include "commands/CommandKeys.h"

#include <random>
#include <set>

#include <gtest/gtest.h>

#include "commands/CommandSamples.h"
#include "commands/PlainSearch.h"

namespace tovrel {
namespace {

std::set<std::string> nonEmpty(std::set<std::string> keys) {
    keys.erase("");
    return keys;
}

TEST(CommandKeys, KeysComposedFromTitlesEqualThoseOfTheWholeTexts) {
    std::mt19937 random(4242); // a fixed seed: a failure can be repeated
    const TextServices english("en_US");
    const TextServices turkish("tr_TR");
    for (const TextServices* services : {&english, &turkish}) {
        CommandKeyDeriver deriver(*services);
        for (const Command& command : samples::assortedCommands(random, 600)) {
            const CommandKeys keys = deriver.keysOf(command);
            const std::set<std::string> derived(keys.candidateVariants.begin(), keys.candidateVariants.end());
            EXPECT_EQ(derived, nonEmpty(plain::variants(plain::candidateTexts(command), *services)))
                << command.id;
            EXPECT_EQ(derived.size(), keys.candidateVariants.size());
        }
    }
}

} // namespace
} // namespace tovrel
