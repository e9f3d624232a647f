#include "platform/linux/applications/DesktopEntries.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

#include "platform/linux/applications/XdgDirectories.h"

namespace tovrel {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view extension = ".desktop";

/// The largest file that is read. Real files have at most some 100 KiB, mostly translations.
constexpr std::uintmax_t largestFile = 1U << 20U;

std::string lowercased(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char byte) {
        return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte;
    });
    return lower;
}

std::string environmentLocale() {
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* value = std::getenv(variable); // NOLINT(concurrency-mt-unsafe): one thread
        if (value != nullptr && *value != '\0') {
            return value;
        }
    }
    return "";
}

} // namespace

DesktopEntries::DesktopEntries(std::vector<fs::path> dataDirectories, std::string locale,
                               DesktopSession session)
    : directories_(std::move(dataDirectories)), locale_(std::move(locale)), session_(std::move(session)) {
    for (fs::path& directory : directories_) {
        directory /= "applications";
    }
}

DesktopEntries DesktopEntries::ofEnvironment() {
    return {xdg::dataDirectories(), environmentLocale(), DesktopSession::ofEnvironment()};
}

const DesktopEntry* DesktopEntries::withIdentifier(std::string_view identifier) {
    listAnewIfChanged();
    const auto found = files_.find(identifier);
    return found == files_.end() ? nullptr : read(found->first, found->second);
}

const DesktopEntry* DesktopEntries::withStartupWMClass(std::string_view windowClass) {
    const std::string wanted = lowercased(windowClass);
    if (wanted.empty()) {
        return nullptr;
    }
    return first([&](const DesktopEntry& entry) { return lowercased(entry.startupWMClass) == wanted; });
}

const DesktopEntry* DesktopEntries::named(std::string_view windowClass) {
    const std::string wanted = lowercased(windowClass);
    if (wanted.empty()) {
        return nullptr;
    }
    listAnewIfChanged();
    const DesktopEntry* ending = nullptr;
    for (auto& [identifier, file] : files_) {
        const std::string lower = lowercased(identifier);
        if (lower == wanted) {
            if (const DesktopEntry* entry = read(identifier, file)) {
                return entry;
            }
        } else if (ending == nullptr && lower.ends_with("." + wanted)) {
            ending = read(identifier, file);
        }
    }
    return ending;
}

const DesktopEntry* DesktopEntries::withExecutable(std::string_view executable) {
    if (executable.empty()) {
        return nullptr;
    }
    listAnewIfChanged();
    const DesktopEntry* best = nullptr;
    int bestRank = 0;
    for (auto& [identifier, file] : files_) {
        const DesktopEntry* entry = read(identifier, file);
        if (entry == nullptr || entry->terminal || executableName(entry->exec) != executable) {
            continue;
        }
        const int rank = (isShownInMenus(*entry, session_) ? 2 : 0) + (hasOwnArguments(entry->exec) ? 0 : 1);
        if (best == nullptr || rank > bestRank) {
            best = entry;
            bestRank = rank;
        }
    }
    return best;
}

std::vector<DesktopEntry> DesktopEntries::forMenus() {
    listAnewIfChanged();
    std::vector<DesktopEntry> entries;
    for (auto& [identifier, file] : files_) {
        const DesktopEntry* entry = read(identifier, file);
        if (entry != nullptr && isShownInMenus(*entry, session_)) {
            entries.push_back(*entry);
        }
    }
    return entries;
}

void DesktopEntries::listAnewIfChanged() {
    std::vector<fs::file_time_type> changedAt;
    std::error_code error;
    std::transform(directories_.begin(), directories_.end(), std::back_inserter(changedAt),
                   [&](const fs::path& directory) { return fs::last_write_time(directory, error); });
    if (changedAt == listedAt_) {
        return;
    }
    listedAt_ = std::move(changedAt);
    files_.clear();
    for (const fs::path& directory : directories_) {
        list(directory);
    }
}

void DesktopEntries::list(const fs::path& directory) {
    std::error_code error;
    for (fs::recursive_directory_iterator position(directory, error), end; !error && position != end;
         position.increment(error)) {
        const fs::path& path = position->path();
        if (path.extension() != extension) {
            continue;
        }
        // The id of a file in a subfolder has "-" for "/". An entry hides later entries with the same id.
        std::string identifier = path.lexically_relative(directory).string();
        identifier.resize(identifier.size() - extension.size());
        std::replace(identifier.begin(), identifier.end(), '/', '-');
        files_.try_emplace(std::move(identifier), File{path, false, std::nullopt});
    }
}

const DesktopEntry* DesktopEntries::read(const std::string& identifier, File& file) {
    if (!file.isRead) {
        file.isRead = true;
        std::error_code error;
        if (fs::is_regular_file(file.path, error) && fs::file_size(file.path, error) <= largestFile) {
            std::ifstream stream(file.path, std::ios::binary);
            const std::string text{std::istreambuf_iterator<char>(stream), {}};
            file.entry = parseDesktopEntry(text, locale_);
        }
        if (file.entry) {
            file.entry->identifier = Text(identifier);
        }
    }
    return file.entry && !file.entry->hidden ? &*file.entry : nullptr;
}

const DesktopEntry* DesktopEntries::first(const std::function<bool(const DesktopEntry&)>& isWanted) {
    listAnewIfChanged();
    for (auto& [identifier, file] : files_) {
        const DesktopEntry* entry = read(identifier, file);
        if (entry != nullptr && isWanted(*entry)) {
            return entry;
        }
    }
    return nullptr;
}

} // namespace tovrel
