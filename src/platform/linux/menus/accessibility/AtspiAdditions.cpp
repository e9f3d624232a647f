#include "platform/linux/menus/accessibility/AtspiAdditions.h"

#include <algorithm>
#include <memory>
#include <optional>

#include "model/MenuTitle.h"
#include "platform/linux/menus/accessibility/AtspiKeyBinding.h"
#include "platform/linux/menus/source/EntriesByTitle.h"
#include "platform/linux/menus/source/MenuReading.h"

namespace tovrel {
namespace {

using Question = AtspiCalls::Question;

/// The objects in an accessible menu.
struct Objects {
    std::vector<std::string> paths;
    std::vector<Text> titles;
    std::size_t missing = 0; ///< Names that have not been answered yet.
};

/// Walks through the accessible menus and has `Addition` ask about each entry that is in the tree too. It and
/// the additions cannot be moved, because answers are handed to them.
template <typename Addition>
class Additions {
  public:
    Additions(AtspiCalls& calls, MenuTree& tree) : calls_(calls), tree_(tree), addition_(calls, tree) {}
    Additions(const Additions&) = delete;
    Additions& operator=(const Additions&) = delete;
    ~Additions() = default;

    void add(const std::vector<std::string>& entries) {
        read(0, entries);
        calls_.run();
    }

  private:
    /// Asks for the names in a menu, and for the rest once all names are known: only then items with the same
    /// title can be matched.
    void read(std::size_t menu, const std::vector<std::string>& paths) {
        const auto objects = std::make_shared<Objects>();
        objects->paths = paths;
        objects->titles.resize(paths.size());
        objects->missing = paths.size();
        for (std::size_t index = 0; index < paths.size(); ++index) {
            calls_.ask(paths[index], Question::name, [this, menu, objects, index](DBusMessage& answer) {
                objects->titles[index] =
                    menuTitle(keptTitle(answer.readVariantString().value_or(""), calls_.budget()));
                if (--objects->missing == 0) {
                    askAbout(addition_.match(menu, *objects), *objects);
                }
            });
        }
    }

    /// `entries` are the tree's entries that match the objects, in the objects' order.
    void askAbout(const std::vector<std::optional<std::size_t>>& entries, const Objects& objects) {
        for (std::size_t index = 0; index < entries.size(); ++index) {
            if (entries[index]) {
                addition_.ask(*entries[index], objects.paths[index]);
                if (tree_[*entries[index]].isMenu) {
                    askForEntries(*entries[index], objects.paths[index]);
                }
            }
        }
    }

    void askForEntries(std::size_t menu, const std::string& path) {
        calls_.ask(path, Question::children, [this, menu](DBusMessage& answer) {
            if (const auto paths =
                    readChildren(answer, calls_.busName(), calls_.limits().entriesPerMenu, calls_.budget())) {
                read(menu, *paths);
            }
        });
    }

    AtspiCalls& calls_;
    MenuTree& tree_;
    Addition addition_;
};

class Accelerators {
  public:
    Accelerators(AtspiCalls& calls, MenuTree& tree) : calls_(calls), tree_(tree) {}
    Accelerators(const Accelerators&) = delete;
    Accelerators& operator=(const Accelerators&) = delete;
    ~Accelerators() = default;

    std::vector<std::optional<std::size_t>> match(std::size_t menu, const Objects& objects) {
        EntriesByTitle entries(tree_, menu);
        std::vector<std::optional<std::size_t>> matches;
        for (const Text& title : objects.titles) {
            matches.push_back(entries.take(title));
        }
        return matches;
    }

    void ask(std::size_t entry, const std::string& path) {
        if (tree_[entry].isMenu || tree_[entry].shortcut) {
            return;
        }
        calls_.ask(path, Question::keyBinding, [this, entry](DBusMessage& answer) {
            tree_[entry].shortcut =
                menuShortcut(readKeyBinding(answer, calls_.budget()), AtspiToolkit::gtk, "");
        });
    }

  private:
    AtspiCalls& calls_;
    MenuTree& tree_;
};

class States {
  public:
    States(AtspiCalls& calls, MenuTree& tree) : calls_(calls), tree_(tree) {}
    States(const States&) = delete;
    States& operator=(const States&) = delete;
    ~States() = default;

    /// Also drops the entries of the menu that have no match.
    std::vector<std::optional<std::size_t>> match(std::size_t menu, const Objects& objects) {
        EntriesByTitle entries(tree_, menu);
        std::vector<std::optional<std::size_t>> matches;
        for (const Text& title : objects.titles) {
            matches.push_back(entries.take(title));
        }
        for (std::size_t index = 0; index < matches.size(); ++index) {
            if (!matches[index]) {
                matches[index] = entries.takeBeginning(objects.titles[index]);
            }
        }
        std::erase_if(tree_[menu].children, [&](std::size_t child) {
            return std::find(matches.begin(), matches.end(), std::optional(child)) == matches.end();
        });
        return matches;
    }

    void ask(std::size_t entry, const std::string& path) {
        calls_.ask(path, Question::states, [this, entry](DBusMessage& answer) {
            if (const auto states = readStates(answer)) {
                tree_[entry].isEnabled = holds(*states, AtspiState::sensitive);
                tree_[entry].isChecked = holds(*states, AtspiState::checked);
            }
        });
    }

  private:
    AtspiCalls& calls_;
    MenuTree& tree_;
};

/// Disables entries below disabled menus and drops empty menus. A node comes after its parent, so a forward
/// pass sees parents first, a backward pass children first.
void tidy(MenuTree& tree) {
    for (std::size_t index = 1; index < tree.size(); ++index) {
        if (tree[tree[index].parent].isEnabled == false) {
            tree[index].isEnabled = false;
        }
    }
    for (std::size_t index = tree.size(); index-- > 0;) {
        std::erase_if(tree[index].children,
                      [&](std::size_t child) { return tree[child].isMenu && tree[child].children.empty(); });
    }
}

} // namespace

void addAtspiAccelerators(AtspiCalls& calls, const std::vector<std::string>& entries, MenuTree& tree) {
    Additions<Accelerators>(calls, tree).add(entries);
}

void replaceAtspiStates(AtspiCalls& calls, const std::vector<std::string>& entries, MenuTree& tree) {
    Additions<States>(calls, tree).add(entries);
    tidy(tree);
}

} // namespace tovrel
