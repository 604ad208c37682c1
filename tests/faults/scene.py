# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A home directory before and after one save or import."""

import os
import pathlib
import re
import shutil
import stat

DRIVER = os.environ["QUILLMARK_BUILD_DIR"] + "/tests/agentctl/agentctl_driver"
IMPORTED = "[agent]\nimported = true\n" + "#" * 9000 + "\n"
OLD = "[agent]\nold = true\n" + "#" * 5000 + "\n"
KEY = "the-new-key"


def is_saved(text):
    """Whether this is a saved configuration, from its first to its last byte."""
    pattern = rf'\[agent\]\n.*\napi_key = "{KEY}"\n.*/\.quillmark/logs/audit\.log"'
    return re.fullmatch(pattern, text, re.DOTALL) is not None


class Scene:
    """`action` in a home with the configuration `before`; None means no
    configuration and no folder for it."""

    def __init__(self, home, action, before):
        self.home = pathlib.Path(home)
        self.before = before
        self.folder = self.home / ".config/quillmark"
        self.file = self.folder / "config.toml"
        self.source = self.home / "chosen.toml"
        self.command = [DRIVER, action, KEY if action == "save" else str(self.source)]
        self.is_new = is_saved if action == "save" else lambda text: text == IMPORTED

    def set_up(self):
        shutil.rmtree(self.home, ignore_errors=True)
        self.home.mkdir(parents=True)
        self.source.write_text(IMPORTED)
        if self.before is not None:
            self.folder.mkdir(parents=True)
            self.file.write_text(self.before)
            self.file.chmod(0o600)

    def state(self):
        """`old` or `new`; anything else, such as a part of one, is an error."""
        text = self.file.read_text() if self.file.exists() else None
        if text == self.before:
            return "old"
        assert text is not None and self.is_new(text), f"torn: {text!r}"
        assert stat.S_IMODE(self.file.stat().st_mode) == 0o600
        return "new"

    def leftovers(self):
        if not self.folder.is_dir():
            return []
        return [path for path in self.folder.iterdir() if path != self.file]


def scenes(home):
    """Each action over a configuration and on a new machine, by name."""
    return {
        f"{action}-{place}": Scene(home, action, before)
        for action in ("save", "import")
        for place, before in (("over-old", OLD), ("first", None))
    }
