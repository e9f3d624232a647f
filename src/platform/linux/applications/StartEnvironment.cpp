#include "platform/linux/applications/StartEnvironment.h"

#include <fstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace tovrel {
namespace {

/// Reads the kernel's copy of the environment, which setting a variable does not change.
std::vector<std::string> variablesAtStart() {
    std::vector<std::string> variables;
    std::ifstream file("/proc/self/environ", std::ios::binary);
    for (std::string variable; std::getline(file, variable, '\0');) {
        variables.push_back(variable);
    }
    if (!file.is_open()) {
        for (char* const* variable = environ; *variable != nullptr; ++variable) {
            variables.emplace_back(*variable);
        }
    }
    return variables;
}

} // namespace

ExecTexts startEnvironment() {
    std::vector<std::string> variables = variablesAtStart();
    std::erase_if(variables, [](const std::string& variable) {
        return variable.starts_with("DESKTOP_STARTUP_ID=") || variable.starts_with("XDG_ACTIVATION_TOKEN=");
    });
    return ExecTexts(std::move(variables));
}

} // namespace tovrel
