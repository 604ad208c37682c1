# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The answers of a backend, and the requests it received."""

import json
import threading
from dataclasses import dataclass, field


@dataclass(frozen=True)
class Answer:
    body: bytes = b""
    code: str = "200 OK"
    headers: tuple = ("Content-Type: application/json",)
    delay: float = 0.0
    # The answer is sent when the gate is set. A gate that is never set means no answer.
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
    """An Answer from an Answer, bytes, or any value that JSON can represent."""
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
