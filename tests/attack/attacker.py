# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A good agent that turns bad and good again."""

import contextlib
import threading

from harness.backend import Backend

from .attacks import Victim


class Attacker(Backend):
    def __init__(self, **contents):
        super().__init__(**contents)
        self._attack = None
        self._over = threading.Event()
        self._victims = []
        self._longest_whole = 0

    @contextlib.contextmanager
    def attacking(self, attack):
        self._over.clear()
        self._longest_whole = 0
        self._attack = attack
        try:
            yield
        finally:
            self._attack = None
            self._over.set()

    def body_bytes(self):
        """What a client that keeps and shows bodies must hold: what was sent of
        those under way, of which up to a socket buffer may not have been read
        yet, and the longest that was sent whole."""
        under_way = sum(victim.body_bytes for victim in list(self._victims))
        return under_way + self._longest_whole

    def _serve(self, connection, number):
        if not (attack := self._attack):
            super()._serve(connection, number)
            return
        victim = Victim(connection, self._over)
        self._victims.append(victim)
        with connection, contextlib.suppress(OSError):
            if self._read(connection, number):
                attack(victim)
            self._await_end(connection)
        if victim.is_whole:
            self._longest_whole = max(self._longest_whole, victim.body_bytes)
        self._victims.remove(victim)

    def _await_end(self, connection):
        """Until the panel has taken all and leaves."""
        connection.shutdown(1)
        connection.settimeout(5)
        connection.recv(1)
