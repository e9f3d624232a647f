#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/preferences/SqlitePreferencesDomain.h"
#include "support/TemporaryDirectory.h"

namespace tovrel {

/// A preferences file in a directory of its own, and the lines that domains on it reported.
class PreferencesFixture : public testing::Test {
  protected:
    [[nodiscard]] const std::filesystem::path& directory() const { return directory_.path(); }
    [[nodiscard]] std::filesystem::path file() const { return directory() / "preferences.sqlite"; }

    [[nodiscard]] SqlitePreferencesDomain makeDomain() {
        return SqlitePreferencesDomain(file(), [this](const std::string& line) { reports.push_back(line); });
    }

    void writeFile(const std::string& bytes) const { std::ofstream(file(), std::ios::binary) << bytes; }

    static std::string bytesOf(const std::filesystem::path& path) {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    /// Everything in the directory but the preferences file: journals and set-aside files.
    [[nodiscard]] std::vector<std::filesystem::path> otherFiles() const {
        std::vector<std::filesystem::path> files;
        for (const auto& entry : std::filesystem::directory_iterator(directory())) {
            if (entry.path() != file()) {
                files.push_back(entry.path());
            }
        }
        std::sort(files.begin(), files.end());
        return files;
    }

    std::vector<std::string> reports; // NOLINT(*-non-private-member-variables-in-classes)

  private:
    testing_support::TemporaryDirectory directory_;
};

} // namespace tovrel
