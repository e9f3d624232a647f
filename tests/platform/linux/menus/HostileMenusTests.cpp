// Applications that send huge messages instead of menus. The whole way from the bus to the searchable
// commands must give a result, in a process whose memory may grow by at most 32 MB.

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <new>
#include <ostream>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "commands/CommandIndex.h"
#include "commands/CommandSearchIndex.h"
#include "menus/MenuScanner.h"
#include "platform/linux/ChildProcess.h"
#include "platform/linux/menus/FakeAccessibility.h"
#include "platform/linux/menus/LinuxAccessibility.h"
#include "platform/linux/menus/ProcessMemory.h"
#include "platform/linux/menus/accessibility/AtspiNode.h"
#include "platform/memory/MemoryApplication.h"
#include "platform/memory/MemoryPreferencesDomain.h"
#include "stores/CommandHistoryStore.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

constexpr std::size_t menuCount = 19;
constexpr std::size_t itemCount = 999;
constexpr std::size_t roomBytes = std::size_t{32} << 20U;

/// The messages of one kind of application.
struct Attack {
    const char* name;
    std::size_t labelBytes = 8; ///< Of the label of the one menu above all others.
    std::size_t menus = menuCount;
    std::size_t items = itemCount;
    std::size_t titleBytes = 8; ///< Of the title of every item.
    /// An attribute of the first item, with `bytes` bytes or `variants` variants of a byte each.
    const char* attribute = nullptr;
    std::size_t bytes = 0;
    std::size_t variants = 0;
    const char* expected = "items";

    friend std::ostream& operator<<(std::ostream& out, const Attack& attack) { return out << attack.name; }
};

/// Appends the "{sv}" of the attack.
void appendAttribute(sd_bus_message* reply, const Attack& attack) {
    sd_bus_message_open_container(reply, 'e', "sv");
    sd_bus_message_append(reply, "s", attack.attribute);
    sd_bus_message_open_container(reply, 'v', attack.bytes > 0 ? "ay" : "av");
    if (attack.bytes > 0) {
        const std::string bytes(attack.bytes, 'b');
        sd_bus_message_append_array(reply, 'y', bytes.data(), bytes.size());
    } else {
        sd_bus_message_open_container(reply, 'a', "v");
        for (std::size_t index = 0; index < attack.variants; ++index) {
            sd_bus_message_append(reply, "v", "y", 1);
        }
        sd_bus_message_close_container(reply);
    }
    sd_bus_message_close_container(reply);
    sd_bus_message_close_container(reply);
}

std::string itemTitle(const Attack& attack, std::size_t menu, std::size_t item) {
    std::string title = std::to_string(menu) + "." + std::to_string(item) + " ";
    return title.append(std::max(attack.titleBytes, title.size()) - title.size(), 'x');
}

void fillGtkItem(sd_bus_message* reply, const Attack& attack, std::size_t menu, std::size_t item) {
    sd_bus_message_open_container(reply, 'a', "{sv}");
    sd_bus_message_append(reply, "{sv}", "label", "s", itemTitle(attack, menu, item).c_str());
    sd_bus_message_append(reply, "{sv}", "action", "s", "app.go");
    if (attack.attribute != nullptr && menu == 0 && item == 0) {
        appendAttribute(reply, attack);
    }
    sd_bus_message_close_container(reply);
}

