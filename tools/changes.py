#!/usr/bin/env python3
"""Turns CHANGELOG.md into what packages and software centres read.

    changes.py version     the version of the latest release
    changes.py debian      debian/changelog
    changes.py metainfo    the releases for packaging/malvone.metainfo.xml.in
"""
import datetime
import email.utils
import html
import pathlib
import re
import sys
import textwrap

ROOT = pathlib.Path(__file__).resolve().parent.parent
HEADING = re.compile(r"^## (\d+\.\d+\.\d+) \((\d{4}-\d\d-\d\d)\)$", re.M)


def releases():
    """Version, day and notes of each release, the latest first."""
    _, *parts = HEADING.split((ROOT / "CHANGELOG.md").read_text(encoding="utf-8"))
    for version, day, text in zip(parts[::3], parts[1::3], parts[2::3]):
        yield version, datetime.date.fromisoformat(day), [
            " ".join(note.split()) for note in re.split(r"^- ", text, flags=re.M)[1:]]


def debian():
    maintainer = re.search("^Maintainer: (.*)$", (ROOT / "debian/control").read_text(encoding="utf-8"), re.M)[1]
    entries = []
    for version, day, notes in releases():
        moment = datetime.datetime.combine(day, datetime.time(4), datetime.timezone.utc)
        lines = [textwrap.fill(note, 78, initial_indent="  * ", subsequent_indent="    ") for note in notes]
        entries.append("\n".join([f"malvone ({version}-1) unstable; urgency=medium", "", *lines, "",
                                  f" -- {maintainer}  {email.utils.format_datetime(moment)}"]))
    return "\n\n".join(entries)


def metainfo():
    return "\n".join(f"""    <release version="{version}" date="{day}">
      <description><ul>{"".join(f"<li>{html.escape(note)}</li>" for note in notes)}</ul></description>
    </release>""" for version, day, notes in releases())


def version():
    return next(releases())[0]


if __name__ == "__main__":
    kinds = {"version": version, "debian": debian, "metainfo": metainfo}
    if len(sys.argv) != 2 or sys.argv[1] not in kinds:
        sys.exit(__doc__)
    print(kinds[sys.argv[1]]())
