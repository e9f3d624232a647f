#include "platform/memory/Recording.h"

#include <fstream>
#include <iterator>
#include <limits>
#include <map>

#include <gtest/gtest.h>

#include "platform/memory/MemoryApplication.h"
#include "platform/memory/MemoryElement.h"
#include "support/Json.h"

namespace tovrel::recording {
namespace {

using Element = std::shared_ptr<AccessibilityElement>;

std::vector<Element> topLevelMenus(const Recording& recorded) {
    const Element menuBar = recorded.root->element("AXMenuBar");
    return menuBar ? menuBar->elements("AXChildren").value_or(std::vector<Element>())
                   : std::vector<Element>();
}

std::string repeated(const std::string& text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

/// A menu bar whose items are nested `levels` deep.
std::string nestedMenus(int levels) {
    return R"({"AXMenuBar":)" + repeated(R"({"AXTitle":"a","AXChildren":[)", levels) + "{}" +
           repeated("]}", levels) + "}";
}

TEST(Recording, AnswersWhatItsMembersSay) {
    const Recording recorded = parse(R"({"bundleIdentifier":"org.example.Editor","localizedName":"Editor",
        "processIdentifier":1234,"comment":{"by":["someone"]},
        "AXMenuBar":{"AXChildren":[{"AXTitle":"Édition","AXEnabled":false,"AXMenuItemMarkChar":"✓",
        "AXMenuItemCmdChar":"\u001b","AXMenuItemCmdModifiers":3.0,"AXChildren":[{}]}]}})");
    EXPECT_EQ(recorded.application->bundleIdentifier(), Text("org.example.Editor"));
    EXPECT_EQ(recorded.application->localizedName(), Text("Editor"));
    EXPECT_EQ(recorded.application->processIdentifier(), 1234);
    EXPECT_FALSE(recorded.application->isTerminated());
    ASSERT_EQ(topLevelMenus(recorded).size(), 1U);
    AccessibilityElement& menu = *topLevelMenus(recorded).front();
    EXPECT_EQ(menu.string("AXTitle"), Text("Édition"));
    EXPECT_EQ(menu.boolean("AXEnabled"), false);
    EXPECT_EQ(menu.string("AXMenuItemMarkChar"), Text("✓"));
    EXPECT_EQ(menu.string("AXMenuItemCmdChar"), Text("\x1B"));
    EXPECT_EQ(menu.integer("AXMenuItemCmdModifiers"), 3);
    EXPECT_EQ(menu.elements("AXChildren")->size(), 1U);
    EXPECT_FALSE(menu.perform("AXPress"));
}

TEST(Recording, MembersOfAWrongTypeCountAsMissing) {
    const Recording wrong = parse(R"({"bundleIdentifier":5,"localizedName":["x"],"processIdentifier":"12",
        "AXMenuBar":{"AXChildren":[null,7,"File",[],
            {"AXTitle":1,"AXEnabled":1,"AXMenuItemMarkChar":true,"AXMenuItemCmdChar":{},
             "AXMenuItemCmdModifiers":true,"AXChildren":"none"},
            {"AXTitle":null,"AXEnabled":"false","AXMenuItemCmdModifiers":1.5,"AXChildren":{}}]}})");
    EXPECT_EQ(wrong.application->bundleIdentifier(), std::nullopt);
    EXPECT_EQ(wrong.application->localizedName(), std::nullopt);
    EXPECT_EQ(wrong.application->processIdentifier(), unknownProcessIdentifier);
    ASSERT_EQ(topLevelMenus(wrong).size(), 2U); // only objects are elements
    for (const Element& element : topLevelMenus(wrong)) {
        EXPECT_EQ(element->string("AXTitle"), std::nullopt);
        EXPECT_EQ(element->boolean("AXEnabled"), std::nullopt);
        EXPECT_EQ(element->string("AXMenuItemMarkChar"), std::nullopt);
        EXPECT_EQ(element->string("AXMenuItemCmdChar"), std::nullopt);
        EXPECT_EQ(element->integer("AXMenuItemCmdModifiers"), std::nullopt);
        EXPECT_EQ(element->elements("AXChildren"), std::nullopt);
    }
    for (const char* menuBar : {"[]", "null", "\"File\"", "3", "true"}) {
        EXPECT_EQ(parse(std::string(R"({"AXMenuBar":)") + menuBar + "}").root->element("AXMenuBar"), nullptr)
            << menuBar;
    }
    EXPECT_EQ(parse("{}").root->element("AXMenuBar"), nullptr);
}

TEST(Recording, ProcessIdentifiersAreKeptIfTheyFit) {
    const std::map<std::string, std::int32_t> expected{
        {"0", 0}, // an application that cannot be read
        {"-5", -5},
        {"1e3", 1000},
        {"2147483647", 2147483647},
        {"2147483648", unknownProcessIdentifier},
        {"99999999999999999999999", unknownProcessIdentifier},
        {"12.5", unknownProcessIdentifier},
        {"null", unknownProcessIdentifier},
    };
    for (const auto& [written, read] : expected) {
        EXPECT_EQ(parse(R"({"processIdentifier":)" + written + "}").application->processIdentifier(), read)
            << written;
    }
}

TEST(Recording, OfMembersWithTheSameNameTheLastCounts) {
    const Recording recorded = parse(R"({"localizedName":"a","localizedName":"b","AXMenuBar":7,
        "AXMenuBar":{"AXChildren":[{}],"AXChildren":[{"AXTitle":"x","AXTitle":"y"},{}]}})");
    EXPECT_EQ(recorded.application->localizedName(), Text("b"));
    ASSERT_EQ(topLevelMenus(recorded).size(), 2U);
    EXPECT_EQ(topLevelMenus(recorded).front()->string("AXTitle"), Text("y"));
}

