# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Programs of the bare system, started in it."""

import os
import subprocess
from pathlib import Path

from gi.repository import GLib
from patience import PATIENCE

ROOT = Path(os.environ["QUILLMARK_BUILD_DIR"]) / "bare" / "root"
PROGRAMS = "/usr/lib/quillmark-agent/QuillmarkAgent.app/Contents/MacOS"

# Its files, with the sandbox's processes, network, sockets and home. Menus start
# programs in the home directory.
INSIDE = [
    "bwrap", "--ro-bind", str(ROOT), "/", "--dev", "/dev", "--proc", "/proc",
    "--bind", "/tmp", "/tmp", "--bind", "/run", "/run",
    # The crash reporter is not part of the bare system.
    "--unsetenv", "LD_PRELOAD",
    "--chdir", os.environ["HOME"], "--die-with-parent", "--",
]


class Entry:
    """The panel's entry in the menu."""

    def __init__(self):
        self._file = GLib.KeyFile()
        path = ROOT / "usr/share/applications/org.quillmark.Agent.desktop"
        self._file.load_from_file(str(path), GLib.KeyFileFlags.NONE)

    def command(self, group="Desktop Entry"):
        return GLib.shell_parse_argv(self._file.get_string(group, "Exec"))[1]

    def value(self, key):
        return self._file.get_string("Desktop Entry", key)


def entry():
    return Entry()


def commands():
    """Every command of the packages."""
    links = (p for p in (ROOT / "usr/bin").iterdir() if p.is_symlink())
    return sorted(p.name for p in links if "/quillmark-agent/" in os.readlink(p))


def run(*command):
    return subprocess.run([*INSIDE, *command], capture_output=True, text=True, timeout=PATIENCE)
