#pragma once

#include <cstdint>
#include <optional>

#include "platform/ApplicationWindow.h"
#include "platform/RunningApplication.h"
#include "platform/linux/applications/DesktopEntries.h"

namespace tovrel {

/// A process that shows windows or menus, and the desktop entry that was found for it.
class LinuxRunningApplication : public RunningApplication {
  public:
    /// Finds the entry by the application id that the window publishes, then by its window class among the
    /// classes that entries declare (StartupWMClass), then by its window class among the entries' ids, then
    /// by the program that runs.
    LinuxRunningApplication(std::int32_t processIdentifier, const std::optional<ApplicationWindow>& window,
                            DesktopEntries& entries);

    /// This process, which needs no entry.
    [[nodiscard]] static LinuxRunningApplication ofThisProcess();

    /// The id of the desktop entry; absent when no entry was found.
    [[nodiscard]] std::optional<Text> bundleIdentifier() const override { return identifier_; }
    /// The entry's name, else the window's class, else the program's name.
    [[nodiscard]] std::optional<Text> localizedName() const override { return name_; }
    [[nodiscard]] std::int32_t processIdentifier() const override { return processIdentifier_; }
    [[nodiscard]] bool isTerminated() const override;

    /// The icon named in the entry.
    [[nodiscard]] std::optional<ApplicationIcon> icon() const override { return icon_; }

  private:
    LinuxRunningApplication();

    std::int32_t processIdentifier_;
    std::optional<std::uint64_t> startTime_;
    std::optional<Text> identifier_;
    std::optional<Text> name_;
    std::optional<ApplicationIcon> icon_;
};

} // namespace tovrel
