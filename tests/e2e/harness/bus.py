# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Private session buses: one that can be killed in the middle of an exchange, and one
that never answers."""

import contextlib
import signal
import socket
import subprocess
import sys
import threading
import time
from pathlib import Path

SERVICE = """
import sys
from gi.repository import Gio, GLib
bus = Gio.DBusConnection.new_for_address_sync(
    sys.argv[1], Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
    | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
              "RequestName", GLib.Variant("(su)", (sys.argv[2], 0)), None, 0, -1)
print("ready", flush=True)
sys.stdin.read()
"""


class SilentBus:
    """Accepts connections, as a stopped daemon does. `authenticates`: one that is stopped
    only after it has authenticated the other side."""

    def __init__(self, folder, *, authenticates=False):
        path = Path(folder) / "silent"
        self.address = f"unix:path={path}"
        self.connections = []
        self._authenticates = authenticates
        self._listener = socket.socket(socket.AF_UNIX)
        self._listener.bind(str(path))
        self._listener.listen()
        threading.Thread(target=self._accept, daemon=True).start()

    def stop(self):
        self._listener.close()

    def _accept(self):
        while True:
            connection, _ = self._listener.accept()
            self.connections.append(connection)
            if self._authenticates:
                threading.Thread(target=self._authenticate, args=(connection,), daemon=True).start()

    @staticmethod
    def _authenticate(connection):
        with connection.makefile("rwb", buffering=0) as stream:
            while b"BEGIN" not in (line := stream.readline()):
                stream.write(b"AGREE_UNIX_FD\r\n" if b"NEGOTIATE" in line
                             else b"OK 0123456789abcdef0123456789abcdef\r\n")
            time.sleep(600)


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

    def silent_service(self, name):
        """A stopped process that has this name on the bus."""
        service = subprocess.Popen([sys.executable, "-c", SERVICE, self.address, name],
                                   stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        assert service.stdout.readline(), "the service did not start"
        service.send_signal(signal.SIGSTOP)
        return service

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
