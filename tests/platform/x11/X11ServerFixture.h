#pragma once

#include <string>

#include <gtest/gtest.h>

#include "platform/linux/TestLoop.h"
#include "platform/x11/X11Desktop.h"

namespace tovrel {

/// A test with a private X server.
class X11ServerTest : public testing::Test {
  protected:
    void startWindowManager() { desktop_.startWindowManager(); }

    X11Desktop desktop_;
    std::string display_ = desktop_.display();
    TestLoop loop_;
};

} // namespace tovrel
