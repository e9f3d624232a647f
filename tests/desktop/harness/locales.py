"""A real locale for the private desktop. A fresh Debian has only C.UTF-8, where some results differ from those that
people see: ICU would order titles by ASCII there."""

import contextlib
import subprocess
import tempfile
from pathlib import Path

from .requirements import require

LOCALE = "en_US.UTF-8"
FOLDER = Path(__file__).resolve().parents[3] / "build" / "locales"


def locale_folder():
    """The folder for LOCPATH that holds the locale, which is compiled when it is first needed."""
    compiled = FOLDER / LOCALE
    if not compiled.is_dir():
        require("localedef", "/usr/share/i18n/locales/en_US")
        FOLDER.mkdir(parents=True, exist_ok=True)
        with tempfile.TemporaryDirectory(dir=FOLDER) as work:
            new = Path(work) / LOCALE
            subprocess.run(["localedef", "--no-archive", "-i", "en_US", "-f", "UTF-8", new], check=True)
            with contextlib.suppress(OSError):  # another test was first
                new.rename(compiled)
    return FOLDER
