#include "platform/linux/applications/LinuxWorkspace.h"

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include "platform/x11/X11ServerFixture.h"
#include "platform/x11/X11TestClient.h"
#include "platform/x11/windows/X11WindowList.h"
#include "support/TemporaryDirectory.h"

namespace tovrel {
namespace {

/// The test program stands for this program, and its parent for another application.
class LinuxWorkspaceTest : public X11ServerTest {
  protected:
    void SetUp() override {
        setNumber(other_, other_.window(), "_NET_WM_PID", static_cast<std::uint32_t>(getppid()));
        setNumber(own_, own_.window(), "_NET_WM_PID", static_cast<std::uint32_t>(getpid()));
        loop_.watch(other_);
        loop_.watch(own_);
    }

    static void setNumber(X11TestClient& client, xcb_window_t window, const char* name, std::uint32_t value) {
        X11Connection& connection = client.connection();
        xcb_change_property(connection.handle(), XCB_PROP_MODE_REPLACE, window, connection.atom(name),
                            XCB_ATOM_CARDINAL, 32, 1, &value);
        static_cast<void>(connection.numbers(window, name)); // Answered after all earlier requests.
    }
    void setActive(xcb_window_t window) {
        setNumber(other_, other_.connection().root(), "_NET_ACTIVE_WINDOW", window);
    }

    /// The process identifiers of the reported activations; 0 for an unknown application.
    std::vector<std::int32_t> told_;
    Subscription subscribeTo(LinuxWorkspace& workspace) {
        loop_.watch(windows_->activationEvents());
        return workspace.onActivation([this](const std::shared_ptr<RunningApplication>& application) {
            told_.push_back(application ? application->processIdentifier() : 0);
        });
    }

    X11TestClient other_{display_};
    X11TestClient own_{display_};
    std::shared_ptr<X11WindowList> windows_ = std::make_shared<X11WindowList>(display_.c_str());
    LinuxWorkspace workspace_{windows_, std::make_shared<AtspiBus>(),
                              std::make_shared<DesktopEntries>(std::vector<std::filesystem::path>(),
                                                               std::string("C"), DesktopSession())};
};

using Processes = std::vector<std::int32_t>;

TEST_F(LinuxWorkspaceTest, TellsChangesOfTheActiveWindowAndNothingElse) {
    setActive(other_.window());
    auto subscription = subscribeTo(workspace_);
    setActive(0);
    setActive(other_.window());
    setNumber(other_, other_.connection().root(), "_NET_CURRENT_DESKTOP", 1);
    setActive(own_.window());
    ASSERT_TRUE(loop_.runUntil([&] { return !told_.empty(); }));
    EXPECT_EQ(told_, Processes{getpid()});
    setActive(other_.connection().root());
    ASSERT_TRUE(loop_.runUntil([&] { return told_.size() == 2; }));
    EXPECT_EQ(told_.back(), 0) << "a window without a process";
    subscription = {};
    setActive(other_.window());
    subscription = subscribeTo(workspace_);
    setActive(own_.window());
    ASSERT_TRUE(loop_.runUntil([&] { return told_.back() == getpid(); }));
    EXPECT_EQ(told_.size(), 3U);
}

TEST_F(LinuxWorkspaceTest, FollowsAWindowManager) {
    startWindowManager();
    const auto subscription = subscribeTo(workspace_);
    other_.map();
    ASSERT_TRUE(loop_.runUntil([&] { return told_.size() == 1; }));
    own_.map();
    ASSERT_TRUE(loop_.runUntil([&] { return told_.size() == 2; }));
    const auto front = workspace_.frontApplication();
    ASSERT_TRUE(front);
    EXPECT_EQ(front->bundleIdentifier(), Text("org.tovrel.Tovrel")) << "without an installed entry";
    EXPECT_EQ(front->localizedName(), Text("Tovrel"));
    EXPECT_FALSE(front->isTerminated());

    EXPECT_TRUE(windows_->activate(std::to_string(other_.window())));
    ASSERT_TRUE(loop_.runUntil([&] { return told_.size() == 3; }));
    own_.focus();
    ASSERT_TRUE(loop_.runUntil([&] { return told_.size() == 4; }));
    own_.unmap();
    ASSERT_TRUE(loop_.runUntil([&] { return told_.size() == 5; }));
    EXPECT_EQ(told_, (Processes{getppid(), getpid(), getppid(), getpid(), getppid()}));
}

TEST_F(LinuxWorkspaceTest, OpensNothingWhereNothingIsThereToOpenIt) {
    const testing_support::TemporaryDirectory empty;
    const std::string path = std::getenv("PATH"); // NOLINT(concurrency-mt-unsafe)
    setenv("PATH", empty.path().c_str(), 1);
    workspace_.open("https://example.org");
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), 0) << "the display server is the only child, and runs";
    setenv("PATH", path.c_str(), 1);
}

} // namespace
} // namespace tovrel
