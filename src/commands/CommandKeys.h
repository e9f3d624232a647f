#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "commands/SearchKeys.h"
#include "model/Command.h"
#include "support/TextServices.h"

namespace tovrel {

/// All keys under which a command can be found, each once within its list; none is empty.
struct CommandKeys {
    std::vector<std::string> aliasVariants; ///< The keys of its aliases.
    std::vector<std::string>
        candidateVariants; ///< The keys of its title, subtitle, shortcut, menu path and search tokens.
};

/// Derives the keys of many commands. Menu titles recur in thousands of commands, and transliteration costs
/// microseconds a word. So the keys of each distinct title are derived once. The keys of a menu path are
/// composed from its titles' keys, and those of a title in another script from its words' keys, wherever that
/// gives the same result.
class CommandKeyDeriver {
  public:
    explicit CommandKeyDeriver(const TextServices& textServices) : textServices_(&textServices) {}

    CommandKeys keysOf(const Command& command);

  private:
    /// The keys of one text.
    struct Derived {
        SearchVariants variants;
        /// Whether another text, a space and this text together have the keys of both texts end to end.
        bool isComposable = false;
    };

    const Derived& derived(std::string_view text);
    [[nodiscard]] Derived derive(std::string_view text);
    /// The keys of the texts joined with single spaces, composed from each text's keys; absent where that
    /// might not give the same.
    std::optional<Derived> composed(const std::vector<std::string_view>& texts);
    void addVariants(const Text& text, std::vector<std::string>& keys);
    /// Adds the variants of the texts joined with single spaces.
    void addJoinedVariants(const std::vector<std::string_view>& texts, std::vector<std::string>& keys);

    const TextServices* textServices_;
    std::unordered_map<std::string, Derived> derived_;
};

} // namespace tovrel
