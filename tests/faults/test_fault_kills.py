# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The process killed at each system call of a save or an import."""

import pytest

import scene
import traced

SCENES = scene.scenes("/tmp/killed")


def kill(_call):
    yield "signal=SIGKILL"


CASES = traced.cases(SCENES, kill)


def check(one, *faults):
    one.set_up()
    run = traced.run(one.command, one.home, faults)
    assert run.killed
    assert run.message == ""
    # A temporary file may be left, which only the user may read.
    assert all(path.stat().st_mode & 0o077 == 0 for path in one.leftovers())
    assert len(one.leftovers()) <= 1
    return one.state()


@pytest.mark.parametrize("name, fault", CASES)
def test_killed(name, fault):
    assert check(SCENES[name], fault) in ("old", "new")
    # The next run works.
    one = SCENES[name]
    assert traced.run(one.command, one.home).message == "ok"
    assert one.state() == "new"


@pytest.mark.parametrize("name", SCENES)
def test_the_file_changes_once(name):
    """Killed later and later, the action has first done nothing and then everything."""
    states = [check(SCENES[name], case.values[1]) for case in CASES if case.values[0] == name]
    assert states == sorted(states, key=["old", "new"].index)
    assert set(states) == {"old", "new"}
