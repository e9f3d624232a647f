#include "platform/contract/WorkspaceContract.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include <sys/wait.h>

#include "platform/linux/TestLoop.h"
#include "platform/linux/applications/LinuxWorkspace.h"
#include "platform/x11/X11Desktop.h"
#include "platform/x11/X11TestClient.h"
#include "platform/x11/windows/X11WindowList.h"
#include "support/TemporaryDirectory.h"

namespace tovrel {
namespace {

/// A workspace with a window manager, a folder of desktop entries, and an xdg-open of its own. The two
/// applications are this program and its parent.
class LinuxWorkspaceRig {
  public:
    LinuxWorkspaceRig() {
        desktop_.startWindowManager();
        setProcess(one_, getppid());
        setProcess(two_, getpid());
        for (EventSource* source :
             std::initializer_list<EventSource*>{&one_, &two_, &unknown_, &windows_->activationEvents()}) {
            loop_.watch(*source);
        }
        std::filesystem::create_directory(folder_.path() / "applications");
        const std::filesystem::path opener = folder_.path() / "xdg-open";
        std::ofstream(opener) << "#!/bin/sh\nprintf '%s' \"$1\" >'" << opened_.string() << ".new'\nmv '"
                              << opened_.string() << ".new' '" << opened_.string() << "'\n";
        std::filesystem::permissions(opener, std::filesystem::perms::owner_all);
        setenv("PATH", (folder_.path().string() + ":" + programs_).c_str(), 1);
    }
    ~LinuxWorkspaceRig() { setenv("PATH", programs_.c_str(), 1); }
    LinuxWorkspaceRig(const LinuxWorkspaceRig&) = delete;
    LinuxWorkspaceRig& operator=(const LinuxWorkspaceRig&) = delete;

    Workspace& workspace() { return workspace_; }
    template <typename Condition>
    bool until(Condition condition) {
        return loop_.runUntil(condition);
    }
    static std::int32_t one() { return getppid(); }
    static std::int32_t two() { return getpid(); }
    void switchTo(std::int32_t process) { bringForward(process == one() ? one_ : two_); }
    void switchToUnknown() { bringForward(unknown_); }
    std::shared_ptr<RunningApplication> windowless() {
        return workspace_.applicationWithProcessIdentifier(1);
    }
    void grant() {} // the window manager does
    void install(const InstalledApplication& application) {
        std::ofstream(folder_.path() / "applications" / (application.bundleIdentifier.utf8() + ".desktop"))
            << "[Desktop Entry]\nType=Application\nExec=true\nName=" << application.name.utf8() << '\n'
            << (application.icon ? "Icon=" + application.icon->name.utf8() : "") << '\n';
    }
    std::vector<Text> opened() {
        EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), 0) << "no child but the servers, which run";
        std::ifstream file(opened_);
        return file ? std::vector{Text(std::string(std::istreambuf_iterator<char>(file), {}))}
                    : std::vector<Text>();
    }

  private:
    static void setProcess(X11TestClient& client, std::int32_t process) {
        X11Connection& connection = client.connection();
        xcb_change_property(connection.handle(), XCB_PROP_MODE_REPLACE, client.window(),
                            connection.atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, 32, 1, &process);
        static_cast<void>(connection.numbers(client.window(), "_NET_WM_PID")); // answered after it is done
    }
    void bringForward(X11TestClient& client) {
        client.map();
        if (until([&] { return client.isMapped(); })) {
            client.focus();
        }
    }

    testing_support::TemporaryDirectory folder_;
    std::filesystem::path opened_ = folder_.path() / "opened";
    std::string programs_ = std::getenv("PATH"); // NOLINT(concurrency-mt-unsafe)
    X11Desktop desktop_;
    TestLoop loop_;
    X11TestClient one_{desktop_.display()};
    X11TestClient two_{desktop_.display()};
    X11TestClient unknown_{desktop_.display()};
    std::shared_ptr<X11WindowList> windows_ = std::make_shared<X11WindowList>(desktop_.display().c_str());
    LinuxWorkspace workspace_{
        windows_, std::make_shared<AtspiBus>(),
        std::make_shared<DesktopEntries>(std::vector{folder_.path()}, std::string("C"), DesktopSession())};
};

INSTANTIATE_TYPED_TEST_SUITE_P(LinuxOnX11, WorkspaceContract, LinuxWorkspaceRig);

} // namespace
} // namespace tovrel
