# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a backend answers, and what it saw."""

import json
import threading
from dataclasses import dataclass, field


@dataclass(frozen=True)
class Answer:
    body: bytes = b""
    code: str = "200 OK"
    headers: tuple = ("Content-Type: application/json",)
    delay: float = 0.0
    # The answer is held back until the gate is set; one never set is silence.
    gate: threading.Event | None = None
    # Sent as it is, instead of everything above.
    raw: bytes | None = None

    def wire(self):
        if self.raw is not None:
            return self.raw
        lines = [
            f"HTTP/1.1 {self.code}",
            *self.headers,
            f"Content-Length: {len(self.body)}",
            "Connection: close",
        ]
        return ("\r\n".join(lines) + "\r\n\r\n").encode() + self.body


def answer(content, **details):
    """An Answer from an Answer, bytes, or anything that JSON can say."""
    if isinstance(content, Answer):
        return content
    if not isinstance(content, bytes):
        content = json.dumps(content).encode()
    return Answer(body=content, **details)


def silence():
    return Answer(gate=threading.Event())


@dataclass
class Request:
    time: float
    connection: int
    method: str
    target: str
    version: str
    headers: list = field(default_factory=list)
    # How many other requests were still unanswered when this one came.
    overlapping: int = 0
    answered: float | None = None

    @property
    def endpoint(self):
        return self.target.removeprefix("/api/")

    def header(self, name):
        return [value for key, value in self.headers if key == name]
