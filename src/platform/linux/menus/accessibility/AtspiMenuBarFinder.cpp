#include "platform/linux/menus/accessibility/AtspiMenuBarFinder.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <unordered_set>
#include <utility>

namespace tovrel {
namespace {

using Question = AtspiCalls::Question;

/// The most windows of one application that are looked at.
constexpr std::size_t maximumWindows = 256;

struct Window {
    std::string path;
    std::optional<AtspiRole> role;
    std::optional<std::string> name;
    AtspiStates states = 0;
};

/// Roles of objects that have content rather than parts of a window. They have no menu bar of the window
/// below them, but many objects.
constexpr std::array contentRoles{AtspiRole::checkBox,
                                  AtspiRole::checkMenuItem,
                                  AtspiRole::comboBox,
                                  AtspiRole::drawingArea,
                                  AtspiRole::icon,
                                  AtspiRole::image,
                                  AtspiRole::label,
                                  AtspiRole::list,
                                  AtspiRole::listItem,
                                  AtspiRole::menu,
                                  AtspiRole::menuBar,
                                  AtspiRole::menuItem,
                                  AtspiRole::passwordText,
                                  AtspiRole::popupMenu,
                                  AtspiRole::progressBar,
                                  AtspiRole::pushButton,
                                  AtspiRole::radioButton,
                                  AtspiRole::radioMenuItem,
                                  AtspiRole::scrollBar,
                                  AtspiRole::separator,
                                  AtspiRole::slider,
                                  AtspiRole::spinButton,
                                  AtspiRole::statusBar,
                                  AtspiRole::table,
                                  AtspiRole::tearOffMenuItem,
                                  AtspiRole::terminal,
                                  AtspiRole::text,
                                  AtspiRole::toggleButton,
                                  AtspiRole::tree,
                                  AtspiRole::treeTable,
                                  AtspiRole::paragraph,
                                  AtspiRole::entry,
                                  AtspiRole::documentFrame,
                                  AtspiRole::heading,
                                  AtspiRole::link,
                                  AtspiRole::documentSpreadsheet,
                                  AtspiRole::documentPresentation,
                                  AtspiRole::documentText,
                                  AtspiRole::documentWeb,
                                  AtspiRole::documentEmail,
                                  AtspiRole::listBox};

bool mayHoldMenuBar(std::optional<AtspiRole> role) {
    return role && std::find(contentRoles.begin(), contentRoles.end(), *role) == contentRoles.end();
}

class Search {
  public:
    Search(AtspiCalls& calls, AtspiRootPanes rootPanes, bool& isTooLarge)
        : calls_(calls), rootPanes_(rootPanes), isTooLarge_(isTooLarge) {}
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;
    ~Search() = default;

    /// The application's windows, the wanted one first if title and states tell; empty when stopped.
    std::vector<Window> windows(const std::string& root, const std::optional<Text>& title,
                                AtspiToolkit& toolkit) {
        std::vector<Window> found;
        calls_.ask(root, Question::toolkitName, [&](DBusMessage& answer) {
            toolkit = atspiToolkit(answer.readVariantString().value_or(""));
        });
        for (std::string& path : childrenOf({root}, maximumWindows)) {
            found.push_back({std::move(path), std::nullopt, std::nullopt, 0});
        }
        for (Window& window : found) {
            calls_.ask(window.path, Question::role,
                       [&](DBusMessage& answer) { window.role = roleIn(answer); });
            calls_.ask(window.path, Question::states,
                       [&](DBusMessage& answer) { window.states = readStates(answer).value_or(0); });
            calls_.ask(window.path, Question::name,
                       [&](DBusMessage& answer) { window.name = keptName(answer); });
        }
        if (!calls_.run()) {
            return {};
        }
        const auto rank = [&](const Window& window) {
            const bool hasTitle = title && window.name && Text(*window.name) == *title;
            const bool isFrame = window.role == AtspiRole::frame;
            return std::tuple(!hasTitle, !holds(window.states, AtspiState::active), !isFrame);
        };
        std::stable_sort(found.begin(), found.end(),
                         [&](const Window& left, const Window& right) { return rank(left) < rank(right); });
        return found;
    }

