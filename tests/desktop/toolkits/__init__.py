"""One small description of each application of the matrix of toolkits."""

import importlib


def description(name):
    """The description of the application with this name."""
    return importlib.import_module(f"toolkits.{name}").DESCRIPTION
