#include "hotkeys/FrontmostAppMonitor.h"

#include <gtest/gtest.h>

#include "platform/memory/MemoryApplication.h"
#include "platform/memory/MemoryWorkspace.h"

namespace tovrel {
namespace {

class FrontmostAppMonitorTest : public testing::Test {
  protected:
    static std::shared_ptr<MemoryApplication> application(std::int32_t process,
                                                          std::optional<Text> identifier) {
        return std::make_shared<MemoryApplication>(process, std::move(identifier), "Name");
    }

    MemoryWorkspace workspace_;
    FrontmostAppMonitor monitor_{workspace_, {"org.tovrel.Tovrel"}};
    std::shared_ptr<MemoryApplication> own_ = application(1, "org.tovrel.Tovrel");
    std::shared_ptr<MemoryApplication> editor_ = application(2, "org.editor");
    std::shared_ptr<MemoryApplication> nameless_ = application(3, std::nullopt);
};

TEST_F(FrontmostAppMonitorTest, WhileThisProgramIsInFrontTheLastOtherOneIsTheTarget) {
    workspace_.bringToFront(editor_);
    monitor_.start();
    workspace_.bringToFront(own_);
    EXPECT_EQ(monitor_.resolveTargetApplication(), editor_) << "in front before any activation";
    workspace_.bringToFront(nameless_);
    workspace_.bringToFront(nullptr);
    EXPECT_EQ(monitor_.resolveTargetApplication(), nullptr) << "nothing in front";
    workspace_.bringToFront(own_);
    EXPECT_EQ(monitor_.resolveTargetApplication(), nameless_);
    nameless_->setTerminated(true);
    EXPECT_EQ(monitor_.resolveTargetApplication(), nullptr);
    workspace_.bringToFront(editor_);
    EXPECT_EQ(monitor_.resolveTargetApplication(), editor_);
}

TEST_F(FrontmostAppMonitorTest, WithoutAnOwnIdentifierEveryApplicationIsATarget) {
    FrontmostAppMonitor monitor(workspace_, {std::nullopt});
    workspace_.bringToFront(own_);
    EXPECT_EQ(monitor.resolveTargetApplication(), own_);
}

TEST_F(FrontmostAppMonitorTest, StopsWatchingWithItsEnd) {
    {
        FrontmostAppMonitor monitor(workspace_, {std::nullopt});
        monitor.start();
    }
    // Under the sanitizers, a call into a destroyed object would end the test.
    workspace_.bringToFront(editor_);
    EXPECT_EQ(editor_.use_count(), 2) << "held by this test and the workspace alone";
}

} // namespace
} // namespace tovrel
