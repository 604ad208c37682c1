# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Fixtures for all end-to-end tests."""

import contextlib
import os
import re

import pytest

# Before the import, so that failed assertions in the harness show their values.
pytest.register_assert_rewrite("harness")

from harness import bodies, large, processes, settings, tokens, window  # noqa: E402
from harness.backend import Backend  # noqa: E402
from harness.display import Display  # noqa: E402
from harness.panel import Panel  # noqa: E402
from harness.screen import BUILD, save  # noqa: E402
from harness.screen_reader import ScreenReader  # noqa: E402
from harness.spoken_panel import SpokenPanel  # noqa: E402

TOKEN = "0123456789abcdef"


def pytest_configure():
    # Outside, the tests would write the real token files and use the real port.
    assert os.environ.get("QUILLMARK_SANDBOX"), "run these in tests/support/sandbox"


@pytest.fixture(scope="module")
def display(request):
    """Has the size SCREEN of the test file, if that is defined."""
    display = Display(*getattr(request.module, "SCREEN", ()))
    yield display
    display.stop()


@pytest.fixture(scope="module")
def token():
    tokens.write(tokens.SYSTEM, TOKEN)
    yield TOKEN
    tokens.remove(tokens.SYSTEM)


@pytest.fixture(scope="module")
def backend():
    """Gives good answers until a test sets others."""
    backend = Backend().start()
    yield backend
    backend.stop()


@pytest.fixture(scope="module")
def panel(display, token, backend):
    """One panel for all tests of a file."""
    panel = Panel().opened()
    yield panel
    panel.finish()


@pytest.fixture
def launch_alone(display):
    """Starts a new panel, without a backend unless the test starts one."""
    with contextlib.ExitStack() as panels:

        def start(*prefix, **environment):
            panel = Panel(*prefix, **environment)
            panels.callback(panel.finish)
            return panel.opened()

        yield start


@pytest.fixture
def launch_large(launch_alone):
    """As `launch_alone`, at a scale at which colours can be measured."""

    def start(*prefix, **environment):
        panel = launch_alone(*prefix, QT_SCALE_FACTOR=str(large.SCALE), **environment)
        large.resize(panel.window, *large.SIZE)
        return panel

    yield start


@pytest.fixture
def launch(launch_alone, backend):
    """Starts a new panel: it polls at once, which is quicker than the next poll."""

    def start(contents=(), **environment):
        backend.reply(**(bodies.everyday() | dict(contents)))
        return launch_alone(**environment)

    return start


@pytest.fixture(scope="module")
def screen_reader(display):
    """Orca; what it says about the panel of a test."""
    reader = ScreenReader()
    yield reader
    reader.stop()


@pytest.fixture(scope="module")
def spoken_panel(screen_reader, token, backend):
    """One panel for all tests of a file, with a screen reader that runs since before."""
    panel = SpokenPanel(screen_reader).opened()
    yield panel
    panel.finish()


@pytest.fixture
def clean_home():
    """No configuration, before and after."""
    settings.clean_home()
    yield
    settings.clean_home()


@pytest.fixture
def fresh_home():
    """No configuration, no log folder, no token, no agent."""
    settings.clean_home()
    yield
    processes.end_agents()
    settings.clean_home()
    tokens.remove(tokens.SYSTEM)


@pytest.fixture
def agent_panel(launch_alone, fresh_home):
    """A panel on its Settings tab, with a folder for logs and no agent yet."""
    settings.LOGS.mkdir(parents=True)
    panel = launch_alone()
    panel.show("Settings")
    assert settings.status(panel) == settings.NOT_RUNNING
    yield panel
    # After every test, the panel must still run, and no zombies are left.
    assert not panel.ended()
    assert not [p for p in processes.below(panel.pid) if p.state == "Z"]


@pytest.fixture
def tab(panel):
    """The Settings tab without a configuration."""
    settings.clean_home()
    # High enough to show the whole tab.
    panel.resize(1000, 1150)
    settings.enter(panel)
    yield panel
    settings.clean_home()


@pytest.hookimpl(hookwrapper=True)
def pytest_runtest_makereport(item, call):
    report = (yield).get_result()
    if not report.failed:
        return
    name = re.sub(r"[^\w.-]+", "_", item.nodeid.rpartition("/")[2])
    for panel in Panel.running:
        try:
            report.sections.append(("panel's output", panel.output()))
            save(BUILD / "test-results" / f"{name}.png")
            report.sections.append(("windows of the display", window.on_the_display()))
            report.sections.append(("accessibility tree", panel.tree.read().dump()))
        except Exception as error:  # noqa: BLE001 - the test's own failure matters more
            report.sections.append(("no more to show", repr(error)))
