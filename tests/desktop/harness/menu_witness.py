"""The contents of an application's menu bar, read by the witness."""

from dataclasses import dataclass

ITEM_ROLES = ("menu", "menu item", "check menu item", "radio menu item")


@dataclass(frozen=True)
class MenuEntry:
    """A titled menu or item: titles from the top-level menu down, and whether it can be chosen."""

    path: tuple
    enabled: bool


def menu_entries(application_root):
    """Every titled menu and item that the user can see, in order, each menu before its items."""
    is_qt = application_root.toolkit == "Qt"
    return list(_entries(application_root.find("menu bar"), (), True, is_qt))


def menu_entry(application_root, *path):
    """The accessible node of the item at the path, or None."""
    node = application_root.find("menu bar")
    for title in path:
        node = next((child for child in _items(node) if _title(child) == title), None)
        if node is None:
            return None
    return node


def _entries(node, path, enabled, is_qt):
    for child in _items(node):
        states = child.states
        if _is_hidden(child, states, is_qt):
            continue
        title = _title(child)
        child_enabled = enabled and "sensitive" in states
        if title:
            yield MenuEntry((*path, title), child_enabled)
        yield from _entries(child, (*path, title), child_enabled, is_qt)


def _items(node):
    for child in node.children:
        role = child.role
        if role == "popup menu":
            yield from _items(child)  # Qt's nameless container between a menu and its items.
        elif role in ITEM_ROLES:
            yield child


def _title(node):
    return node.name.partition("\t")[0].strip()


def _is_hidden(node, states, is_qt):
    if is_qt:
        return "sensitive" not in states and "org.a11y.atspi.Component" not in node.interfaces
    return "visible" not in states
