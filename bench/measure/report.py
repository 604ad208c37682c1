# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The report of the measurements for the docs."""

import json
import os
import platform
import subprocess
from pathlib import Path

from .figures import table


class Report:
    def __init__(self):
        self._sections = []
        self._goals = []

    def section(self, title, text):
        print(f"\n## {title}\n\n{text}", flush=True)
        self._sections.append((title, text))

    def goal(self, what, judged):
        print(f"-> {what}: {' '.join(judged)}", flush=True)
        self._goals.append((what, *judged))

    def save(self, path):
        Path(path).write_text(json.dumps({"goals": self._goals, "sections": self._sections}))

    def add(self, path):
        """Adds the results that were saved to `path`."""
        saved = json.loads(Path(path).read_text())
        self._goals += saved["goals"]
        self._sections += saved["sections"]

    def write(self, path, preface):
        parts = [preface, machine()]
        if self._goals:
            parts.append("## Goals\n\n" + table(("figure", "measured", "goal", ""), self._goals))
        parts += [f"## {title}\n\n{text}" for title, text in self._sections]
        Path(path).write_text("\n\n".join(parts) + "\n")


def version(package):
    shown = subprocess.run(["dpkg-query", "-W", "-f", "${Version}", package],
                           capture_output=True, text=True)
    return shown.stdout or "none"


def machine():
    cpu = next((line.partition(":")[2].strip() for line in open("/proc/cpuinfo")
                if line.startswith("model name")), platform.machine())
    system = platform.freedesktop_os_release()["PRETTY_NAME"]
    return (f"Measured on {os.cpu_count()} cores of {cpu}, {system}, "
            f"Qt {version('libqt6core6*')}, Boost {version('libboost-json1.*-dev')}, "
            "without a GPU, under Xvfb.")
