# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""tools/bill-of-materials on packages that dpkg-deb makes."""

import hashlib
import json
import subprocess
from pathlib import Path

import pytest

TOOL = Path(__file__).parents[2] / "tools" / "bill-of-materials"


def make_package(folder, name, depends):
    control = folder / name / "DEBIAN" / "control"
    control.parent.mkdir(parents=True)
    control.write_text(f"Package: {name}\nVersion: 1.2-1\nArchitecture: all\n"
                       f"Maintainer: A <a@quillmark.example>\nDepends: {depends}\n"
                       "Description: one\n two\n")
    path = folder / f"{name}_1.2-1_all.deb"
    subprocess.run(["dpkg-deb", "--build", folder / name, path], check=True, capture_output=True)
    return path


@pytest.fixture
def made(tmp_path):
    (tmp_path / "panel_1.2.orig.tar.gz").write_bytes(b"source")
    (tmp_path / "panel_1.2-1_all.changes").write_text(
        "Source: panel\nVersion: 1.2-1\nDate: Tue, 31 Mar 2026 14:00:00 +0200\n")
    (tmp_path / "panel_1.2-1_all.buildinfo").write_text(
        "Source: panel\nVersion: 1.2-1\nInstalled-Build-Depends:\n"
        " g++ (= 4:12.2.0-3),\n libone (= 1.0+b1)\nEnvironment:\n LANG=\"C\"\n")
    make_package(tmp_path, "panel", "libone (>= 0.9), procps | busybox")
    make_package(tmp_path, "panel-dbgsym", "panel (= 1.2-1)")
    return tmp_path


def bill(folder):
    done = subprocess.run([TOOL, folder], check=True, capture_output=True, text=True)
    return json.loads(done.stdout)


def relations(document, kind):
    names = {p["SPDXID"]: p["name"] + (" source" if "Source" in p["SPDXID"] else "")
             for p in document["packages"]} | {"SPDXRef-DOCUMENT": "document"}
    return {(names[r["spdxElementId"]], names[r["relatedSpdxElement"]])
            for r in document["relationships"] if r["relationshipType"] == kind}


def test_files_with_their_checksums(made):
    document = bill(made)
    assert document["creationInfo"]["created"] == "2026-03-31T12:00:00Z"
    files = {p["packageFileName"]: p["checksums"][0]["checksumValue"]
             for p in document["packages"] if "packageFileName" in p}
    assert files == {p.name: hashlib.sha256(p.read_bytes()).hexdigest()
                     for p in made.iterdir() if p.suffix in (".deb", ".gz")}


def test_what_depends_on_what(made):
    document = bill(made)
    assert relations(document, "DESCRIBES") == {("document", "panel source")}
    assert relations(document, "GENERATED_FROM") == {
        ("panel", "panel source"), ("panel-dbgsym", "panel source")}
    assert relations(document, "BUILD_DEPENDENCY_OF") == {
        ("g++", "panel source"), ("libone", "panel source")}
    # The first of several that serve: it is the one that is usually installed.
    assert relations(document, "DEPENDS_ON") == {
        ("panel", "libone"), ("panel", "procps"), ("panel-dbgsym", "panel")}


def test_versions_of_what_was_there_at_build_time(made):
    locators = {p["name"]: p["externalRefs"][0]["referenceLocator"]
                for p in bill(made)["packages"] if "externalRefs" in p}
    assert locators == {
        "g++": "pkg:deb/debian/g%2B%2B@4%3A12.2.0-3",
        "libone": "pkg:deb/debian/libone@1.0%2Bb1",
        "procps": "pkg:deb/debian/procps",
    }


def test_same_packages_give_the_same_bytes(made):
    outputs = {subprocess.run([TOOL, made], check=True, capture_output=True).stdout
               for _ in range(2)}
    assert len(outputs) == 1
