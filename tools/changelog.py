#!/usr/bin/env python3
"""CHANGELOG.md, the one place where changes are told, in the forms that others want.

    changelog.py debian VERSION SECONDS MAINTAINER     Debian's file of changes
    changelog.py appstream VERSION SECONDS             the releases of the AppStream metadata

A heading is "VERSION (DATE)", or "Unreleased": what is on its way to that version, at that time."""
import datetime
import email.utils
import html
import pathlib
import re
import sys
import textwrap

CHANGES = pathlib.Path(__file__).parent.parent / "CHANGELOG.md"


class Release:
    def __init__(self, heading, version, seconds):
        told = re.fullmatch(r"(\d+\.\d+\.\d+) \((\d{4}-\d{2}-\d{2})\)", heading)
        if not told and heading != "Unreleased":
            sys.exit(f"{CHANGES}: neither a release nor what comes: {heading}")
        self.is_out = bool(told)
        self.version = told[1] if told else version
        date = datetime.datetime.fromisoformat(f"{told[2]}T12:00:00+00:00") if told else None
        self.date = date or datetime.datetime.fromtimestamp(seconds, datetime.timezone.utc)
        self.changes = []


def releases(version, seconds):
    """Newest first."""
    found = []
    for line in CHANGES.read_text(encoding="utf-8").splitlines():
        if line.startswith("## "):
            found.append(Release(line[3:].strip(), version, seconds))
        elif found and line.startswith("- "):
            found[-1].changes.append(line[2:])
        elif found and found[-1].changes and line.startswith("  "):
            found[-1].changes[-1] += " " + line.strip()
    if not found or not all(release.changes for release in found):
        sys.exit(f"{CHANGES}: a release without changes")
    if found[0].version != version:
        sys.exit(f"{CHANGES}: the newest release is {found[0].version}, the program {version}")
    return found


def plain(text):
    return re.sub(r"\[([^]]*)\]\([^)]*\)", r"\1", text).replace("`", "")


def debian(version, seconds, maintainer):
    for release in releases(version, seconds):
        # What comes sorts before the release, and each state of it behind the one before.
        suffix = "" if release.is_out else f"~{release.date:%Y%m%d.%H%M%S}"
        print(f"tarnloft ({release.version}{suffix}) unstable; urgency=medium\n")
        for change in release.changes:
            print(textwrap.fill(plain(change), 79, initial_indent="  * ", subsequent_indent="    ",
                                break_long_words=False, break_on_hyphens=False))
        print(f"\n -- {maintainer}  {email.utils.format_datetime(release.date)}\n")


def appstream(version, seconds):
    print("<releases>")
    for release in releases(version, seconds):
        kind = "stable" if release.is_out else "development"
        print(f'    <release version="{release.version}" date="{release.date:%Y-%m-%d}" type="{kind}">')
        print("      <description>\n        <ul>")
        for change in release.changes:
            print(f"          <li>{html.escape(plain(change), quote=False)}</li>")
        print("        </ul>\n      </description>\n    </release>")
    print("  </releases>")


form, version, seconds, *rest = sys.argv[1:]
{"debian": debian, "appstream": appstream}[form](version, int(seconds), *rest)
