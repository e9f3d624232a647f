#include "platform/linux/applications/DesktopEntryFile.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tovrel {
namespace {

std::string_view trimmedSpaces(std::string_view text) {
    constexpr std::string_view spaces = " \t\r";
    const std::size_t start = text.find_first_not_of(spaces);
    return start == std::string_view::npos ? std::string_view()
                                           : text.substr(start, text.find_last_not_of(spaces) - start + 1);
}

/// Replaces the escapes of string values; an unknown escape stands for itself.
std::string unescaped(std::string_view value) {
    std::string plain;
    for (std::size_t index = 0; index < value.size(); ++index) {
        constexpr std::string_view escapes = "sntr\\";
        constexpr std::string_view characters = " \n\t\r\\";
        const std::size_t escape = value[index] == '\\' && index + 1 < value.size()
                                       ? escapes.find(value[index + 1])
                                       : std::string_view::npos;
        if (escape != std::string_view::npos) {
            plain += characters[escape];
            ++index;
        } else {
            plain += value[index];
        }
    }
    return plain;
}

/// The elements of a list value; "\;" stands for a semicolon within an element.
std::vector<std::string> listFrom(std::string_view value) {
    std::vector<std::string> elements;
    std::string element;
    const auto finish = [&] {
        if (!element.empty()) {
            elements.push_back(unescaped(std::exchange(element, {})));
        }
    };
    for (std::size_t index = 0; index < value.size(); ++index) {
        if (value[index] == ';') {
            finish();
        } else if (value[index] == '\\' && index + 1 < value.size()) {
            element += value[++index] == ';' ? ";" : value.substr(index - 1, 2);
        } else {
            element += value[index];
        }
    }
    finish();
    return elements;
}

/// The tags under which a localized value is looked up, the best first; the encoding is ignored.
std::vector<std::string> localeTags(std::string_view locale) {
    const std::size_t at = locale.find('@');
    const std::string modifier(at == std::string_view::npos ? "" : locale.substr(at));
    const std::string_view plain = locale.substr(0, std::min(locale.find('.'), at));
    const std::string language(plain.substr(0, plain.find('_')));
    std::vector<std::string> tags{std::string(plain) + modifier, std::string(plain), language + modifier,
                                  language};
    std::erase_if(tags, [](const std::string& tag) { return tag.empty() || tag == "C" || tag == "POSIX"; });
    return tags;
}

/// The arguments of an Exec line; quotes keep spaces together.
std::vector<std::string> arguments(std::string_view exec) {
    std::vector<std::string> found;
    std::string current;
    bool isQuoted = false;
    bool isStarted = false;
    for (std::size_t index = 0; index < exec.size(); ++index) {
        const char byte = exec[index];
        if (byte == '"') {
            isQuoted = !isQuoted;
            isStarted = true;
        } else if (isQuoted && byte == '\\' && index + 1 < exec.size()) {
            current += exec[++index];
        } else if (byte == ' ' && !isQuoted) {
            if (isStarted) {
                found.push_back(std::exchange(current, {}));
            }
            isStarted = false;
        } else {
            current += byte;
            isStarted = true;
        }
    }
    if (isStarted) {
        found.push_back(current);
    }
    // The line may start the program through env, with variables of its own.
    if (!found.empty() && found.front().substr(found.front().rfind('/') + 1) == "env") {
        found.erase(found.begin(), std::find_if(found.begin() + 1, found.end(), [](const std::string& word) {
                        return word.find('=') == std::string::npos;
                    }));
    }
    return found;
}

} // namespace

std::optional<DesktopEntry> parseDesktopEntry(std::string_view text, std::string_view locale) {
    const std::vector<std::string> tags = localeTags(locale);
    DesktopEntry entry;
    bool isApplication = false;
    bool isInGroup = false;
    std::size_t nameRank = tags.size() + 1; // A name without a tag has tags.size().
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = trimmedSpaces(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.starts_with('[')) {
            if (isInGroup) {
                break; // Only the first group of this name counts; actions follow.
            }
            isInGroup = line == "[Desktop Entry]";
            continue;
        }
        const std::size_t equals = line.find('=');
        if (!isInGroup || line.starts_with('#') || equals == std::string_view::npos) {
            continue;
        }
        const std::string_view key = trimmedSpaces(line.substr(0, equals));
        const std::string_view value = trimmedSpaces(line.substr(equals + 1));
        if (key == "Type") {
            isApplication = value == "Application";
        } else if (key == "Icon") {
            entry.icon = unescaped(value);
        } else if (key == "StartupWMClass") {
            entry.startupWMClass = unescaped(value);
        } else if (key == "Exec") {
            entry.exec = unescaped(value);
        } else if (key == "TryExec") {
            entry.tryExec = unescaped(value);
        } else if (key == "OnlyShowIn") {
            entry.onlyShowIn = listFrom(value);
        } else if (key == "NotShowIn") {
            entry.notShowIn = listFrom(value);
        } else if (key == "Terminal") {
            entry.terminal = value == "true";
        } else if (key == "NoDisplay") {
            entry.noDisplay = value == "true";
        } else if (key == "Hidden") {
            entry.hidden = value == "true";
        } else if (key == "Name" || (key.starts_with("Name[") && key.ends_with(']'))) {
            const auto tag = key == "Name"
                                 ? tags.end()
                                 : std::find(tags.begin(), tags.end(), key.substr(5, key.size() - 6));
            const auto rank = static_cast<std::size_t>(tag - tags.begin());
            if (rank < nameRank && (key == "Name" || tag != tags.end())) {
                nameRank = rank;
                entry.name = Text(unescaped(value));
            }
        }
    }
    const bool isUsable = entry.hidden || (isApplication && !entry.name.empty());
    return isUsable ? std::optional(std::move(entry)) : std::nullopt;
}

std::string executableName(std::string_view exec) {
    const std::vector<std::string> words = arguments(exec);
    return words.empty() ? "" : words.front().substr(words.front().rfind('/') + 1);
}

bool hasOwnArguments(std::string_view exec) {
    const std::vector<std::string> words = arguments(exec);
    return std::any_of(words.begin() + (words.empty() ? 0 : 1), words.end(),
                       [](const std::string& word) { return !word.starts_with('%'); });
}

} // namespace tovrel
