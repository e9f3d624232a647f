"""Java with Swing, in a sample of our own with the menus of the GTK 3 sample."""

import dataclasses
from pathlib import Path

from . import gtk3
from .description import Known, Toggle

# The program advises these options. Debian's own switch, in accessibility.properties, does not find the wrapper.
WRAPPER = ("-Xbootclasspath/a:/usr/share/java/java-atk-wrapper.jar "
           "-Djavax.accessibility.assistive_technologies=org.GNOME.Accessibility.AtkWrapper")


def command(directory):
    file = directory / "swing.txt"
    file.write_text(gtk3.TEXT, encoding="utf-8")
    return ["java", Path(__file__).with_name("SwingSample.java"), file]


DESCRIPTION = dataclasses.replace(
    gtk3.DESCRIPTION,
    name="Swing sample",
    toolkit="Java",
    package="openjdk-17-jre",
    more_packages=("libatk-wrapper-java-jni",),
    environment={"JAVA_TOOL_OPTIONS": WRAPPER},
    command=command,
    known=(Known("open", ("File", "Open..."), None,
                 no_shortcut="Only mnemonics are published, not the shortcuts of items."),),
    toggle=Toggle(("View", "Status Bar"), lambda running: running.find("label", "Ready") is not None),
    notes="""\
A sample of our own. Java reaches the accessibility bus through a wrapper (libatk-wrapper-java-jni), which has to be
named when an application is started: `JAVA_TOOL_OPTIONS="-Xbootclasspath/a:/usr/share/java/java-atk-wrapper.jar
-Djavax.accessibility.assistive_technologies=org.GNOME.Accessibility.AtkWrapper"`. The editor jEdit was tried by hand: its
menus are read in some 160 ms and can be pressed. It draws the keys in them itself, so nobody else can read them.
Its dialogs do not say that they are modal, so commands reach the window behind them.""",
)
