# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Time and memory to decode a body into records."""

import json
import subprocess

from . import stage
from .figures import goal, number, table


def output(*options):
    done = subprocess.run([str(stage.BENCH / "decode/bench_decode"), *options],
                          capture_output=True, text=True, check=True)
    return done.stdout


def bodies():
    names = output("--benchmark_list_tests").splitlines()
    return dict.fromkeys(name.rpartition("/")[0] for name in names)


def medians_of(body):
    """Runs in a new process, because memory left by a large body slows a small one down."""
    measured = json.loads(output(
        f"--benchmark_filter=^{body}/", "--benchmark_format=json",
        "--benchmark_repetitions=21", "--benchmark_enable_random_interleaving=true",
        "--benchmark_min_time=0.05", "--benchmark_report_aggregates_only=true"))
    return {b["run_name"]: b for b in measured["benchmarks"] if b["aggregate_name"] == "median"}


def run(report):
    medians = {name: b for body in bodies() for name, b in medians_of(body).items()}
    rows = []
    for name, figures in medians.items():
        body, _, contender = name.rpartition("/")
        peer = medians[f"{body}/simdjson"]
        ratio = figures["real_time"] / peer["real_time"]
        rows.append((body, contender, number(figures["bytes_per_second"] / 1e6), f"{ratio:.2f}",
                     f"{figures['peak_by_body']:.2f}"))
        if contender == "panel" and body.startswith("connections"):
            report.goal(f"decode {body} ÷ simdjson's document into the same records by hand",
                        goal(ratio, 1.1))
        if contender == "panel" and body != "connections/100":
            report.goal(f"decode {body}: peak extra memory ÷ body",
                        goal(figures["peak_by_body"], 5))
    report.section("Decode", "Peak memory counts whole pages, result included, but not those of "
                   "code, which a small body touched before; at 100 connections whole pages "
                   "outweigh the body.\n\n" + table(
                       ("body", "by", "MB/s", "time ÷ simdjson", "peak memory ÷ body"), rows))
