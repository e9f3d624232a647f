#include "app/Program.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "app/terminal/DescriptorBuffer.h"
#include "app/terminal/Failure.h"
#include "support/Json.h"

namespace tovrel {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

const std::string mousepad = TOVREL_RECORDINGS "/mousepad.json";

class Program : public testing::Test {
  protected:
    void SetUp() override {
        directory_ =
            std::filesystem::path(testing::TempDir()) / ("tovrel-program-" + std::to_string(getpid()));
        std::filesystem::create_directory(directory_);
    }
    void TearDown() override { std::filesystem::remove_all(directory_); }

    /// Runs the program with the arguments and a separate preferences database; returns the exit status.
    int run(std::vector<std::string> arguments, const std::string& input = "") {
        std::ostringstream output;
        const int status = runInto(output, std::move(arguments), input);
        output_ = output.str();
        return status;
    }

    int runInto(std::ostream& output, std::vector<std::string> arguments, const std::string& input = "") {
        const std::string preferences = directory_ / "preferences.sqlite";
        arguments.insert(arguments.begin(), {"tovrel", "--preferences", preferences});
        std::vector<const char*> pointers;
        pointers.reserve(arguments.size());
        for (const std::string& argument : arguments) {
            pointers.push_back(argument.c_str());
        }
        std::istringstream inputStream(input);
        std::ostringstream error;
        const RunResident noResident = [](const command_line::Invocation& invocation, const Console&) -> int {
            throw Failure("resident with " + invocation.preferencesFile.value_or("nothing"));
        };
        const int status = runProgram(static_cast<int>(pointers.size()), pointers.data(),
                                      {inputStream, output, error, {}}, noResident);
        error_ = error.str();
        return status;
    }

    /// Whether the program failed with the status, nothing on standard output and one line on standard error.
    testing::AssertionResult failed(int status, int expected) {
        if (status == expected && output_.empty() && error_.starts_with("tovrel: ") &&
            error_.find('\n') == error_.size() - 1) {
            return testing::AssertionSuccess();
        }
        return testing::AssertionFailure() << status << " \"" << output_ << "\" \"" << error_ << '"';
    }

    std::filesystem::path directory_;
    std::string output_;
    std::string error_;
};

TEST_F(Program, ResultsGoToStandardOutputAlone) {
    EXPECT_EQ(run({"search", "--json", "--recording", mousepad, "save as", "qqqqqqq"}), 0);
    const json::Value lists = json::parse(output_);
    ASSERT_EQ(lists.size(), 2U);
    EXPECT_EQ(lists[0][0]["command"]["id"], "menu:org.xfce.mousepad:File/Save As...");
    EXPECT_EQ(lists[0][0]["command"]["shortcut"], "⌘⇧S");
    EXPECT_EQ(lists[1], json::Value::array());
    EXPECT_EQ(error_, "");

    EXPECT_EQ(
        run({"menus", "--json", "--recording", "-"}, R"({"processIdentifier":0,"AXMenuBar":{"AXChildren":
        [{"AXTitle":"File"}]}})"),
        0);
    EXPECT_EQ(output_, "[]\n");
    EXPECT_EQ(run({"menus", "--recording", "-"}, R"({"AXMenuBar":{"AXChildren":[{"AXTitle":"File"}]}})"), 0);
    EXPECT_EQ(output_, "File\n");
    EXPECT_EQ(run({"--help"}), 0);
    EXPECT_THAT(output_, HasSubstr("search"));
}

TEST_F(Program, TheLocaleOptionDecidesWhatASearchFinds) {
    const std::string recording = R"({"AXMenuBar":{"AXChildren":[{"AXTitle":"F","AXChildren":
        [{"AXTitle":"ILIK"}]}]}})";
    EXPECT_EQ(run({"search", "ılık", "--recording", "-", "--locale", "tr"}, recording), 0);
    EXPECT_EQ(output_, "F › ILIK\n");
    EXPECT_EQ(run({"search", "ılık", "--recording", "-", "--locale", "en"}, recording), 0);
    EXPECT_EQ(output_, "nothing found\n");
}

