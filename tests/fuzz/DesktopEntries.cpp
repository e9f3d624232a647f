// Reads a desktop entry of any content, in several languages.

#include "fuzz/Fuzzing.h"
#include "platform/linux/applications/DesktopEntryFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tovrel;
    const std::string_view text = fuzzing::textOf(data, size);
    for (const char* locale : {"", "C", "de_AT.UTF-8@euro", "sr@latin"}) {
        if (const auto entry = parseDesktopEntry(text, locale)) {
            fuzzing::require(entry->hidden || !entry->name.empty(), "an entry has a name");
            const std::string program = executableName(entry->exec);
            fuzzing::require(program.find('/') == std::string::npos, "a program's name has no folder");
            static_cast<void>(hasOwnArguments(entry->exec));
        }
    }
    return 0;
}
