"""Figures as rows of a table in Markdown."""

import math
import statistics

HEADING = ("| What | n | Median | 99th percentile | Longest | Target |\n"
           "|---|---|---|---|---|---|")


class Report:
    """Collects rows, and shows each on standard error as soon as it is known."""

    def __init__(self, progress):
        self._progress = progress
        self._times = []
        self._facts = []

    def times(self, what, milliseconds, target=""):
        """Adds a row of times and returns their median."""
        ordered = sorted(milliseconds)
        median = statistics.median(ordered)
        # The smallest time that at least 99 in 100 do not exceed; with fewer than a hundred it is the longest.
        percentile = ordered[math.ceil(0.99 * len(ordered)) - 1]
        self._add(self._times, f"| {what} | {len(ordered)} | {median:.1f} ms | {percentile:.1f} ms | "
                               f"{ordered[-1]:.1f} ms | {target} |")
        return median

    def fact(self, what, value, target=""):
        self._add(self._facts, f"| {what} | {value} | {target} |")

    def markdown(self):
        facts = ["", "| What | Measured | Target |", "|---|---|---|", *self._facts] if self._facts else []
        times = [HEADING, *self._times] if self._times else []
        return "\n".join([*times, *facts])

    def _add(self, rows, row):
        rows.append(row)
        print(row, file=self._progress, flush=True)
