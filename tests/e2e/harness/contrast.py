# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The contrast of what is drawn with its background, computed from pixels."""

from collections import Counter


def luminance(colour):
    parts = [c / 255 for c in colour]
    red, green, blue = (c / 12.92 if c <= 0.04045 else ((c + 0.055) / 1.055) ** 2.4 for c in parts)
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    """The contrast ratio of the accessibility guidelines, 1 to 21."""
    dark, light = sorted((luminance(one), luminance(other)))
    return (light + 0.05) / (dark + 0.05)


def inked(pixels):
    """The contrast of what is drawn with the background, the most frequent colour.

    The strongest colour counts, because edges are antialiased. At least 20 pixels
    must have it, because single pixels may have any colour.
    """
    counted = Counter(pixels)
    ground = counted.most_common(1)[0][0]
    strong = (contrast(colour, ground) for colour, count in counted.items() if count >= 20)
    return max(strong, default=1.0)
