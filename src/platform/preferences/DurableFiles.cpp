#include "platform/preferences/DurableFiles.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <string>
#include <system_error>

#include <sys/stat.h>

#include "platform/posix/FileDescriptor.h"

namespace tovrel::files {
namespace {

/// The suffixes of the files that SQLite keeps beside a database. These files are moved before the database
/// itself, because a new database must never meet the journal of an old one, even if the process is killed
/// half-way.
constexpr std::array journalSuffixes{"-journal", "-wal", "-shm"};

[[noreturn]] void throwSystemError() {
    throw std::system_error(errno, std::generic_category());
}

std::filesystem::path withSuffix(std::filesystem::path path, const std::string& suffix) {
    path += suffix;
    return path;
}

bool isTaken(const std::filesystem::path& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0 || errno != ENOENT;
}

bool isFree(const std::filesystem::path& name) {
    for (const char* suffix : journalSuffixes) {
        if (isTaken(withSuffix(name, suffix))) {
            return false;
        }
    }
    return !isTaken(name);
}

std::string timeStamp() {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    gmtime_r(&now, &parts);
    std::array<char, sizeof "20260131T120000Z"> text{};
    static_cast<void>(std::strftime(text.data(), text.size(), "%Y%m%dT%H%M%SZ", &parts));
    return text.data();
}

std::filesystem::path freeNameFor(const std::filesystem::path& database) {
    const std::filesystem::path name = withSuffix(database, ".damaged-" + timeStamp());
    std::filesystem::path candidate = name;
    for (int number = 2; !isFree(candidate); ++number) {
        candidate = withSuffix(withSuffix(name, "."), std::to_string(number));
    }
    return candidate;
}

void renameWithoutReplacing(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return;
    }
    // Network file systems do not support the flag. The name was free a moment ago, and the directory is
    // locked.
    if ((errno != EINVAL && errno != ENOSYS) || std::rename(from.c_str(), to.c_str()) != 0) {
        throwSystemError();
    }
}

} // namespace

void syncDirectory(const std::filesystem::path& directory) {
    const FileDescriptor descriptor(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // Some file systems cannot synchronise a directory and return EINVAL; nothing more can be done there.
    if (!descriptor.isOpen() || (fsync(descriptor.get()) != 0 && errno != EINVAL)) {
        throwSystemError();
    }
}

void createPrivateDirectory(const std::filesystem::path& directory) {
    std::error_code ignored;
    if (std::filesystem::is_directory(directory, ignored)) {
        return;
    }
    const std::filesystem::path parent = directory.parent_path();
    if (parent != directory && !parent.empty()) {
        createPrivateDirectory(parent);
    }
    if (mkdir(directory.c_str(), S_IRWXU) == 0) {
        syncDirectory(parent);
    } else if (errno != EEXIST) {
        throwSystemError();
    }
}

void createPrivateFile(const std::filesystem::path& file) {
    const FileDescriptor descriptor(open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!descriptor.isOpen()) {
        throwSystemError();
    }
    syncDirectory(file.parent_path());
}

std::filesystem::path setAside(const std::filesystem::path& database) {
    std::filesystem::path name = freeNameFor(database);
    for (const char* suffix : journalSuffixes) {
        const std::filesystem::path journal = withSuffix(database, suffix);
        if (isTaken(journal)) {
            renameWithoutReplacing(journal, withSuffix(name, suffix));
        }
    }
    renameWithoutReplacing(database, name);
    syncDirectory(database.parent_path());
    return name;
}

} // namespace tovrel::files
