# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""System calls of a save or an import that fail, each in turn."""

import pytest

import scene
import traced

SCENES = scene.scenes("/tmp/disturbed")


def errors(call):
    yield "error=EIO"
    if call.name in ("write", "openat", "mkdir", "fsync"):
        yield "error=ENOSPC"
    if call.name in ("read", "write"):
        yield "error=EINTR"


CASES = traced.cases(SCENES, errors)


def check(one, *faults):
    """Runs with the faults, and checks that the message is true."""
    one.set_up()
    run = traced.run(one.command, one.home, faults)
    assert {fault.call for fault in faults} == set(run.disturbed)
    assert not run.killed
    assert run.message == "ok" or run.message.startswith("Error: ")
    assert one.state() == ("new" if run.message == "ok" else "old"), run.message
    # One file may be left if its removal failed, and then only the user may read it.
    unremovable = any(fault.call.name == "unlink" for fault in faults)
    assert len(one.leftovers()) <= int(unremovable)
    assert all(path.stat().st_mode & 0o077 == 0 for path in one.leftovers())
    return run


@pytest.mark.parametrize("name", SCENES)
def test_undisturbed(name):
    assert check(SCENES[name]).message == "ok"
    assert SCENES[name].state() == "new"


@pytest.mark.parametrize("name, fault", CASES)
def test_one_error(name, fault):
    check(SCENES[name], fault)


@pytest.mark.parametrize(
    "name, fault",
    [case for case in CASES if case.values[1].effect == "error=EIO"],
)
def test_another_error_while_the_first_is_handled(name, fault):
    one = SCENES[name]
    run = check(one, fault)
    for call in run.calls[run.calls.index(fault.call) + 1 :]:
        # strace allows one kind of fault for each name of a call.
        effect = fault.effect if call.name == fault.call.name else "error=EIO"
        check(one, fault, traced.Fault(call, effect))


def test_the_calls_are_those_that_write_a_file():
    """Otherwise the cases above would test nothing."""
    names = {case.values[1].call.name for case in CASES}
    assert names >= {"openat", "read", "write", "fchmod", "fsync", "close", "mkdir"}
    assert "rename" in names


def test_a_failed_replacement_removes_the_temporary_file():
    name, fault = next(case.values for case in CASES if case.values[1].call.name == "rename")
    run = check(SCENES[name], fault)
    assert "unlink" in {call.name for call in run.calls[run.calls.index(fault.call):]}


def test_errors_have_the_systems_messages():
    messages = {
        (fault.call.name, fault.effect): check(SCENES[name], fault).message
        for name, fault in (case.values for case in CASES)
        if fault.call.name in ("write", "mkdir", "fchmod")
    }
    assert messages["write", "error=ENOSPC"] == "Error: No space left on device"
    assert messages["mkdir", "error=EIO"] == "Error: Input/output error"
    assert messages["fchmod", "error=EIO"] == "Error: Input/output error"
