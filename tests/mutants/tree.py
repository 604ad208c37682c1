# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A copy of the checkout in which one source at a time is changed."""

import contextlib
import os
import signal
import subprocess
from pathlib import Path

PRESET = "release"
BUILD = "build"  # where the preset builds


def listed(checkout):
    """All files of the checkout that are not ignored."""
    done = subprocess.run(
        ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
        cwd=checkout, stdout=subprocess.PIPE, check=True)
    return {name for name in done.stdout.decode().split("\0") if (checkout / name).is_file()}


class Tree:
    def __init__(self, checkout, folder):
        self.checkout = checkout
        self.folder = folder
        self.build = folder / BUILD
        self.log = folder.parent / "last.log"

    def refresh(self):
        """Copies only what differs, so that little is rebuilt. This also removes the
        mutant of an interrupted run."""
        wanted = listed(self.checkout)
        for path in self.folder.rglob("*"):
            if path.is_file() and self.build not in path.parents:
                if str(path.relative_to(self.folder)) not in wanted:
                    path.unlink()
        for name in wanted:
            source, copy = self.checkout / name, self.folder / name
            if not copy.exists() or copy.read_bytes() != source.read_bytes():
                copy.parent.mkdir(parents=True, exist_ok=True)
                copy.write_bytes(source.read_bytes())
                copy.chmod(source.stat().st_mode)

    @contextlib.contextmanager
    def mutated(self, mutant):
        path = self.folder / mutant.file
        original = path.read_text()
        lines = original.split("\n")
        assert lines[mutant.line - 1] == mutant.before, mutant
        lines[mutant.line - 1] = mutant.after
        path.write_text("\n".join(lines))
        try:
            yield
        finally:
            # Gets a new time, so that the build notices this change as well.
            path.write_text(original)

    def configure(self):
        subprocess.run(["cmake", "--preset", PRESET, "-DQUILLMARK_TESTS=ON",
                        "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"],
                       cwd=self.folder, stdout=subprocess.DEVNULL, check=True)

    def make(self, *targets):
        """Whether it builds. In the sandbox too: a build may run what it has built."""
        settings = {name: value for name, value in os.environ.items() if name.startswith("CCACHE_")}
        settings.setdefault("CCACHE_DIR", str(self.folder.parent / "ccache"))
        cache = Path(settings["CCACHE_DIR"])
        cache.mkdir(parents=True, exist_ok=True)
        return self.run(["env", *(f"{name}={value}" for name, value in settings.items()),
                         "cmake", "--build", self.build, "--target", *targets],
                        writable=(self.build, cache)) == 0

    def run(self, command, limit=None, writable=()):
        """The exit code in the sandbox, or None after `limit` seconds."""
        environment = os.environ | {
            "QUILLMARK_BUILD_DIR": str(self.build),
            "QUILLMARK_SANDBOX_WRITABLE": ":".join(map(str, writable)),
        }
        with self.log.open("wb") as log:
            child = subprocess.Popen([self.folder / "tests/support/sandbox", *command],
                                     cwd=self.folder, env=environment, stdin=subprocess.DEVNULL,
                                     stdout=log, stderr=subprocess.STDOUT, start_new_session=True)
            try:
                return child.wait(limit)
            except subprocess.TimeoutExpired:
                return None
            finally:
                if child.poll() is None:
                    os.killpg(child.pid, signal.SIGKILL)
                    child.wait()
