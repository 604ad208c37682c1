# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Orca, the screen reader: everything that it says.

Start it before the panel, as a user's desktop does. It needs no sound and no voice:
its words are taken from its log. Tests write them as version 43 (Debian 12) says them;
here are the differences of version 48 (Debian 13).
"""

import codecs
import contextlib
import functools
import os
import re
import subprocess
import threading
import time
import tty
from pathlib import Path

from . import hands
from .waiting import until

# The text, then the voice; after the name of a pressed key there is a space between them,
# and it does not count. In a text of several lines, the log indents all but the first.
SPEECH = re.compile(r"SPEECH OUTPUT: '(.*?)'(?: voice=\w+)?\{", re.DOTALL)
NEWER_SPEECH = re.compile(r"SPEECH OUTPUT: '(.*?)' \{", re.DOTALL)
INDENTED = re.compile(r"\n {18}")

# It logs each key and event; without any for that long, in seconds, it has handled all.
QUIET = 0.6

# Without the names of pressed keys, which version 48 says like all other words.
SETTINGS = """{"general": {"enableKeyEcho": false},
 "profiles": {"default": {"profile": ["Default", "default"], "enableKeyEcho": false}},
 "pronunciations": {}, "keybindings": {}}"""


@functools.cache
def _is_newer():
    shown = subprocess.run(["orca", "--version"], capture_output=True, text=True, check=True)
    return int(re.search(r"\d+", shown.stdout)[0]) > 43


def expected(words):
    """An utterance of version 43 as this version says it."""
    if not _is_newer():
        return words
    words = words.removeprefix("notification ").removesuffix(".").removesuffix(" section")
    return words.replace(" push button", " button")


def _as_said(utterance):
    """The utterances that version 43 would say separately."""
    if not _is_newer():
        return [utterance]
    return re.split(r" (?=List with \d+ item)", utterance.removesuffix("."))


def group_words(name, text):
    """What is said when the focus enters a group with this text."""
    return [f"{name} {text} panel."] if _is_newer() else [f"{name} panel.", text]


def list_words(count, in_view):
    """What is said of a list that the focus enters: the newer version counts only the
    rows in view."""
    return f"List with {in_view if _is_newer() else count} items."


def password_words(description, dots=""):
    """What is said of a masked field, in which a dot stands for each character."""
    if _is_newer():
        return [f"{description} password text {dots}".strip()]
    return ["password text.", f"{description}."]


class ScreenReader:
    def __init__(self):
        if _is_newer():
            file = Path.home() / ".local/share/orca/user-settings.conf"
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(SETTINGS)
        self._said = []
        self._mark = 0
        self._busy_at = time.monotonic()
        # Python writes each line of a log at once only if the log is a terminal.
        self._log, terminal = os.openpty()
        tty.setraw(terminal)
        self._orca = subprocess.Popen(
            ["orca", "--replace", "--debug-file", os.ttyname(terminal)],
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
        )
        self._terminal = terminal
        threading.Thread(target=self._follow, daemon=True).start()
        self.hear("Screen reader on.")

    def stop(self):
        self._orca.terminate()
        try:
            self._orca.wait(10)
        except subprocess.TimeoutExpired:
            self._orca.kill()
            self._orca.wait()
        os.close(self._terminal)

    @property
    def said(self):
        """What it has said since the last words that a test heard."""
        return self._said[self._mark:]

    def press(self, *keys):
        """Presses keys. From here on, only what is said later can be heard."""
        self.forget()
        hands.key(*keys)

    def forget(self):
        """From here on, only what is said later can be heard."""
        self._mark = len(self._said)

    def settle(self):
        """Waits until it has handled all keys and events."""
        self._until(lambda: time.monotonic() - self._busy_at > QUIET, "a quiet log")

    def hear(self, *words):
        """Waits until all these have been said, in this order, and returns all that
        was said up to the last of them. Each is a whole utterance."""

        def heard():
            place = self._mark
            for word in map(expected, words):
                if word not in self._said[place:]:
                    return None
                place = self._said.index(word, place) + 1
            return place

        end = self._until(heard, f"the words {words}")
        said, self._mark = self._said[self._mark:end], end
        return said

    def hear_only(self, *words, newer_also=None):
        """The same, if nothing else was said; by a newer version, nothing else without
        the text `newer_also`."""
        said = self.hear(*words)
        if newer_also and _is_newer():
            said = [each for each in said if newer_also not in each]
        assert said == list(map(expected, words))

    def hear_all(self, *beginnings):
        """Waits until an utterance has begun with each of these, in any order."""

        def heard():
            return all(any(words.startswith(beginning) for words in self.said)
                       for beginning in map(expected, beginnings))

        self._until(heard, f"words that begin with {beginnings}")
        self.forget()

    def hear_announced(self, announcement, *words):
        """Waits for an announcement and what is said of the item that gets the focus. A newer
        version says them in any order."""
        hear = self.hear_all if _is_newer() else self.hear
        hear(announcement, *words)

    def hear_about(self, name):
        """Waits for words with this name, and returns all that was said until the reader
        had nothing more to say."""
        self._until(lambda: any(name in words for words in self.said), f"words with {name!r}")
        counts = []

        def quiet():
            counts.append(len(self._said))
            return len(counts) > 3 and len(set(counts[-3:])) == 1

        until(quiet, "the end of the words", step=0.2)
        said = self.said
        self.forget()
        return said

    def _until(self, heard, what):
        """Returns the first true value of `heard`. On failure, tells what was said instead."""
        try:
            return until(lambda: self._alive() and heard(), what)
        except AssertionError as failed:
            raise AssertionError(f"{failed}; it said {self.said}") from None

    def _alive(self):
        assert self._orca.poll() is None, "the screen reader has ended"
        return True

    def _follow(self):
        speech = NEWER_SPEECH if _is_newer() else SPEECH
        decode = codecs.getincrementaldecoder("utf-8")("replace").decode
        text = ""
        with contextlib.suppress(OSError):  # closed
            while piece := os.read(self._log, 65536):
                self._busy_at = time.monotonic()
                text += decode(piece)
                while found := speech.search(text):
                    self._said += _as_said(INDENTED.sub("\n", found[1]))
                    text = text[found.end():]
                # The rest may contain the beginning of the next words.
                text = text[max(text.rfind("SPEECH OUTPUT"), text.rfind("\n"), 0):]
