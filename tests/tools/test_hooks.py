# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The git hooks, in a repository that enables them as contributors do."""

import os
import shutil
import subprocess
from pathlib import Path

import pytest

SOURCE = Path(__file__).parents[2]
GOOD_MESSAGE = "tests: add a file\n\nThe hooks need something to check.\n"
GOOD_FILES = {
    "Good.cpp": "int main() { return 0; }\n",
    "good.py": "print('good')\n",
    "good": '#!/bin/bash\necho "$1"\n',
    "good.md": "Good words.\n",
}
# In two parts, so that the checks accept this file.
MISSPELT = "rec" + "ieve\n"
BAD_FILES = {
    "Bad.cpp": ("int main( ){return 0;}\n", "clang-format-violations"),
    "bad.py": ("import os\n", "F401"),
    "bad_script": ("#!/usr/bin/python3\nimport os\n", "F401"),
    "bad": ("#!/bin/bash\necho $1\n", "SC2086"),
    "bad.md": (MISSPELT, "receive"),
}


class Repository:
    def __init__(self, folder):
        self.folder = folder
        kept = {k: v for k, v in os.environ.items() if not k.startswith("GIT_")}
        person = {f"GIT_{role}_{field}": f"{role}@example.org".lower()
                  for role in ("AUTHOR", "COMMITTER") for field in ("NAME", "EMAIL")}
        self.environment = kept | person | {
            "GIT_CONFIG_GLOBAL": "/dev/null", "GIT_CONFIG_NOSYSTEM": "1", "LC_ALL": "C"}
        self.git("init", "--quiet", "--initial-branch=main")
        for name in (".clang-format", ".flake8"):
            shutil.copy(SOURCE / name, folder)
        self.git("add", "--all")
        self.git("commit", "--quiet", "--message=first")
        (folder / "tools").symlink_to(SOURCE / "tools")
        (folder / ".git/info/exclude").write_text("/tools\n")
        self.git("config", "core.hooksPath", "tools/hooks")

    def run(self, *arguments, **environment):
        return subprocess.run(["git", *arguments], cwd=self.folder, capture_output=True, text=True,
                              env=self.environment | environment, check=False)

    def git(self, *arguments, **environment):
        done = self.run(*arguments, **environment)
        assert done.returncode == 0, done.stderr
        return done.stdout

    def write(self, name, text):
        (self.folder / name).write_text(text)

    def stage(self, name, text):
        self.write(name, text)
        self.git("add", name)

    def refused(self, *arguments, **environment):
        """What git writes about a commit that it does not make."""
        before = self.git("rev-parse", "HEAD")
        done = self.run("commit", *arguments, **environment)
        assert done.returncode == 1
        assert self.git("rev-parse", "HEAD") == before
        assert "othing is committed" in done.stderr
        return done.stderr


@pytest.fixture
def repository(tmp_path):
    return Repository(tmp_path)


def test_good_files_are_committed(repository):
    for name, text in GOOD_FILES.items():
        repository.stage(name, text)
    repository.git("commit", "--message", GOOD_MESSAGE)
    assert set(GOOD_FILES) < set(repository.git("ls-tree", "--name-only", "HEAD").splitlines())


@pytest.mark.parametrize("name", BAD_FILES)
def test_a_bad_file_is_refused(repository, name):
    text, finding = BAD_FILES[name]
    repository.stage(name, text)
    told = repository.refused("--message", GOOD_MESSAGE)
    assert finding in told
    assert f"{name}:" in told or f"In {name} line" in told


def test_all_findings_are_listed_at_once(repository):
    for name, (text, _) in BAD_FILES.items():
        repository.stage(name, text)
    told = repository.refused("--message", GOOD_MESSAGE)
    assert [finding for _, finding in BAD_FILES.values() if finding not in told] == []


def test_what_is_staged_counts_and_not_the_working_tree(repository):
    repository.stage("file.py", "import os\n")
    repository.write("file.py", "print('corrected, but not staged')\n")
    assert "F401" in repository.refused("--message", GOOD_MESSAGE)

    repository.stage("file.py", "print('staged')\n")
    repository.write("file.py", "import os\n")
    repository.git("commit", "--message", GOOD_MESSAGE)
    assert repository.git("show", "HEAD:file.py") == "print('staged')\n"


