# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""summary.py BUILD_FOLDER...

Counts what ran in each folder's test-results/: ctest.xml lists the test
programs, <program>.xml the cases of each. Names every case that failed, ends
with the count, and exits with 1 unless something passed and nothing failed.
"""
import collections
import pathlib
import sys
import xml.etree.ElementTree as ElementTree


def outcome(case):
    if case.find("failure") is not None or case.find("error") is not None:
        return "failed"
    skipped = case.find("skipped") is not None or case.get("status") in ("notrun", "disabled")
    return "skipped" if skipped else "passed"


def cases_of(program, results):
    """The outcome of each case of a program, by name. A program that failed
    without a failed case to show for it (a crash, a time-out) is a failure of
    its own; one without a report counts as one case."""
    name = program.get("name")
    failed = program.get("status") == "fail"
    report = results / f"{name}.xml"
    cases = []
    if report.exists():
        try:
            cases = [
                (f"{name}: {case.get('classname')}.{case.get('name')}", outcome(case))
                for case in ElementTree.parse(report).iter("testcase")
            ]
        except ElementTree.ParseError:
            failed = True
    if failed and not any(result == "failed" for _, result in cases):
        cases.append((name, "failed"))
    return cases or [(name, outcome(program))]


def main(folders):
    counts = collections.Counter()
    for folder in folders:
        results = pathlib.Path(folder) / "test-results"
        for program in ElementTree.parse(results / "ctest.xml").iter("testcase"):
            for case, result in cases_of(program, results):
                counts[result] += 1
                if result != "passed":
                    print(f"{result}: {folder}: {case}")
    print(f"{counts['passed']} passed, {counts['failed']} failed, {counts['skipped']} skipped")
    return 0 if counts["passed"] and not counts["failed"] else 1


sys.exit(main(sys.argv[1:]))
