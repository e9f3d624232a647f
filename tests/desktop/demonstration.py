"""Shows the program's main job on a private desktop: it lists a real editor's menus, finds a command by a few
letters, presses it, and proves by the file that the editor then saves that the command was performed.

usage: demonstration.py PROGRAM PICTURE"""

import sys
from pathlib import Path

from harness import Desktop, Program
from harness.waiting import wait_until

TEXT = "the quick brown fox\njumps over the lazy dog\n"
SHOWN_MENU_LINES = 12


def main(program_path, picture):
    with Desktop() as desktop:
        tovrel = Program(desktop.environment, program_path)
        note = desktop.home / "note.txt"
        note.write_text(TEXT, encoding="utf-8")
        editor = desktop.launch(["mousepad", str(note)])
        desktop.windows.place(editor.window, 240, 130, 800, 520)
        editor.bring_to_front()
        print(f"A private desktop is up; mousepad (process {editor.pid}) shows {note.name}:")
        print(indented(TEXT))

        step("tovrel menus")
        menus = tovrel.expect("menus").output.splitlines()
        print(indented("\n".join(menus[:SHOWN_MENU_LINES] + [f"… and {len(menus) - SHOWN_MENU_LINES} lines more"])))

        for query, effect in (("select all", "selects the text"), ("upper", "turns it into capitals")):
            step(f"tovrel search {query}")
            print(indented(tovrel.expect("search", "--ids", "--limit", 3, query).output))
            best = tovrel.expect("search", "--json", query).json[0][0]["command"]
            step(f"tovrel press {best['id']!r}    ({effect})")
            tovrel.expect("press", best["id"])

        capitals = TEXT.upper()
        wait_until(lambda: editor.text() == capitals, "the editor to show capitals")
        print("The editor's accessible text, read by a separate client, is now:")
        print(indented(capitals))

        step("tovrel press 'menu:org.xfce.mousepad:File/Save'")
        tovrel.expect("press", "menu:org.xfce.mousepad:File/Save")
        wait_until(lambda: note.read_text(encoding="utf-8") == capitals, "the editor to save the file")
        print(f"Proved: {note.name} on disk holds the capitals.")
        desktop.take_picture(picture)
        print(f"Picture: {picture}")


def step(text):
    print(f"\n$ {text}")


def indented(text):
    return "\n".join("    " + line for line in text.splitlines())


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    try:
        main(Path(sys.argv[1]), Path(sys.argv[2]))
    except (AssertionError, RuntimeError) as failure:
        sys.exit(f"NOT proved: {failure}")
