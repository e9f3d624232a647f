#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "platform/WindowList.h"
#include "platform/Workspace.h"
#include "platform/linux/applications/DesktopEntries.h"
#include "platform/linux/applications/LinuxRunningApplication.h"
#include "platform/linux/menus/accessibility/AtspiBus.h"

namespace tovrel {

/// The applications of a Linux desktop. Without a display there is no front application, and only
/// applications on the accessibility bus are known.
class LinuxWorkspace : public Workspace {
  public:
    LinuxWorkspace(std::shared_ptr<WindowList> windows, std::shared_ptr<AtspiBus> bus,
                   std::shared_ptr<DesktopEntries> entries);
    ~LinuxWorkspace() override = default;
    LinuxWorkspace(const LinuxWorkspace&) = delete;
    LinuxWorkspace& operator=(const LinuxWorkspace&) = delete;

    /// The application of the active window. Waits up to 50 ms while the desktop is changing it; measured
    /// changes take a few milliseconds.
    [[nodiscard]] std::shared_ptr<RunningApplication> frontApplication() override;

    bool activate(const RunningApplication& application) override;

    /// Reports each change of the active window, even within an application.
    [[nodiscard]] Subscription
    onActivation(std::function<void(const std::shared_ptr<RunningApplication>&)> observer) override;

    [[nodiscard]] std::optional<InstalledApplication>
    installedApplication(const Text& bundleIdentifier) override;
    [[nodiscard]] std::vector<InstalledApplication> installedApplications() override;

    /// Starts xdg-open and does not wait for it.
    void open(const Text& url) override;

    /// Null when there is no such process.
    [[nodiscard]] std::shared_ptr<LinuxRunningApplication>
    applicationWithProcessIdentifier(std::int32_t processIdentifier);

    /// The running applications with this identifier, the one with the topmost window first.
    [[nodiscard]] std::vector<std::shared_ptr<LinuxRunningApplication>>
    applicationsWithIdentifier(const Text& identifier);

    /// Each process that has a window, the one with the topmost window first.
    [[nodiscard]] std::vector<std::shared_ptr<LinuxRunningApplication>> applicationsWithWindows();

    /// Each process that has a window or is on the accessibility bus. Processes with windows come first, by
    /// their topmost window.
    [[nodiscard]] std::vector<std::shared_ptr<LinuxRunningApplication>> runningApplications();

  private:
    [[nodiscard]] std::shared_ptr<LinuxRunningApplication>
    application(std::int32_t processIdentifier, const std::optional<ApplicationWindow>& window);

    std::shared_ptr<WindowList> windows_;
    std::shared_ptr<AtspiBus> bus_;
    std::shared_ptr<DesktopEntries> entries_;
    ObserverList<const std::shared_ptr<RunningApplication>&> activations_;
    Subscription windowActivations_;
};

} // namespace tovrel
