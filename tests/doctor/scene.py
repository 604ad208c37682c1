# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A machine without faults except that no agent runs, and runs of the doctor on it."""

import contextlib
import json
import os
import re
import shutil
import subprocess
from dataclasses import dataclass
from pathlib import Path

from harness import tokens
from harness.waiting import until
from patience import PATIENCE

HOME = Path(os.environ["HOME"])
SYSTEM_TOKEN = tokens.SYSTEM
HOME_TOKEN = tokens.HOME
CONFIG = HOME / ".config/quillmark/config.toml"
OLD_CONFIG = HOME / ".quillmark/config.toml"
LOGS = HOME / ".quillmark/logs"
LOG = LOGS / "backend.log"

PROGRAMS = Path(os.environ["QUILLMARK_BUILD_DIR"]) / "QuillmarkAgent.app/Contents/MacOS"
BUNDLE = PROGRAMS.parent.parent
DOCTOR = PROGRAMS / "quillmark-doctor"
AGENT = "tovel-agent"

TOKEN = "token-0123456789abcdef"
KEY = "key-fedcba9876543210"
SECRETS = [TOKEN, KEY]

START_AGENT = "Start the agent: Start Agent on the panel's Settings tab, or its own service."
NEW_TOKEN = "start the agent again, which makes a new token."
ENROL = ("Enter the API key on the panel's Settings tab, press Save & Connect, and restart "
         "the agent.")


def config(key=KEY, url="https://console.example"):
    return f'[agent]\nserver_url = "{url}"\napi_key = "{key}"\n'


def write(path, content, mode=0o600):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(content if isinstance(content, bytes) else content.encode())
    path.chmod(mode)
    return path


def tidy():
    write(HOME_TOKEN, TOKEN + "\n")
    write(CONFIG, config())
    LOGS.mkdir(parents=True)


@dataclass
class Look:
    """The doctor's output, without times, because they differ."""

    text: str
    code: int

    @property
    def lines(self):
        return self.text.split("\n\n")[0].splitlines()

    @property
    def conclusion(self):
        return self.text.split("\n\n")[1].splitlines()[0]

    @property
    def step(self):
        return self.text.splitlines()[-1].removeprefix("Next step: ")

    def of(self, check):
        """The check's lines."""
        return [line for line in self.lines if line.split()[2] == check]


def line(mark, check, text):
    sign = {"ok": "✓", "note": "•", "wrong": "✗"}[mark]
    return f"{sign} {mark:5}  {check:12}  {text}"


def run(*arguments, program=(DOCTOR,), **environment):
    """The finished process. Its output must never contain a secret."""
    done = subprocess.run([*program, *arguments], capture_output=True, text=True, timeout=PATIENCE,
                          env=os.environ | environment, check=False)
    for secret in SECRETS:
        assert secret not in done.stdout + done.stderr
    return done


def look(*program, **environment):
    """The doctor's text. Its JSON must say the same, with the same exit code. With
    `program`, a doctor elsewhere, or one that another program starts."""
    program = program or (DOCTOR,)
    done = run(program=program, **environment)
    assert done.stderr == ""
    look = Look(re.sub(r"\d+ ms", "N ms", done.stdout), done.returncode)
    assert_json_agrees(look, run("--json", program=program, **environment))
    return look


def assert_json_agrees(look, done):
    said = json.loads(done.stdout)
    assert done.returncode == said["exit_code"] == look.code
    lines = [line(c["mark"], c["check"], c["text"]) for c in said["checks"]]
    assert [re.sub(r"\d+ ms", "N ms", each) for each in lines] == look.lines
    assert said["conclusion"] == look.conclusion
    assert (said["next_step"] or "none.") == look.step
    assert said["online"] == look.conclusion.startswith("ONLINE")
    for check in said["checks"]:
        # Everything wrong has a next step, except the token's summary.
        assert check["next_step"] or check["mark"] != "wrong" or check["check"] == "token"


@contextlib.contextmanager
def process(*command, **details):
    """Runs until the end of the `with` block."""
    child = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                             stderr=subprocess.DEVNULL, **details)
    try:
        yield child
    finally:
        child.kill()
        child.wait()


@contextlib.contextmanager
def agent():
    """The real sample agent, up and answering."""
    with process(f"./{AGENT}", cwd=PROGRAMS) as child:
        # During its first scan it listens, but does not answer yet.
        until(lambda: run().returncode == 0, "the agent to answer")
        yield child


@contextlib.contextmanager
def agent_that(folder, answers):
    """A program with the agent's name that answers every request with these bytes. If
    there are none, it only keeps the connection open."""
    program = Path(folder) / AGENT
    shutil.copy(os.path.realpath("/usr/bin/python3"), program)
    script = write(Path(folder) / "answers.py", ANSWERS)
    with process(program, script, answers.hex(), env=os.environ | {"PYTHONHOME": "/usr"}) as child:
        until(lambda: listens(child.pid), "it to listen")
        yield child


ANSWERS = """
import socket, sys
server = socket.create_server(("127.0.0.1", 7823), backlog=64)
kept = []
while True:
    client = server.accept()[0]
    client.recv(65536)
    client.sendall(bytes.fromhex(sys.argv[1]))
    if sys.argv[1]:
        client.shutdown(socket.SHUT_WR)
    kept.append(client)
"""


def listens(pid):
    rows = [row.split() for row in Path("/proc/net/tcp").read_text().splitlines()[1:]]
    inodes = {f"socket:[{row[9]}]" for row in rows if row[1].endswith(":1E8F") and row[3] == "0A"}
    return any(_target(each) in inodes for each in Path(f"/proc/{pid}/fd").iterdir())


def _target(link):
    """None if the process has closed the descriptor meanwhile."""
    with contextlib.suppress(FileNotFoundError):
        return os.readlink(link)


def bundle_at(folder):
    """A copy of the doctor and an agent in a bundle at another path."""
    programs = Path(folder) / "Contents/MacOS"
    programs.mkdir(parents=True)
    shutil.copy(DOCTOR, programs)
    write(programs / AGENT, "#!/bin/sh\n", mode=0o700)
    return programs / DOCTOR.name
