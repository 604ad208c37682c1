# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Forms of the output, options and exit codes."""

import json
import os
import pty
import subprocess
import time
from pathlib import Path

import jsonschema
import pytest

import scene
from harness import bodies
from harness.exchange import answer

SCHEMA = json.loads((Path(__file__).parents[2] / "docs/doctor.schema.json").read_text())


def on_a_terminal(**environment):
    controller, terminal = pty.openpty()
    clean = {k: v for k, v in os.environ.items() if k != "NO_COLOR"} | {"TERM": "xterm"}
    with subprocess.Popen([scene.DOCTOR], stdout=terminal, env=clean | environment):
        os.close(terminal)
        said = b""
        try:
            while block := os.read(controller, 65536):
                said += block
        except OSError:
            pass  # The program has closed the terminal.
    os.close(controller)
    return said.decode()


def test_colour_on_a_terminal():
    said = on_a_terminal()
    assert "\x1b[31m✗ wrong\x1b[0m  port " in said
    assert "\x1b[32m✓ ok   \x1b[0m  home " in said
    assert "\x1b[33m• note \x1b[0m  probe " in said


@pytest.mark.parametrize("environment", [{"NO_COLOR": "1"}, {"NO_COLOR": ""}, {"TERM": "dumb"}])
def test_no_colour_where_it_is_not_wanted(environment):
    said = on_a_terminal(**environment)
    assert "✗ wrong  port " in said
    assert "\x1b" not in said


def test_no_colour_in_a_pipe():
    assert "\x1b" not in scene.run(TERM="xterm").stdout


@pytest.mark.parametrize("state", ["well", "no agent", "no token", "stranger"])
def test_json_matches_its_schema(state, backend):
    if state == "no agent":
        backend.stop()
    if state == "no token":
        scene.HOME_TOKEN.unlink()
    if state == "stranger":
        backend.reply(status=b"no JSON", network={"connections": [{}]})
    said = json.loads(scene.run("--json").stdout)
    jsonschema.Draft202012Validator(SCHEMA).validate(said)
    assert {c["check"] for c in said["checks"]} <= set(
        SCHEMA["$defs"]["check"]["properties"]["check"]["enum"])


def test_schema_refuses_invalid_output():
    said = json.loads(scene.run("--json").stdout)
    for key in said:
        without = {k: v for k, v in said.items() if k != key}
        assert not jsonschema.Draft202012Validator(SCHEMA).is_valid(without), key
    assert not jsonschema.Draft202012Validator(SCHEMA).is_valid(said | {"schema_version": 2})


def test_json_facts_of_a_fault(backend):
    backend.reply(network={"connections": [{"protocol": 6}]})
    said = json.loads(scene.run("--json").stdout)
    (network,) = (c["facts"] for c in said["checks"] if c["check"] == "network")
    assert network.pop("milliseconds") >= 0
    assert network == {"path": "/api/network", "http_status": 200, "bytes": 34,
                       "failure": "type mismatch", "failure_path": "connections[0].protocol",
                       "failure_detail": "string expected, number found"}


def test_time_that_an_answer_took(backend):
    held = 0.3
    backend.reply(status=answer(bodies.status(), delay=held))
    started = time.monotonic()
    said = json.loads(scene.run("--json").stdout)
    elapsed = time.monotonic() - started
    (status,) = (c for c in said["checks"] if c["check"] == "status")
    took = status["facts"]["milliseconds"]
    assert held <= took / 1000 <= elapsed
    assert f", {took} ms: " in status["text"]


def test_help_and_version():
    for option, begin in (("--help", "Usage: "), ("-h", "Usage: "),
                          ("--version", ""), ("-V", "")):
        done = scene.run(option)
        assert (done.returncode, done.stderr) == (0, "")
        assert done.stdout.startswith(begin + "quillmark-doctor ")


@pytest.mark.parametrize("arguments", [["--unknown"], ["-j"], ["status"], ["--json=1"], [""]])
def test_wrong_usage(arguments):
    done = scene.run(*arguments)
    assert (done.returncode, done.stdout) == (2, "")
    assert "Usage: quillmark-doctor" in done.stderr


def test_output_that_cannot_be_written():
    with open("/dev/full", "w", encoding="utf-8") as full:
        assert subprocess.run([scene.DOCTOR, "--version"], stdout=full, check=False).returncode == 1
