"""The programs that the private desktop needs, and the Debian packages they come in."""

import os
import shutil

PACKAGE_OF = {
    "Xvfb": "xvfb",
    "openbox": "openbox",
    "dbus-daemon": "dbus",
    "xdotool": "xdotool",
    "xprop": "x11-utils",
    "xrandr": "x11-xserver-utils",
    "setxkbmap": "x11-xkb-utils",
    "import": "imagemagick",
    "display": "imagemagick",
    "setpriv": "util-linux",
    "localedef": "libc-bin",
    "/usr/share/i18n/locales/en_US": "locales",
    "mousepad": "mousepad",
    "featherpad": "featherpad",
    "/usr/lib/qt6/bin/linguist": "linguist-qt6",
    "/usr/lib/libreoffice/program/soffice.bin": "libreoffice-writer",
    "/usr/lib/firefox-esr/firefox-esr": "firefox-esr",
    "xterm": "xterm",
}


class MissingProgram(RuntimeError):
    """A program that the private desktop needs is not installed."""


def require(*programs):
    """Raises MissingProgram with the packages to install unless every program (or file, by its path) is there."""
    missing = [program for program in programs if shutil.which(program) is None and not os.path.isfile(program)]
    if missing:
        packages = sorted({PACKAGE_OF.get(program, program) for program in missing})
        raise MissingProgram(f"not installed: {', '.join(missing)} (apt-get install {' '.join(packages)})")
