# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What an attacker at the agent's place may send, each until it is told to stop."""

import json
import socket
import struct

from harness import bodies

OK = b"HTTP/1.1 200 OK\r\n"
BLOCK = b" " * (1 << 20)


class Victim:
    """A connection under attack; counts what of a body went into it."""

    def __init__(self, connection, over):
        self._connection = connection
        self._over = over
        self.body_bytes = 0
        self.is_whole = False

    def head(self, data):
        self._connection.sendall(data)

    def body(self, data):
        self._connection.sendall(data)
        self.body_bytes += len(data)

    def goes_on(self, pause=0.0):
        """False once the attack is over."""
        return not self._over.wait(pause) if pause else not self._over.is_set()

    def reset(self):
        """An end without a good-bye."""
        self._connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
        self._connection.close()


def endless_body(victim):
    victim.head(OK + b"\r\n")
    while victim.goes_on():
        victim.body(BLOCK)


def endless_chunks(victim):
    victim.head(OK + b"Transfer-Encoding: chunked\r\n\r\n")
    chunk = b"4000\r\n" + BLOCK[:0x4000] + b"\r\n"
    while victim.goes_on():
        victim.body(chunk * 64)


def endless_header_line(victim):
    victim.head(OK + b"X: ")
    while victim.goes_on():
        victim.head(BLOCK)


def million_headers(victim):
    victim.head(OK + b"".join(b"X-%d: y\r\n" % i for i in range(1_000_000)) + b"\r\n{}")


def byte_every_half_second(victim):
    for byte in OK + b"X: " + b"y" * 1000:
        if not victim.goes_on(0.5):
            return
        victim.head(bytes([byte]))


def silence(victim):
    while victim.goes_on(1.0):
        pass


def whole(body):
    """An answer that is complete, and far too much."""
    def send(victim):
        victim.head(OK + b"Content-Length: %d\r\n\r\n" % len(body))
        victim.body(body)
        victim.is_whole = True
    return send


def huge_text():
    """In the first row of the Alerts tab."""
    text = "x" * 100_000_000
    return whole(json.dumps(bodies.alerts(bodies.alert(text))).encode())


def long_texts():
    """In as many rows as the Alerts tab shows."""
    texts = (bodies.alert("x" * 1_000_000, description="many words " * 100_000) for _ in range(100))
    return whole(json.dumps(bodies.alerts(*texts)).encode())


def deep_nesting():
    return whole(b'{"alerts":' + b"[" * 100_000 + b"]" * 100_000 + b"}")


def resets(victim):
    victim.head(OK + b"Content-Le")
    victim.reset()


def every():
    """Name and attack, in the order in which they are told."""
    return {
        "a body without end": endless_body,
        "chunks without end": endless_chunks,
        "a header line without end": endless_header_line,
        "a million headers": million_headers,
        "a byte every half second": byte_every_half_second,
        "silence": silence,
        "a text of 100 MB": huge_text(),
        "two hundred texts of 1 MB": long_texts(),
        "nesting 100,000 deep": deep_nesting(),
        "resets amid the header": resets,
    }
