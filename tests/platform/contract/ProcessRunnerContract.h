#pragma once

#include <csignal>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/ProcessRunner.h"

namespace tovrel {

/// What each process runner promises. A rig has one and its main queue, and offers:
///
///     ProcessRunner& runner()
///     void start(ProcessEnd, Completion)   starts a program that will end so
///     void letProgramsEnd()                those started before it
///     std::size_t programsEnded()
///     LaunchFailure startMissing(Completion)   starts a program that cannot be; how that is told
///     bool until(condition)                lets the main thread work until the condition holds
///     void endRunner()                     destroys the runner
///     void runPosted()                     runs the tasks that have been posted
template <typename Rig>
class ProcessRunnerContract : public testing::Test {};

TYPED_TEST_SUITE_P(ProcessRunnerContract);

TYPED_TEST_P(ProcessRunnerContract, TellsEachOutcomeOnceAndByTheQueueAlone) {
    TypeParam rig;
    using Outcomes = std::vector<ProcessOutcome>;
    std::map<std::string, Outcomes> told;
    const auto noteAs = [&](const std::string& name) {
        return [&, name](const ProcessOutcome& outcome) { told[name].push_back(outcome); };
    };
    rig.start(ProcessEnd{3, false}, noteAs("status"));
    rig.start(ProcessEnd{SIGTERM, true}, noteAs("signal"));
    rig.start(ProcessEnd{0, false}, noteAs("success"));
    rig.runPosted();
    EXPECT_TRUE(told.empty()) << "they run";
    rig.letProgramsEnd();
    EXPECT_TRUE(told.empty());
    ASSERT_TRUE(rig.until([&] { return told.size() == 3; }));
    EXPECT_EQ(told["status"], (Outcomes{ProcessEnd{3, false}}));
    EXPECT_EQ(told["signal"], (Outcomes{ProcessEnd{SIGTERM, true}}));
    EXPECT_EQ(told["success"], (Outcomes{ProcessEnd{0, false}}));

    // A completion may start another.
    LaunchFailure second;
    const LaunchFailure first = rig.startMissing([&](const ProcessOutcome& outcome) {
        told["missing"].push_back(outcome);
        second = rig.startMissing(noteAs("missing"));
    });
    EXPECT_FALSE(told.contains("missing"));
    ASSERT_TRUE(rig.until([&] { return told["missing"].size() == 2; }));
    EXPECT_EQ(told["missing"], (Outcomes{first, second}));
    EXPECT_EQ(told["status"].size() + told["signal"].size() + told["success"].size(), 3U);
}

TYPED_TEST_P(ProcessRunnerContract, ProgramsOutliveItUntold) {
    TypeParam rig;
    int told = 0;
    const auto note = [&](const ProcessOutcome&) { ++told; };
    rig.start(ProcessEnd{0, false}, note);
    rig.startMissing(note);
    rig.endRunner();
    rig.letProgramsEnd();
    EXPECT_TRUE(rig.until([&] { return rig.programsEnded() == 1; }));
    rig.runPosted();
    EXPECT_EQ(told, 0);
}

REGISTER_TYPED_TEST_SUITE_P(ProcessRunnerContract, TellsEachOutcomeOnceAndByTheQueueAlone,
                            ProgramsOutliveItUntold);

} // namespace tovrel
