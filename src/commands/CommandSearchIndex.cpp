#include "commands/CommandSearchIndex.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>

#include "commands/CommandKeys.h"
#include "support/CheckedMath.h"

namespace tovrel {
namespace {

std::int64_t rankBoost(const CommandRankSignals& signals) {
    const std::int64_t favorite = signals.isFavorite ? 120 : 0;
    // A stored count may be any number if the preferences are damaged.
    const std::int64_t usage = std::min<std::int64_t>(saturatingMultiply(8, signals.usageCount), 80);
    const std::int64_t used = signals.lastUsedAt ? 25 : 0;
    return saturatingAdd(usage, favorite + used);
}

std::int64_t discoveryScore(const Command& command, std::int64_t boost) {
    const std::int64_t custom = command.source == CommandSource::custom ? 100 : 0;
    const std::int64_t shortcut = command.shortcut && !command.shortcut->empty() ? 80 : 0;
    return saturatingAdd(boost, custom + shortcut);
}

/// The positions of the enabled commands, by title as the user's locale orders them; equal titles keep their
/// order.
std::vector<std::uint32_t> displayOrder(const std::vector<Command>& commands,
                                        const TextServices& textServices) {
    struct Titled {
        std::string collationKey;
        std::uint32_t position;
    };
    std::vector<Titled> titled;
    titled.reserve(commands.size());
    for (std::size_t i = 0; i < commands.size(); ++i) {
        if (commands[i].isEnabled) {
            titled.push_back({textServices.collationKey(commands[i].title), static_cast<std::uint32_t>(i)});
        }
    }
    std::stable_sort(titled.begin(), titled.end(), [](const Titled& left, const Titled& right) {
        return left.collationKey < right.collationKey;
    });
    std::vector<std::uint32_t> order;
    order.reserve(titled.size());
    for (const Titled& each : titled) {
        order.push_back(each.position);
    }
    return order;
}

} // namespace

CommandSearchIndex::CommandSearchIndex(std::vector<Command> commands, const TextServices& textServices) {
    auto contents = std::make_shared<Contents>(textServices);
    CommandKeyDeriver deriver(textServices);
    for (const std::uint32_t position : displayOrder(commands, textServices)) {
        const Command& command = commands[position];
        const std::int64_t boost = rankBoost(command.rankSignals);
        contents->entries.push_back({position, boost, discoveryScore(command, boost)});
        contents->keys.add(deriver.keysOf(command));
    }
    contents->commands = std::move(commands);
    contents_ = std::move(contents);
}

} // namespace tovrel
