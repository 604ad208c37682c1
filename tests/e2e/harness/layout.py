# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks that texts are not cut off and do not overlap."""

from itertools import combinations

HOLDERS = ("tab", "button", "row", "group")
# These scroll: their contents may be larger than they are.
SCROLLING = ("Dashboard", "Settings")


def _assert_held(item, holder):
    if item.role == "text" and item.name:
        assert item.box.width > 0 and item.box.height > 0, item
        assert holder is None or holder.box.holds(item.box), (item, holder)
    if item.role in HOLDERS and item.name not in SCROLLING:
        holder = item
    for child in item.children:
        _assert_held(child, holder)


def _overlap(one, other):
    return (one.x < other.right and other.x < one.right
            and one.y < other.bottom and other.y < one.bottom)


def assert_uncut(tree):
    """Each text is inside its container and the window's width, and overlaps no other."""
    _assert_held(tree, None)
    (window,) = tree.every("window")
    texts = [text for text in tree.every("text") if text.name]
    assert len(texts) >= 13
    for text in texts:
        assert window.box.x <= text.box.x and text.box.right <= window.box.right, text
    for one, other in combinations(texts, 2):
        assert not _overlap(one.box, other.box), (one, other)
