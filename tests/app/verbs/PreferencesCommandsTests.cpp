#include "app/verbs/PreferencesCommands.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "app/verbs/PreferenceValueJson.h"
#include "platform/memory/MemoryPreferencesDomain.h"
#include "stores/FailingPreferencesDomain.h"

namespace tovrel {
namespace {

namespace commands = preferences_commands;
using testing::HasSubstr;

const std::string notUtf8("\xFF\0\n\xC3", 4);

class PreferencesCommands : public testing::Test {
  protected:
    /// The output of a command, which must succeed and print no error.
    template <typename Command>
    std::string outputOf(const Command& command) {
        std::ostringstream out;
        std::ostringstream error;
        EXPECT_EQ(command(out, error), 0);
        EXPECT_EQ(error.str(), "");
        return out.str();
    }

    /// The error line of a command, which must fail with the status.
    template <typename Command>
    std::string failureOf(int status, const Command& command) {
        std::ostringstream error;
        EXPECT_EQ(command(error), status);
        std::string line = error.str();
        EXPECT_EQ(std::count(line.begin(), line.end(), '\n'), 1) << line;
        return line;
    }

    std::string read(const std::string& key, bool asJson = false) {
        return outputOf([&](std::ostream& out, std::ostream& error) {
            return commands::read(
                domain, key, asJson ? commands::ValueForm::json : commands::ValueForm::plain, out, error);
        });
    }

    int write(const std::string& key, const commands::NewValue& value) {
        std::ostringstream error;
        const int status = commands::write(domain, key, value, error);
        EXPECT_EQ(error.str().empty(), status == 0);
        return status;
    }

    std::string exported() {
        return outputOf(
            [&](std::ostream& out, std::ostream& error) { return commands::exportAll(domain, out, error); });
    }

