# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Which process receives the panel's requests."""

import socket
import subprocess
import sys

import pytest

import scene
from harness.waiting import until
from scene import START_AGENT, TOKEN, line, look

LISTENER = """
import socket, sys, time
server = socket.create_server((sys.argv[1], 7823), family=socket.AddressFamily[sys.argv[2]],
                              dualstack_ipv6=sys.argv[2] == "AF_INET6")
print(flush=True)
time.sleep(600)
"""

CLOSER = """
import socket
server = socket.create_server(("127.0.0.1", 7823), backlog=64)
while True:
    server.accept()[0].close()
"""


def test_nothing_listens():
    found = look()
    assert found.of("port") == [line("wrong", "port", "127.0.0.1:7823: nothing listens")]
    assert found.of("alerts") == [line("wrong", "alerts", "/api/alerts: no connection")]
    assert found.conclusion == "OFFLINE because nothing listens on the agent's port."
    assert found.step == START_AGENT
    assert found.code == 1


def test_another_port_or_address_does_not_count():
    for place in (("127.0.0.1", 7824), ("127.0.0.2", 7823)):
        with socket.create_server(place):
            assert look().of("port") == [line("wrong", "port", "127.0.0.1:7823: nothing listens")]


@pytest.mark.parametrize("address, family", [("0.0.0.0", "AF_INET"), ("::", "AF_INET6")])
def test_open_to_other_machines(address, family):
    command = [sys.executable, "-c", LISTENER, address, family]
    with subprocess.Popen(command, stdout=subprocess.PIPE) as listener:
        listener.stdout.readline()
        found = scene.run()
        listener.kill()
    (port,) = (each for each in found.stdout.splitlines() if " port " in each)
    assert port.startswith(line("note", "port", f"127.0.0.1:7823: open; process {listener.pid} "
                                "has it, which is no agent by its name, and gets the token: "))
    assert port.endswith("; other machines can reach it, too")


def test_process_on_the_port_that_does_not_use_http():
    program = "import socket\ns = socket.create_server(('127.0.0.1', 7823))\n" \
              "while 1: c, _ = s.accept(); c.sendall(b'SSH-2.0-x\\r\\n'); c.close()"
    with scene.process(sys.executable, "-c", program) as stranger:
        until(lambda: scene.run().stdout.count("not HTTP") == 5, "the stranger to answer")
        found = look()
    assert found.of("status") == [
        line("wrong", "status", "/api/status: the answer is not HTTP")]
    assert found.conclusion == ("OFFLINE because /api/status gives nothing to show (the answer "
                                "is not HTTP).")
    assert found.step == (f"End process {stranger.pid}, which holds the agent's port, and start "
                          "the agent.")


def test_command_line_is_shown_without_secrets_and_escape_sequences(tmp_path):
    (tmp_path / "s.py").write_text(CLOSER)
    odd = [TOKEN, f"--key={scene.KEY}", "\x1b[31mred", "\u202eback", b"\xff", "x" * 500]
    with scene.process(sys.executable, "s.py", *odd, cwd=tmp_path):
        until(lambda: "open; process " in scene.run().stdout, "it to listen")
        (port,) = look().of("port")
    assert "s.py [hidden] --key=[hidden] \\x1B[31mred \\u202Eback \ufffd xxx" in port
    assert port.endswith("xxx…")
    assert not any(ord(c) < 0x20 or 0x7f <= ord(c) < 0xa0 for c in port)
