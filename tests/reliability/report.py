# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""report RESULTS OUTPUT: writes the results of all parts as a page."""

import json
import sys
import xml.etree.ElementTree as xml
from pathlib import Path

from measure.figures import goal, number, table
from measure.report import Report

PREFACE = """<!--
SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
SPDX-License-Identifier: GPL-3.0-or-later
-->
# Reliability

What the panel withstands, measured by `tools/reliability`: how often each case was
run, how often it passed, and the figures of one run. What of the core no test reaches is
in [Coverage](coverage.md)."""

# Figure, what it is called, its limit and unit.
ATTACK = (
    ("kept_mib", "kept 10 s after", 16, " MiB"),
    ("longest_gap_ms", "UI thread's longest gap", 50, " ms"),
    # A poll each five seconds, and the time it takes.
    ("seconds_to_good", "good values after", 6, " s"),
)
TROUBLE = {
    "client_tests": "hostile and broken answers, the core alone",
    "model_tests": "texts that are, or are not, JSON and a record",
    "e2e_answers": "hostile and broken answers, the window",
    "e2e_hostile_text": "texts that look like markup or links",
    "fault_errors": "a system call fails while a configuration is saved or imported",
    "fault_kills": "the program killed at each of these calls",
    "fault_reads": "the same while the token or the configuration is read",
    "full_disk": "a disk that runs full",
    "hardening": "the built programs' hardening",
    "sample_agent_tests": "hostile requests to the sample agent, its core",
    "sample_agent_program_tests": "the same to the program, killed and started again",
    "e2e_clock": "the process stopped, its clock set",
    "e2e_agent_trouble": "agents that do not start, do not stop, or are too many",
    "e2e_many_windows": "windows and launches in numbers",
    "e2e_lost_bus": "the session bus dying while a second panel is launched",
    "e2e_time_zone": "the machine's time zone changing",
}


def soak(report, results):
    runs = [json.loads(line) for line in (results / "soak.json").read_text().splitlines()]
    for run in runs:
        report.goal(f"soak, {run['what']}: growth over {run['polls']:,} polls",
                    goal(max(run["grown_kib"], 0), run["allowed_kib"], " KiB"))
        report.goal(f"soak, {run['what']}: descriptors and threads more",
                    goal(max(run["descriptors"], 0) + max(run["threads"], 0), 0))
    report.section("Soak", "Polls without a pause, the lists changing from one to the next; a "
                   "week has 120,960.\n\n" + table(
                       ("", "polls", "seconds", "grown", "descriptors", "threads"),
                       [(r["what"], f"{r['polls']:,}", number(r["seconds"]),
                         f"{r['grown_kib']:+} KiB", f"{r['descriptors']:+}", f"{r['threads']:+}")
                        for r in runs]))


def attacks(report, results):
    found = json.loads((results / "attack.json").read_text())
    rows = []
    for name, figures in found.items():
        judged = [goal(max(figures[key], 0), limit, unit) for key, _, limit, unit in ATTACK]
        rows.append((name, f"{number(figures['peak_above_idle_mib'])} MiB",
                     *(f"{value} ({verdict})" if verdict != "met" else value
                       for value, _, verdict in judged), figures["gaps_above_50_ms"]))
    for key, label, limit, unit in ATTACK:
        held = sum(figures[key] <= limit for figures in found.values())
        report.goal(f"attacks: {label}", (f"held by {held} of {len(found)}",
                                          f"≤ {number(limit)}{unit}",
                                          "met" if held == len(found) else "**not met**"))
    report.section("Attacks", "The whole panel on its Alerts tab, twelve seconds of each. Memory "
                   "is sampled every 5 ms; its peak has no limit of its own, that of a body is "
                   "64 MiB. When good values come depends on where between two polls an attack "
                   "ends.\n\n" + table(("attack", "peak memory above idle",
                                        *(label for _, label, _, _ in ATTACK),
                                        "gaps above 50 ms"), rows))


def drip(report, results):
    figures = json.loads((results / "drip.json").read_text())
    report.goal("drip: good values after", goal(figures["seconds_to_good"], 6, " s"))
    refused = sum(count for text, count in figures["messages"].items() if "Error" in text)
    report.goal(f"drip: of {figures['turns']} saves, failed", goal(refused, 0))
    report.section("Drip", f"For {number(figures['minutes'])} minutes the agent sends one byte "
                   "every two seconds, while the panel may open only as many descriptors as at "
                   "the start and 24 more. It is used all the time: resized, all tabs visited, a "
                   "configuration saved.\n\n" + table(
                       ("descriptors", "limit", "turns", "slowest turn", "messages of Save"),
                       [(figures["most_descriptors"], figures["limit"], figures["turns"],
                         number(figures["slowest_turn_s"]) + " s",
                         ", ".join(f"{count} × {text}"
                                   for text, count in figures["messages"].items()))]))


def faults(report, results):
    figures = json.loads((results / "faults.json").read_text())
    start, end = figures["start"], figures["end"]
    report.goal("faults: memory at the end minus that after a sixth of the time",
                goal(max(end["mib"] - figures["after_a_sixth"]["mib"], 0), 8, " MiB"))
    more = sum(max(end[key] - start[key], 0) for key in ("descriptors", "threads"))
    report.goal("faults: descriptors and threads more than at the start", goal(more, 0))
    report.goal("faults: UI thread's longest gap", goal(figures["longest_gap_ms"], 50, " ms"))
    report.section("Faults", f"For {number(figures['minutes'])} minutes the panel is used while "
                   "faults come in random order, each for some seconds; after each the good "
                   f"values must be back, at the latest {number(figures['slowest_to_good_s'])} s "
                   f"after. {figures['gaps_above_50_ms']} gaps of the UI thread were longer than "
                   "50 ms.\n\n" + table(
                       ("", "start", "after a sixth", "most", "end"),
                       [(key, *(number(figures[when][key])
                                for when in ("start", "after_a_sixth", "most", "end")))
                        for key in ("mib", "descriptors", "threads")])
                   + "\n\n" + table(("fault", "times"), sorted(figures["faults"].items())))


def trouble(report, results):
    rows = []
    for name, label in TROUBLE.items():
        root = xml.parse(results / f"{name}.xml").getroot()
        suites = [root] if root.tag == "testsuite" else root.findall("testsuite")
        tried = sum(int(s.get("tests")) for s in suites)
        skipped = sum(int(s.get("skipped") or 0) for s in suites)
        failed = sum(int(s.get("failures")) + int(s.get("errors")) for s in suites)
        rows.append((label, tried - skipped, tried - skipped - failed))
    report.section("Trouble", table(("", "tried", "held"), rows))


def main(results, output):
    report = Report()
    for part in (soak, attacks, drip, faults, trouble):
        part(report, Path(results))
    report.write(output, PREFACE)


main(*sys.argv[1:])
