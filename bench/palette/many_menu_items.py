"""A window whose menu bar holds as many items as asked for: an application for measurements, not a real one.

usage: many_menu_items.py ITEMS"""

import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, GLib, Gtk  # noqa: E402

NAME = "tovrel-many-menu-items"
# A menu resembles real ones: some twenty items, every fifth with a shortcut, every tenth with a check mark.
ITEMS_OF_A_MENU = 20
VERBS = ("Open", "Save", "Insert", "Remove", "Show", "Hide", "Copy", "Paste", "Convert", "Arrange")
NOUNS = ("File", "Page", "Table", "Picture", "Chart", "Header", "Footer", "Column", "Comment", "Style", "Field")


def main(count):
    GLib.set_prgname(NAME)
    window = Gtk.Window(title=f"{count} menu items")
    window.set_default_size(1200, 740)
    window.connect("destroy", Gtk.main_quit)
    keys = Gtk.AccelGroup()
    window.add_accel_group(keys)
    bar = Gtk.MenuBar()
    for first in range(0, count, ITEMS_OF_A_MENU):
        bar.append(menu(first, min(first + ITEMS_OF_A_MENU, count), keys))
    # The bar scrolls, because a bar wider than the screen would widen the window.
    scroller = Gtk.ScrolledWindow(hscrollbar_policy=Gtk.PolicyType.EXTERNAL, vscrollbar_policy=Gtk.PolicyType.NEVER)
    scroller.add(bar)
    box = Gtk.Box(orientation=Gtk.Orientation.VERTICAL)
    box.pack_start(scroller, False, False, 0)
    box.pack_start(Gtk.Label(label=f"A window with {count} menu items."), True, True, 0)
    window.add(box)
    window.show_all()
    Gtk.main()


def menu(first, end, keys):
    opener = Gtk.MenuItem(label=f"Menu {first // ITEMS_OF_A_MENU + 1}")
    items = Gtk.Menu()
    items.set_accel_group(keys)
    for number in range(first, end):
        title = f"{VERBS[number % len(VERBS)]} {NOUNS[number % len(NOUNS)]} {number + 1}"
        item = Gtk.CheckMenuItem(label=title) if number % 10 == 3 else Gtk.MenuItem(label=title)
        if number % 5 == 0:
            # Each of the 52 combinations is used more than once; their effect does not matter here.
            modifiers = Gdk.ModifierType.CONTROL_MASK
            if number % 2:
                modifiers |= Gdk.ModifierType.SHIFT_MASK
            item.add_accelerator("activate", keys, ord("a") + number // 5 % 26, modifiers, Gtk.AccelFlags.VISIBLE)
        items.append(item)
    opener.set_submenu(items)
    return opener


if __name__ == "__main__":
    if len(sys.argv) != 2 or not sys.argv[1].isdigit():
        sys.exit(__doc__)
    main(int(sys.argv[1]))
