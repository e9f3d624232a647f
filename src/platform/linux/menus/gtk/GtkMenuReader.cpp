#include "platform/linux/menus/gtk/GtkMenuReader.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/linux/dbus/BoundedCalls.h"
#include "platform/linux/menus/gtk/GtkMenuModel.h"

namespace tovrel {
namespace {

constexpr const char* menusInterface = "org.gtk.Menus";

using Groups = std::set<std::uint32_t>;

DBusMessage callWithGroups(const DBusConnection& connection, const GtkMenuAddress& address,
                           const char* member, const Groups& groups) {
    DBusMessage call =
        connection.methodCall(address.busName.c_str(), address.menuBarPath.c_str(), menusInterface, member);
    const std::vector<std::uint32_t> numbers(groups.begin(), groups.end());
    return call && sd_bus_message_append_array(call.handle(), SD_BUS_TYPE_UINT32, numbers.data(),
                                               numbers.size() * sizeof(std::uint32_t)) >= 0
               ? std::move(call)
               : DBusMessage();
}

/// Reads group after group: the answer to each call names the groups to ask for next.
class Reader {
  public:
    Reader(BoundedCalls& calls, const GtkMenuAddress& address, const MenuReadLimits& limits)
        : calls_(calls), address_(address), limits_(limits) {}
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;
    ~Reader() = default;

    void start(const Groups& groups) {
        started_.insert(groups.begin(), groups.end());
        calls_.ask(
            [this, groups](const DBusConnection& connection) {
                return callWithGroups(connection, address_, "Start", groups);
            },
            [this](DBusMessage& answer) { take(answer); });
    }

    void describe(std::string prefix, const std::string& objectPath) {
        if (objectPath.empty()) {
            return;
        }
        calls_.ask(
            [this, objectPath](const DBusConnection& connection) {
                return connection.methodCall(address_.busName.c_str(), objectPath.c_str(), "org.gtk.Actions",
                                             "DescribeAll");
            },
            [this, prefix = std::move(prefix), objectPath](DBusMessage& answer) {
                actions_.push_back(
                    {prefix, address_.busName, objectPath, readGtkActions(answer, limits_, calls_.budget())});
            });
    }

    [[nodiscard]] MenuTree tree() {
        bool isCut = false;
        MenuTree tree = gtkMenuTree(model_, actions_, limits_, isCut);
        isTooLarge_ = isTooLarge_ || isCut;
        return tree;
    }
    [[nodiscard]] bool isTooLarge() const { return isTooLarge_; }
    [[nodiscard]] const Groups& started() const { return started_; }

  private:
    void take(DBusMessage& answer) {
        Groups linked;
        if (!readGtkMenus(answer, limits_, calls_.budget(), model_, linked)) {
            isTooLarge_ = true;
        }
        for (const std::uint32_t group : started_) {
            linked.erase(group);
        }
        if (started_.size() + linked.size() > limits_.nodes || ++rounds_ > limits_.depth) {
            isTooLarge_ = isTooLarge_ || !linked.empty();
        } else if (!linked.empty()) {
            start(linked);
        }
    }

    BoundedCalls& calls_;
    const GtkMenuAddress& address_;
    const MenuReadLimits& limits_;
    Groups started_;
    std::size_t rounds_ = 0;
    GtkMenuModel model_;
    std::vector<GtkActionGroup> actions_;
    bool isTooLarge_ = false;
};

} // namespace

MenuReading readGtkMenuBar(DBusConnection& connection, const GtkMenuAddress& address,
                           const MenuReadLimits& limits, SteadyTime started) {
    BoundedCalls calls(connection, limits.ofCalls(), started);
    Reader reader(calls, address, limits);
    reader.start({0});
    reader.describe("app.", address.applicationPath);
    reader.describe("win.", address.windowPath);
    calls.run();
    // Otherwise the application would report every change from now on. Nobody waits for the answer.
    connection.tell(callWithGroups(connection, address, "End", reader.started()));

    MenuTree tree = calls.stopped() ? MenuTree() : reader.tree();
    return finishedReading(std::move(tree), reader.isTooLarge(), calls, started);
}

} // namespace tovrel