/// Fills menu 0 with the menu with the long label, which has the others.
void fillGtkMenus(sd_bus_message* reply, const Attack& attack) {
    const auto menu = [reply](std::uint32_t number, const std::function<void()>& entries) {
        sd_bus_message_open_container(reply, 'r', "uuaa{sv}");
        sd_bus_message_append(reply, "uu", 0, number);
        sd_bus_message_open_container(reply, 'a', "a{sv}");
        entries();
        sd_bus_message_close_container(reply);
        sd_bus_message_close_container(reply);
    };
    constexpr std::uint32_t outer = 1000;
    sd_bus_message_open_container(reply, 'a', "(uuaa{sv})");
    menu(0, [&] {
        sd_bus_message_append(reply, "a{sv}", 2, "label", "s", std::string(attack.labelBytes, 'M').c_str(),
                              ":submenu", "(uu)", 0, outer);
    });
    menu(outer, [&] {
        for (std::uint32_t index = 0; index < attack.menus; ++index) {
            sd_bus_message_append(reply, "a{sv}", 2, "label", "s", "Menu", ":submenu", "(uu)", 0, index + 1);
        }
    });
    for (std::uint32_t index = 0; index < attack.menus; ++index) {
        menu(index + 1, [&] {
            for (std::size_t item = 0; item < attack.items; ++item) {
                fillGtkItem(reply, attack, index, item);
            }
        });
    }
    sd_bus_message_close_container(reply);
}

void fillLayoutItem(sd_bus_message* reply, std::int32_t identifier, const std::string& label,
                    const Attack* attack, const std::function<void()>& below) {
    sd_bus_message_open_container(reply, 'v', "(ia{sv}av)");
    sd_bus_message_open_container(reply, 'r', "ia{sv}av");
    sd_bus_message_append(reply, "i", identifier);
    sd_bus_message_open_container(reply, 'a', "{sv}");
    if (attack != nullptr) {
        appendAttribute(reply, *attack);
    }
    sd_bus_message_append(reply, "{sv}", "label", "s", label.c_str());
    sd_bus_message_close_container(reply);
    sd_bus_message_open_container(reply, 'a', "v");
    below();
    sd_bus_message_close_container(reply);
    sd_bus_message_close_container(reply);
    sd_bus_message_close_container(reply);
}

void fillLayout(sd_bus_message* reply, const Attack& attack) {
    sd_bus_message_append(reply, "u", 1);
    sd_bus_message_open_container(reply, 'r', "ia{sv}av");
    sd_bus_message_append(reply, "ia{sv}", 0, 0);
    sd_bus_message_open_container(reply, 'a', "v");
    std::int32_t next = 1;
    fillLayoutItem(reply, next++, std::string(attack.labelBytes, 'M'), nullptr, [&] {
        for (std::size_t menu = 0; menu < attack.menus; ++menu) {
            fillLayoutItem(reply, next++, "Menu", nullptr, [&] {
                for (std::size_t item = 0; item < attack.items; ++item) {
                    const bool isFirst = attack.attribute != nullptr && menu == 0 && item == 0;
                    fillLayoutItem(reply, next++, itemTitle(attack, menu, item), isFirst ? &attack : nullptr,
                                   [] {});
                }
            });
        }
    });
    sd_bus_message_close_container(reply);
    sd_bus_message_close_container(reply);
}

class HostileMenusTest : public testing::TestWithParam<Attack> {
  protected:
    void SetUp() override { ASSERT_FALSE(bus_.address().empty()) << "dbus-daemon is needed"; }

    void serve(const std::vector<std::string>& names) {
        service_ = std::make_unique<FakeService>(bus_.address(), names,
                                                 [this](sd_bus_message* call) { answer(call); });
    }

    void answer(sd_bus_message* call) {
        const std::string_view member = sd_bus_message_get_member(call);
        sd_bus_message* reply = nullptr;
        sd_bus_message_new_method_return(call, &reply);
        if (member == "Start") {
            fillGtkMenus(reply, GetParam());
        } else if (member == "DescribeAll") {
            sd_bus_message_append(reply, "a{s(bgav)}", 1, "go", 1, "", 0);
        } else if (member == "GetMenuForWindow") {
            sd_bus_message_append(reply, "so", service_->uniqueName().c_str(), "/menu");
        } else if (member == "GetLayout") {
            fillLayout(reply, GetParam());
        }
        sd_bus_send(nullptr, reply, nullptr);
        sd_bus_message_unref(reply);
    }

