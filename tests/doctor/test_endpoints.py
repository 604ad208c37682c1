# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The agent's answers, and what the panel shows of them."""

import re
import subprocess
from pathlib import Path

import pytest

import scene
from harness import bodies
from harness.exchange import Answer, answer, silence
from patience import PATIENCE
from scene import line, look, write

ONLINE = 'ONLINE: the panel shows the agent\'s status, "ok"'


def size(content):
    return len(answer(content).body)


def test_everyday_answers(backend):
    found = look()
    everyday = bodies.everyday()
    assert [each for check in everyday for each in found.of(check)] == [
        line("ok", "status", f"/api/status: HTTP 200, {size(everyday['status'])} bytes, N ms: "
                             'status "ok", threats 1'),
        line("ok", "alerts", f"/api/alerts: HTTP 200, {size(everyday['alerts'])} bytes, N ms: "
                             "2 alerts"),
        line("ok", "network", f"/api/network: HTTP 200, {size(everyday['network'])} bytes, N ms: "
                              "3 connections"),
        line("ok", "inventory", f"/api/inventory: HTTP 200, {size(everyday['inventory'])} bytes, "
                                "N ms: 2 applications, 2 services, 1 interface, 1 permission"),
    ]
    assert found.conclusion == ONLINE + "."
    assert found.code == 0


def test_documented_examples(backend):
    text = (Path(__file__).parents[2] / "docs/agent-interface.md").read_text()
    parts = dict(re.findall(r"### /api/(\w+)\n.*?```json\n(.*?)```", text, re.DOTALL))
    assert set(parts) == {"status", "alerts", "network", "inventory"}
    backend.reply(**{check: body.encode() for check, body in parts.items()})
    found = look()
    assert [found.of(check)[0].split()[1] for check in parts] == ["ok"] * 4
    assert found.conclusion == ONLINE + "."


BROKEN = [
    ("network", bodies.network(bodies.connection(), bodies.connection(local_port=443)),
     "connections[1].local_port: string expected, number found", "type mismatch"),
    ("network", bodies.network({"connectionProtocol": "tcp"}),
     "connections[0].protocol: required key missing", "key not found"),
    ("alerts", bodies.alerts({"severity": "high"}),
     "alerts[0].alert_type: required key missing", "key not found"),
    ("alerts", [], "the body: object expected, array found", "type mismatch"),
    ("inventory", bodies.inventory() | {"services": [None]},
     "services[0]: string expected, null found", "value not found"),
    ("inventory", bodies.inventory() | {"apps": {}},
     "apps: array expected, object found", "type mismatch"),
]


@pytest.mark.parametrize("endpoint, body, fault, kind", BROKEN)
def test_body_that_does_not_decode(backend, endpoint, body, fault, kind):
    backend.reply(**{endpoint: body})
    found = look()
    assert found.of(endpoint) == [
        line("wrong", endpoint,
             f"/api/{endpoint}: HTTP 200, {size(body)} bytes, N ms: {fault} ({kind})")]
    empty = {"network": "connections"}.get(endpoint, endpoint)
    assert found.conclusion == f"{ONLINE}, but no {empty}."
    assert found.step.startswith("End process ")
    assert found.code == 1


STATUS = [
    (bodies.status(threat_count=2.5), "threat_count: ", "data corrupted"),
    (bodies.status(protection_enabled=1),
     "protection_enabled: boolean expected, number found", "type mismatch"),
    ({k: v for k, v in bodies.status().items() if k != "last_scan"},
     "last_scan: required key missing", "key not found"),
    (b"<html></html>", "the body: ", "data corrupted"),
    (b"", "the body: ", "data corrupted"),
]


@pytest.mark.parametrize("body, fault, kind", STATUS)
def test_status_that_does_not_decode(backend, body, fault, kind):
    backend.reply(status=body)
    found = look()
    (said,) = found.of("status")
    assert said.startswith(
        line("wrong", "status", f"/api/status: HTTP 200, {size(body)} bytes, N ms: {fault}"))
    assert said.endswith(f" ({kind})")
    assert found.conclusion.startswith("OFFLINE because /api/status gives nothing to show (")
    assert found.code == 1


def test_refused_token(backend):
    refusal = answer({"error": "unauthorised"}, code="401 Unauthorized")
    backend.reply(status=refusal, alerts=refusal, network=refusal, inventory=refusal)
    found = look()
    assert found.of("status") == [
        line("wrong", "status", f"/api/status: HTTP 401, {len(refusal.body)} bytes, N ms: "
                                "protection_enabled: required key missing (key not found)")]
    assert found.conclusion == "OFFLINE because /api/status gives nothing to show (HTTP 401)."


def test_the_real_agent_refuses_a_wrong_token():
    with scene.agent():
        path = scene.SYSTEM_TOKEN if scene.SYSTEM_TOKEN.exists() else scene.HOME_TOKEN
        scene.write(path, "wrong")
        found = look()
    assert found.conclusion == "OFFLINE because /api/status gives nothing to show (HTTP 401)."
    assert found.step == ("The agent refuses this token: run the agent as this user, or put its "
                          "token where the panel looks; then start the panel again.")


def test_error_status_with_a_good_body(backend):
    backend.reply(status=answer(bodies.status(), code="500 Internal Server Error"))
    found = look()
    assert found.of("status") == [
        line("note", "status", f"/api/status: HTTP 500, {size(bodies.status())} bytes, N ms: "
                               'status "ok", threats 0; shown anyway, the panel does not '
                               "look at the HTTP status")]
    assert found.conclusion == ONLINE + "."
    assert found.code == 0


