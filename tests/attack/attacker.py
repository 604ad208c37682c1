# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A good agent that can be hostile for some time."""

import contextlib
import threading

from harness.backend import Backend

from .attacks import Victim


class Attacker(Backend):
    def __init__(self, **contents):
        super().__init__(**contents)
        self._attack = None
        self._over = threading.Event()

    @contextlib.contextmanager
    def attacking(self, attack):
        self._over.clear()
        self._attack = attack
        try:
            yield
        finally:
            self._attack = None
            self._over.set()

    def _serve(self, connection, number):
        if not (attack := self._attack):
            super()._serve(connection, number)
            return
        victim = Victim(connection, self._over)
        with connection, contextlib.suppress(OSError):
            if request := self._read(connection, number):
                victim.endpoint = request.endpoint
                attack(victim)
            self._await_end(connection)

    def _await_end(self, connection):
        """Waits until the panel has read everything and closes."""
        connection.shutdown(1)
        connection.settimeout(5)
        connection.recv(1)
