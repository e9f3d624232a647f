#include "app/verbs/Verbs.h"

#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "app/Program.h"
#include "app/terminal/Failure.h"
#include "model/Command.h"
#include "platform/memory/MemoryAccessibility.h"
#include "platform/memory/MemoryApplication.h"
#include "platform/memory/MemoryElement.h"
#include "platform/memory/MemoryPreferencesDomain.h"
#include "support/Json.h"
#include "support/PrintableText.h"

namespace tovrel {
namespace {

using testing::HasSubstr;
using Attributes = MemoryElement::Attributes;
using Element = MemoryElement::Element;
using Elements = std::vector<Element>;

std::shared_ptr<MemoryElement> element(const char* title, Attributes attributes = {}) {
    attributes.emplace("AXTitle", Text(title));
    return std::make_shared<MemoryElement>(std::move(attributes));
}

/// An editor that runs in memory, and the verbs over it.
class Verbs : public testing::Test {
  protected:
    void SetUp() override {
        const auto container = std::make_shared<MemoryElement>();
        container->set("AXChildren",
                       Elements{element("Save", {{"AXMenuItemCmdChar", Text("s")}}), save_, disabled_,
                                element("Wrap\x1b[31m", {{"AXMenuItemMarkChar", Text("✓")}})});
        menuBar_->set("AXChildren", Elements{element("File", {{"AXChildren", Elements{container}}}),
                                             element("Ausgeführt", {{"AXChildren", Elements{}}})});
        const auto root = std::make_shared<MemoryElement>(Attributes{{"AXMenuBar", Element(menuBar_)}});
        accessibility_->setApplicationElement(42, root);
        preferences_.set("customCommands", PreferenceData{R"([{"id":"1","title":"Saver","kind":"open",
            "payload":"x","aliases":[],"isEnabled":true}])"});
    }

    using Verb = int (*)(const verbs::Context&);

    /// Runs the verb and returns the exit status.
    int run(Verb verb, const command_line::Invocation& invocation) {
        output_.str("");
        error_.str("");
        const Console console{input_, output_, error_, {}};
        return verb({invocation, console, source_, preferences_, textServices_});
    }

    std::string failureOfPress(const char* id) {
        command_line::Invocation invocation;
        invocation.commandID = id;
        try {
            run(verbs::press, invocation);
        } catch (const Failure& failure) {
            return failure.what();
        }
        return "pressed";
    }

