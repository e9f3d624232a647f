"""One small description of each application of the matrix of toolkits."""

import importlib

LIGHT = ("mousepad", "featherpad", "linguist")
HEAVY = ("writer", "gimp", "firefox")


def description(name):
    """The description of the application with this name."""
    return importlib.import_module(f"toolkits.{name}").DESCRIPTION
