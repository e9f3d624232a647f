#include "app/desktop/PreferencesFile.h"

#include <cstdlib>

#include <gtest/gtest.h>

namespace tovrel {
namespace {

TEST(PreferencesFile, IsTheNamedOneElseTheEnvironmentsElseTheUsers) {
    setenv("XDG_CONFIG_HOME", "/home/someone/configuration", 1);
    setenv("TOVREL_PREFERENCES", "", 1);
    EXPECT_EQ(preferencesFile(), "/home/someone/configuration/tovrel/preferences.sqlite");
    setenv("TOVREL_PREFERENCES", "/elsewhere/file", 1);
    EXPECT_EQ(preferencesFile(), "/elsewhere/file");
    EXPECT_EQ(preferencesFile("named"), "named");
    unsetenv("TOVREL_PREFERENCES");
    unsetenv("XDG_CONFIG_HOME");
}

} // namespace
} // namespace tovrel
