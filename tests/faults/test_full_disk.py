# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Saving and importing on a real disk of 128 KiB, with more and less free space."""

import errno
import os
import pathlib

import pytest

import scene
import traced

DISK = pathlib.Path("/tmp/disk")
PAGE = 4096
SCENES = scene.scenes(DISK / "home")
# An import over the old file needs more than one page, so the disk can become full
# during it.
PAGES = range(0, 9)


def free_pages():
    status = os.statvfs(DISK)
    return status.f_bavail * status.f_frsize // PAGE


def fill_but(pages):
    """Leaves this many pages free."""
    with open(DISK / "filler", "wb", buffering=0) as filler:
        while True:
            try:
                filler.write(b"x" * PAGE)
            except OSError as error:
                assert error.errno == errno.ENOSPC
                break
        filler.truncate(max(0, filler.tell() - pages * PAGE))
    assert free_pages() == pages


def attempt(name, pages):
    one = SCENES[name]
    (DISK / "filler").unlink(missing_ok=True)
    one.set_up()
    fill_but(pages)
    run = traced.run(one.command, one.home)
    assert one.leftovers() == []
    return run.message, one.state()


def test_the_disk_is_small():
    assert os.statvfs(DISK).f_blocks * os.statvfs(DISK).f_frsize == 131072


@pytest.mark.parametrize("pages", PAGES)
@pytest.mark.parametrize("name", SCENES)
def test_fill_level(name, pages):
    assert attempt(name, pages) in {
        ("ok", "new"),
        ("Error: No space left on device", "old"),
    }


@pytest.mark.parametrize("name", SCENES)
def test_full(name):
    assert attempt(name, 0) == ("Error: No space left on device", "old")


@pytest.mark.parametrize("name", SCENES)
def test_just_enough_and_a_page_short(name):
    enough = next(pages for pages in PAGES if attempt(name, pages)[0] == "ok")
    assert attempt(name, enough) == ("ok", "new")
    assert attempt(name, enough - 1) == ("Error: No space left on device", "old")


def test_the_disk_can_become_full_during_an_import():
    """Otherwise each level above would leave room for nothing or for the whole text."""
    text = len(scene.IMPORTED)
    one = SCENES["import-over-old"]
    (DISK / "filler").unlink(missing_ok=True)
    one.set_up()
    fill_but(1)
    with open(DISK / "probe", "wb", buffering=0) as probe:
        assert 0 < probe.write(b"x" * text) < text
    (DISK / "probe").unlink()
    assert attempt("import-over-old", 1) == ("Error: No space left on device", "old")