def test_a_commit_of_named_files_checks_those(repository):
    for name in ("one.md", "two.md"):
        repository.stage(name, "Good words.\n")
    repository.git("commit", "--message", GOOD_MESSAGE)
    repository.stage("one.md", MISSPELT)
    repository.write("two.md", "Better words.\n")
    repository.git("commit", "--message", GOOD_MESSAGE, "two.md")
    assert "one.md:" in repository.refused("--message", GOOD_MESSAGE, "one.md")


def test_files_of_former_commits_are_not_checked(repository):
    repository.stage("bad.py", "import os\n")
    repository.git("commit", "--no-verify", "--message", GOOD_MESSAGE)
    repository.stage("good.py", "print('good')\n")
    repository.git("commit", "--message", GOOD_MESSAGE)
    repository.git("rm", "bad.py")
    repository.git("commit", "--message", GOOD_MESSAGE)


@pytest.mark.parametrize("message", [
    GOOD_MESSAGE,
    "client, model: ü" + "x" * 56 + "\n\nExactly 72 characters, and 73 bytes.\n",
    "sample-agent: read it once\n\nA body.\n\nIts second paragraph.\n",
])
def test_a_good_message_is_accepted(repository, message):
    repository.git("commit", "--allow-empty", "--message", message)
    assert repository.git("log", "-1", "--format=%B").strip() == message.strip()


@pytest.mark.parametrize("message, problem", [
    ("Add a file\n\nWhy.\n", "is not 'area: what changes'"),
    ("Tests: add a file\n\nWhy.\n", "is not 'area: what changes'"),
    ("tests:add a file\n\nWhy.\n", "is not 'area: what changes'"),
    ("tests:\n\nWhy.\n", "is not 'area: what changes'"),
    ("Merge two tests\n\nWhy.\n", "is not 'area: what changes'"),
    ("tests: " + "x" * 66 + "\n\nWhy.\n", "has 73 characters"),
    ("tests: add a file\nWhy.\n\nWhy.\n", "second line is not empty"),
    ("tests: add a file\n", "no body"),
    ("tests: add a file\n\nSigned-off-by: A <a@example.org>\n", "no body"),
])
def test_a_bad_message_is_refused(repository, message, problem):
    told = repository.refused("--allow-empty", "--message", message)
    assert [line for line in told.splitlines() if line.startswith("commit-msg: ")] == [
        line for line in told.splitlines() if problem in line]


def test_what_git_adds_for_the_editor_is_no_body(repository):
    repository.stage("good.md", "Good words.\n")
    subject = "sed -i '1i tests: add a file'"
    assert "no body" in repository.refused("--verbose", GIT_EDITOR=subject)
    repository.git("commit", "--verbose", GIT_EDITOR=subject + r"'\n\nWhy.'")


def test_a_refused_message_can_be_corrected(repository):
    told = repository.refused("--allow-empty", "--message", "add a file\n\nWhy.")
    command = told.splitlines()[-1].partition(": git ")[2].split()
    repository.git(*command, "--allow-empty", GIT_EDITOR="sed -i '1s/^/tests: /'")
    assert repository.git("log", "-1", "--format=%B").strip() == "tests: add a file\n\nWhy."


def merge(repository, *options):
    repository.git("switch", "--create", "other")
    repository.git("commit", "--allow-empty", "--message", GOOD_MESSAGE)
    repository.git("switch", "main")
    repository.git("merge", "--no-ff", *options, "other")
    assert len(repository.git("log", "-1", "--format=%P").split()) == 2


def test_a_merge_may_have_any_message(repository):
    merge(repository, "--message", "In words of my own")


def test_the_message_of_git_for_a_merge_remains_good(repository):
    merge(repository, "--no-edit")
    repository.git("commit", "--amend", "--no-edit")


def test_a_revert_needs_no_area(repository):
    repository.stage("good.md", "Good words.\n")
    repository.git("commit", "--message", GOOD_MESSAGE)
    # In one step git would not ask the hook.
    repository.git("revert", "--no-commit", "HEAD")
    repository.git("commit", "--no-edit")
    assert repository.git("log", "-1", "--format=%s").startswith('Revert "')
