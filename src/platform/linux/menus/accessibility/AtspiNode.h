#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tovrel {

/// The roles the menu reader knows, by their numbers in the AT-SPI2 protocol (org.a11y.atspi.Accessible,
/// GetRole). Any other number may occur.
enum class AtspiRole : std::uint32_t {
    checkBox = 7,
    checkMenuItem = 8,
    comboBox = 11,
    drawingArea = 18,
    frame = 23,
    icon = 26,
    image = 27,
    label = 29,
    list = 31,
    listItem = 32,
    menu = 33,
    menuBar = 34,
    menuItem = 35,
    passwordText = 40,
    popupMenu = 41,
    progressBar = 42,
    pushButton = 43,
    radioButton = 44,
    radioMenuItem = 45,
    rootPane = 46,
    scrollBar = 48,
    separator = 50,
    slider = 51,
    spinButton = 52,
    statusBar = 54,
    table = 55,
    tearOffMenuItem = 59,
    terminal = 60,
    text = 61,
    toggleButton = 62,
    tree = 65,
    treeTable = 66,
    paragraph = 73,
    entry = 79,
    documentFrame = 82,
    heading = 83,
    link = 88,
    documentSpreadsheet = 92,
    documentPresentation = 93,
    documentText = 94,
    documentWeb = 95,
    documentEmail = 96,
    listBox = 98,
};

/// Whether entries of this role can have a check mark. Swing gives its check boxes in menus the role of any
/// other check box.
inline bool isCheckable(AtspiRole role) {
    return role == AtspiRole::checkMenuItem || role == AtspiRole::radioMenuItem ||
           role == AtspiRole::checkBox;
}

/// Whether entries of menus have this role, apart from menus themselves.
inline bool isMenuItem(AtspiRole role) {
    return role == AtspiRole::menuItem || isCheckable(role);
}

/// The state bits the menu reader uses (bit i of word i/32 of org.a11y.atspi.Accessible.GetState).
enum class AtspiState : std::uint8_t { active = 1, checked = 4, sensitive = 24, visible = 30 };

/// The two words of a state set as one number.
using AtspiStates = std::uint64_t;

inline bool holds(AtspiStates states, AtspiState state) {
    return ((states >> static_cast<unsigned>(state)) & 1U) != 0;
}

/// The toolkit of an application, as far as menus depend on it.
enum class AtspiToolkit {
    gtk,   ///< GTK 2 and 3, and programs that imitate them through ATK (LibreOffice).
    qt,    ///< Qt 5 and 6.
    gtk4,  ///< Its menus are not on the accessibility bus until they are opened.
    gecko, ///< Firefox and its relatives.
    other,
};

/// The toolkit with this ToolkitName, a property of org.a11y.atspi.Application.
AtspiToolkit atspiToolkit(std::string_view toolkitName);

/// An application's answers about one object of a menu tree. A member that was not asked or not answered is
/// absent.
struct AtspiNode {
    std::string path; ///< D-Bus object path.
    std::size_t parent = 0;
    std::size_t depth = 0; ///< Levels below the menu bar.
    std::optional<AtspiRole> role;
    std::optional<std::string> name;
    std::optional<AtspiStates> states;
    std::string keyBinding; ///< The answer of org.a11y.atspi.Action.GetKeyBinding(0), unchanged.
    std::optional<bool>
        hasComponent; ///< Implements org.a11y.atspi.Component; asked in Qt, where hidden items lack it.
    std::vector<std::size_t> children; ///< Positions in the tree, each after the node's own.
};

/// An application's menu bar as a plain value.
struct AtspiMenuTree {
    AtspiToolkit toolkit = AtspiToolkit::other;
    bool isInRootPane =
        false;           ///< The one of LibreOffice's two bars that tells its states but not its visibility.
    std::string busName; ///< The application's name on the accessibility bus.
    std::vector<AtspiNode> nodes; ///< The menu bar first; empty when there is none.
};

} // namespace tovrel
