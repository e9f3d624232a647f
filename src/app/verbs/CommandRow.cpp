#include "app/verbs/CommandRow.h"

#include "menus/ShortcutNames.h"

namespace tovrel {
namespace {

std::string pathCell(const Command& command) {
    if (command.source == CommandSource::menu) {
        return joined(command.menuPath, " › ").utf8();
    }
    const std::string kind = command.subtitle ? " (" + command.subtitle->utf8() + ")" : "";
    return command.title.utf8() + kind;
}

} // namespace

TableRow commandRow(const Command& command, bool showsID, const OutputStyle& style) {
    return {.cells = {checkMarkCell(command.isChecked), pathCell(command), shortcutCell(command.shortcut),
                      disabledCell(command.isEnabled, style), showsID ? command.id.utf8() : ""},
            .isDimmed = !command.isEnabled};
}

std::string checkMarkCell(bool isChecked) {
    return isChecked ? "✓" : "";
}

std::string shortcutCell(const std::optional<Text>& shortcut) {
    return shortcut ? shortcutWithKeyNames(*shortcut).utf8() : "";
}

std::string disabledCell(bool isEnabled, const OutputStyle& style) {
    return isEnabled || style.hasColour ? "" : "(disabled)";
}

} // namespace tovrel
