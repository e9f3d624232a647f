#include "platform/linux/menus/MenuObstacle.h"

#include <fstream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "support/TemporaryDirectory.h"

namespace tovrel {
namespace {

namespace fs = std::filesystem;
using namespace std::string_view_literals;

/// Imitates the kernel's files about one process, number 7.
class MenuObstacleTest : public testing::Test {
  protected:
    void SetUp() override { fs::create_directories(process_ / "root"); }

    void write(const fs::path& file, std::string_view contents) const {
        fs::create_directories((process_ / file).parent_path());
        std::ofstream(process_ / file, std::ios::binary) << contents;
    }
    [[nodiscard]] MenuObstacle obstacle() const { return menuObstacleOf(7, folder_.path()); }

    testing_support::TemporaryDirectory folder_;
    fs::path process_ = folder_.path() / "7";
};

TEST_F(MenuObstacleTest, OfWhatAProcessHasLoadedAndWasStartedWith) {
    EXPECT_EQ(obstacle(), MenuObstacle::none) << "nothing can be read";
    write("environ", "HOME=/root\0NO_AT_BRIDGE=1\0"sv);
    write("maps", "7f00 r-xp /usr/lib/libQt6Core.so.6\n");
    EXPECT_EQ(obstacle(), MenuObstacle::none) << "the variable is of no matter to Qt";
    write("maps", "7f00 r-xp /usr/lib/libgtk-3.so.0.2404\n");
    EXPECT_EQ(obstacle(), MenuObstacle::switchedOff);
    write("environ", "NO_AT_BRIDGE=0\0GTK_A11Y=atspi"sv);
    EXPECT_EQ(obstacle(), MenuObstacle::none);
    write("maps", "7f00 r-xp /usr/lib/libgtk-x11-2.0.so.0\n");
    EXPECT_EQ(obstacle(), MenuObstacle::gtk2WithoutBridge);
    write("environ", "GTK_MODULES=gail:atk-bridge\0"sv);
    EXPECT_EQ(obstacle(), MenuObstacle::none);
    write("maps", "7f00 r-xp /usr/lib/jvm/lib/server/libjvm.so\n");
    EXPECT_EQ(obstacle(), MenuObstacle::java);
    write("maps", "7f00 r-xp /usr/lib/jvm/lib/server/libjvm.so\n7f10 r-xp /usr/lib/jni/libatk-wrapper.so\n");
    EXPECT_EQ(obstacle(), MenuObstacle::none);
}

TEST_F(MenuObstacleTest, OfTheFilesAroundAProgram) {
    fs::create_symlink("/opt/editor/editor", process_ / "exe");
    EXPECT_EQ(obstacle(), MenuObstacle::none);
    write("root/.flatpak-info", "[Application]\n");
    EXPECT_EQ(obstacle(), MenuObstacle::sandbox);
    write("root/opt/editor/chrome_100_percent.pak", "");
    EXPECT_EQ(obstacle(), MenuObstacle::browserEngine) << "in a sandbox too this is what can be helped";
    write("cmdline", "/opt/editor/editor\0--force-renderer-accessibility\0"sv);
    EXPECT_EQ(obstacle(), MenuObstacle::sandbox);
}

} // namespace
} // namespace tovrel
