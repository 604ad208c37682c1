# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What keeps Start Agent from starting an agent."""

import pytest

import scene
from scene import HOME, LOGS, START_AGENT, line, look

OTHERWISE = "Start the agent by its own service: Start Agent cannot cope with this home path."


def test_no_log_folder():
    LOGS.rmdir()
    found = look()
    assert found.of("logs") == [
        line("wrong", "logs", f"{LOGS}: not there, and without it Start Agent starts nothing")]
    # Before the step to start the agent, which would fail.
    assert found.step == f"Make the folder {LOGS}."


def test_file_in_place_of_the_log_folder():
    LOGS.rmdir()
    LOGS.write_text("")
    found = look()
    assert found.of("logs") == [
        line("wrong", "logs", f"{LOGS}: not a folder, so Start Agent starts nothing")]
    assert found.step == f"Put a folder in place of {LOGS}."


NOT_QUOTED = "which breaks Start Agent: the path of the log is not quoted"
REFUSED = "so Start Agent does nothing: a shell could run a part of the path as a command"


@pytest.mark.parametrize("name, shown, odd, effect", [
    ("of Ann", "of Ann", " ", f"so Start Agent writes the log to {HOME}/of"),
    ("Ann's", "Ann's", "'", NOT_QUOTED),
    ("a*", "a*", "*", NOT_QUOTED),
    ("$(reboot)", "$(reboot)", "$", REFUSED),
    ("of `id`", "of `id`", "`", REFUSED),
    ("a&b", "a&b", "&", REFUSED),
    ("two\nlines", r"two\x0Alines", r"\x0A", REFUSED),
])
def test_home_path_with_special_characters(name, shown, odd, effect):
    found = look(HOME=f"{HOME}/{name}")
    assert found.of("home") == [
        line("wrong", "home", f'{HOME}/{shown}: contains "{odd}", {effect}')]
    assert found.step == OTHERWISE


def test_relative_home():
    found = look(HOME="somewhere")
    assert found.of("home") == [line("wrong", "home", "somewhere: is not an absolute path")]
    assert found.step == "Set HOME to an absolute path."


def test_no_agent_in_the_bundle(tmp_path):
    program = scene.bundle_at(tmp_path / "Q.app")
    agent = program.parent / scene.AGENT
    agent.unlink()
    found = look(program)
    assert found.of("bundle") == [
        line("ok", "bundle", f"{tmp_path}/Q.app: suitable for Start Agent")]
    assert found.of("program") == [
        line("wrong", "program", f"{agent}: not there, so Start Agent starts nothing")]
    assert found.step == f"Install the agent as {agent}."


def test_agent_that_is_not_executable(tmp_path):
    program = scene.bundle_at(tmp_path / "Q.app")
    agent = program.parent / scene.AGENT
    agent.chmod(0o600)
    found = look(program)
    assert found.of("program") == [
        line("wrong", "program", f"{agent}: not executable, so Start Agent starts nothing")]
    assert found.step == f"Make {agent} an executable program."


def test_bundle_path_with_an_apostrophe(tmp_path):
    found = look(scene.bundle_at(tmp_path / "Ann's.app"))
    assert found.of("bundle") == [
        line("wrong", "bundle", f"{tmp_path}/Ann's.app: contains an apostrophe, so Start Agent "
                                "does nothing")]
    assert found.step == "Move the application to a path without an apostrophe."


def test_bundle_with_a_control_character(tmp_path):
    found = look(scene.bundle_at(tmp_path / "a\tb.app"))
    assert found.of("bundle") == [
        line("ok", "bundle", rf"{tmp_path}/a\x09b.app: suitable for Start Agent")]


def test_bundle_with_the_agents_name(tmp_path):
    found = look(scene.bundle_at(tmp_path / f"my-{scene.AGENT}.app"))
    assert found.of("bundle") == [
        line("wrong", "bundle", f"{tmp_path}/my-{scene.AGENT}.app: contains the agent's file name, "
                                "so the panel takes itself for an agent, and Stop Agent ends it")]
    assert found.step == f"Move the application to a path without {scene.AGENT}."


def test_system_without_proc():
    found = look("/usr/bin/bwrap", "--dev-bind", "/", "/", "--tmpfs", "/proc", scene.DOCTOR)
    assert found.of("bundle") == [
        line("wrong", "bundle", "the path of this program is unknown, so Start Agent starts "
                                "nothing")]
    assert found.of("program") == []
    assert found.step == "Mount /proc."


def test_missing_pgrep(tmp_path):
    found = look(PATH=str(tmp_path))
    assert found.of("tools") == [
        line("wrong", "tools", "pgrep not there, so the Settings tab cannot start, stop or find an "
                               "agent")]
    assert found.step == "Install the package that has pgrep."


def test_without_other_faults_the_next_step_is_to_start_the_agent():
    assert look().step == START_AGENT
