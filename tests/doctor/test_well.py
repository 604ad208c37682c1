# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""No faults, with the real sample agent."""

import json
import os

import scene
from harness import tokens
from scene import line, look

OWN_TOKEN = scene.SYSTEM_TOKEN if os.getuid() == 0 else scene.HOME_TOKEN


def test_every_line():
    tokens.remove(scene.HOME_TOKEN)
    scene.LOGS.mkdir(parents=True)
    with scene.agent() as agent:
        found = look()
        said = json.loads(scene.run("--json").stdout)
    sizes = {c["check"]: c["facts"]["bytes"] for c in said["checks"] if "bytes" in c["facts"]}
    entries = {c["check"]: c["facts"]["entries"] for c in said["checks"] if "entries" in c["facts"]}

    def summary(check, *names):
        words = [f"{entries[check][key]} {noun}{'' if entries[check][key] == 1 else 's'}"
                 for key, noun in names]
        return f"/api/{check}: HTTP 200, {sizes[check]} bytes, N ms: {', '.join(words)}"

    assert found.lines == [
        line("ok", "token-system", f"{scene.SYSTEM_TOKEN}: 64 bytes"),
        line("ok", "token-home", f"{scene.HOME_TOKEN}: not there"),
        line("ok", "token", f"the panel uses that of {OWN_TOKEN}"),
        line("ok", "port", f"127.0.0.1:7823: open; process {agent.pid} has it: ./{scene.AGENT}"),
        line("ok", "status", f"/api/status: HTTP 200, {sizes['status']} bytes, N ms: "
                             f'status "ok", threats {entries["status"]["threats"]}'),
        line("ok", "alerts", summary("alerts", ("alerts", "alert"))),
        line("ok", "network", summary("network", ("connections", "connection"))),
        line("ok", "inventory", summary("inventory", ("apps", "application"),
                                        ("services", "service"),
                                        ("network_interfaces", "interface"),
                                        ("permissions", "permission"))),
        line("ok", "config", f"{scene.CONFIG}: read"),
        line("ok", "config-old", f"{scene.OLD_CONFIG}: not there"),
        line("ok", "config-toml", "TOML, with a section [agent]"),
        line("ok", "config-key", "20 bytes, read back as written"),
        line("ok", "config-url", "23 bytes, read back as written"),
        line("ok", "home", f"{scene.HOME}: suitable for Start Agent"),
        line("ok", "logs", f"{scene.LOGS}: writable"),
        line("ok", "bundle", f"{scene.BUNDLE}: suitable for Start Agent"),
        line("ok", "program", f"{scene.PROGRAMS / scene.AGENT}: executable"),
        line("ok", "tools", "/bin/bash, pgrep, /usr/bin/pkill"),
        line("ok", "probe", f"process {agent.pid} is an agent: ./{scene.AGENT}"),
        line("ok", "panel", "not running"),
    ]
    assert found.conclusion == 'ONLINE: the panel shows the agent\'s status, "ok".'
    assert found.step == "none."
    assert found.code == 0
    assert entries["inventory"]["network_interfaces"] >= 1


def test_nothing_is_changed():
    def state():
        return sorted((str(path), path.lstat().st_mtime_ns, path.lstat().st_mode)
                      for path in [scene.HOME, *scene.HOME.rglob("*")])

    before = state()
    look()
    assert state() == before
