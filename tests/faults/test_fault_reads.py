# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""System calls that fail, or end the process, while the panel reads the token or
the configuration: two files each, the second of which is read if the first fails."""

import pathlib
import shutil

import pytest

import scene
import traced

# Long enough for several reads: a part of a text must not be taken for the whole.
FIRST = "a" * 70000
SECOND = "b" * 70000
# The longest that is read back.
URL = 8000
# The calls without which a file is unreadable; the others are repeated or not needed.
DECIDING = ("openat", "newfstatat", "fstat", "read")


class Reading:
    """Two files with something to read in each, and nothing else."""

    def __init__(self, action, first, second, text, message):
        self.home = pathlib.Path("/tmp/reading")
        self.command = [scene.DRIVER, action]
        self.files = {first: text(FIRST), self.home / second: text(SECOND)}
        self.messages = {"first": message(FIRST), "second": message(SECOND),
                         "none": message("none")}

    def set_up(self):
        shutil.rmtree(self.home, ignore_errors=True)
        for path, text in self.files.items():
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)

    def run(self, *faults):
        """Which of the two was read, or none; a part of one is an error."""
        self.set_up()
        outcome = traced.run(self.command, self.home, faults)
        for path, text in self.files.items():
            assert path.read_text() == text
            assert list(path.parent.iterdir()) == [path]
        if outcome.killed:
            assert outcome.message == ""
            return "killed"
        assert {fault.call for fault in faults} == set(outcome.disturbed)
        (source,) = (name for name, text in self.messages.items() if text == outcome.message)
        return source


READINGS = {
    "token": Reading(
        "token",
        pathlib.Path("/var/run/quillmark/token"),
        ".quillmark/token",
        text=lambda word: word + "\n",
        message=lambda word: word,
    ),
    "read-back": Reading(
        "read-back",
        pathlib.Path("/tmp/reading/.config/quillmark/config.toml"),
        ".quillmark/config.toml",
        text=lambda word: f'[agent]\nserver_url = "{word[:URL]}"\napi_key = "{word}"\n',
        message=lambda word: f"{word} at {word[:URL]}",
    ),
}


def cases(*effects):
    return traced.cases(READINGS, lambda call: effects)


def decides(fault):
    return fault.call.name in DECIDING and fault.effect != "error=EINTR"


ERRORS = cases("error=EIO", "error=EACCES")
INTERRUPTIONS = [case for case in cases("error=EINTR") if case.values[1].call.name == "read"]


@pytest.mark.parametrize("name", READINGS)
def test_undisturbed(name):
    assert READINGS[name].run() == "first"


@pytest.mark.parametrize("name, fault", ERRORS)
def test_an_error_leads_to_the_second_file(name, fault):
    assert READINGS[name].run(fault) == ("second" if decides(fault) else "first")


@pytest.mark.parametrize("name, fault", INTERRUPTIONS)
def test_an_interruption_does_not_matter(name, fault):
    assert READINGS[name].run(fault) == "first"


@pytest.mark.parametrize("name, fault", [case for case in ERRORS if decides(case.values[1])])
def test_two_errors_leave_nothing(name, fault):
    reading = READINGS[name]
    reading.set_up()
    later = traced.run(reading.command, reading.home, [fault]).calls
    later = later[later.index(fault.call) + 1 :]
    for call in later:
        other = traced.Fault(call, fault.effect)
        assert reading.run(fault, other) == ("none" if decides(other) else "second")


@pytest.mark.parametrize("name, fault", cases("signal=SIGKILL"))
def test_killed_while_reading(name, fault):
    assert READINGS[name].run(fault) == "killed"
    assert READINGS[name].run() == "first"


def test_the_calls_are_those_that_read_a_file():
    """Otherwise the cases above would test nothing."""
    names = [case.values[1].call.name for case in ERRORS if case.values[0] == "token"]
    assert set(names) >= {"openat", "read", "close"}
    # Three blocks and the end of the file, each failing in two ways.
    assert names.count("read") == 2 * 4
