#pragma once

#include <optional>

#include "model/CustomCommand.h"
#include "support/Text.h"

namespace tovrel {

/// A custom command while the user edits it, as typed.
struct CustomCommandForm {
    Text title;
    CustomCommandKind kind = CustomCommandKind::open;
    Text payload;
    Text aliases; ///< Separated by commas.
    bool usesCurrentApp = false;
    bool isEnabled = true;
    std::optional<Text> editingID; ///< The command that is being edited; absent for a new one.

    friend bool operator==(const CustomCommandForm&, const CustomCommandForm&) = default;
};

} // namespace tovrel
