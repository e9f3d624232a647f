"""An application in GTK 3 with a menu bar of its own, like most: it publishes its menus on the accessibility bus only,
and its dialogs run in a main loop of their own.

usage: gtk3_sample.py FILE"""

import sys
from pathlib import Path

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, Gtk  # noqa: E402, the versions come first


class Sample(Gtk.Window):
    def __init__(self, file):
        super().__init__(title="Sample")
        self._file = Path(file)
        self._text = Gtk.TextView()
        self._text.get_buffer().set_text(self._file.read_text(encoding="utf-8"))
        self._status = Gtk.Statusbar()
        self._keys = Gtk.AccelGroup()
        self.add_accel_group(self._keys)
        box = Gtk.Box(orientation=Gtk.Orientation.VERTICAL)
        box.pack_start(self._bar(), False, False, 0)
        box.pack_start(self._text, True, True, 0)
        box.pack_start(self._status, False, False, 0)
        self.add(box)
        self.connect("destroy", Gtk.main_quit)
        self.show_all()
        self._text.grab_focus()

    def _bar(self):
        bar = Gtk.MenuBar()
        file, edit, view = (self._menu(bar, title) for title in ("_File", "_Edit", "_View"))
        self._item(file, "_Open...", self._open, "o")
        save = self._item(file, "_Save", self._save, "s")
        save.set_sensitive(False)
        self._text.get_buffer().connect("modified-changed", lambda text: save.set_sensitive(text.get_modified()))
        self._text.get_buffer().set_modified(False)
        self._item(edit, "_Upper Case", self._turn_upper)
        status = Gtk.CheckMenuItem.new_with_mnemonic("_Status Bar")
        status.set_active(True)
        status.connect("toggled", lambda item: self._status.set_visible(item.get_active()))
        view.append(status)
        return bar

    def _menu(self, bar, title):
        item = Gtk.MenuItem.new_with_mnemonic(title)
        menu = Gtk.Menu()
        item.set_submenu(menu)
        bar.append(item)
        return menu

    def _item(self, menu, title, action, key=None):
        item = Gtk.MenuItem.new_with_mnemonic(title)
        item.connect("activate", lambda _: action())
        if key:
            item.add_accelerator("activate", self._keys, ord(key), Gdk.ModifierType.CONTROL_MASK,
                                 Gtk.AccelFlags.VISIBLE)
        menu.append(item)
        return item

    def _open(self):
        dialog = Gtk.Dialog(title="Open", transient_for=self, modal=True)
        dialog.add_button("Cancel", Gtk.ResponseType.CANCEL)
        dialog.run()
        dialog.destroy()

    def _save(self):
        self._file.write_text(self._text.get_buffer().get_property("text"), encoding="utf-8")
        self._text.get_buffer().set_modified(False)

    def _turn_upper(self):
        self._text.get_buffer().set_text(self._text.get_buffer().get_property("text").upper())


if __name__ == "__main__":
    Sample(sys.argv[1])
    Gtk.main()
