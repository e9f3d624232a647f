// Reads a shortcut of any spelling in the notation of each toolkit.

#include <string>

#include "fuzz/Fuzzing.h"
#include "menus/ShortcutText.h"
#include "platform/linux/menus/accessibility/AtspiKeyBinding.h"
#include "platform/linux/menus/source/MenuShortcut.h"

namespace {

using namespace tovrel;

void check(const std::optional<MenuShortcut>& shortcut, const TextServices& text) {
    if (shortcut) {
        fuzzing::require(!shortcut->character.empty(), "a shortcut has a key");
        fuzzing::require(shortcut->modifiers >= 0 && shortcut->modifiers < 16,
                         "modifiers are those there are");
        fuzzing::require(!shortcutText(shortcut->character, shortcut->modifiers, text).empty(),
                         "a text is shown");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TextServices text("en_US");
    const std::string_view written = fuzzing::textOf(data, size);
    check(shortcutOfGtkAccelerator(written), text);
    check(shortcutOfKeySequence(written), text);
    std::vector<std::string> names;
    for (std::size_t start = 0; start < written.size();) {
        const std::size_t end = std::min(written.find('\n', start), written.size());
        names.emplace_back(written.substr(start, end - start));
        start = end + 1;
    }
    check(shortcutOfKeyNames(names), text);
    const std::string_view afterTab = names.size() > 1 ? std::string_view(names.back()) : std::string_view();
    for (const AtspiToolkit toolkit : {AtspiToolkit::gtk, AtspiToolkit::qt, AtspiToolkit::other}) {
        check(menuShortcut(written, toolkit, afterTab), text);
    }
    return 0;
}
