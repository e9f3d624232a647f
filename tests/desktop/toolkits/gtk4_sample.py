"""An application in GTK 4 with a menu bar, because none that is packaged has one. It writes a line to a file for
everything that is done in it.

usage: gtk4_sample.py FILE"""

import sys

import gi

gi.require_version("Gtk", "4.0")
from gi.repository import Gio, GLib, Gtk  # noqa: E402, the version comes first

MENUS = """
<interface><menu id="bar">
  <submenu><attribute name="label">_File</attribute>
    <section>
      <item><attribute name="label">_New</attribute><attribute name="action">app.new</attribute>
        <attribute name="accel">&lt;Primary&gt;n</attribute></item>
      <item><attribute name="label">_Save</attribute><attribute name="action">win.save</attribute></item>
      <submenu><attribute name="label">_Export</attribute>
        <item><attribute name="label">As _Text...</attribute><attribute name="action">win.export</attribute></item>
      </submenu>
    </section>
    <section>
      <item><attribute name="label">_Quit</attribute><attribute name="action">app.quit</attribute></item>
    </section>
  </submenu>
  <submenu><attribute name="label">_Edit</attribute>
    <item><attribute name="label">_Change</attribute><attribute name="action">win.change</attribute></item>
  </submenu>
  <submenu><attribute name="label">_View</attribute>
    <item><attribute name="label">_Wrap Lines</attribute><attribute name="action">win.wrap</attribute></item>
    <submenu><attribute name="label">_Text Size</attribute>
      <item><attribute name="label">_Small</attribute><attribute name="action">win.size</attribute>
        <attribute name="target">small</attribute></item>
      <item><attribute name="label">_Large</attribute><attribute name="action">win.size</attribute>
        <attribute name="target">large</attribute></item>
    </submenu>
  </submenu>
</menu></interface>
"""


class Sample(Gtk.Application):
    def __init__(self, file):
        super().__init__(application_id="org.tovrel.Sample")
        self._file = file
        self._label = Gtk.Label()

    def do_startup(self):
        Gtk.Application.do_startup(self)
        self._add_plain(self, "new")
        self._add_plain(self, "quit").connect("activate", lambda *_: self.quit())
        self.set_menubar(Gtk.Builder.new_from_string(MENUS, -1).get_object("bar"))
        for action, key in (("win.save", "<Primary>s"), ("win.change", "<Primary>e")):
            self.set_accels_for_action(action, [key])

    def do_activate(self):
        window = Gtk.ApplicationWindow(application=self, title="Sample", show_menubar=True)
        window.set_child(self._label)
        save = self._add_plain(window, "save")
        save.connect("activate", lambda *_: save.set_enabled(False))
        save.set_enabled(False)
        self._add_plain(window, "change").connect("activate", lambda *_: save.set_enabled(True))
        self._add_plain(window, "export")
        self._add_stateful(window, "wrap", GLib.Variant("b", True))
        self._add_stateful(window, "size", GLib.Variant("s", "small"))
        window.present()

    def _add_plain(self, group, name):
        action = Gio.SimpleAction.new(name, None)
        action.connect("activate", lambda *_: self._note(name))
        group.add_action(action)
        return action

    def _add_stateful(self, group, name, state):
        # Without a handler, activation inverts a boolean state and sets a string state to the target.
        target = state.get_type() if state.is_of_type(GLib.VariantType("s")) else None
        action = Gio.SimpleAction.new_stateful(name, target, state)
        action.connect("notify::state", lambda *_: self._note(f"{name} {action.get_state().unpack()}"))
        group.add_action(action)

    def _note(self, line):
        self._label.set_label(line)
        with open(self._file, "a", encoding="utf-8") as file:
            file.write(line + "\n")


if __name__ == "__main__":
    Sample(sys.argv[1]).run([])
