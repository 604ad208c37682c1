# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A real HTTP server on the agent's port, with answers that a test sets."""

import socket
import threading
import time

from . import bodies
from .exchange import Answer, Request, answer
from .waiting import until

PORT = 7823
ENDPOINTS = ("status", "alerts", "network", "inventory")


def pollers(starts):
    """How many pollers are active, from the start times of polls. Uses the mean of
    several intervals, because a busy machine delays single polls."""
    return round((len(starts) - 1) * 5 / (starts[-1] - starts[0]))


class Backend:
    def __init__(self, **contents):
        self.requests = []
        self.connections = 0
        self._answers = {}
        self._lock = threading.Lock()
        self._stopped = threading.Event()
        self._listener = None
        self.reply(**(bodies.everyday() | contents))

    def reply(self, **contents):
        """Sets answers by endpoint. A callable gets the request and returns the answer."""
        made = {k: v if callable(v) else answer(v) for k, v in contents.items()}
        with self._lock:
            self._answers.update(made)

    def start(self):
        self._stopped.clear()
        self._listener = socket.create_server(("127.0.0.1", PORT), backlog=256)
        threading.Thread(target=self._accept, args=(self._listener,), daemon=True).start()
        return self

    def stop(self):
        """As when the agent's process ends: the port closes, connections break."""
        self._stopped.set()
        if self._listener:
            # Closing alone would leave the accepting thread holding the port.
            self._listener.shutdown(socket.SHUT_RDWR)
            self._listener.close()
            self._listener = None

    def seen(self, endpoint=None):
        with self._lock:
            return [r for r in self.requests if endpoint in (None, r.endpoint)]

    def wait_for_poll(self):
        """Waits for a whole poll that begins after this call."""
        now = time.monotonic()
        until(
            lambda: self._answered_since(now), "a whole poll", step=0.02
        )

    def _answered_since(self, start):
        started = [r.time for r in self.seen("status") if r.time > start]
        return started and any(
            r.answered for r in self.seen("inventory") if r.time > started[0]
        )

    def _accept(self, listener):
        while True:
            try:
                connection, _ = listener.accept()
            except OSError:
                return
            self.connections += 1
            threading.Thread(
                target=self._serve, args=(connection, self.connections), daemon=True
            ).start()

    def _serve(self, connection, number):
        with connection:
            try:
                request = self._read(connection, number)
                if request and self._hold(chosen := self._choose(request)):
                    # Set first: the panel may continue before sendall returns.
                    request.answered = time.monotonic()
                    connection.sendall(chosen.wire())
            except OSError:
                pass  # The panel may end at any time.

    def _read(self, connection, number):
        head = b""
        while b"\r\n\r\n" not in head:
            chunk = connection.recv(65536)
            if not chunk:
                return None
            head += chunk
        first, *rest = head.partition(b"\r\n\r\n")[0].decode("latin-1").split("\r\n")
        headers = [(k, v.strip(" ")) for k, _, v in (line.partition(":") for line in rest)]
        with self._lock:
            request = Request(time.monotonic(), number, *first.split(" "), headers)
            request.overlapping = sum(not r.answered for r in self.requests)
            self.requests.append(request)
        return request

    def _choose(self, request):
        with self._lock:
            chosen = self._answers.get(request.endpoint, Answer(code="404 Not Found"))
        return answer(chosen(request)) if callable(chosen) else chosen

    def _hold(self, chosen):
        """False when the backend stopped before the answer was due."""
        if self._stopped.wait(chosen.delay):
            return False
        while chosen.gate and not chosen.gate.wait(0.02):
            if self._stopped.is_set():
                return False
        return True
