# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""summary.py CTEST_XML BUILD_FOLDER...

Counts what ran: CTEST_XML lists the tests, and test-results/<test>.xml in a build
folder the cases of those that have several. Names every case that failed and
every crash, ends with the count, and exits with 1 unless something passed and
nothing failed.
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


def cases_of(test, folders):
    """The outcome of each case of a test, by name. A test that failed without a failed
    case (a crash, a timeout) counts as one failed case; one without a report as one
    case."""
    name = test.get("name")
    failed = test.get("status") == "fail"
    cases = []
    for report in (folder / f"{name}.xml" for folder in folders):
        try:
            cases += [
                (f"{name}: {case.get('classname')}.{case.get('name')}", outcome(case))
                for case in ElementTree.parse(report).iter("testcase")
            ]
        except FileNotFoundError:
            pass
        except ElementTree.ParseError:
            failed = True
    if failed and not any(result == "failed" for _, result in cases):
        cases.append((name, "failed"))
    return cases or [(name, outcome(test))]


def main(listing, *folders):
    folders = [pathlib.Path(folder) / "test-results" for folder in folders]
    counts = collections.Counter()
    for test in ElementTree.parse(listing).iter("testcase"):
        for case, result in cases_of(test, folders):
            counts[result] += 1
            if result != "passed":
                print(f"{result}: {case}")
    for report in (file for folder in folders for file in sorted(folder.glob("crash-*.txt"))):
        print(f"crashed: {report}")
    print(f"{counts['passed']} passed, {counts['failed']} failed, {counts['skipped']} skipped")
    return 0 if counts["passed"] and not counts["failed"] else 1


sys.exit(main(*sys.argv[1:]))
