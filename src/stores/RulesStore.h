#pragma once

#include <optional>
#include <vector>

#include "model/Rules.h"
#include "platform/PreferencesDomain.h"
#include "support/Text.h"
#include "support/TextServices.h"

namespace tovrel {

/// The user's rules for applications and their menus, each kind in one JSON document of the preferences
/// domain: "rules.appBehaviors", "rules.defaultAppBehavior", "rules.menuBlacklistRules" and
/// "rules.menuCommandAliasRules". The store is a value without data of its own, so copies on one domain
/// always agree.
///
/// Every read decodes a document, every change rewrites its whole document. A document that is absent or
/// unreadable reads as empty (the default behaviour as `enabled`), and the next change replaces it; nothing
/// is reported.
class RulesStore {
  public:
    /// The domain and the text services must outlive the store and its copies.
    RulesStore(PreferencesDomain& defaults, const TextServices& text);

    /// The behaviour of applications without their own entry.
    [[nodiscard]] AppBehaviorRule defaultBehavior() const;

    /// Sets the default; keeps the entries of single applications, even if they now equal the default.
    void setDefaultBehavior(AppBehaviorRule rule);

    /// The application's own entry, else the default.
    [[nodiscard]] AppBehaviorRule behavior(const Text& bundleID) const;

    /// Stores the entry of an application, or removes it when it equals the default.
    void setBehavior(AppBehaviorRule rule, const Text& bundleID);
    void removeBehavior(const Text& bundleID);

    /// Every entry, by bundle identifier as the user's locale orders it, ignoring case.
    [[nodiscard]] std::vector<AppBehaviorSetting> appBehaviorSettings() const;

    /// The rules in the order in which they were added.
    [[nodiscard]] std::vector<MenuBlacklistRule> menuBlacklistRules() const;

    /// Appends a rule with a fresh id, even if there is an equal one. Without a bundle identifier it applies
    /// to every application.
    void addMenuBlacklistRule(const std::optional<Text>& bundleID, const std::vector<Text>& path,
                              MenuBlacklistMode mode);
    void removeMenuBlacklistRule(const Text& id);

    /// The rules in the order in which they were last set.
    [[nodiscard]] std::vector<MenuCommandAliasRule> menuCommandAliasRules() const;

    /// Replaces the aliases of one menu command, normalised; its rule moves to the end of the list. If no
    /// alias is left, the rule is removed.
    void setMenuCommandAliases(const std::optional<Text>& bundleID, const std::vector<Text>& path,
                               const std::vector<Text>& aliases);

    /// The aliases trimmed, without empty ones; of aliases that differ only in case, only the first is kept.
    [[nodiscard]] std::vector<Text> normalizedAliases(const std::vector<Text>& aliases) const;

  private:
    PreferencesDomain& defaults_;
    const TextServices& text_;
};

} // namespace tovrel
