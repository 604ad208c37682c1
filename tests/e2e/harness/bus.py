# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Private session buses: one that can be killed in the middle of an exchange, and one
that never answers."""

import contextlib
import signal
import socket
import subprocess
import threading
from pathlib import Path


class SilentBus:
    """Accepts connections, as a stopped daemon does."""

    def __init__(self, folder):
        path = Path(folder) / "silent"
        self.address = f"unix:path={path}"
        self._listener = socket.socket(socket.AF_UNIX)
        self._listener.bind(str(path))
        self._listener.listen()

    def stop(self):
        self._listener.close()


class Bus:
    """The real daemon, behind a socket that counts the pieces of data it passes on."""

    def __init__(self, folder):
        self._daemon = subprocess.Popen(
            ["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1",
             f"--address=unix:path={folder}/daemon"],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
        )
        assert self._daemon.stdout.readline(), "the bus did not start"
        self._behind = f"{folder}/daemon"
        self._front = Path(folder) / "bus"
        self.address = f"unix:path={self._front}"
        self._lock = threading.Lock()
        self._pieces = 0
        self._dies_at = None
        self._listener = socket.socket(socket.AF_UNIX)
        self._listener.bind(str(self._front))
        self._listener.listen()
        threading.Thread(target=self._accept, daemon=True).start()

    @property
    def pieces(self):
        """How many pieces both sides have sent since the last `count`."""
        with self._lock:
            return self._pieces

    def count(self, dies_at=None):
        """Counts from 0 again. Kills the daemon instead of passing on the piece `dies_at`."""
        with self._lock:
            self._pieces = 0
            self._dies_at = dies_at

    def hang(self, stopped):
        """Stops the daemon, or lets it continue."""
        self._daemon.send_signal(signal.SIGSTOP if stopped else signal.SIGCONT)

    def alive(self):
        return self._daemon.poll() is None

    def stop(self):
        self._front.unlink(missing_ok=True)
        self._daemon.kill()
        self._daemon.wait()
        self._daemon.stdout.close()
        self._listener.close()

    def _accept(self):
        with contextlib.suppress(OSError):  # closed
            while True:
                client, _ = self._listener.accept()
                daemon = socket.socket(socket.AF_UNIX)
                try:
                    daemon.connect(self._behind)
                except OSError:
                    client.close()
                    continue
                for ends in ((client, daemon), (daemon, client)):
                    threading.Thread(target=self._pass_on, args=ends, daemon=True).start()

    def _pass_on(self, source, goal):
        with contextlib.suppress(OSError):  # one end is closed
            while piece := source.recv(65536):
                if not self._may_pass():
                    break
                goal.sendall(piece)
        for end in (source, goal):
            with contextlib.suppress(OSError):
                end.shutdown(socket.SHUT_RDWR)

    def _may_pass(self):
        with self._lock:
            dies = self._pieces == self._dies_at
            self._pieces += 1
            if dies:
                self._daemon.kill()
                self._daemon.wait()
        return not dies