    /// The nearest menu bar with entries below a window.
    std::optional<AtspiMenuBar> barBelow(const std::string& window, AtspiToolkit toolkit) {
        std::vector<std::string> level{window};
        for (std::size_t depth = 0; depth < calls_.limits().searchedDepth && !level.empty(); ++depth) {
            const std::vector<std::string> met = childrenOf(level, calls_.limits().searchedNodes);
            std::vector<std::optional<AtspiRole>> roles(met.size());
            for (std::size_t index = 0; index < met.size(); ++index) {
                calls_.ask(met[index], Question::role,
                           [&roles, index](DBusMessage& answer) { roles[index] = roleIn(answer); });
            }
            if (!calls_.run()) {
                return std::nullopt;
            }
            level.clear();
            for (std::size_t index = 0; index < met.size(); ++index) {
                if (roles[index] == AtspiRole::menuBar) {
                    std::vector<std::string> entries = entriesOf(met[index]);
                    if (!entries.empty()) {
                        return AtspiMenuBar{met[index], std::move(entries), toolkit};
                    }
                } else if (toolkit == AtspiToolkit::gtk && roles[index] == AtspiRole::rootPane) {
                    // GTK itself has no root panes; LibreOffice has.
                    if (auto bar = rootPanes_ == AtspiRootPanes::entered ? barBelow(met[index], toolkit)
                                                                         : std::nullopt) {
                        bar->isInRootPane = true;
                        return bar;
                    }
                } else if (mayHoldMenuBar(roles[index])) {
                    level.push_back(met[index]);
                }
            }
        }
        return std::nullopt;
    }

  private:
    static std::optional<AtspiRole> roleIn(DBusMessage& answer) {
        const auto role = answer.readUint32();
        return role ? std::optional(static_cast<AtspiRole>(*role)) : std::nullopt;
    }

    /// Window titles have no common limit of length, because they contain names of documents.
    std::optional<std::string> keptName(DBusMessage& answer) {
        constexpr std::size_t longestTitle = 4096;
        const auto name = answer.readVariantString();
        return name ? std::optional(calls_.budget().kept(*name, longestTitle)) : std::nullopt;
    }

    std::vector<std::string> entriesOf(const std::string& bar) {
        std::vector<std::string> entries;
        calls_.ask(bar, Question::children, [this, &entries](DBusMessage& answer) {
            entries = readChildren(answer, calls_.busName(), calls_.limits().nodes, calls_.budget())
                          .value_or(std::vector<std::string>());
        });
        return calls_.run() ? entries : std::vector<std::string>();
    }

    /// The children of all these objects in order, without those met before: at most `limit` of each, and in
    /// all no more than the search may look at. Empty when stopped.
    std::vector<std::string> childrenOf(const std::vector<std::string>& parents, std::size_t limit) {
        std::vector<std::vector<std::string>> families(parents.size());
        for (std::size_t index = 0; index < parents.size(); ++index) {
            calls_.ask(parents[index], Question::children,
                       [this, &families, index, limit](DBusMessage& answer) {
                           if (auto paths = readChildren(answer, calls_.busName(), limit, calls_.budget())) {
                               families[index] = std::move(*paths);
                           }
                       });
        }
        std::vector<std::string> met;
        if (!calls_.run()) {
            return met;
        }
        for (std::vector<std::string>& family : families) {
            for (std::string& path : family) {
                if (visited_.size() >= calls_.limits().searchedNodes) {
                    isTooLarge_ = true;
                    return met;
                }
                if (visited_.insert(path).second) {
                    met.push_back(std::move(path));
                }
            }
        }
        return met;
    }

    AtspiCalls& calls_;
    AtspiRootPanes rootPanes_;
    bool& isTooLarge_;
    std::unordered_set<std::string> visited_;
};

} // namespace

std::optional<AtspiMenuBar> findAtspiMenuBar(AtspiCalls& calls, const std::string& root,
                                             const std::optional<Text>& windowTitle, AtspiRootPanes rootPanes,
                                             bool& isTooLarge) {
    Search search(calls, rootPanes, isTooLarge);
    AtspiToolkit toolkit = AtspiToolkit::other;
    for (const Window& window : search.windows(root, windowTitle, toolkit)) {
        if (toolkit == AtspiToolkit::gtk4) {
            break;
        }
        if (auto bar = search.barBelow(window.path, toolkit)) {
            return bar;
        }
        if (calls.stopped()) {
            break;
        }
    }
    return std::nullopt;
}

} // namespace tovrel
