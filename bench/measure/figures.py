# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Samples and how they are told."""

from statistics import median, quantiles


def spread(samples):
    """Median, and the quartiles around it."""
    if len(samples) < 2:
        return median(samples), samples[0], samples[0]
    low, _, high = quantiles(samples, n=4)
    return median(samples), low, high


def number(value):
    """Three digits that matter, no more."""
    if value == 0:
        return "0"
    if abs(value) >= 100:
        return f"{value:,.0f}"
    return f"{value:.3g}"


def told(samples, unit):
    middle, low, high = spread(samples)
    return f"{number(middle)} {unit} ({number(low)} to {number(high)})"


def table(heads, rows):
    lines = ["| " + " | ".join(heads) + " |", "|" + "---|" * len(heads)]
    lines += ["| " + " | ".join(str(cell) for cell in row) + " |" for row in rows]
    return "\n".join(lines)


def goal(value, limit, unit=""):
    """A figure beside its goal, honest when it is missed."""
    verdict = "met" if value <= limit else "**not met**"
    return f"{number(value)}{unit}", f"≤ {number(limit)}{unit}", verdict
