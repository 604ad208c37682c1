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
    """A connection under attack; counts what went into it of a body that is a
    value, which the panel has to keep."""

    def __init__(self, connection, over):
        self._connection = connection
        self._over = over
        self.endpoint = None
        self.value_bytes = 0

    def send(self, data):
        self._connection.sendall(data)

    def value(self, data):
        for begin in range(0, len(data), len(BLOCK)):
            piece = data[begin:begin + len(BLOCK)]
            self._connection.sendall(piece)
            self.value_bytes += len(piece)

    def goes_on(self, pause=0.0):
        """False once the attack is over."""
        return not self._over.wait(pause) if pause else not self._over.is_set()

    def reset(self):
        """An end without a good-bye."""
        self._connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
        self._connection.close()


def endless_body(victim):
    victim.send(OK + b"\r\n")
    while victim.goes_on():
        victim.send(BLOCK)


def endless_chunks(victim):
    victim.send(OK + b"Transfer-Encoding: chunked\r\n\r\n")
    chunk = b"4000\r\n" + BLOCK[:0x4000] + b"\r\n"
    while victim.goes_on():
        victim.send(chunk * 64)


def endless_header_line(victim):
    victim.send(OK + b"X: ")
    while victim.goes_on():
        victim.send(BLOCK)


def million_headers(victim):
    victim.send(OK + b"".join(b"X-%d: y\r\n" % i for i in range(1_000_000)) + b"\r\n{}")


def byte_every_half_second(victim):
    for byte in OK + b"X: " + b"y" * 1000:
        if not victim.goes_on(0.5):
            return
        victim.send(bytes([byte]))


def silence(victim):
    while victim.goes_on(1.0):
        pass


def whole(**values):
    """Answers that are complete, and far too much."""
    bodies_sent = {endpoint: json.dumps(value).encode() for endpoint, value in values.items()}

    def send(victim):
        body = bodies_sent.get(victim.endpoint, b"{}")
        victim.send(OK + b"Content-Length: %d\r\n\r\n" % len(body))
        victim.value(body)
    return send


def huge_text():
    """In the first row of the Alerts tab."""
    return whole(alerts=bodies.alerts(bodies.alert("x" * 100_000_000)))


def huge_texts():
    """In every place that shows one."""
    text = "many words " * 2_000_000
    return whole(
        status=bodies.status(status=text, last_scan=text),
        alerts=bodies.alerts(bodies.alert(text, text, description=text)),
        network=bodies.network({"local_address": text, "remote_port": text, "state": text}),
        inventory=bodies.inventory(bodies.app(text, version=text), services=[text]))


def huge_text_in_chunks():
    """Of which nobody knows how long it will be."""
    body = json.dumps(bodies.alerts(bodies.alert("x" * 100_000_000))).encode()
    size = len(BLOCK)

    def send(victim):
        victim.send(OK + b"Transfer-Encoding: chunked\r\n\r\n")
        for begin in range(0, len(body), size):
            piece = body[begin:begin + size]
            victim.send(b"%x\r\n" % len(piece))
            victim.value(piece)
            victim.send(b"\r\n")
        victim.send(b"0\r\n\r\n")
    return send


def long_texts():
    """In as many rows as the Alerts tab shows."""
    texts = (bodies.alert("x" * 1_000_000, description="many words " * 100_000) for _ in range(100))
    return whole(alerts=bodies.alerts(*texts))


def empty_services(victim):
    """Each of which takes ten times what it takes in JSON."""
    body = b'{"apps":[],"network_interfaces":[],"permissions":[],"services":["' \
        + b'","' * 20_000_000 + b'"]}'
    victim.send(OK + b"Content-Length: %d\r\n\r\n" % len(body))
    # Too many to be taken, so that nothing of it is to be kept.
    victim.send(body)


def deep_nesting(victim):
    body = b'{"alerts":' + b"[" * 100_000 + b"]" * 100_000 + b"}"
    victim.send(OK + b"Content-Length: %d\r\n\r\n" % len(body) + body)


def resets(victim):
    victim.send(OK + b"Content-Le")
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
        "a text of 100 MB in chunks": huge_text_in_chunks(),
        "texts of 22 MB wherever one is shown": huge_texts(),
        "two hundred texts of 1 MB": long_texts(),
        "twenty million empty services": empty_services,
        "nesting 100,000 deep": deep_nesting,
        "resets amid the header": resets,
    }
