"""The directories and environment variables of a private desktop."""

import os
from pathlib import Path

from .locales import LOCALE, locale_folder

# The variables that are passed on: the path of programs, and the options of sanitizers.
PASSED_ON = ("PATH", "TZ", "ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS", "ASAN_SYMBOLIZER_PATH")


def private_environment(root):
    """Makes a home under `root` and returns an environment that names nothing of the user's session."""
    directories = {
        "HOME": "home",
        "XDG_CONFIG_HOME": "home/.config",
        "XDG_CACHE_HOME": "home/.cache",
        "XDG_DATA_HOME": "home/.local/share",
        "XDG_STATE_HOME": "home/.local/state",
        "XDG_RUNTIME_DIR": "run",
        "TMPDIR": "tmp",
    }
    environment = {name: os.environ[name] for name in PASSED_ON if name in os.environ}
    for name, directory in directories.items():
        path = Path(root) / directory
        path.mkdir(parents=True, exist_ok=True)
        path.chmod(0o700)
        environment[name] = str(path)
    environment["LANG"] = LOCALE
    environment["LOCPATH"] = str(locale_folder())
    environment["TOVREL_PREFERENCES"] = str(Path(root) / "home" / "preferences.db")
    # Applications keep their settings in their own files and need no daemon.
    environment["GSETTINGS_BACKEND"] = "memory"
    return environment
