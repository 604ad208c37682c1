# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Statistics of samples, and their format in the report."""

from statistics import median, quantiles


def spread(samples):
    """Median, lower quartile and upper quartile."""
    if len(samples) < 2:
        return median(samples), samples[0], samples[0]
    low, _, high = quantiles(samples, n=4)
    return median(samples), low, high


def number(value):
    """Text with three significant digits, and without decimals from 100 on."""
    if value == 0:
        return "0"
    if abs(value) >= 100:
        return f"{value:,.0f}"
    return f"{value:.3g}"


def with_spread(samples, unit):
    middle, low, high = spread(samples)
    return f"{number(middle)} {unit} ({number(low)} to {number(high)})"


def table(heads, rows):
    lines = ["| " + " | ".join(heads) + " |", "|" + "---|" * len(heads)]
    lines += ["| " + " | ".join(str(cell) for cell in row) + " |" for row in rows]
    return "\n".join(lines)


def goal(value, limit, unit=""):
    """Three texts: the figure, its goal, and whether the goal is met."""
    verdict = "met" if value <= limit else "**not met**"
    return f"{number(value)}{unit}", f"≤ {number(limit)}{unit}", verdict
