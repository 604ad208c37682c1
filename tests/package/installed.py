# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The installed panel as a running process."""

import bare
from harness import processes
from harness.accessible import Tree
from harness.panel import Panel
from harness.waiting import until


class InstalledPanel(Panel):
    def __init__(self):
        super().__init__(*bare.INSIDE)
        # A descendant of bubblewrap and the launcher.
        self.pid = until(self._own_process, "the panel's process")
        self.tree = Tree(self.pid, self.ended)

    def _own_process(self):
        program = f"{bare.PROGRAMS}/quillmark-agent "
        found = [p.pid for p in processes.below(self.process.pid) if p.command == program]
        return found and found[0]
