#!/usr/bin/env python3
"""Checks the three PDF manuals in a build folder: their form, and what they tell the player.

    manuals.py [BUILDDIR]

Without BUILDDIR the environment variable MALVONE_BUILD names the folder.
Needs pdfinfo, pdffonts, pdftotext and pdftohtml of poppler-utils.
"""
import os
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
FOLDER = Path()
PAGES = {"Malvone": 8, "Meldefenster": 2, "Bestespieler": 2}


def run(*command):
    return subprocess.run([str(part) for part in command], capture_output=True, check=True,
                          encoding="utf-8").stdout


def pdf(name):
    return FOLDER / f"{name}.pdf"


def source(name):
    return (ROOT / name).read_text("utf-8", "replace")


def flat(text):
    return re.sub(r"\s+", " ", text).strip()


def words(name, page=None):
    """The words in reading order, table cells after each other, as one line."""
    return flat(run("pdftotext", *(("-f", page, "-l", page) if page else ()), pdf(name), "-"))


def outline(name):
    """The bookmarks as (title, page), without the one of the whole manual."""
    with tempfile.TemporaryDirectory() as folder:
        run("pdftohtml", "-xml", "-i", "-q", pdf(name), Path(folder) / "page")
        tree = ElementTree.parse(Path(folder) / "page.xml")
    return [(flat(item.text), item.get("page")) for item in tree.iter("item")][1:]


def messages():
    """Every line that a message has shown in a played game, but for the one that names the maker, as
    a pattern for its numbers."""
    lines = set()
    for script in (ROOT / "tests/games").glob("*.drehbuch"):
        for shown in re.findall(r"^! text \w+ (.*)$", script.read_text("utf-8", "replace"), re.M):
            if "https:" not in shown:
                lines |= {flat(line) for line in re.split(r"\\r\\n| \| ", shown)}
    return {re.sub(r"\d+", r"\\d+", re.escape(line)) for line in lines if line}


class Manuals(unittest.TestCase):
    def test_form(self):
        for name, pages in PAGES.items():
            with self.subTest(manual=name):
                info = dict(re.findall(r"^([^:]+):\s+(.*)$", run("pdfinfo", pdf(name)), re.M))
                self.assertIn(f"<title>{info['Title']}</title>", source(f"assets/manuals/{name}.html"))
                self.assertIn("A4", info["Page size"])
                self.assertIn(b"/Lang (de)", pdf(name).read_bytes())
                for font in run("pdffonts", pdf(name)).splitlines()[2:]:
                    self.assertRegex(font, r"^[A-Z]{6}\+Liberation-?Sans\S* .* yes +yes +yes ")
                self.assertEqual(info["Pages"], str(pages))
                for page in range(1, pages + 1):
                    text = words(name, page)
                    self.assertIn(f"Seite {page} von {pages}", text)
                    self.assertGreater(len(text.split()), 120, f"page {page} is nearly empty")

    def test_bookmarks_and_contents_lead_to_the_pages_of_their_headings(self):
        for name in PAGES:
            with self.subTest(manual=name):
                marks = outline(name)
                self.assertEqual(len(marks), len(re.findall("<h[23]", source(f"assets/manuals/{name}.html"))))
                for title, page in marks:
                    self.assertIn(title, words(name, page))
        text = run("pdftotext", "-layout", "-l", "1", pdf("Malvone"), "-")
        entries = dict(re.findall(r"(\w[^.\n]*\w)[ .]{6,}(\d+)", text))
        self.assertEqual(len(entries), source("assets/manuals/Malvone.html").count("<h2"))
        self.assertLessEqual(entries.items(), dict(outline("Malvone")).items())

    def test_what_stands_in_the_game_stands_in_the_manuals(self):
        menu = re.findall(r'\{mnu[^"]*"([^"-]+)"', source("ui/windows/FrmTessel.cpp"))
        self.assertGreater(len(menu), 10)
        places = ["~/.local/share/lindenspiele", "$XDG_DATA_HOME/lindenspiele", "malvone.txt"]
        found = messages()
        self.assertGreater(len(found), 30)
        for name, patterns in {
            "Malvone": map(re.escape, [entry.replace("&", "").strip() for entry in menu] + places),
            "Meldefenster": found,
            "Bestespieler": map(re.escape, [f"{i + 1} Niemand {5000 - 300 * i}" for i in range(5)] + places),
        }.items():
            text = words(name)
            for pattern in patterns:
                with self.subTest(manual=name, pattern=pattern):
                    self.assertTrue(re.search(pattern, text), "not found in the text")


if __name__ == "__main__":
    build = sys.argv.pop(1) if len(sys.argv) > 1 else os.environ.get("MALVONE_BUILD")
    if not build:
        sys.exit(__doc__)
    FOLDER = Path(build).resolve()
    unittest.main()
