#pragma once

#include <array>
#include <optional>
#include <vector>

#include "support/Json.h"
#include "support/Text.h"

namespace tovrel {

/// Whether the shortcut opens the palette over an application. `automatic` behaves as `enabled`.
enum class AppBehaviorRule { enabled, disabled, automatic };

inline constexpr std::array allAppBehaviorRules{AppBehaviorRule::enabled, AppBehaviorRule::disabled,
                                                AppBehaviorRule::automatic};

/// The name under which a rule is stored: "enabled", "disabled", "auto".
const char* rawValue(AppBehaviorRule rule);

/// The behaviour saved for one application.
struct AppBehaviorSetting {
    Text bundleID;
    AppBehaviorRule behavior = AppBehaviorRule::enabled;

    friend bool operator==(const AppBehaviorSetting&, const AppBehaviorSetting&) = default;
};

/// The items that a blacklist rule hides: the one at its path, everything below it, or both.
enum class MenuBlacklistMode { excludeSelf, excludeChildren, excludeSelfAndChildren };

inline constexpr std::array allMenuBlacklistModes{MenuBlacklistMode::excludeSelf,
                                                  MenuBlacklistMode::excludeChildren,
                                                  MenuBlacklistMode::excludeSelfAndChildren};

const char* rawValue(MenuBlacklistMode mode);

/// Hides menu items from the palette; they stay in the application's own menu.
struct MenuBlacklistRule {
    Text id;                      ///< A random UUID.
    std::optional<Text> appScope; ///< Bundle identifier; absent: every application.
    std::vector<Text> targetPath; ///< Titles from the top-level menu down.
    MenuBlacklistMode mode = MenuBlacklistMode::excludeSelf;

    friend bool operator==(const MenuBlacklistRule&, const MenuBlacklistRule&) = default;
};

/// Extra search names of one menu command.
struct MenuCommandAliasRule {
    /// Bundle identifier. Matched by exact equality: a rule without a scope applies only while the
    /// application's bundle identifier is unknown.
    std::optional<Text> appScope;
    std::vector<Text> targetPath;
    std::vector<Text> aliases; ///< Trimmed, not empty, and different in more than case.

    /// The scope ("global" when absent), ":", and the path joined with U+001F.
    [[nodiscard]] Text id() const;

    friend bool operator==(const MenuCommandAliasRule&, const MenuCommandAliasRule&) = default;
};

json::Value toJson(AppBehaviorRule rule);
json::Value toJson(const AppBehaviorSetting& setting);
json::Value toJson(const MenuBlacklistRule& rule);
json::Value toJson(const MenuCommandAliasRule& rule);

/// The decoders throw json::DecodeError.
AppBehaviorRule appBehaviorRuleFrom(const json::Value& value);
AppBehaviorSetting appBehaviorSettingFrom(const json::Value& value);
MenuBlacklistRule menuBlacklistRuleFrom(const json::Value& value);
MenuCommandAliasRule menuCommandAliasRuleFrom(const json::Value& value);

} // namespace tovrel
