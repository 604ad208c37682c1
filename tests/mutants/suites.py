# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Which tests should detect a change of which source, the fastest first."""

import fnmatch
from dataclasses import dataclass
from pathlib import Path

from .tree import BUILD


@dataclass(frozen=True)
class Test:
    name: str
    targets: tuple
    command: tuple  # in the sandbox, from the root of the tree


def program(path, *targets):
    name = Path(path).name
    words = ("--as-user",) if "_as_user" in name else ()
    return Test(name, (name, *targets), (*words, f"{BUILD}/tests/{path}", "--gtest_fail_fast"))


def script(folder, name, *before, targets=("quillmark_installed",)):
    words = ("--as-user",) if name.endswith("_as_user") else ()
    return Test(f"{folder}/test_{name}.py", targets,
                (*words, *before, "/usr/bin/python3", "-m", "pytest", "-x", "--quiet",
                 "-p", "no:cacheprovider", f"tests/{folder}/test_{name}.py"))


def panel(*names):
    return [script("e2e", name, *(["tests/support/own-etc"] if name == "time_zone" else []),
                   "dbus-run-session", "--", targets=("quillmark_installed", "accessible_tree"))
            for name in names]


def doctor(*names):
    return [script("doctor", name) for name in names]


def faults(*names):
    return [script("faults", name, targets=("agentctl_driver",)) for name in names]


def qml(folder, file=""):
    name = f"quillmark_{folder}_test"
    return Test(f"{name} {file}".strip(), (name,),
                (f"{BUILD}/tests/{folder}/{name}", "-input", f"tests/{folder}/{file}"))


# All lines apply that have a pattern that matches, in this order.
TABLE = [
    ("*/platform/*", [program("platform/platform_tests"),
                      program("platform/platform_as_user_tests"), *faults("fault_errors")]),
    ("*/model/*", [program("model/model_tests")]),
    ("*/client/*", [program("client/client_tests"), program("client/client_as_user_tests")]),
    ("*/agentctl/* */platform/*", [program("agentctl/agentctl_tests", "agentctl_driver")]),
    ("*/agentctl/* */SettingsState.*",
     [program("viewmodel/quillmark_settings_test", "agentctl_driver")]),
    ("*procfs/*", [program("procfs/procfs_tests")]),
    ("*/viewmodel/*", [program("viewmodel/quillmark_viewmodel_test",
                               "quillmark_format_date_program")]),
    ("*/viewmodel/Dashboard* */viewmodel/*List* */client/*",
     [program("viewmodel/quillmark_dashboard_test")]),
    ("*/viewmodel/Dashboard*", [program("viewmodel/quillmark_poll_timer_test"),
                                program("viewmodel/quillmark_poll_memory_test")]),
    ("*/controls/*", [program("controls/quillmark_control_support_test"),
                      program("controls/quillmark_icon_scale_test"), qml("controls")]),
    ("*/main/*", [program("main/quillmark_main_test", "quillmark_renderer_program")]),
    ("*/viewmodel/* */views/* */controls/*", [qml("views")]),

    ("*/client/*", panel("token", "token_as_user", "answers", "silence", "timeout")),
    ("*/agentctl/* */views/*Card.qml */views/*Config* */views/*Setup* */views/*Settings* "
     "*/Settings* */FormField.qml */ActionButton.qml */NoticeRow.qml */InstructionStep.qml "
     "*/MaskedText*",
     panel("settings_layout", "settings_form", "settings_save", "settings_readback",
           "settings_import", "settings_picker", "settings_secret", "settings_agent",
           "settings_homes", "settings_scroll", "settings_way")),
    ("*/agentctl/AgentProcess* */platform/ChildProcess*",
     panel("agent_trouble", "settings_failures")),
    ("*/*Alert*", panel("alerts")),
    ("*/*App* */*Inventory*", panel("inventory")),
    ("*/*Connection* */*Network*", panel("network", "hostile_text")),
    ("*/*Dashboard* */*Stats* */*Agent*Card*", panel("dashboard")),
    ("*/viewmodel/Dashboard*", panel("clock", "answers", "silence")),
    ("*/*Status* */*Header* */FormatDate*", panel("header", "time_zone")),
    ("*/[cv]*/*List* */[cv]*/*Scroll* */[cv]*/*Text* */[cv]*/*Label*",
     panel("long_list", "row_lines", "hostile_text", "settings_scroll")),
    ("*/*Box* */*Ring* */*Shadow* */*Icon* */Theme.qml",
     panel("look", "focus_ring", "boxes", "contrast")),
    ("*/*Focus* */*Pressable* */*Button* */*Click* */*Tab*",
     panel("access", "clicks", "tabs", "focus_ring")),
    ("*/views/* */controls/*", panel("look", "tabs", "access", "accessibility", "contrast")),
    ("*/main/*", panel("command_line", "window", "lifecycle", "signals", "bare_display",
                       "small_screen", "many_windows", "lost_bus", "close_after_dialog",
                       "no_core_dump_as_user", "access", "boxes", "contrast_states")),

    ("doctor/*.cpp doctor/*.h", doctor("well", "config", "tokens", "endpoints", "output", "port",
                                       "probe", "start", "watch", "modes_as_user")),
    ("sample-agent/*", [program("sample-agent/sample_agent_tests"),
                        program("sample-agent/sample_agent_program_tests", "sample_agent"),
                        script("faults", "fault_random", targets=("sample_agent",))]),
    ("*procfs/*", doctor("well", "port", "probe")),
]


def of(file):
    """The tests of a source, each once; a view's own comes first."""
    tests = []
    if file.endswith(".qml"):
        for folder in ("controls", "views"):
            own = (Path(__file__).parents[1] / folder).glob(f"tst_{Path(file).stem}*.qml")
            tests += [qml(folder, test.name) for test in sorted(own)]
    for patterns, listed in TABLE:
        if any(fnmatch.fnmatchcase(file, pattern) for pattern in patterns.split()):
            tests += listed
    return list({test.name: test for test in tests}.values())