    std::shared_ptr<MemoryElement> save_ =
        element("Save As…", {{"AXMenuItemCmdChar", Text("s")}, {"AXMenuItemCmdModifiers", std::int64_t{1}}});
    std::shared_ptr<MemoryElement> disabled_ = element("Revert", {{"AXEnabled", false}});
    std::shared_ptr<MemoryElement> menuBar_ = std::make_shared<MemoryElement>();
    std::shared_ptr<MemoryAccessibility> accessibility_ = std::make_shared<MemoryAccessibility>();
    MenuSource source_{
        .application = std::make_shared<MemoryApplication>(42, Text("org.example.Editor"), Text("Editor")),
        .accessibility = accessibility_,
        .isRecording = false,
        .shortfall = nullptr,
        .bringToFront = nullptr};
    MemoryPreferencesDomain preferences_;
    TextServices textServices_{"en"};
    std::istringstream input_;
    std::ostringstream output_;
    std::ostringstream error_;
};

TEST_F(Verbs, MenusForPeopleAndAsJson) {
    EXPECT_EQ(run(verbs::menus, {}), 0);
    EXPECT_EQ(output_.str(), "   File\n"
                             "     Save       Ctrl+S\n"
                             "     Save As…   Ctrl+Shift+S\n"
                             "     Revert                   (disabled)\n"
                             "✓    Wrap␛[31m\n"
                             "   Ausgeführt\n");
    command_line::Invocation invocation;
    invocation.asJson = true;
    EXPECT_EQ(run(verbs::menus, invocation), 0);
    const json::Value tree = json::parse(output_.str());
    ASSERT_EQ(tree.size(), 2U);
    const json::Value& container = tree[0]["children"][0];
    EXPECT_EQ(container["title"], "");
    EXPECT_EQ(container["menuPath"], json::Value::array({"File"}));
    EXPECT_FALSE(container.contains("shortcut"));
    EXPECT_EQ(container["children"][1], json::parse(R"({"id":"File\u001fSave As…","title":"Save As…",
        "menuPath":["File","Save As…"],"shortcut":"⌘⇧S","isEnabled":true,"isChecked":false,"children":[]})"));
    EXPECT_EQ(container["children"][2]["isEnabled"], false);
    EXPECT_EQ(container["children"][3]["isChecked"], true);
}

TEST_F(Verbs, CommandsListsMenuItemsThenCustomCommands) {
    EXPECT_EQ(run(verbs::commands, {}), 0);
    EXPECT_EQ(output_.str(), "   File › Save       Ctrl+S\n"
                             "   File › Save As…   Ctrl+Shift+S\n"
                             "   File › Revert                   (disabled)\n"
                             "✓  File › Wrap␛[31m\n"
                             "   Saver (Open)\n");
    command_line::Invocation invocation;
    invocation.asJson = true;
    EXPECT_EQ(run(verbs::commands, invocation), 0);
    const json::Value commands = json::parse(output_.str());
    ASSERT_EQ(commands.size(), 5U);
    EXPECT_EQ(commandFrom(commands[1]).id, "menu:org.example.Editor:File/Save As…");
    EXPECT_EQ(commandFrom(commands[3]).title, "Wrap\x1b[31m");
}

TEST_F(Verbs, SearchPrintsAListForEachQuery) {
    command_line::Invocation invocation;
    invocation.queries = {"save"};
    EXPECT_EQ(run(verbs::search, invocation), 0);
    EXPECT_EQ(output_.str(), "File › Save      Ctrl+S\nFile › Save As…  Ctrl+Shift+S\nSaver (Open)\n");

    invocation.showsIDs = true;
    invocation.limit = 1;
    EXPECT_EQ(run(verbs::search, invocation), 0);
    EXPECT_EQ(output_.str(), "File › Save  Ctrl+S  menu:org.example.Editor:File/Save\n");
    invocation.showsIDs = false;

    invocation.queries = {"save", "", "qqq\n"};
    invocation.limit = 2;
    EXPECT_EQ(run(verbs::search, invocation), 0);
    EXPECT_EQ(output_.str(), "\"save\":\nFile › Save      Ctrl+S\nFile › Save As…  Ctrl+Shift+S\n\n"
                             "\"\":\nSaver (Open)\nFile › Save   Ctrl+S\n\n"
                             "\"qqq␊\":\nnothing found\n");

    invocation.asJson = true;
    EXPECT_EQ(run(verbs::search, invocation), 0);
    const json::Value lists = json::parse(output_.str());
    ASSERT_EQ(lists.size(), 3U);
    EXPECT_EQ(lists[0].size(), 2U);
    EXPECT_EQ(lists[0][0]["score"], 900);
    EXPECT_EQ(commandFrom(lists[0][0]["command"]).title, "Save");
    EXPECT_EQ(lists[2], json::Value::array());

    invocation.queries = {"save"};
    invocation.limit = 0;
    EXPECT_EQ(run(verbs::search, invocation), 0);
    EXPECT_EQ(output_.str(), "[[]]\n");
}

TEST_F(Verbs, NoVerbLetsATitleControlTheTerminal) {
    const Text title = "Evil\u009B31m\u202E\u061C\x7F";
    menuBar_->set("AXChildren",
                  Elements{element("File", {{"AXChildren", Elements{element(title.utf8().c_str())}}})});
    command_line::Invocation invocation;
    invocation.queries = {"evil"};
    for (const Verb verb : {verbs::menus, verbs::commands, verbs::search, verbs::record}) {
        invocation.asJson = false;
        EXPECT_EQ(run(verb, invocation), 0);
        EXPECT_EQ(printableLines(output_.str()), output_.str());
        EXPECT_THAT(output_.str(), HasSubstr("Evil"));
        invocation.asJson = true;
        EXPECT_EQ(run(verb, invocation), 0);
        EXPECT_EQ(printableLines(output_.str()), output_.str());
        EXPECT_THAT(json::parse(output_.str()).dump(), HasSubstr(title.utf8()));
    }
}

TEST_F(Verbs, AReadThatFellShortIsReportedBesideWhatArrived) {
    source_.shortfall = [] { return MenuReadShortfall{.reason = "Editor\n did not answer within 0.3 s"}; };
    EXPECT_EQ(run(verbs::menus, {}), 0);
    EXPECT_THAT(output_.str(), HasSubstr("Save As"));
    EXPECT_EQ(error_.str(),
              "tovrel: Editor␊ did not answer within 0.3 s; showing the 7 items read before that\n");

    menuBar_->set("AXChildren", Elements{});
    command_line::Invocation invocation;
    invocation.asJson = true;
    EXPECT_EQ(run(verbs::menus, invocation), 1);
    EXPECT_EQ(output_.str(), "[]\n");
    EXPECT_THAT(error_.str(), HasSubstr("showing the 0 items read before that\n"));
    EXPECT_EQ(run(verbs::commands, {}), 1); // the custom command does not come from the application
    EXPECT_EQ(output_.str(), "Saver (Open)\n");
    EXPECT_THROW(run(verbs::record, {}), Failure);

    source_.shortfall = [] {
        return MenuReadShortfall{.reason = "Editor shows no menu bar", .wasCutShort = false};
    };
    EXPECT_EQ(run(verbs::menus, {}), 1);
    EXPECT_EQ(error_.str(), "tovrel: Editor shows no menu bar\n");
    source_.shortfall = [] { return std::nullopt; };
    EXPECT_EQ(run(verbs::menus, {}), 0); // the menus were read, and are empty
    EXPECT_EQ(error_.str(), "");
}

TEST_F(Verbs, PressPressesTheItemOrSaysWhyNot) {
    EXPECT_EQ(failureOfPress("menu:org.example.Editor:File/Save As…"), "pressed");
    EXPECT_EQ(save_->performedActions(), std::vector<std::string>{"AXPress"});
    EXPECT_THAT(failureOfPress("menu:org.example.Editor:File/Revert"), HasSubstr("is disabled"));
    EXPECT_TRUE(disabled_->performedActions().empty());
    EXPECT_EQ(failureOfPress("menu:org.example.Editor:File"),
              "no command has the id \"menu:org.example.Editor:File\"");
    EXPECT_THAT(failureOfPress("custom:1"), HasSubstr("custom command"));
    save_->setAcceptsActions(false);
    EXPECT_THAT(failureOfPress("menu:org.example.Editor:File/Save As…"), HasSubstr("did not accept"));
    source_.shortfall = [] { return MenuReadShortfall{.reason = "Editor left"}; };
    EXPECT_EQ(failureOfPress("menu:x"), "no command has the id \"menu:x\"; Editor left");
    source_.isRecording = true;
    EXPECT_THAT(failureOfPress("menu:org.example.Editor:File/Save As…"), HasSubstr("nothing to press"));
    EXPECT_EQ(save_->performedActions().size(), 2U);
}

TEST_F(Verbs, ARecordingGivesTheSameResultsAsTheApplication) {
    command_line::Invocation invocation;
    invocation.asJson = true;
    invocation.queries = {"save", "", "ausge", "s", "zzz", "wrap"};
    preferences_.remove("customCommands");
    ASSERT_EQ(run(verbs::record, {}), 0);
    const std::string recorded = output_.str();
    ASSERT_EQ(run(verbs::search, invocation), 0);
    const std::string searched = output_.str();
    ASSERT_EQ(run(verbs::menus, invocation), 0);
    const std::string menus = output_.str();
    ASSERT_EQ(run(verbs::commands, invocation), 0);
    const std::string commands = output_.str();

    const auto fromRecording = [&recorded](std::vector<const char*> arguments) {
        std::istringstream input(recorded);
        std::ostringstream output;
        std::ostringstream error;
        arguments.insert(arguments.begin(), "tovrel");
        arguments.insert(arguments.end(), {"--recording", "-", "--json", "--locale", "en", "--preferences",
                                           "/nonexistent/preferences.sqlite"});
        EXPECT_EQ(runProgram(static_cast<int>(arguments.size()), arguments.data(), {input, output, error, {}},
                             nullptr),
                  0)
            << error.str();
        return output.str();
    };
    EXPECT_EQ(fromRecording({"search", "save", "", "ausge", "s", "zzz", "wrap"}), searched);
    EXPECT_EQ(fromRecording({"menus"}), menus);
    EXPECT_EQ(fromRecording({"commands"}), commands);
    EXPECT_EQ(fromRecording({"record"}), recorded);
}

} // namespace
} // namespace tovrel
