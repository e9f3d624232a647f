#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/linux/ServerProcess.h"

namespace tovrel {

/// A private X server, and a window manager from when one is started.
class X11Desktop {
  public:
    X11Desktop() {
        if (server_.announced().empty()) {
            throw std::runtime_error("Xvfb is needed");
        }
    }

    [[nodiscard]] const std::string& display() const { return display_; }

    /// Returns when it manages windows; it ignores those that are mapped while it starts.
    void startWindowManager() {
        windowManager_ = std::make_unique<ServerProcess>(
            std::vector<std::string>{"/bin/sh", "-c",
                                     "DISPLAY=" + display_ +
                                         " exec openbox --sm-disable --startup \"sh -c 'echo started "
                                         ">/proc/$$/fd/{fd}'\" >/dev/null 2>&1"});
        if (windowManager_->announced() != "started") {
            throw std::runtime_error("openbox is needed");
        }
    }

  private:
    ServerProcess server_{{"Xvfb", "-displayfd", "{fd}", "-screen", "0", "640x480x24", "-nolisten", "tcp"}};
    std::string display_ = ":" + server_.announced();
    std::unique_ptr<ServerProcess> windowManager_;
};

} // namespace tovrel