    static std::string searched(LinuxAccessibility& linux, const TextServices& textServices,
                                CommandHistoryStore& history, std::int32_t reader) {
        const auto items = MenuScanner(linux, textServices).scan(MemoryApplication(reader, {}, {}));
        auto commands = CommandIndex::buildCommands(items, {}, {}, {}, {}, history);
        const std::size_t count = commands.size();
        const bool isLong = std::any_of(commands.begin(), commands.end(), [](const Command& command) {
            return command.title.view().size() > 1024 || command.menuPath.front().view().size() > 1024;
        });
        const CommandSearchIndex index(std::move(commands), textServices);
        const MenuReadOutcome outcome = linux.lastReport().value().outcome;
        return std::string(count > 0 ? "items" : "nothing") + (isLong ? ", long" : "") +
               (index.entries().size() > count ? ", more than there are" : "") +
               (outcome == MenuReadOutcome::completed      ? ", complete"
                : outcome == MenuReadOutcome::treeTooLarge ? ", cut"
                                                           : ", unlike");
    }

    /// Reads and scans the menus of this process in another process with little memory, makes searchable
    /// commands from them, and returns how many there are and any text that must not occur. Under the address
    /// sanitizer this happens in this process, without a limit on memory.
    std::string road(bool isGtk) {
        const TextServices textServices("en_US");
        static_cast<void>(textServices.collationKey("warm"));
        const auto read = [&, reader = getpid()] {
            ApplicationWindow window;
            window.registrarIdentifier = 7;
            if (isGtk) {
                window.gtkMenus = GtkMenuAddress{service_->uniqueName(), "/menu", "/app", ""};
            }
            MenuReadLimits patient; // The machine may be busy; the other limits bound what is kept.
            patient.silence = 20s;
            patient.total = 30s;
            LinuxAccessibility linux(
                {std::make_shared<AtspiBus>(), std::make_shared<SessionBus>()},
                [window](std::int32_t) { return std::vector<ApplicationWindow>{window}; }, patient);
            MemoryPreferencesDomain preferences;
            CommandHistoryStore history(preferences, "history", textServices);
            if constexpr (!hasAddressSanitizer) {
                limitMemoryTo(roomBytes);
            }
            try {
                return searched(linux, textServices, history, reader);
            } catch (const std::bad_alloc&) {
                return std::string("out of memory");
            }
        };
        return hasAddressSanitizer ? read() : inChildProcess(read);
    }

    FakeAccessibility bus_;
    std::unique_ptr<FakeService> service_;
};

using HostileGtkMenusTest = HostileMenusTest;

TEST_P(HostileGtkMenusTest, CostNoMoreThanTheyMay) {
    serve({});
    EXPECT_EQ(road(true), GetParam().expected);
}

const auto nameOf = [](const auto& attack) { return std::string(attack.param.name); };