    MemoryPreferencesDomain domain;
};

TEST_F(PreferencesCommands, WriteStoresExactlyOneCheckedValue) {
    EXPECT_EQ(write("json", {.json = " {\"b\": 1, \"a\": [\"\u00e9\"]}\n"}), 0);
    EXPECT_EQ(dataValue(domain, "json"), " {\"b\": 1, \"a\": [\"\u00e9\"]}\n"); // as given
    EXPECT_EQ(write("fragment", {.json = "\"auto\""}), 0);
    EXPECT_EQ(write("string", {.string = ""}), 0);
    EXPECT_EQ(write("boolean", {.boolean = "false"}), 0);
    EXPECT_EQ(write("data", {.data = notUtf8}), 0);
    EXPECT_EQ(domain.value("string"), PreferenceValue(Text("")));
    EXPECT_EQ(domain.value("boolean"), PreferenceValue(false));
    EXPECT_EQ(dataValue(domain, "data"), notUtf8);

    const std::uint64_t revision = domain.revision();
    EXPECT_EQ(write("json", {}), 2);
    EXPECT_EQ(write("json", {.json = "1", .string = "1"}), 2);
    EXPECT_EQ(write("json", {.boolean = "yes"}), 2);
    for (const char* invalid : {"", "{", "{} x", "nul", "\"\xFF\"", "{'a': 1}"}) {
        EXPECT_EQ(write("json", {.json = invalid}), 1) << invalid;
    }
    EXPECT_EQ(write("json", {.json = std::string(100'000, '[')}), 1);
    EXPECT_EQ(write("string", {.string = notUtf8}), 1);
    EXPECT_EQ(write(notUtf8, {.boolean = "true"}), 1);
    EXPECT_EQ(domain.revision(), revision);
}

TEST_F(PreferencesCommands, ReadPrintsTextBytesOrJson) {
    domain.setAll({{"data", PreferenceData{notUtf8}},
                   {"json", PreferenceData{R"({"a": 1})"}},
                   {"string", Text("E\u0301 \"x\"")},
                   {"boolean", true}});
    EXPECT_EQ(read("data"), notUtf8);
    EXPECT_EQ(read("json"), R"({"a": 1})");
    EXPECT_EQ(read("string"), "E\u0301 \"x\"\n");
    EXPECT_EQ(read("boolean"), "true\n");
    EXPECT_EQ(read("data", true), R"({"encoding":"base64","type":"data","value":"/wAKww=="})"
                                  "\n");
    EXPECT_EQ(read("json", true), R"({"type":"data","value":"{\"a\": 1}"})"
                                  "\n");
    EXPECT_EQ(read("string", true), "{\"type\":\"string\",\"value\":\"E\u0301 \\\"x\\\"\"}\n");
    EXPECT_EQ(read("boolean", true), R"({"type":"boolean","value":true})"
                                     "\n");

    domain.set("hostile", PreferenceData{"[\n\"\u009B\u202E\"\n]"});
    EXPECT_EQ(outputOf([&](std::ostream& shown, std::ostream& error) {
                  return commands::read(domain, "hostile", commands::ValueForm::terminal, shown, error);
              }),
              "[\n\"\uFFFD\uFFFD\"\n]");

    std::ostringstream out;
    const auto readMissing = [&](std::ostream& error) {
        return commands::read(domain, "a\nb", commands::ValueForm::plain, out, error);
    };
    EXPECT_THAT(failureOf(1, readMissing), HasSubstr(R"("a\nb")"));
    EXPECT_EQ(out.str(), "");

    std::ofstream full("/dev/full");
    EXPECT_THAT(failureOf(1,
                          [&](std::ostream& error) {
                              return commands::read(domain, "json", commands::ValueForm::json, full, error);
                          }),
                HasSubstr("output"));

    EXPECT_EQ(commands::remove(domain, "data"), 0);
    EXPECT_EQ(commands::remove(domain, "data"), 0);
    EXPECT_EQ(domain.value("data"), std::nullopt);
}

TEST_F(PreferencesCommands, ListIsAlignedOnOneLinePerKey) {
    domain.setAll({{"a", true},
                   {"\u00e9t\u00e9", PreferenceData{std::string(12345, 'x')}},
                   {"line\nbreak", Text("\u00e9")}});
    const auto list = [&](bool asJson) {
        return outputOf([&](std::ostream& out, std::ostream& error) {
            return commands::list(domain, asJson, out, error);
        });
    };
    EXPECT_EQ(list(false), "a              boolean        1\n"
                           "\"line\\nbreak\"  string         2\n"
                           "\u00e9t\u00e9            data       12345\n");
    EXPECT_EQ(json::parse(list(true)),
              json::parse("[{\"key\": \"a\", \"type\": \"boolean\", \"size\": 1},"
                          "{\"key\": \"line\\nbreak\", \"type\": \"string\", \"size\": 2},"
                          "{\"key\": \"\u00e9t\u00e9\", \"type\": \"data\", \"size\": 12345}]"));
}

TEST_F(PreferencesCommands, WhatIsExportedIsImportedWithoutLoss) {
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte) {
        everyByte += static_cast<char>(byte);
    }
    domain.setAll({{"", false},
                   {"all bytes", PreferenceData{everyByte}},
                   {"empty", PreferenceData{""}},
                   {"string", Text(std::string("a\0b", 3))},
                   {"text", PreferenceData{"{\"\u00e9\": 1}"}}});
    std::istringstream document(exported());
    MemoryPreferencesDomain copy;
    copy.setAll({{"empty", true}, {"stays", true}});
    std::ostringstream error;
    EXPECT_EQ(commands::importAll(copy, document, error), 0);
    EXPECT_EQ(copy.value("stays"), PreferenceValue(true));
    copy.remove("stays");
    EXPECT_EQ(copy.all(), domain.all());

    domain.set(notUtf8, true);
    std::ostringstream out;
    failureOf(1, [&](std::ostream& stream) { return commands::exportAll(domain, out, stream); });
    EXPECT_EQ(out.str(), "");
}

TEST_F(PreferencesCommands, AnImportWithAnyFaultChangesNothing) {
    domain.set("key", Text("kept"));
    const auto before = domain.all();
    for (const char* fault :
         {R"("key": {"type": "number", "value": 1})", R"("key": {"type": "boolean", "value": "true"})",
          R"("key": {"type": "boolean", "value": 1})", R"("key": {"type": "string"})",
          R"("key": {"value": "x"})", R"("key": {"type": "data", "value": "====", "encoding": "base64"})",
          R"("key": {"type": "data", "value": "x", "encoding": "hex"})", R"("key": "x")", R"("key": )"}) {
        std::istringstream document(R"({"a": {"type": "boolean", "value": true}, )" + std::string(fault) +
                                    "}");
        failureOf(1, [&](std::ostream& error) { return commands::importAll(domain, document, error); });
        EXPECT_EQ(domain.all(), before) << fault;
    }
    for (const char* fault : {"", "[]", "null"}) {
        std::istringstream document(fault);
        failureOf(1, [&](std::ostream& error) { return commands::importAll(domain, document, error); });
    }
}

TEST_F(PreferencesCommands, AFailureOfTheDomainIsAFailureOfTheCommand) {
    FailingPreferencesDomain failing;
    failing.refusesWrites = true;
    std::ostringstream error;
    EXPECT_EQ(commands::write(failing, "key", {.boolean = "true"}, error), 1);
    EXPECT_EQ(error.str(), ""); // the domain has said why
}

} // namespace
} // namespace tovrel
