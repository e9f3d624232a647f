#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "commands/SearchKeys.h"
#include "model/Command.h"
#include "support/TextServices.h"

/// Implements search and ranking as directly as possible, text by text and with nothing precomputed or
/// skipped. The index must agree with it.
namespace tovrel::plain {

struct Result {
    std::size_t command;
    std::int64_t score;
};

inline std::vector<std::string> candidateTexts(const Command& command) {
    const std::string path = joined(command.menuPath, " ").utf8();
    std::vector<std::string> texts{command.title.utf8()};
    if (command.subtitle) {
        texts.push_back(command.subtitle->utf8());
    }
    if (command.shortcut) {
        texts.push_back(command.shortcut->utf8());
    }
    texts.push_back(path);
    texts.push_back(path + " " + command.title.utf8());
    for (const Text& token : command.searchTokens) {
        texts.push_back(token.utf8());
    }
    return texts;
}

inline std::set<std::string> variants(const std::vector<std::string>& texts, const TextServices& services) {
    std::set<std::string> keys;
    for (const std::string& text : texts) {
        const std::string latin = services.transliteratedToLatin(text).value_or(text);
        for (const Folding folding : {Folding::byLocale, Folding::byDefault}) {
            keys.insert(normalizedKey(text, services, folding));
            keys.insert(normalizedKey(latin, services, folding));
        }
    }
    return keys;
}

inline std::optional<std::size_t> subsequenceSpan(const std::string& query, const std::string& variant,
                                                  const TextServices& services) {
    const auto wanted = services.graphemeClusters(query);
    const auto characters = services.graphemeClusters(variant);
    std::size_t next = 0;
    std::size_t start = 0;
    for (std::size_t i = 0; i < characters.size(); ++i) {
        if (characters[i] == wanted[next]) {
            start = next == 0 ? i : start;
            if (++next == wanted.size()) {
                return i - start + 1;
            }
        }
    }
    return std::nullopt;
}

inline std::int64_t tierScore(const std::string& query, const std::string& variant, bool isAlias,
                              const TextServices& services) {
    if (variant == query) {
        return isAlias ? 1000 : 900;
    }
    if (variant.starts_with(query)) {
        return isAlias ? 850 : 780;
    }
    if (variant.find(query) != std::string::npos) {
        return isAlias ? 760 : 680;
    }
    const std::size_t n = services.graphemeClusters(query).size();
    const auto span = subsequenceSpan(query, variant, services);
    if (span && *span <= std::max(static_cast<std::size_t>(2.5 * static_cast<double>(n)), n + 4)) {
        return isAlias ? 420 : 320;
    }
    return 0;
}

inline std::int64_t boostOf(const CommandRankSignals& signals) {
    return (signals.isFavorite ? 120 : 0) + std::min<std::int64_t>(8 * signals.usageCount, 80) +
           (signals.lastUsedAt ? 25 : 0);
}

inline std::vector<Result> search(const std::string& query, const std::vector<Command>& commands,
                                  const TextServices& services) {
    const std::set<std::string> queryKeys{normalizedKey(query, services, Folding::byLocale),
                                          normalizedKey(query, services, Folding::byDefault)};
    const bool isEmpty = queryKeys.begin()->empty();
    std::vector<Result> results;
    for (std::size_t i = 0; i < commands.size(); ++i) {
        const Command& command = commands[i];
        if (!command.isEnabled) {
            continue;
        }
        const std::int64_t boost = boostOf(command.rankSignals);
        if (isEmpty) {
            const std::int64_t discovery = boost + (command.source == CommandSource::custom ? 100 : 0) +
                                           (command.shortcut && !command.shortcut->empty() ? 80 : 0);
            if (discovery > 0) {
                results.push_back({i, discovery});
            }
            continue;
        }
        std::vector<std::string> aliases;
        for (const Text& alias : command.aliases) {
            aliases.push_back(alias.utf8());
        }
        std::int64_t best = 0;
        for (const std::string& variant : variants(aliases, services)) {
            for (const std::string& key : queryKeys) {
                best = std::max(best, tierScore(key, variant, true, services));
            }
        }
        for (const std::string& variant : variants(candidateTexts(command), services)) {
            for (const std::string& key : queryKeys) {
                best = std::max(best, tierScore(key, variant, false, services));
            }
        }
        if (best > 0) {
            results.push_back({i, best + boost});
        }
    }
    const auto isStrong = [](const Result& result) { return result.score >= 680; };
    if (!isEmpty && std::any_of(results.begin(), results.end(), isStrong)) {
        std::erase_if(results, [&](const Result& result) { return !isStrong(result); });
    }
    std::stable_sort(results.begin(), results.end(), [&](const Result& left, const Result& right) {
        if (left.score != right.score) {
            return left.score > right.score;
        }
        return services.isOrderedBefore(commands[left.command].title, commands[right.command].title);
    });
    if (isEmpty && results.size() > 20) {
        results.resize(20);
    }
    return results;
}

} // namespace tovrel::plain
