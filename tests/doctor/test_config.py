# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Faults of the agent's configuration."""

import pytest

import scene
from scene import CONFIG, ENROL, KEY, OLD_CONFIG, line, look, write


@pytest.fixture(autouse=True)
def answered(backend):
    """So that the configuration is the only fault."""


def test_no_configuration():
    CONFIG.unlink()
    found = look()
    assert found.of("config") == [line("ok", "config", f"{CONFIG}: not there")]
    assert found.of("config-old") == [
        line("note", "config-old", f"{OLD_CONFIG}: not there; so this machine is not enrolled")]
    assert found.of("config-key") == []
    assert (found.step, found.code) == (ENROL, 0)


def test_old_path_only():
    CONFIG.rename(OLD_CONFIG)
    found = look()
    assert found.of("config-old") == [line("ok", "config-old", f"{OLD_CONFIG}: read")]
    assert found.of("config-key") == [line("ok", "config-key", "20 bytes, read back as written")]
    assert found.code == 0


def test_both_paths():
    write(OLD_CONFIG, scene.config(key="other"))
    found = look()
    assert found.of("config-old") == [
        line("note", "config-old", f"{OLD_CONFIG}: not read, the other one comes first")]
    assert (found.step, found.code) == (f"Remove {OLD_CONFIG}, which nothing reads.", 0)


def test_others_may_read_the_key():
    CONFIG.chmod(0o604)
    found = look()
    assert found.of("config") == [
        line("wrong", "config", f"{CONFIG}: read; mode 0604 lets every user read it, with the key")]
    assert (found.step, found.code) == (f"Close {CONFIG} to others (mode 0600).", 1)


def test_file_that_is_not_text_is_ignored():
    write(CONFIG, b"\xff" + scene.config().encode())
    found = look()
    assert found.of("config") == [
        line("wrong", "config", f"{CONFIG}: cannot be read (The file is not UTF-8 text), "
                                "the panel ignores it")]
    assert found.step == f"Make {CONFIG} a file that the panel's user can read, or remove it."


def test_too_large():
    write(CONFIG, scene.config() + "#" * (64 << 20))
    assert look().of("config") == [
        line("wrong", "config", f"{CONFIG}: cannot be read (The file is too large), "
                                "the panel ignores it")]


def test_not_valid_toml():
    write(CONFIG, scene.config() + "batch_size = = 100\n")
    found = look()
    assert found.of("config-toml") == [
        line("wrong", "config-toml", "not valid TOML: line 4, column 14")]
    assert found.of("config-key") == [
        line("ok", "config-key", "20 bytes, as the Settings tab reads it")]
    assert found.step == f"Fix line 4 of {CONFIG}: the agent may refuse to start with it."
    assert found.code == 1


def test_key_with_a_quote_is_not_valid_toml_and_not_shown():
    write(CONFIG, scene.config(key=f'{KEY}" {KEY}'))
    found = look()
    assert found.of("config-toml")[0].startswith(
        line("wrong", "config-toml", "not valid TOML: line 3, column "))


def test_no_agent_section():
    write(CONFIG, scene.config().replace("[agent]", "# [agent]"))
    found = look()
    assert found.of("config-toml") == [line("wrong", "config-toml", "no section [agent]")]
    assert found.step == (f"Add the section [agent] to {CONFIG}, or write it again with "
                          "Save & Connect.")


@pytest.mark.parametrize("key, said", [("", "empty"),
                                       ("your-api-key-here", "a placeholder, not a key"),
                                       ("pending-registration", "a placeholder, not a key")])
def test_empty_or_placeholder_key(key, said):
    write(CONFIG, scene.config(key=key))
    found = look()
    assert found.of("config-key") == [line("wrong", "config-key", said)]
    assert (found.step, found.code) == (ENROL, 1)


def test_missing_key():
    write(CONFIG, '[agent]\nserver_url = "https://console.example"\n')
    found = look()
    assert found.of("config-key") == [line("wrong", "config-key", "none")]
    assert found.step == ENROL


def test_key_that_is_cut():
    write(CONFIG, scene.config(key=KEY + "=="))
    found = look()
    assert found.of("config-key") == [
        line("note", "config-key", "22 bytes, but the Settings tab reads back 20: it cuts a value "
                                   'at its first "="')]
    assert found.step == ("Type it again before Save & Connect, which would write what the tab "
                          "shows.")
    assert found.code == 0


def test_url_that_is_cut():
    write(CONFIG, scene.config(url="https://console.example/?a=b"))
    assert look().of("config-url") == [
        line("note", "config-url", "28 bytes, but the Settings tab reads back 26: it cuts a value "
                                   'at its first "="')]


def test_lines_that_end_in_cr_lf():
    write(CONFIG, scene.config().replace("\n", "\r\n"))
    found = look()
    assert found.of("config-key") == [
        line("note", "config-key", "20 bytes, but the Settings tab reads back 22: the line ends in "
                                   "CR LF, and it keeps the quotation mark and the CR")]
    assert found.of("config-toml") == [
        line("ok", "config-toml", "TOML, with a section [agent]")]


def test_another_line_that_is_taken_for_the_key():
    write(CONFIG, scene.config() + 'api_keys = "something else"\n')
    assert look().of("config-key") == [
        line("note", "config-key", "20 bytes, but the Settings tab reads back 14: it reads line "
                                   "by line")]


def test_no_url():
    write(CONFIG, scene.config(url=""))
    assert look().of("config-url") == [
        line("note", "config-url", "none, the Settings tab shows its own default")]
