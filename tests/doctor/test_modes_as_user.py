# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""File modes, which apply only to an ordinary user."""

import subprocess
import sys

import scene
from scene import CONFIG, HOME_TOKEN, LOG, LOGS, SYSTEM_TOKEN, line, look, write

# This user may not look into it, as into another user's process.
CLOSED = """
import ctypes, socket, time
PR_SET_DUMPABLE = 4
ctypes.CDLL(None).prctl(PR_SET_DUMPABLE, 0)
server = socket.create_server(("127.0.0.1", 7823))
print(flush=True)
time.sleep(600)
"""


def test_unreadable_token(backend):
    HOME_TOKEN.chmod(0)
    found = look()
    assert found.of("token-home") == [
        line("wrong", "token-home", f"{HOME_TOKEN}: cannot be read (Permission denied)")]
    assert found.step == f"Let the panel's user read {HOME_TOKEN}, then start the panel again."


def test_unreadable_system_wide_token(backend):
    write(SYSTEM_TOKEN, "root's", mode=0)
    found = look()
    assert found.of("token-system") == [
        line("note", "token-system", f"{SYSTEM_TOKEN}: cannot be read (Permission denied)")]
    assert found.of("token") == [line("ok", "token", f"the panel uses that of {HOME_TOKEN}")]
    assert found.code == 0


def test_unreadable_configuration(backend):
    CONFIG.chmod(0)
    found = look()
    assert found.of("config") == [
        line("wrong", "config", f"{CONFIG}: cannot be read (Permission denied), the panel ignores "
                                "it")]
    assert found.step == f"Make {CONFIG} a file that the panel's user can read, or remove it."


def test_log_folder_that_is_not_writable():
    LOGS.chmod(0o500)
    found = look()
    assert found.of("logs") == [
        line("wrong", "logs", f"{LOGS}: not writable, so Start Agent starts nothing")]
    assert found.step == f"Let the panel's user write to {LOGS}."


def test_log_that_is_not_writable():
    write(LOG, "", mode=0o400)
    found = look()
    assert found.of("logs") == [
        line("wrong", "logs", f"{LOGS}: the log in it is not writable, so Start Agent starts "
                              "nothing")]
    assert found.step == f"Let the panel's user write to {LOG}, or remove it."


def test_owner_that_this_user_may_not_see():
    with subprocess.Popen([sys.executable, "-c", CLOSED], stdout=subprocess.PIPE) as owner:
        owner.stdout.readline()
        found = look()
        owner.kill()
    assert found.of("port") == [
        line("note", "port", "127.0.0.1:7823: open; only root or its owner may see which process "
                             "has it")]


def test_all_well_with_the_real_agent(tmp_path):
    HOME_TOKEN.unlink()
    with scene.agent() as agent:
        found = look()
    assert found.of("token-home") == [line("ok", "token-home", f"{HOME_TOKEN}: 64 bytes")]
    assert found.of("probe") == [
        line("ok", "probe", f"process {agent.pid} is an agent: ./{scene.AGENT}")]
    assert (found.step, found.code) == ("none.", 0)
