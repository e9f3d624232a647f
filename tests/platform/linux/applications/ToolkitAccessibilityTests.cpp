#include "platform/linux/applications/ToolkitAccessibility.h"

#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>
#include <systemd/sd-bus.h>

#include "platform/linux/ChildProcess.h"
#include "platform/linux/menus/FakeAccessibility.h"
#include "platform/memory/MemoryWindowList.h"

namespace tovrel {
namespace {

class ToolkitAccessibilityTest : public testing::Test {
  protected:
    /// A window of a process, with the class as its name.
    void addWindow(std::int32_t process, const std::string& name) {
        ApplicationWindow window;
        window.identifier = name + std::to_string(windows_->windows().size());
        window.processIdentifier = process;
        window.instanceName = name;
        window.className = name;
        windows_->open(std::move(window));
    }

    FakeAccessibility accessibility_;
    std::shared_ptr<MemoryWindowList> windows_ = std::make_shared<MemoryWindowList>();
    std::shared_ptr<AtspiBus> bus_ = std::make_shared<AtspiBus>();
    ToolkitAccessibility toolkits_{bus_,
                                   std::make_shared<LinuxWorkspace>(
                                       windows_, bus_,
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
