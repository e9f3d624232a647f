#include "app/coordinator/CommandFailureForPeople.h"

#include <string>
#include <system_error>
#include <variant>

namespace tovrel {
namespace {

struct Sentence {
    const LocalizedString& localized;

    std::optional<Text> operator()(std::monostate /*success*/) const { return std::nullopt; }
    std::optional<Text> operator()(const InvalidOpenPayload& /*empty*/) const {
        return localized("CommandFailure", "There is nothing to open.");
    }
    std::optional<Text> operator()(const ProcessFailed& failed) const {
        const Text format = failed.isSignal ? localized("CommandFailure", "It was ended by signal %@.")
                                            : localized("CommandFailure", "It ended with status %@.");
        return filled(format, std::to_string(failed.status));
    }
    std::optional<Text> operator()(const LaunchFailure& failure) const {
        return filled(
            filled(localized("CommandFailure", "%@ could not be started: %@."), failure.executablePath),
            std::generic_category().message(failure.error));
    }
};

} // namespace

std::optional<Text> commandFailureForPeople(const CommandExecutionResult& result,
                                            const LocalizedString& localized) {
    return std::visit(Sentence{localized}, result);
}

} // namespace tovrel
