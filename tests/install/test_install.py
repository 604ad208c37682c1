# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Installing to any prefix, using what was installed, and uninstalling it."""

import os
import stat
import subprocess
from pathlib import Path
from xml.etree import ElementTree

import pytest
from gi.repository import Gio, GLib

from harness import processes, settings
from harness.waiting import until
from harness.window import tool

APPLICATION = "org.quillmark.Agent"
PROGRAMS = "lib/quillmark-agent/QuillmarkAgent.app/Contents/MacOS"


def entry_command(prefix, group="Desktop Entry"):
    entry = GLib.KeyFile()
    path = prefix / f"share/applications/{APPLICATION}.desktop"
    entry.load_from_file(str(path), GLib.KeyFileFlags.NONE)
    return GLib.shell_parse_argv(entry.get_string(group, "Exec"))[1]


def output(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, text=True, **options).stdout


@pytest.mark.parametrize("folder", ["usr", "a folder with spaces"])
def test_programs_run_where_they_were_installed(install, tmp_path, folder):
    prefix = tmp_path / folder
    install(prefix)
    for name in ("quillmark-agent", "quillmark-doctor", processes.AGENT):
        assert (prefix / PROGRAMS / name).exists()
        assert output(prefix / "bin" / name, "--version").startswith(f"{name} ")
    launch = entry_command(prefix)
    assert output(*launch, "--version").startswith("quillmark-agent ")
    assert entry_command(prefix, "Desktop Action quit") == [*launch, "--quit"]


def test_metainfo_has_the_release(install, tmp_path):
    install(tmp_path / "usr")
    metainfo = ElementTree.parse(tmp_path / f"usr/share/metainfo/{APPLICATION}.metainfo.xml")
    releases = [release.get("version") for release in metainfo.iterfind("releases/release")]
    version = output(tmp_path / "usr/bin/quillmark-agent", "--version").split()[-1]
    assert releases[0] == version


def test_folder_may_be_moved_except_for_the_entry(install, tmp_path):
    install(tmp_path / "here")
    (tmp_path / "here").rename(tmp_path / "there")
    assert output(tmp_path / "there/bin/quillmark-agent", "--version")


@pytest.mark.parametrize("start", [entry_command, lambda prefix: [prefix / "bin/quillmark-agent"]],
                         ids=["menu", "terminal"])
def test_launching_prepares_the_home(install, tmp_path, start):
    """Start Agent needs the folder of its log."""
    install(tmp_path / "usr")
    settings.clean_home()
    launch = start(tmp_path / "usr")
    output(*launch, "--version")
    for folder in (settings.LOGS.parent, settings.LOGS):
        assert stat.S_IMODE(folder.stat().st_mode) == 0o700
    # Not everybody has a home, and not every home can be written to.
    for home in ("/nowhere", "", "/proc"):
        assert output(*launch, "--version", env=os.environ | {"HOME": home})


def test_uninstalling_keeps_files_of_others(install, tmp_path):
    prefix = tmp_path / "usr"
    (prefix / "bin").mkdir(parents=True)
    (prefix / "bin/other").write_text("theirs")
    installation = install(prefix)
    # It does not matter if a file was already removed by hand.
    (prefix / "bin/quillmark-agent").unlink()
    installation.uninstall()
    assert installation.paths() == ["bin", "bin/other"]


def test_uninstalling_keeps_the_systems_own_folders(install, tmp_path):
    installation = install("/usr/local", stage=tmp_path / "stage")
    assert f"/usr/local/{PROGRAMS.partition('/Quill')[0]}/" in (
        installation.prefix / f"share/applications/{APPLICATION}.desktop").read_text()
    installation.uninstall()
    left = installation.paths()
    assert {"bin", "lib", "share", "share/man/man1"} <= set(left)
    assert all((installation.prefix / path).is_dir() for path in left)
    assert not [path for path in left if "quillmark" in path]


def test_uninstalling_twice_is_an_error(install, tmp_path):
    installation = install(tmp_path / "usr")
    installation.uninstall()
    with pytest.raises(subprocess.CalledProcessError) as failure:
        installation.uninstall()
    assert b"Nothing was installed from here" in failure.value.stderr


def bus_call(method, interface, *arguments, name=APPLICATION, path="/org/quillmark/Agent"):
    return Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
        name, path, interface, method, *arguments, None, Gio.DBusCallFlags.NONE, 15000, None
    )


def windows():
    return tool("xdotool", "search", "--onlyvisible", "--name", "^Quillmark Agent$").split()


def test_session_bus_starts_the_panel_but_not_to_quit_it(install, display):
    prefix = Path(os.environ["XDG_DATA_HOME"]).parent
    installation = install(prefix)
    daemon = {"name": "org.freedesktop.DBus", "path": "/org/freedesktop/DBus"}
    bus_call("ReloadConfig", daemon["name"], None, **daemon)
    bus_call("UpdateActivationEnvironment", daemon["name"],
             GLib.Variant("(a{ss})", ({"DISPLAY": display.name},)), **daemon)
    quit_panel = entry_command(prefix, "Desktop Action quit")

    assert subprocess.run(quit_panel, capture_output=True).returncode == 1
    assert not windows()

    bus_call("Activate", "org.freedesktop.Application", GLib.Variant("(a{sv})", ({},)))
    until(windows, "the panel's window")
    program = str(prefix / PROGRAMS / "quillmark-agent")
    (panel,) = (p for p in processes.every() if p.command.strip() == program)

    assert subprocess.run(quit_panel, capture_output=True).returncode == 0
    until(panel.ended, "the panel to end")
    installation.uninstall()
