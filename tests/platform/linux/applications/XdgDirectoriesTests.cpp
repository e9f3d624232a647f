#include "platform/linux/applications/XdgDirectories.h"

#include <cstdlib>

#include <gtest/gtest.h>

namespace tovrel::xdg {
namespace {

TEST(XdgDirectories, RelativeEntriesAreIgnored) {
    setenv("HOME", "/home/someone", 1);
    setenv("XDG_CONFIG_HOME", "relative", 1);
    unsetenv("XDG_DATA_HOME");
    setenv("XDG_DATA_DIRS", "relative:/opt/share::/usr/share", 1);
    EXPECT_EQ(configHome(), "/home/someone/.config");
    EXPECT_EQ(dataDirectories(),
              (std::vector<std::filesystem::path>{"/home/someone/.local/share", "/opt/share", "/usr/share"}));
    setenv("XDG_CONFIG_HOME", "/etc/someone", 1);
    EXPECT_EQ(configHome(), "/etc/someone");
    setenv("XDG_DATA_DIRS", "", 1);
    EXPECT_EQ(dataDirectories().size(), 3U);
}

} // namespace
} // namespace tovrel::xdg
