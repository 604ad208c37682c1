# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a new user does with the packages, on a system with only their dependencies."""

import gzip
import os
import re
import stat

import pytest

import bare
from harness import cards, hands, lists, picker, processes, settings, tokens
from harness.panel import TABS
from harness.screen import BUILD, save
from harness.waiting import until


def take(panel, name):
    hands.park()
    panel.window.settled()
    save(BUILD / "pictures" / f"package-{name}.png", panel.window.box)


def test_both_packages_have_commands():
    assert {"quillmark-agent", processes.AGENT} <= set(bare.commands())


@pytest.mark.parametrize("name", bare.commands())
def test_command_runs_and_is_documented(name):
    done = bare.run(name, "--version")
    assert (done.returncode, done.stderr) == (0, "")
    assert re.fullmatch(rf"{name} \d+\.\d+\.\d+\n", done.stdout)
    share = bare.ROOT / "usr/share"
    with gzip.open(share / f"man/man1/{name}.1.gz", "rt") as page:
        assert f"\n.Nm {name}\n" in page.read()
    for completion in (f"bash-completion/completions/{name}", f"zsh/vendor-completions/_{name}"):
        assert name in (share / completion).read_text()


def test_every_entry_point_starts_the_same_program():
    entry = bare.entry()
    service = (bare.ROOT / "usr/share/dbus-1/services/org.quillmark.Agent.service").read_text()
    assert f"\nExec={' '.join(entry.command())}\n" in service
    assert entry.command("Desktop Action quit") == [*entry.command(), "--quit"]
    done = bare.run(*entry.command(), "--version")
    assert done.stdout == bare.run("quillmark-agent", "--version").stdout


def test_nothing_of_the_panel_has_the_agents_name():
    """Stopping the agent ends every process with its name on the command line."""
    listed = bare.run("dpkg", "--listfiles", "quillmark-agent")
    assert bare.PROGRAMS + "/quillmark-agent" in listed.stdout
    assert processes.AGENT not in listed.stdout


def test_icon_in_every_size():
    icons = bare.ROOT / "usr/share/icons/hicolor"
    sizes = {p.parts[-3] for p in icons.glob(f"*/apps/{bare.entry().value('Icon')}.*")}
    assert sizes == {f"{s}x{s}" for s in (16, 22, 24, 32, 48, 64, 128, 256, 512)} | {"scalable"}


def start_agent(panel):
    panel.show("Settings")
    panel.tree.wait_for("text", settings.NOT_RUNNING)
    settings.press(panel, settings.START)
    panel.tree.wait_for("text", settings.RUNNING)
    until(tokens.HOME.exists, "the agent's token")


def test_first_day(start):
    """Start the agent from the panel, see what it found, import a configuration."""
    panel = start()
    assert stat.S_IMODE(os.stat(settings.LOGS).st_mode) == 0o700
    panel.tree.wait_for("text", "OFFLINE")
    take(panel, "offline")
    start_agent(panel)
    # The token was created after the panel had tried to read it.
    panel.finish()

    panel = start()
    panel.tree.wait_for("text", "OK")
    for tab in TABS:
        panel.show(tab)
        if tab == "Dashboard":
            # The bare system's packages have a few commands.
            until(lambda: int(cards.cards(panel)["Installed Applications"]) > 5, "applications")
        if tab == "Inventory":
            until(lambda: lists.names(panel, "Installed applications"), "rows")
        take(panel, tab.lower())

    import_configuration(panel)

    settings.bring_into_view(panel, *settings.STOP)
    settings.press(panel, settings.STOP)
    panel.tree.wait_for("text", settings.NOT_RUNNING)
    assert not panel.ended()


def import_configuration(panel):
    chosen = settings.HOME / "from-the-administrator.toml"
    chosen.write_text("[agent]\n")
    with picker.opened(panel):
        take(panel, "file-dialog")
    assert not settings.CONFIG.exists()
    picker.choose(panel, chosen)
    settings.wait_for_message(panel, settings.IMPORTED)
    assert settings.CONFIG.read_text() == "[agent]\n"
    take(panel, "imported")


def test_window_and_quit_of_the_menu_entry(start):
    panel = start()
    # A task bar finds the application and icon of a window by this.
    assert f'"{bare.entry().value("StartupWMClass")}"' in panel.window.property("WM_CLASS")
    done = bare.run(*bare.entry().command("Desktop Action quit"))
    assert (done.returncode, done.stdout, done.stderr) == (0, "", "")
    until(panel.ended, "the panel to end")
