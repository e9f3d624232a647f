"""Java with Swing, by a sample of ours."""

from pathlib import Path

from .description import Conditional, Description, Effect, Known, Toggle

TEXT = "the quick brown fox\n"
# As the program advises. Debian's own switch, in accessibility.properties, does not find the wrapper.
WRAPPER = ("-Xbootclasspath/a:/usr/share/java/java-atk-wrapper.jar "
           "-Djavax.accessibility.assistive_technologies=org.GNOME.Accessibility.AtkWrapper")


def command(directory):
    file = directory / "swing.txt"
    file.write_text(TEXT, encoding="utf-8")
    return ["java", Path(__file__).with_name("SwingSample.java"), file]


DESCRIPTION = Description(
    name="Swing sample",
    toolkit="Java",
    package="openjdk-17-jre",
    more_packages=("libatk-wrapper-java-jni",),
    environment={"JAVA_TOOL_OPTIONS": WRAPPER},
    command=command,
    menus=("File", "Edit", "View"),
    known=(Known("open", ("File", "Open..."), None,
                 no_shortcut="Only mnemonics are published, not the keys of items."),),
    toggle=Toggle(("View", "Status Bar"), lambda running: running.find("label", "Ready") is not None),
    conditional=Conditional(("File", "Save"), "the document has been changed",
                            allow=lambda running: running.type_text("x"),
                            forbid=lambda running: running.press_keys("ctrl+s")),
    effect=Effect(("Edit", "Upper Case"), "the text in capitals", lambda running: running.text() == TEXT.upper()),
    dialog=("File", "Open..."),
    notes="""\
A sample of our own. Java reaches the accessibility bus through a wrapper (libatk-wrapper-java-jni), which has to be
named when an application is started: `JAVA_TOOL_OPTIONS="-Xbootclasspath/a:/usr/share/java/java-atk-wrapper.jar
-Djavax.accessibility.assistive_technologies=org.GNOME.Accessibility.AtkWrapper"`. The editor jEdit was tried by hand: its
menus are read in some 160 ms and can be pressed; the keys in them are its own drawing, which nobody else can read.""",
)
