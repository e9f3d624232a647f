#include "platform/linux/menus/accessibility/AtspiMenuReader.h"

#include <unordered_set>
#include <utility>
#include <vector>

#include "platform/linux/menus/accessibility/AtspiAdditions.h"
#include "platform/linux/menus/accessibility/AtspiMenuBarFinder.h"
#include "platform/linux/menus/source/MenuReading.h"

namespace tovrel {
namespace {

using Question = AtspiCalls::Question;

/// Builds a tree from its menu bar. Each object is asked for its role first, and then only for what is useful
/// for that role: a separator for nothing more, only leaves for key bindings, only containers for children.
/// That takes a third fewer questions than asking every object for everything.
class TreeReader {
  public:
    TreeReader(AtspiCalls& calls, AtspiMenuTree& tree) : calls_(calls), tree_(tree) {}
    TreeReader(const TreeReader&) = delete;
    TreeReader& operator=(const TreeReader&) = delete;
    ~TreeReader() = default;

    void read(const AtspiMenuBar& bar) {
        AtspiNode root;
        root.path = bar.path;
        root.role = AtspiRole::menuBar;
        met_.insert(bar.path);
        tree_.nodes.push_back(std::move(root));
        addChildren(0, bar.children);
        calls_.run();
    }

    [[nodiscard]] bool isTooLarge() const { return isTooLarge_; }

  private:
    void addChildren(std::size_t parent, const std::vector<std::string>& paths) {
        const std::size_t depth = tree_.nodes[parent].depth + 1;
        if (depth > calls_.limits().depth) {
            isTooLarge_ = isTooLarge_ || !paths.empty();
            return;
        }
        for (const std::string& path : paths) {
            if (tree_.nodes.size() >= calls_.limits().nodes ||
                tree_.nodes[parent].children.size() >= calls_.limits().entriesPerMenu) {
                isTooLarge_ = true;
                return;
            }
            if (!met_.insert(path).second) {
                continue;
            }
            const std::size_t index = tree_.nodes.size();
            AtspiNode node;
            node.path = path;
            node.parent = parent;
            node.depth = depth;
            tree_.nodes.push_back(std::move(node));
            tree_.nodes[parent].children.push_back(index);
            ask(index, Question::role);
        }
    }

    void ask(std::size_t index, Question question) {
        calls_.ask(tree_.nodes[index].path, question,
                   [this, index, question](DBusMessage& answer) { take(index, question, answer); });
    }

    void take(std::size_t index, Question question, DBusMessage& answer) {
        AtspiNode& node = tree_.nodes[index];
        switch (question) {
        case Question::role:
            if (const auto role = answer.readUint32()) {
                node.role = static_cast<AtspiRole>(*role);
                askByRole(index, *node.role);
            }
            break;
        case Question::name:
            if (const auto name = answer.readVariantString()) {
                node.name = keptTitle(*name, calls_.budget());
            }
            break;
        case Question::states:
            node.states = readStates(answer);
            // Qt gives hidden and disabled items the same states; hidden ones lack an interface.
            if (tree_.toolkit == AtspiToolkit::qt && node.states &&
                !holds(*node.states, AtspiState::sensitive)) {
                ask(index, Question::interfaces);
            }
            break;
        case Question::children:
            takeChildren(index, answer);
            break;
        case Question::keyBinding:
            node.keyBinding = readKeyBinding(answer, calls_.budget());
            break;
        case Question::interfaces:
            node.hasComponent = readHasComponent(answer);
            break;
        case Question::toolkitName:
            break;
        }
    }

    void askByRole(std::size_t index, AtspiRole role) {
        if (role == AtspiRole::popupMenu) {
            ask(index, Question::children);
        } else if (role == AtspiRole::menu) {
            ask(index, Question::children);
            askNameAndStates(index);
        } else if (isMenuItem(role)) {
            // In GTK and Gecko an item with a submenu has the role of a menu; elsewhere only its children
            // tell.
            const bool isLeaf = tree_.toolkit == AtspiToolkit::gtk || tree_.toolkit == AtspiToolkit::gecko;
            ask(index, isLeaf ? Question::keyBinding : Question::children);
            askNameAndStates(index);
        }
    }

    void askNameAndStates(std::size_t index) {
        ask(index, Question::name);
        ask(index, Question::states);
    }

    void takeChildren(std::size_t index, DBusMessage& answer) {
        const std::size_t room = calls_.limits().nodes - tree_.nodes.size();
        const auto paths = readChildren(answer, calls_.busName(), room + 1, calls_.budget());
        if (paths && !paths->empty()) {
            addChildren(index, *paths);
        } else if (tree_.nodes[index].role != AtspiRole::menu &&
                   tree_.nodes[index].role != AtspiRole::popupMenu) {
            ask(index, Question::keyBinding);
        }
    }

    std::optional<bool> readHasComponent(DBusMessage& answer) {
        if (sd_bus_message_enter_container(answer.handle(), SD_BUS_TYPE_ARRAY, "s") <= 0) {
            return std::nullopt;
        }
        while (calls_.budget().look()) {
            const auto interface = answer.readString();
            if (!interface) {
                break;
            }
            if (*interface == "org.a11y.atspi.Component") {
                return true;
            }
        }
        return false;
    }

    AtspiCalls& calls_;
    AtspiMenuTree& tree_;
    std::unordered_set<std::string> met_;
    bool isTooLarge_ = false;
};

void readTree(AtspiCalls& calls, const AtspiMenuBar& bar, AtspiMenuTree& tree, bool& isTooLarge) {
    tree.busName = calls.busName();
    tree.toolkit = bar.toolkit;
    TreeReader reader(calls, tree);
    reader.read(bar);
    isTooLarge = reader.isTooLarge();
}

} // namespace

AtspiMenuReading readAtspiMenus(DBusConnection& connection, const std::string& busName,
                                const std::string& root, const std::optional<Text>& windowTitle,
                                MenuTree& published, const MenuReadLimits& limits, SteadyTime started) {
    AtspiMenuReading reading;
    AtspiCalls calls(connection, busName, limits, started);
    bool isTooLarge = false;
    const auto bar =
        findAtspiMenuBar(calls, root, windowTitle,
                         published.empty() ? AtspiRootPanes::passedBy : AtspiRootPanes::entered, isTooLarge);
    if (bar && !published.empty()) {
        (bar->isInRootPane ? replaceAtspiStates : addAtspiAccelerators)(calls, bar->children, published);
        reading.hasAddedAccelerators = !bar->isInRootPane && !calls.stopped();
    } else if (bar) {
        readTree(calls, *bar, reading.tree, isTooLarge);
    }
    reading.report.outcome = calls.stopped() ? outcomeOf(*calls.stopped())
                             : isTooLarge    ? MenuReadOutcome::treeTooLarge
                             : bar           ? MenuReadOutcome::completed
                                             : MenuReadOutcome::noMenuBar;
    reading.report.nodes = reading.tree.nodes.size();
    reading.report.calls = calls.calls();
    reading.report.elapsed =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - started);
    return reading;
}

} // namespace tovrel
