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

    @contextlib.contextmanager
    def attacking(self, attack):
        self._over.clear()
        self._victims.clear()
        self._attack = attack
        try:
            yield
        finally:
            self._attack = None
            self._over.set()

    def value_bytes(self):
        """What a client must hold that shows a value while the next one comes: what
        was sent so far of the last two of each endpoint, of which up to a socket
        buffer may not have been read yet."""
        kept = {}
        for victim in self._victims:
            kept[victim.endpoint] = [*kept.get(victim.endpoint, [])[-1:], victim.value_bytes]
        return sum(map(sum, kept.values()))

    def _serve(self, connection, number):
        if not (attack := self._attack):
            super()._serve(connection, number)
            return
        victim = Victim(connection, self._over)
        with connection, contextlib.suppress(OSError):
            if request := self._read(connection, number):
                victim.endpoint = request.endpoint
                self._victims.append(victim)
                attack(victim)
            self._await_end(connection)

    def _await_end(self, connection):
        """Until the panel has taken all and leaves."""
        connection.shutdown(1)
        connection.settimeout(5)
        connection.recv(1)
