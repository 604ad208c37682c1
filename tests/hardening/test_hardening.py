# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The protections of the built programs against exploits."""

import os
import platform
import re
import subprocess
from pathlib import Path

import pytest

FOLDER = Path(os.environ["QUILLMARK_BUILD_DIR"]) / "QuillmarkAgent.app/Contents/MacOS"
PROGRAMS = sorted(FOLDER.iterdir())


def test_every_program_is_checked():
    assert len(PROGRAMS) == 3


def readelf(option, program):
    return subprocess.run(
        ["readelf", "--wide", option, program], check=True, capture_output=True, text=True
    ).stdout


@pytest.fixture(params=PROGRAMS, ids=["panel", "doctor", "sample agent"])
def program(request):
    return request.param


def called(program):
    """The functions of other libraries that a program calls."""
    symbols = readelf("--dyn-syms", program)
    return set(re.findall(r" UND (\w+)", symbols))


def test_is_loaded_at_random_addresses(program):
    assert re.search(r"Type:\s+DYN", readelf("--file-header", program))
    assert re.search(r"FLAGS_1\b.*\bPIE\b", readelf("--dynamic", program))


def test_its_table_of_functions_is_read_only(program):
    assert "GNU_RELRO" in readelf("--program-headers", program)
    assert re.search(r"FLAGS_1\b.*\bNOW\b", readelf("--dynamic", program))


def test_no_memory_is_both_writable_and_executable(program):
    headers = readelf("--program-headers", program)
    flags = re.findall(r"^\s+(LOAD|GNU_STACK) .* ([R ][W ][E ]) 0x", headers, re.MULTILINE)
    assert "GNU_STACK" in [kind for kind, _ in flags]
    assert not [entry for entry in flags if "W" in entry[1] and "E" in entry[1]]


def test_has_no_library_path_of_its_own(program):
    assert not re.search(r"\((RPATH|RUNPATH|TEXTREL)\)", readelf("--dynamic", program))


def test_its_stack_is_protected(program):
    assert "__stack_chk_fail" in called(program)


def test_copies_of_unknown_size_are_checked(program):
    assert {name for name in called(program) if name.endswith("_chk")}


def test_its_containers_are_checked(program):
    assert any("__glibcxx_assert_fail" in name for name in called(program))


def code_of(program, function, size):
    """The first bytes of a function."""
    (address,) = re.findall(rf":\s+(\w+)\s+\d+ FUNC .* {function}$", readelf("--syms", program),
                            re.MULTILINE)
    address = int(address, 16)
    for offset, start, length in re.findall(
        r"LOAD\s+(0x\w+) (0x\w+) 0x\w+ (0x\w+)", readelf("--program-headers", program)
    ):
        start = int(start, 16)
        if start <= address < start + int(length, 16):
            place = int(offset, 16) + address - start
            return program.read_bytes()[place : place + size]
    raise AssertionError(f"{function} has no address")


@pytest.mark.skipif(platform.machine() != "x86_64", reason="other processors use other marks")
def test_marks_the_targets_of_jumps(program):
    assert code_of(program, "main", 4) == bytes.fromhex("f30f1efa")