INSTANTIATE_TEST_SUITE_P(
    Attacks, HostileGtkMenusTest,
    testing::Values(Attack{.name = "OneLabelOverAll", .labelBytes = 65'536, .expected = "items, cut"},
                    Attack{.name = "Many", .expected = "items, cut"},
                    Attack{.name = "LongTitles", .menus = 4, .titleBytes = 1'500, .expected = "nothing, cut"},
                    Attack{.name = "SomeLongTitles",
                           .menus = 1,
                           .items = 500,
                           .titleBytes = 1'500,
                           .expected = "items, complete"},
                    Attack{.name = "Target",
                           .menus = 1,
                           .items = 3,
                           .attribute = "target",
                           .bytes = 5'000'000,
                           .expected = "items, complete"},
                    Attack{.name = "TargetOfParts",
                           .menus = 1,
                           .items = 3,
                           .attribute = "target",
                           .variants = 50'000,
                           .expected = "items, complete"},
                    Attack{.name = "TargetOfTooManyParts",
                           .menus = 1,
                           .items = 3,
                           .attribute = "target",
                           .variants = 500'000,
                           .expected = "nothing, cut"},
                    Attack{.name = "Unread",
                           .menus = 1,
                           .items = 3,
                           .attribute = "nobody-reads-this",
                           .bytes = 5'000'000,
                           .expected = "items, complete"},
                    Attack{.name = "Endless",
                           .menus = 1,
                           .items = 3,
                           .attribute = "target",
                           .bytes = 30'000'000,
                           .expected = "nothing, cut"}),
    nameOf);

using HostileRegisteredMenusTest = HostileMenusTest;

TEST_P(HostileRegisteredMenusTest, CostNoMoreThanTheyMay) {
    serve({"com.canonical.AppMenu.Registrar"});
    EXPECT_EQ(road(false), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Attacks, HostileRegisteredMenusTest,
    testing::Values(Attack{.name = "OneLabelOverAll", .labelBytes = 65'536, .expected = "items, cut"},
                    Attack{.name = "LongTitles", .menus = 4, .titleBytes = 1'500, .expected = "items, cut"},
                    Attack{.name = "Unasked",
                           .menus = 1,
                           .items = 3,
                           .attribute = "icon-data",
                           .bytes = 5'000'000,
                           .expected = "items, complete"},
                    Attack{.name = "UnaskedParts",
                           .menus = 1,
                           .items = 3,
                           .attribute = "x-parts",
                           .variants = 500'000,
                           .expected = "items, cut"},
                    Attack{.name = "Endless",
                           .menus = 1,
                           .items = 3,
                           .attribute = "icon-data",
                           .bytes = 30'000'000,
                           .expected = "nothing, cut"}),
    nameOf);

using HostileAccessibleMenusTest = HostileMenusTest;

TEST_P(HostileAccessibleMenusTest, CostNoMoreThanTheyMay) {
    const Attack& attack = GetParam();
    const auto numbered = [](std::size_t first, std::size_t count) {
        std::vector<std::size_t> numbers(count);
        for (std::size_t index = 0; index < count; ++index) {
            numbers[index] = first + index;
        }
        return numbers;
    };
    constexpr std::uint64_t usable = (1U << 8U) | (1U << 24U) | (1U << 30U);
    // 0 is the application, 1 its window, 2 the bar, 3 the menu above all, 4 to 999 are menus, from 1,000 on
    // items.
    const auto node = [&](std::size_t number) -> FakeNode {
        const auto role = [](AtspiRole known) { return static_cast<std::uint32_t>(known); };
        if (number < 3) {
            return {number == 2 ? role(AtspiRole::menuBar) : role(AtspiRole::frame),
                    "",
                    usable,
                    "",
                    {number + 1},
                    true};
        }
        if (number >= 1000) {
            return {role(AtspiRole::menuItem),
                    itemTitle(attack, number, 0),
                    usable,
                    std::string(attack.bytes, 'k'),
                    {},
                    true};
        }
        return {role(AtspiRole::menu),
                std::string(number == 3 ? attack.labelBytes : 4, 'M'),
                usable,
                "",
                number == 3 ? numbered(4, attack.menus) : numbered(1000 * (number - 3), attack.items),
                true};
    };
    const FakeApplication application(bus_, node, {});
    EXPECT_EQ(road(false), attack.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Attacks, HostileAccessibleMenusTest,
    testing::Values(
        Attack{.name = "OneLabelOverAll", .labelBytes = 65'536, .menus = 5, .expected = "items, cut"},
        Attack{.name = "LongTitles", .menus = 3, .titleBytes = 3'000, .expected = "items, cut"},
        Attack{
            .name = "LongKeyBindings", .menus = 1, .items = 100, .bytes = 200'000, .expected = "items, cut"}),
    nameOf);

} // namespace
} // namespace tovrel
