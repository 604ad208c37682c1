# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What an attacker on the agent's port may send."""

import json
import random
import socket
import struct
import unicodedata

from harness import bodies

OK = b"HTTP/1.1 200 OK\r\n"
BLOCK = b" " * (1 << 20)
HUGE = 60_000_000  # a little less than a body may have
TAB = "ctrl+4"  # the key of Alerts, where a text of the agent's is laid out


class Victim:
    """A connection under attack."""

    def __init__(self, connection, over):
        self._connection = connection
        self._over = over
        self.endpoint = None

    def send(self, data):
        self._connection.sendall(data)

    def continues(self, pause=0.0):
        """False when the attack is over."""
        return not self._over.wait(pause) if pause else not self._over.is_set()

    def reset(self):
        """Ends the connection with a reset."""
        self._connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
        self._connection.close()


def endless_body(victim):
    victim.send(OK + b"\r\n")
    while victim.continues():
        victim.send(BLOCK)


def endless_chunks(victim):
    victim.send(OK + b"Transfer-Encoding: chunked\r\n\r\n")
    chunk = b"4000\r\n" + BLOCK[:0x4000] + b"\r\n"
    while victim.continues():
        victim.send(chunk * 64)


def endless_header_line(victim):
    victim.send(OK + b"X: ")
    while victim.continues():
        victim.send(BLOCK)


def million_headers(victim):
    victim.send(OK + b"".join(b"X-%d: y\r\n" % i for i in range(1_000_000)) + b"\r\n{}")


def drip(data, pause):
    """Sends a byte, and after `pause` seconds the next one."""
    def send(victim):
        for byte in data:
            if not victim.continues(pause):
                return
            victim.send(bytes([byte]))
    return send


def silence(victim):
    while victim.continues(1.0):
        pass


def whole(**values):
    """Answers that are complete, and far too large."""
    bodies_sent = {endpoint: json.dumps(value).encode() for endpoint, value in values.items()}

    def send(victim):
        body = bodies_sent.get(victim.endpoint, b"{}")
        victim.send(OK + b"Content-Length: %d\r\n\r\n" % len(body) + body)
    return send


def huge_text():
    """In the first row of the Alerts tab."""
    return whole(alerts=bodies.alerts(bodies.alert("x" * HUGE)))


def huge_texts():
    """In every place that shows a text."""
    text = "many words " * 1_800_000
    return whole(
        status=bodies.status(status=text, last_scan=text),
        alerts=bodies.alerts(bodies.alert(text, text, description=text)),
        network=bodies.network({"local_address": text, "remote_port": text, "state": text}),
        inventory=bodies.inventory(bodies.app(text, version=text), services=[text]))


def huge_text_in_chunks():
    """A text whose length is not announced."""
    body = json.dumps(bodies.alerts(bodies.alert("x" * HUGE))).encode()
    size = len(BLOCK)

    def send(victim):
        victim.send(OK + b"Transfer-Encoding: chunked\r\n\r\n")
        for begin in range(0, len(body), size):
            piece = body[begin:begin + size]
            victim.send(b"%x\r\n%b\r\n" % (len(piece), piece))
        victim.send(b"0\r\n\r\n")
    return send


def long_texts():
    """In many rows of the Alerts tab."""
    texts = (bodies.alert("x" * 1_000_000, description="many words " * 100_000) for _ in range(30))
    return whole(alerts=bodies.alerts(*texts))


ASSIGNED = [c for c in map(chr, range(0x21, 0x30000)) if unicodedata.category(c)[0] in "LMNPS"]
SCRIPTS = ["".join(map(chr, range(first, first + 24))) for first in (
    0x531, 0x5D0, 0x628, 0x905, 0x985, 0xA05, 0xA85, 0xB05, 0xB85, 0xC05, 0xC85, 0xD05, 0xD85,
    0xE01, 0xE81, 0xF40, 0x1000, 0x10D0, 0x1208, 0x1780, 0x3041, 0x30A1, 0x3105, 0x4E00, 0xAC00,
    0x710, 0x780, 0x7C0, 0x13A0, 0x16A0, 0x1820, 0x2C00, 0x2D30, 0xA000, 0xAA00, 0x10330, 0x10400,
    0x12000)]
SYMBOLS = [c for c in ASSIGNED if unicodedata.category(c)[0] in "PS"]


def random_texts(count, length, choices):
    """Alerts of random characters from a new choice of characters each."""
    chance = random.Random(1)

    def send(victim):
        texts = ("".join(chance.choices(choices(chance), k=length)) for _ in range(count))
        alerts = (bodies.alert("malware", description=text) for text in texts)
        whole(alerts=bodies.alerts(*alerts))(victim)
    return send


def marks(_chance):
    """Few letters, so that most are one character for Qt."""
    return "e" + 99 * "\u0301" + 99 * "\U000E0100"


def controls(_chance):
    return "".join(map(chr, range(1, 0x20)))


def all_scripts(_chance):
    return ASSIGNED


def four_scripts(chance):
    return "".join(chance.sample(SCRIPTS, 4))


def japanese(_chance):
    return SCRIPTS[20] + SCRIPTS[21] + SCRIPTS[23]


def symbols(_chance):
    return SYMBOLS


def empty_services(victim):
    """Each takes ten times as much memory as its text."""
    body = b'{"apps":[],"network_interfaces":[],"permissions":[],"services":["' \
        + b'","' * 20_000_000 + b'"]}'
    victim.send(OK + b"Content-Length: %d\r\n\r\n" % len(body) + body)


def deep_nesting(victim):
    body = b'{"alerts":' + b"[" * 100_000 + b"]" * 100_000 + b"}"
    victim.send(OK + b"Content-Length: %d\r\n\r\n" % len(body) + body)


def resets(victim):
    victim.send(OK + b"Content-Le")
    victim.reset()


def every():
    """The attacks by name, in the order of the report."""
    return {
        "a body without end": endless_body,
        "chunks without end": endless_chunks,
        "a header line without end": endless_header_line,
        "a million headers": million_headers,
        "a byte every half second": drip(OK + b"X: " + b"y" * 1000, 0.5),
        "silence": silence,
        "a text of 60 MB": huge_text(),
        "a text of 60 MB in chunks": huge_text_in_chunks(),
        "texts of 20 MB wherever one is shown": huge_texts(),
        "sixty texts of 1 MB": long_texts(),
        "texts in all scripts": random_texts(10, 15_000, all_scripts),
        "long texts in four scripts each": random_texts(10, 15_000, four_scripts),
        "short texts in four scripts each": random_texts(100, 60, four_scripts),
        "long texts in Japanese scripts": random_texts(10, 15_000, japanese),
        "texts of all symbols": random_texts(10, 15_000, symbols),
        "texts of marks": random_texts(10, 15_000, marks),
        "texts of control characters": random_texts(10, 15_000, controls),
        "twenty million empty services": empty_services,
        "nesting 100,000 deep": deep_nesting,
        "resets amid the header": resets,
    }
