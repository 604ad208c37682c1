# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the Settings tab takes for an agent."""

import subprocess

import scene
from harness.processes import end_agents
from harness.waiting import until
from scene import AGENT, line, look


def real_probe():
    """What the panel's own search finds. As there, the shell replaces itself by pgrep."""
    done = subprocess.run(["/bin/bash", "-c", f"pgrep -f {AGENT}"], capture_output=True, text=True,
                          check=False)
    return [int(pid) for pid in done.stdout.split()]


def pids(found):
    return [int(each.split("process ")[1].split()[0]) for each in found.of("probe")]


def test_no_agent():
    found = look()
    assert found.of("probe") == [
        line("note", "probe", 'finds no agent, so the Settings tab says "not running"')]
    assert real_probe() == []


def test_no_agent_but_something_answers(backend):
    assert look().of("probe") == [
        line("note", "probe", 'finds no agent, so the Settings tab says "not running", though '
                              "something answers")]


def test_editor_counts_as_an_agent(backend):
    with scene.process("/bin/sh", "-c", "sleep 600; :", f"{AGENT}.log") as editor:
        found = look()
        assert real_probe() == [editor.pid]
    assert found.of("probe") == [
        line("wrong", "probe", f"process {editor.pid} is no agent, but counts as one and Stop "
                               f"Agent would end it: /bin/sh -c sleep 600; : {AGENT}.log")]
    assert found.step == (f"Close process {editor.pid}, or take the agent's name off its command "
                          "line.")


def test_editor_beside_an_agent():
    with scene.agent() as agent, scene.process("/bin/sh", "-c", "sleep 600; :", AGENT) as editor:
        found = look()
        assert sorted(real_probe()) == sorted(pids(found)) == sorted([agent.pid, editor.pid])
    assert line("ok", "probe", f"process {agent.pid} is an agent: ./{AGENT}") in found.lines
    assert [each for each in found.of("probe") if each.startswith("• note")]
    assert found.code == 0


def test_two_agents(backend, tmp_path):
    second = tmp_path / AGENT
    second.write_bytes(open("/bin/sleep", "rb").read())
    second.chmod(0o700)
    with scene.process(second, "600") as one, scene.process(second, "601") as other:
        until(lambda: len(real_probe()) == 2, "both to run")
        found = look()
        assert pids(found) == real_probe()
    first, last = sorted([one.pid, other.pid])
    assert found.of("probe") == [
        line("ok", "probe", f"process {first} is an agent: {second} "
                            + ("600" if first == one.pid else "601")),
        line("note", "probe", f"process {last} is one more agent: {second} "
                              + ("601" if last == other.pid else "600"))]
    assert found.step == f"End process {last}: one agent is enough."


def test_agent_that_is_a_zombie(backend, tmp_path):
    dead = tmp_path / AGENT
    dead.write_bytes(open("/bin/true", "rb").read())
    dead.chmod(0o700)
    child = subprocess.Popen([dead])
    until(lambda: open(f"/proc/{child.pid}/stat").read().split()[2] == "Z", "it to end")
    found = look()
    assert real_probe() == [child.pid]
    child.wait()
    assert found.of("probe") == [
        line("wrong", "probe", f"process {child.pid} has ended and still counts as an agent: "
                               f"{AGENT}")]
    assert found.step == (f"End the program that started process {child.pid} and does not wait "
                          "for it.")


def test_agent_with_a_blank_command_line(backend, tmp_path):
    program = tmp_path / AGENT
    program.write_bytes(open("/bin/cat", "rb").read())
    program.chmod(0o700)
    # With a folder, because without one Python 3.13 refuses an empty name.
    with subprocess.Popen([""], executable=program, stdin=subprocess.PIPE, cwd=tmp_path):
        found = look()
        assert real_probe() == []
    assert found.of("probe")[0].startswith(line("note", "probe", "finds no agent"))


def test_agent_that_start_agent_started():
    line_of_shell = (f"cd '{scene.PROGRAMS}' && ./{AGENT} > {scene.LOG} 2>&1 &")
    try:
        with scene.process("/bin/bash", "-c", line_of_shell) as shell:
            shell.wait()
            until(lambda: scene.run().returncode == 0, "the agent to answer")
            found = look()
            assert sorted(real_probe()) == sorted(pids(found))
            assert len(pids(found)) == 2
        command = f"/bin/bash -c {line_of_shell}"
        shown = command if len(command) <= 120 else command[:120] + "…"
        said = f"process {min(pids(found))} is the shell in which Start Agent started one: {shown}"
        assert line("ok", "probe", said) in found.lines
        assert found.of("probe")[1].endswith(f" is an agent: ./{AGENT}")
        assert (found.step, found.code) == ("none.", 0)
    finally:
        end_agents()