std::string errorOf(const std::string& document) {
    try {
        parse(document);
    } catch (const Error& error) {
        return error.what();
    }
    return "no error";
}

TEST(Recording, WhatIsNoRecordingIsOneErrorOfOneLine) {
    EXPECT_EQ(errorOf(""), "empty document");
    EXPECT_EQ(errorOf("[]"), "expected an object, found array");
    EXPECT_EQ(errorOf("null"), "expected an object, found null");
    EXPECT_EQ(errorOf(R"({"processIdentifier":1e400})"), "a number is too large");
    const std::string notJson = "not valid JSON in UTF-8";
    for (const std::string& document :
         {std::string("{"), std::string("{}{}"), std::string(" \n"), std::string("{'a':1}"),
          std::string("{\"AXTitle\":\"\xFF\"}"), std::string(R"({"AXTitle":"\ud800"})"),
          std::string("{\"a\":\"line\nbreak\"}"), std::string(100, '\0'), std::string("\xEF\xBB")}) {
        EXPECT_EQ(errorOf(document), notJson) << document;
    }
}

TEST(Recording, HostileSizesAreRefusedBeforeTheyCost) {
    const std::string tooDeep = "nested deeper than 512 levels";
    EXPECT_EQ(errorOf(std::string(100'000, '[')), tooDeep);
    EXPECT_EQ(errorOf(nestedMenus(100'000)), tooDeep);
    EXPECT_EQ(errorOf(nestedMenus(255)), "no error"); // 512 levels of JSON
    EXPECT_EQ(errorOf(nestedMenus(256)), tooDeep);
    EXPECT_EQ(errorOf(std::string(maximumBytes + 1, ' ')), "larger than 64 MiB");
    EXPECT_EQ(errorOf("[" + repeated("{},", maximumValues) + "{}]"), "more than 2000000 values");
    // A title of 64 KiB is in the path of each item, though not as a whole.
    const auto under = [](int items) {
        return R"({"AXMenuBar":{"AXChildren":[{"AXTitle":")" + std::string(65'536, 'x') +
               R"(","AXChildren":[)" + repeated("{},", items) + "{}]}]}}";
    };
    EXPECT_EQ(errorOf(under(2'000)), "no error");
    EXPECT_EQ(errorOf(under(70'000)), "the titles along its menu paths are too long");
    const auto menus = parse(under(1)).root->element("AXMenuBar")->elements("AXChildren").value();
    EXPECT_EQ(menus.front()->string("AXTitle"), Text(std::string(1024, 'x')));
}

/// Counts how often each attribute is read.
class CountingElement : public MemoryElement {
  public:
    using MemoryElement::MemoryElement;
    std::map<std::string, int, std::less<>> reads;

    std::optional<std::vector<Element>> elements(std::string_view attribute) override {
        ++reads[std::string(attribute)];
        return MemoryElement::elements(attribute);
    }
    std::optional<Text> string(std::string_view attribute) override {
        ++reads[std::string(attribute)];
        return MemoryElement::string(attribute);
    }
    std::optional<std::int64_t> integer(std::string_view attribute) override {
        ++reads[std::string(attribute)];
        return MemoryElement::integer(attribute);
    }
    std::optional<bool> boolean(std::string_view attribute) override {
        ++reads[std::string(attribute)];
        return MemoryElement::boolean(attribute);
    }
};

Element rootOf(const std::vector<Element>& menus) {
    const auto menuBar = std::make_shared<MemoryElement>(MemoryElement::Attributes{{"AXChildren", menus}});
    return std::make_shared<MemoryElement>(MemoryElement::Attributes{{"AXMenuBar", Element(menuBar)}});
}

TEST(Recording, WritesEveryAttributeInAFixedFormAndReadsItOnce) {
    const auto item = std::make_shared<CountingElement>(
        MemoryElement::Attributes{{"AXTitle", Text("Say \"Ünïcode\"\n\x1B")},
                                  {"AXEnabled", false},
                                  {"AXMenuItemMarkChar", Text("✓")},
                                  {"AXMenuItemCmdChar", Text("\uF704")},
                                  {"AXMenuItemCmdModifiers", std::int64_t{12}},
                                  {"AXChildren", std::vector<Element>{nullptr}},
                                  {"AXDescription", Text("left out")}});
    const auto plain = std::make_shared<MemoryElement>();
    const MemoryApplication application(99, Text("org.example.Editor"), std::nullopt);
    const Document document = write(application, rootOf({item, plain}).get());
    EXPECT_EQ(document.json, R"({
  "bundleIdentifier": "org.example.Editor",
  "processIdentifier": 99,
  "AXMenuBar": {
    "AXChildren": [
      {
        "AXTitle": "Say \"Ünïcode\"\n\u001b",
        "AXEnabled": false,
        "AXMenuItemMarkChar": "✓",
        "AXMenuItemCmdChar": ")"
                             "\uF704"
                             R"(",
        "AXMenuItemCmdModifiers": 12,
        "AXChildren": []
      },
      {}
    ]
  }
}
)");
    EXPECT_EQ(document.elements, 2U);
    EXPECT_TRUE(document.isComplete);
    EXPECT_EQ(item->reads.size(), 6U);
    for (const auto& [attribute, count] : item->reads) {
        EXPECT_EQ(count, 1) << attribute;
    }
    EXPECT_EQ(write(MemoryApplication(unknownProcessIdentifier, std::nullopt, Text("x")), nullptr).json,
              "{\n  \"localizedName\": \"x\"\n}\n");
}

TEST(Recording, RecordingARecordingChangesNothing) {
    for (const std::string name : {"mousepad", "firefox", "featherpad"}) {
        std::ifstream file(std::string(TOVREL_RECORDINGS "/") + name + ".json");
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        const Recording recorded = parse(bytes);
        EXPECT_GT(topLevelMenus(recorded).size(), 4U) << name;
        EXPECT_EQ(write(*recorded.application, recorded.root.get()).json, bytes) << name;
    }
}

TEST(Recording, WritingEndsOnEndlessTreesAndCanBeReadBack) {
    const MemoryApplication application(1, std::nullopt, std::nullopt);
    const auto endless = std::make_shared<MemoryElement>(MemoryElement::Attributes{{"AXTitle", Text("a")}});
    endless->set("AXChildren", std::vector<Element>{endless});
    const Document deep = write(application, rootOf({endless}).get());
    EXPECT_FALSE(deep.isComplete);
    EXPECT_EQ(deep.elements, static_cast<std::size_t>(maximumLevels));
    EXPECT_NO_THROW(parse(deep.json));

    const auto leaf = std::make_shared<MemoryElement>();
    const Document wide = write(application, rootOf(std::vector<Element>(200'000, leaf)).get());
    EXPECT_FALSE(wide.isComplete);
    EXPECT_EQ(wide.elements, maximumElements);
    EXPECT_NO_THROW(parse(wide.json));

    endless->set("AXChildren", std::vector<Element>{endless, endless}); // 2^250 elements
    EXPECT_THROW(static_cast<void>(write(application, rootOf({endless}).get())), Error);
    endless->set("AXTitle", Text(std::string(1'000'000, 'x')));
    EXPECT_THROW(static_cast<void>(write(application, rootOf({endless}).get())), Error);
    endless->set("AXChildren", std::vector<Element>()); // otherwise it would own itself
}

} // namespace
} // namespace tovrel::recording
