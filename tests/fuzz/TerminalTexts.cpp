// Prints a text of any bytes to a terminal, in a table and in JSON.

#include <sstream>

#include <nlohmann/json.hpp>

#include "app/terminal/ErrorLine.h"
#include "app/terminal/Table.h"
#include "fuzz/Fuzzing.h"
#include "menus/ShortcutNames.h"
#include "support/Json.h"
#include "support/PrintableText.h"
#include "support/Utf8.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tovrel;
    using fuzzing::require;
    const std::string text(fuzzing::textOf(data, size));
    const std::string shown = printable(text);
    require(isWellFormedUtf8(shown) && printable(shown) == shown, "a printable text stays as it is");
    require(shown.find('\n') == std::string::npos, "a printable text is one line");

    const json::Value value{{text.size() % 2 == 0 ? "text" : Text(text).utf8(), Text(text).utf8()}};
    const std::string json = printableJson(json::dump(value));
    require(printable(json) == json, "JSON is printable");
    require(json::parse(json) == value, "JSON holds the same text");

    static_cast<void>(shortcutWithKeyNames(Text(text)));
    for (const std::size_t width : {std::size_t{1}, std::size_t{7}, std::size_t{30}}) {
        for (const auto side : {terminal_text::ElideAt::start, terminal_text::ElideAt::end}) {
            require(terminal_text::displayWidth(terminal_text::elided(shown, width, side)) <= width,
                    "an elided text fits");
        }
        std::ostringstream out;
        printTable(out, {{.cells = {text, "x", text}}, {.cells = {"", text}, .isDimmed = true}}, {.index = 1},
                   {.isTerminal = true, .hasColour = false, .width = width});
        require(printableLines(out.str()) == out.str(), "a table is printable");
    }
    std::ostringstream error;
    printErrorLine(error, text);
    require(error.str().find('\n') + 1 == error.str().size(), "an error is one line");
    return 0;
}