def test_status_that_counts_as_unhealthy(backend):
    backend.reply(status=bodies.status(status="OK\x1b]0;x\x07"))
    found = look()
    assert found.of("status")[0].endswith(
        r'status "OK\x1B]0;x\x07", threats 0, shown with a red dot: only "ok" counts as healthy')
    assert found.conclusion == 'ONLINE: the panel shows the agent\'s status, "OK\\x1B]0;x\\x07".'
    assert found.code == 0


def test_key_that_cannot_be_read_back_is_hidden_too(backend):
    key = f"{scene.KEY}=tail"
    # Not valid TOML, so the key has to be found in the line.
    write(scene.CONFIG, scene.config(key=key) + "= =\n")
    backend.reply(status=bodies.status(status=key))
    assert look().conclusion == 'ONLINE: the panel shows the agent\'s status, "[hidden]".'


def test_status_that_repeats_the_secrets(backend):
    backend.reply(status=bodies.status(status=f"{scene.TOKEN} {scene.KEY}"))
    assert look().conclusion == ("ONLINE: the panel shows the agent's status, "
                                 '"[hidden] [hidden]".')


def test_key_of_a_configuration_that_is_not_read_is_hidden_too(backend):
    write(scene.OLD_CONFIG, scene.config(key="older-key"))
    backend.reply(status=bodies.status(status="older-key"))
    assert look().conclusion == 'ONLINE: the panel shows the agent\'s status, "[hidden]".'


@pytest.mark.parametrize("content", [
    scene.config() + "# ",
    scene.config().replace(" = ", ": "),
    scene.config().replace(" = ", " "),
], ids=["toml", "colon", "blank"])
@pytest.mark.parametrize("encoding", ["latin-1", "utf-16"])
def test_key_of_a_configuration_that_cannot_be_read_is_hidden_too(backend, content, encoding):
    write(scene.CONFIG, (content + "é").encode(encoding))
    backend.reply(status=bodies.status(status=scene.KEY))
    assert look().conclusion == 'ONLINE: the panel shows the agent\'s status, "[hidden]".'


@pytest.mark.parametrize("content", ["other-token\n".encode("utf-16"), b"other-token\n\xff",
                                     b"one line\nother-token"])
def test_token_that_cannot_be_used_is_hidden_too(backend, content):
    # Only this file's lines, not its whole, may be repeated.
    write(scene.HOME_TOKEN, content)
    write(scene.SYSTEM_TOKEN, scene.TOKEN)
    backend.reply(status=bodies.status(status="other-token"))
    assert look().conclusion == 'ONLINE: the panel shows the agent\'s status, "[hidden]".'


def test_secrets_that_overlap_are_hidden_whole(backend):
    write(scene.CONFIG, scene.config(key=scene.TOKEN[-6:] + "-key"))
    backend.reply(status=bodies.status(status=f"<{scene.TOKEN}-key>"))
    assert look().conclusion == 'ONLINE: the panel shows the agent\'s status, "<[hidden]>".'


def test_interrupted_answer(backend):
    backend.reply(inventory=Answer(raw=b"HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n{"))
    found = look()
    assert found.of("inventory") == [
        line("wrong", "inventory",
             "/api/inventory: the connection ended before the answer did")]
    assert found.conclusion == ONLINE + ", but no inventory."


def test_header_beyond_the_panels_limit(backend):
    backend.reply(alerts=Answer(body=b"{}", headers=("X-Long: " + "x" * 70000,)))
    assert look().of("alerts") == [
        line("wrong", "alerts", "/api/alerts: the answer is larger than the panel takes")]


def test_silence_is_reported_early_with_the_panels_own_limit(backend):
    backend.reply(status=silence(), alerts=silence(), network=silence(), inventory=silence())
    done = subprocess.run([scene.DOCTOR], capture_output=True, text=True, timeout=PATIENCE,
                          check=False)
    assert done.returncode == 1
    silent = "/api/status: no whole answer within 5 s; the panel would wait for 60 s"
    assert line("wrong", "status", silent) in done.stdout
    assert "OFFLINE because /api/status gives nothing to show (no whole answer" in done.stdout


def test_one_silent_endpoint_does_not_hide_the_others(backend):
    backend.reply(network=silence())
    found = look()
    assert found.of("network")[0].startswith(
        line("wrong", "network", "/api/network: no whole answer within 5 s"))
    assert found.of("inventory")[0].startswith("✓ ok")
    assert found.conclusion == ONLINE + ", but no connections."


def http(body, code="200 OK"):
    return Answer(body=body, code=code).wire()


FAULTY_AGENTS = [
    (http(b"{}"), "Fix the agent's answer to /api/status: protection_enabled: required key "
                  "missing."),
    (http(b"{}", "403 Forbidden"), "The agent refuses this token: run the agent as this user, or "
                                   "put its token where the panel looks; then start the panel "
                                   "again."),
    (b"SSH-2.0-x\r\n", "Fix or replace the agent: see its log."),
    (b"", f"Look into the agent's log ({scene.LOG}) and start the agent again."),
]


@pytest.mark.parametrize("answers, step", FAULTY_AGENTS)
def test_next_step_for_a_faulty_agent(tmp_path, answers, step):
    with scene.agent_that(tmp_path, answers):
        found = look()
    assert found.conclusion.startswith("OFFLINE because /api/status gives nothing to show (")
    assert found.step == step
