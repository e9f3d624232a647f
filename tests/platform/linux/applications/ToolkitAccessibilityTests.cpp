#include "platform/linux/applications/ToolkitAccessibility.h"

#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>
#include <systemd/sd-bus.h>

#include "platform/linux/ChildProcess.h"
#include "platform/linux/menus/FakeAccessibility.h"
#include "platform/x11/X11ServerFixture.h"
#include "platform/x11/X11TestClient.h"
#include "platform/x11/windows/X11WindowList.h"

namespace tovrel {
namespace {

class ToolkitAccessibilityTest : public X11ServerTest {
  protected:
    /// A window of a process, with the class as its name.
    void addWindow(std::int32_t process, const std::string& name) {
        auto client = std::make_unique<X11TestClient>(display_);
        X11Connection& connection = client->connection();
        const auto number = static_cast<std::uint32_t>(process);
        const std::string windowClass = name + '\0' + name + '\0';
        xcb_change_property(connection.handle(), XCB_PROP_MODE_REPLACE, client->window(),
                            connection.atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, 32, 1, &number);
        xcb_change_property(connection.handle(), XCB_PROP_MODE_REPLACE, client->window(), XCB_ATOM_WM_CLASS,
                            XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(windowClass.size()),
                            windowClass.data());
        windows_.push_back(client->window());
        xcb_change_property(connection.handle(), XCB_PROP_MODE_REPLACE, connection.root(),
                            connection.atom("_NET_CLIENT_LIST"), XCB_ATOM_WINDOW, 32,
                            static_cast<std::uint32_t>(windows_.size()), windows_.data());
        static_cast<void>(
            connection.numbers(connection.root(), "_NET_CLIENT_LIST")); // Answered after it is done.
        clients_.push_back(std::move(client));
    }

    FakeAccessibility accessibility_;
    std::vector<std::unique_ptr<X11TestClient>> clients_;
    std::vector<std::uint32_t> windows_;
    std::shared_ptr<AtspiBus> bus_ = std::make_shared<AtspiBus>();
    ToolkitAccessibility toolkits_{bus_,
                                   std::make_shared<LinuxWorkspace>(
                                       std::make_shared<X11WindowList>(display_.c_str()), bus_,
                                       std::make_shared<DesktopEntries>(std::vector<std::filesystem::path>(),
                                                                        std::string("C"), DesktopSession()))};
};

TEST_F(ToolkitAccessibilityTest, IsSwitchedInTheSession) {
    accessibility_.isEnabled = false;
    EXPECT_FALSE(toolkits_.isEnabled());
    EXPECT_TRUE(toolkits_.setEnabled(true));
    EXPECT_TRUE(accessibility_.isEnabled);
    EXPECT_TRUE(toolkits_.isEnabled());
    EXPECT_TRUE(toolkits_.setEnabled(false));
    EXPECT_FALSE(accessibility_.isEnabled);
}

TEST_F(ToolkitAccessibilityTest, ListsApplicationsThatTookNoNotice) {
    const Pipe name;
    ChildProcess onBus([&](int) {
        sd_bus* bus = nullptr;
        const char* unique = nullptr;
        sd_bus_new(&bus);
        sd_bus_set_address(bus, accessibility_.address().c_str());
        sd_bus_set_bus_client(bus, 1);
        if (sd_bus_start(bus) < 0 || sd_bus_get_unique_name(bus, &unique) < 0) {
            return 1;
        }
        const std::string line = std::to_string(getpid()) + " " + unique + "\n";
        if (write(name.output.get(), line.data(), line.size()) < 0) {
            return 1;
        }
        pause();
        return 0;
    });
    std::string line;
    char byte = '\0';
    while (read(name.input.get(), &byte, 1) == 1 && byte != '\n') {
        line += byte;
    }
    const std::size_t blank = line.find(' ');
    ASSERT_NE(blank, std::string::npos);
    accessibility_.add(line.substr(blank + 1));

    addWindow(std::stoi(line), "Reader");
    addWindow(getppid(), "Unread");
    addWindow(getppid(), "Unread");
    addWindow(getpid(), "Own");
    EXPECT_EQ(toolkits_.applicationsToRestart(), std::vector<Text>{"Unread"});
}

} // namespace
} // namespace tovrel
