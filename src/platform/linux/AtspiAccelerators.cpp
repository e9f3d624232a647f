#include "platform/linux/AtspiAccelerators.h"

#include <memory>
#include <optional>

#include "platform/linux/AtspiKeyBinding.h"
#include "platform/linux/EntriesByTitle.h"

namespace tovrel {
namespace {

using Question = AtspiCalls::Question;

class AcceleratorReader {
  public:
    AcceleratorReader(AtspiCalls& calls, MenuTree& tree) : calls_(calls), tree_(tree) {}

    /// Asks for the names in a menu, and for more once all of them are known: only then it is clear which of
    /// several items with one title is which.
    void read(std::size_t menu, const std::vector<std::string>& paths) {
        const auto objects = std::make_shared<Objects>();
        objects->paths = paths;
        objects->titles.resize(paths.size());
        objects->missing = paths.size();
        for (std::size_t index = 0; index < paths.size(); ++index) {
            calls_.ask(paths[index], Question::name, [this, menu, objects, index](DBusMessage& answer) {
                isAnswered_ = true;
                objects->titles[index] = trimmed(Text(answer.readVariantString().value_or("")));
                if (--objects->missing == 0) {
                    match(menu, *objects);
                }
            });
        }
    }

    [[nodiscard]] bool isAnswered() const { return isAnswered_; }

  private:
    struct Objects {
        std::vector<std::string> paths;
        std::vector<Text> titles;
        std::size_t missing = 0;
    };

    void match(std::size_t menu, const Objects& objects) {
        EntriesByTitle entries(tree_, menu);
        for (std::size_t index = 0; index < objects.paths.size(); ++index) {
            if (const auto entry = entries.take(objects.titles[index])) {
                tree_[*entry].isMenu ? askForEntries(*entry, objects.paths[index])
                                     : askForKeys(*entry, objects.paths[index]);
            }
        }
    }

    void askForEntries(std::size_t menu, const std::string& path) {
        calls_.ask(path, Question::children, [this, menu](DBusMessage& answer) {
            if (const auto paths = readChildren(answer, calls_.busName(), calls_.limits().entriesPerMenu)) {
                read(menu, *paths);
            }
        });
    }

    void askForKeys(std::size_t item, const std::string& path) {
        if (tree_[item].shortcut) {
            return;
        }
        calls_.ask(path, Question::keyBinding, [this, item](DBusMessage& answer) {
            tree_[item].shortcut = menuShortcut(answer.readString().value_or(""), AtspiToolkit::gtk, "");
        });
    }

    AtspiCalls& calls_;
    MenuTree& tree_;
    bool isAnswered_ = false;
};

} // namespace

bool addAtspiAccelerators(AtspiCalls& calls, const std::vector<std::string>& entries, MenuTree& tree) {
    AcceleratorReader reader(calls, tree);
    reader.read(0, entries);
    calls.run();
    return reader.isAnswered();
}

} // namespace tovrel
