# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The text on the clipboard, as another program gets it."""

import subprocess
import sys

PASTE = """
import gi
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, Gtk
print(Gtk.Clipboard.get(Gdk.SELECTION_CLIPBOARD).wait_for_text() or "", end="")
"""


def text():
    done = subprocess.run([sys.executable, "-c", PASTE], capture_output=True, text=True,
                          check=True)
    return done.stdout
