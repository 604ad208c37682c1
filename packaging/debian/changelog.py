# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""changelog.py CHANGES PACKAGE VERSION REVISION MAINTAINER

Converts CHANGELOG.md into the changelog of a Debian package. Changes that are not
released yet get VERSION.
"""

import os
import re
import sys
import textwrap
from datetime import datetime, timezone
from email.utils import format_datetime
from pathlib import Path

HEADING = re.compile(r"## (?:\[?(?P<version>\d[\w.]*)\]? - (?P<date>[\d-]+)|Unreleased)")


def releases(text):
    """Version and date, both None before the release, and the notes of each release."""
    parts = re.split(r"^(?=## )", text, flags=re.MULTILINE)[1:]
    for part in parts:
        heading = HEADING.match(part)
        if not heading:
            sys.exit(f"changelog.py: not a release: {part.splitlines()[0]}")
        notes = re.findall(r"^- (.*?)(?=\n- |\n\n|\n#|\Z)", part, re.MULTILINE | re.DOTALL)
        if notes:
            yield heading["version"], heading["date"], [" ".join(n.split()) for n in notes]


def moment(date, path):
    """Noon on the date of the release; without a date, when the file was last changed."""
    if date:
        return datetime.fromisoformat(date).replace(hour=12, tzinfo=timezone.utc)
    seconds = os.environ.get("SOURCE_DATE_EPOCH") or path.stat().st_mtime
    return datetime.fromtimestamp(int(float(seconds)), timezone.utc)


def main(changes, package, version, revision, maintainer):
    path = Path(changes)
    for released, date, notes in releases(path.read_text(encoding="utf-8")):
        print(f"{package} ({released or version}-{revision}) bookworm; urgency=medium\n")
        for note in notes:
            print(textwrap.fill(note, 78, initial_indent="  * ", subsequent_indent="    "))
        print(f"\n -- {maintainer}  {format_datetime(moment(date, path))}\n")


main(*sys.argv[1:])