TEST_F(Program, PreferencesChangeTheCommands) {
    const std::string rules = R"([{"id":"1","targetPath":["File"],"mode":"excludeChildren"}])";
    const std::string history =
        R"({"menu:org.xfce.mousepad:Edit/Paste":{"usageCount":3,"isFavorite":true,"lastUsedAt":1}})";
    EXPECT_EQ(run({"preferences", "write", "rules.menuBlacklistRules", "--json", rules}), 0) << error_;
    EXPECT_EQ(run({"preferences", "write", "Tovrel.commandHistory", "--json", history}), 0) << error_;
    EXPECT_EQ(run({"preferences", "read", "rules.menuBlacklistRules"}), 0);
    EXPECT_EQ(output_, rules);
    EXPECT_EQ(run({"search", "", "--limit", "1", "--json", "--recording", mousepad}), 0);
    const json::Value best = json::parse(output_)[0][0];
    EXPECT_EQ(best["command"]["title"], "Paste");
    EXPECT_EQ(best["score"], 120 + 24 + 25 + 80);
    EXPECT_EQ(run({"commands", "--recording", mousepad}), 0);
    EXPECT_THAT(output_, testing::Not(HasSubstr("File ›")));
    EXPECT_THAT(output_, HasSubstr("Edit › Undo"));
    EXPECT_EQ(run({"preferences", "export"}), 0);
    const std::string exported = output_;
    EXPECT_EQ(run({"preferences", "delete", "Tovrel.commandHistory"}), 0);
    EXPECT_EQ(run({"preferences", "import"}, exported), 0);
    EXPECT_EQ(run({"preferences", "list", "--json"}), 0);
    EXPECT_EQ(json::parse(output_).size(), 2U);
}

TEST_F(Program, FailuresAreOneLineAndAStatus) {
    EXPECT_TRUE(failed(run({"menus", "--recording", directory_ / "missing"}), 1));
    EXPECT_THAT(error_, HasSubstr("No such file or directory"));
    EXPECT_TRUE(failed(run({"menus", "--recording", directory_ / "a\nb"}), 1));
    EXPECT_TRUE(failed(run({"search", "x", "--recording", directory_}), 1)); // a directory
    EXPECT_TRUE(failed(run({"commands", "--recording", "/dev/zero"}), 1));
    EXPECT_THAT(error_, HasSubstr("larger than 64 MiB"));
    for (const std::string& document : {std::string(), std::string("[]"), std::string("{"),
                                        std::string(100'000, '['), std::string("{\"a\":\"\xFF\"}")}) {
        EXPECT_TRUE(failed(run({"record", "--recording", "-"}, document), 1)) << document.substr(0, 20);
        EXPECT_THAT(error_, StartsWith("tovrel: the recording on standard input cannot be used: "));
    }
    EXPECT_TRUE(failed(run({"press", "menu:org.xfce.mousepad:File/New", "--recording", mousepad}), 1));
    EXPECT_TRUE(failed(run({"preferences", "read", "nothing"}), 1));
    EXPECT_TRUE(failed(run({"preferences", "import"}, "{"), 1));
    EXPECT_TRUE(failed(run({"frobnicate\x1b[31m\n"}), 2));
    EXPECT_THAT(error_, HasSubstr("␛[31m␊"));
    EXPECT_TRUE(failed(run({"search", "--recording", mousepad}), 2));
    EXPECT_TRUE(failed(run({"preferences", "write", "k"}), 2));
}

TEST_F(Program, OutputThatCannotBeWrittenFails) {
    for (const char* verb : {"menus", "record"}) { // below and above the buffer's size
        const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
        ASSERT_GE(full, 0);
        DescriptorBuffer buffer(full);
        std::ostream stream(&buffer);
        stream.exceptions(std::ios::badbit);
        EXPECT_EQ(runInto(stream, {verb, "--recording", mousepad}), 1) << verb;
        EXPECT_EQ(error_, "tovrel: the output cannot be written: No space left on device\n");
        close(full);
    }
    std::ostream broken(nullptr);
    EXPECT_EQ(runInto(broken, {"commands", "--recording", mousepad}), 1);
    EXPECT_EQ(error_, "tovrel: the output cannot be written\n");
}

TEST_F(Program, AReaderThatClosesItsEndCausesNoErrorLine) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    close(ends[0]);
    const auto before = signal(SIGPIPE, SIG_IGN);
    DescriptorBuffer buffer(ends[1]);
    std::ostream stream(&buffer);
    stream.exceptions(std::ios::badbit);
    EXPECT_EQ(runInto(stream, {"commands", "--json", "--recording", mousepad}), 1);
    EXPECT_EQ(error_, "");
    EXPECT_NE(signal(SIGPIPE, before), SIG_ERR);
    close(ends[1]);
}

TEST_F(Program, EverythingThatIsWrittenArrives) {
    const std::string path = directory_ / "written";
    const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_GE(descriptor, 0);
    DescriptorBuffer buffer(descriptor);
    std::ostream stream(&buffer);
    EXPECT_EQ(runInto(stream, {"commands", "--json", "--recording", mousepad}), 0);
    close(descriptor);
    std::ifstream file(path);
    const std::string written{std::istreambuf_iterator<char>(file), {}};
    EXPECT_GT(written.size(), std::size_t{64} * 1024); // more than the buffer holds
    EXPECT_EQ(run({"commands", "--json", "--recording", mousepad}), 0);
    EXPECT_EQ(written, output_);
}

} // namespace
} // namespace tovrel
