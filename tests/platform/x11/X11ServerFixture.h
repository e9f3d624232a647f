#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/linux/ServerProcess.h"
#include "platform/linux/TestLoop.h"

namespace tovrel {

/// A private X server, with a window manager if a test starts one.
class X11ServerTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_FALSE(server_.announced().empty()) << "Xvfb is needed"; }

    /// Returns when the window manager manages windows; it ignores windows that are mapped while it starts.
    void startWindowManager() {
        windowManager_ = std::make_unique<ServerProcess>(
            std::vector<std::string>{"/bin/sh", "-c",
                                     "DISPLAY=" + display_ +
                                         " exec openbox --sm-disable --startup \"sh -c 'echo started "
                                         ">/proc/$$/fd/{fd}'\" >/dev/null 2>&1"});
        ASSERT_EQ(windowManager_->announced(), "started") << "openbox is needed";
    }

    ServerProcess server_{{"Xvfb", "-displayfd", "{fd}", "-screen", "0", "640x480x24", "-nolisten", "tcp"}};
    std::string display_ = ":" + server_.announced();
    std::unique_ptr<ServerProcess> windowManager_;
    TestLoop loop_;
};

} // namespace tovrel
