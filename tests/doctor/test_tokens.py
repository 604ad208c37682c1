# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Faults of the token's files."""

import os
import tempfile
from pathlib import Path

import pytest

import scene
from harness import tokens
from scene import HOME_TOKEN, NEW_TOKEN, SYSTEM_TOKEN, TOKEN, line, look, write

NONE = line("wrong", "token", "none that can be read, so the panel asks the agent nothing")
NOT_ASKED = ("/api/status: not asked, because there is no token that the panel can read")


def test_no_token_anywhere(backend):
    HOME_TOKEN.unlink()
    found = look()
    assert found.of("token-system") == [line("ok", "token-system", f"{SYSTEM_TOKEN}: not there")]
    assert found.of("token-home") == [line("ok", "token-home", f"{HOME_TOKEN}: not there")]
    assert found.of("token") == [NONE]
    assert found.of("status") == [line("note", "status", NOT_ASKED)]
    assert found.conclusion == "OFFLINE because there is no token that the panel can read."
    assert found.step == "Start the agent, which makes its token, then start the panel again."
    assert found.code == 1
    assert backend.connections == 0


def test_system_wide_one_comes_first(backend):
    write(SYSTEM_TOKEN, "system-wide-token")
    found = look()
    assert found.of("token-system") == [line("ok", "token-system", f"{SYSTEM_TOKEN}: 17 bytes")]
    assert found.of("token-home") == [
        line("ok", "token-home",
             f"{HOME_TOKEN}: 22 bytes; not read, the system-wide one comes first")]
    assert found.of("token") == [line("ok", "token", f"the panel uses that of {SYSTEM_TOKEN}")]
    assert found.code == 0
    assert {r.header("X-Agent-Token")[0] for r in backend.seen()} == {"system-wide-token"}


def test_blank_one_hides_the_other(backend):
    write(SYSTEM_TOKEN, " \n")
    found = look()
    assert found.of("token-system") == [
        line("wrong", "token-system",
             f"{SYSTEM_TOKEN}: 0 bytes; blank, so the panel sends an empty token and looks no "
             "further")]
    assert found.step == f"Remove {SYSTEM_TOKEN} and {NEW_TOKEN}"
    assert found.code == 1
    # The panel sends its requests even with an empty token.
    assert found.conclusion.startswith("ONLINE")
    assert {r.header("X-Agent-Token")[0] for r in backend.seen()} == {""}


@pytest.mark.parametrize("odd", ["\n", "\r\n", "\0", "\x1b", "\x7f"])
def test_control_character(backend, odd):
    write(HOME_TOKEN, TOKEN + odd + TOKEN)
    found = look()
    assert found.of("token-home") == [
        line("wrong", "token-home",
             f"{HOME_TOKEN}: {44 + len(odd)} bytes; contains a control character, which no request "
             "can carry, so the panel asks nothing")]
    assert found.of("token") == [
        line("wrong", "token", f"the panel takes that of {HOME_TOKEN} and cannot send it")]
    assert found.conclusion == "OFFLINE because the token contains a control character."
    assert found.step == f"Remove {HOME_TOKEN} and {NEW_TOKEN}"
    assert backend.connections == 0


def test_file_that_is_not_text(backend):
    write(HOME_TOKEN, b"\xff" + TOKEN.encode())
    found = look()
    assert found.of("token-home") == [
        line("wrong", "token-home", f"{HOME_TOKEN}: cannot be read (The file is not UTF-8 text)")]
    assert found.of("token") == [NONE]
    assert found.step == f"Let the panel's user read {HOME_TOKEN}, then start the panel again."


def test_fifo_in_place_of_the_file(backend):
    HOME_TOKEN.unlink()
    os.mkfifo(HOME_TOKEN, 0o600)
    found = look()
    assert found.of("token-home") == [
        line("wrong", "token-home", f"{HOME_TOKEN}: cannot be read (Not a regular file)")]
    assert found.step == f"Let the panel's user read {HOME_TOKEN}, then start the panel again."


def test_unreadable_one_that_does_not_matter(backend):
    SYSTEM_TOKEN.mkdir()
    found = look()
    assert found.of("token-system")[0].startswith(
        line("note", "token-system", f"{SYSTEM_TOKEN}: cannot be read (Not a regular file)"))
    assert found.of("token") == [line("ok", "token", f"the panel uses that of {HOME_TOKEN}")]
    assert found.code == 0


def test_users_token_that_others_may_read(backend):
    HOME_TOKEN.chmod(0o644)
    found = look()
    assert found.of("token-home") == [
        line("wrong", "token-home",
             f"{HOME_TOKEN}: 22 bytes; mode 0644 lets every user read it")]
    assert found.step == f"Close {HOME_TOKEN} to others (mode 0600)."
    assert found.code == 1


def test_system_wide_token_that_others_may_read(backend):
    write(SYSTEM_TOKEN, TOKEN, mode=0o644)
    found = look()
    assert found.of("token-system") == [
        line("note", "token-system",
             f"{SYSTEM_TOKEN}: 22 bytes; mode 0644 lets every user read it")]
    assert found.step == f"Open {SYSTEM_TOKEN} to the panel's user alone, by a group (mode 0640)."
    assert found.code == 0


def panel_in(folder):
    """A program with the panel's name."""
    return write(folder / "quillmark-agent", Path("/bin/sleep").read_bytes(), mode=0o755)


def test_written_after_the_panel_was_started(backend, tmp_path):
    with scene.process(panel_in(tmp_path), "60") as running:
        os.utime(HOME_TOKEN, (1, 1))
        assert look().of("panel") == [line("ok", "panel", f"process {running.pid}")]
        os.utime(HOME_TOKEN, (2**31, 2**31))
        found = look()
    assert found.of("panel") == [
        line("note", "panel", f"process {running.pid} was started before this token was written, "
                              "and reads it only when a window opens")]
    assert found.step == "Start the panel again, so that it reads the token."
    tokens.remove(HOME_TOKEN)


@pytest.mark.skipif(os.geteuid() != 0, reason="only root can run a program as another user")
def test_panel_of_another_user(backend):
    with tempfile.TemporaryDirectory() as folder:
        os.chmod(folder, 0o755)
        with scene.process(panel_in(Path(folder)), "60", user=1000):
            assert look().of("panel") == [line("ok", "panel", "not running")]
