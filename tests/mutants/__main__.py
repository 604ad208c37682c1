# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Changes one line of the sources at a time, and checks whether a test detects it."""

import argparse
import random
import signal
import sys
from pathlib import Path

from .judge import Judge
from .mutations import mutants_of
from .results import Results, described
from .tree import Tree, listed

CHECKOUT = Path(__file__).parents[2]
HOME = CHECKOUT / "build/mutants"
FOLDERS = ["TovelAgent", "doctor", "procfs", "sample-agent"]


def drawn(options):
    """Mutants in a random order that depends on the seed, at most one for each line."""
    lines = []
    for file in sorted(listed(CHECKOUT)):
        path = Path(file)
        if (path.suffix in (".cpp", ".h", ".qml")
                and any(path.is_relative_to(folder) for folder in options["folders"])):
            lines += mutants_of(file, (CHECKOUT / file).read_text()).values()
    order = random.Random(options["seed"])
    order.shuffle(lines)
    return [order.choice(line) for line in lines]


def parsed():
    parser = argparse.ArgumentParser(prog="mutants", description=__doc__)
    parser.add_argument("--seed", type=int, default=1, help="seed for the choice of the mutants")
    parser.add_argument("--count", type=int, default=20, help="number of mutants that build")
    parser.add_argument("--folder", action="append", dest="folders", metavar="FOLDER",
                        help="only sources of this folder; may be repeated")
    parser.add_argument("--continue", action="store_true", dest="is_continued",
                        help="continue the last run with its options")
    options = vars(parser.parse_args())
    options["folders"] = options["folders"] or FOLDERS
    return options


def main():
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    options = parsed()
    HOME.mkdir(parents=True, exist_ok=True)
    results = Results(HOME / "results.jsonl", None if options.pop("is_continued") else options)
    tree = Tree(CHECKOUT, HOME / "tree")
    tree.refresh()
    tree.configure()
    judge = Judge(tree)
    try:
        for mutant in drawn(results.options):
            if results.counted >= results.options["count"]:
                break
            if mutant not in results:
                verdict = judge(mutant)
                results.add(mutant, verdict)
                print(described(mutant, verdict), flush=True)
    except KeyboardInterrupt:
        return "interrupted; --continue continues this run"
    finally:
        print(f"\n{results.summary()}")
        for name in sorted(judge.unsound):
            print(f"skipped, because it fails without a mutant: {name}")
    return 0


sys.exit(main())
