#!/usr/bin/env python3
"""Checks the three PDF manuals in a build folder: their form, and what they tell the player.

    manuals.py [BUILDDIR]

Without BUILDDIR the environment variable MALVONE_BUILD names the folder.
Needs pdfinfo, pdffonts, pdftotext and pdftohtml of poppler-utils. The last two tests make the
manuals themselves, so they also need what assets/manuals/typeset.py needs.
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

# Name: title, fewest and most pages, bookmarks at least.
MANUALS = {
    "Malvone": ("Malvone – Spielanleitung", 6, 10, 11),
    "Meldefenster": ("Malvone – Meldefenster", 1, 2, 3),
    "Bestespieler": ("Malvone – Beste Spieler", 1, 2, 5),
}

# What a player must find. The messages are those that the played games have met.
SENTENCES = {
    "Malvone": [
        "14 Spalten mit je 10 Feldern, also Platz für 140 Steine in vier Farben",
        "Schräg zählt nicht.",
        "Auf einmal werden bis zu sechs leere Spalten geschlossen.",
        "kommen 1000 Bonuspunkte, und der nächste Level beginnt sofort",
        "Das Spiel endet, wenn in Level 5 Steine liegenbleiben",
        "Ab Level 10 bleibt die Anzeige »Level« dunkel",
        "mehr als eine Gruppe von 31 Steinen", "mindestens 3801 Punkte",
        "Enter , Leertaste , Alt + N", "Alt + W oder Strg + W", "Alt + E oder Strg + E", "Strg + N",
        "~/.local/share/lindenspiele", "$XDG_DATA_HOME/lindenspiele", "tessel.ini", "malvone.txt",
    ],
    "Meldefenster": ["Enter , Leertaste und alle anderen tun nichts",
                     "schließt das Fenster und gilt als Nein"],
    "Bestespieler": ["3800 kein Eintrag", "3801 Platz 5", "5000 Platz 2", "5001 Platz 1",
                     "behält der ältere Eintrag den besseren Platz",
                     "so wird Ihr Eintrag verworfen", "Enter und Esc schließen das Fenster nicht.",
                     *(f"{place + 1} Niemand {5000 - 300 * place}" for place in range(5))],
}


def run(*command):
    return subprocess.run(command, capture_output=True, check=True, encoding="utf-8").stdout


def pdf(name):
    return FOLDER / f"{name}.pdf"


def flat(text):
    return re.sub(r"\s+", " ", text).strip()


def words(name, *options):
    """The words in reading order, table cells after each other, as one line."""
    return flat(run("pdftotext", *options, pdf(name), "-"))


def outline(name):
    """The bookmarks as (title, page), without the one of the whole manual."""
    with tempfile.TemporaryDirectory() as folder:
        page = Path(folder) / "seite"
        run("pdftohtml", "-xml", "-i", "-q", pdf(name), page)
        tree = ElementTree.parse(f"{page}.xml")
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
        for name, (title, fewest, most, _) in MANUALS.items():
            with self.subTest(manual=name):
                info = dict(re.findall(r"^([^:]+):\s+(.*)$", run("pdfinfo", pdf(name)), re.M))
                self.assertEqual(info["Title"], title)
                self.assertTrue(fewest <= int(info["Pages"]) <= most, info["Pages"])
                self.assertIn("A4", info["Page size"])
                self.assertIn(b"/Lang (de)", pdf(name).read_bytes())
                self.assertIn(f"Seite {info['Pages']} von {info['Pages']}", words(name))
                for font in run("pdffonts", pdf(name)).splitlines()[2:]:
                    self.assertRegex(font, r"^[A-Z]{6}\+Liberation-?Sans\S* .* yes +yes +yes ")

    def test_bookmarks_lead_to_the_page_that_bears_their_heading(self):
        for name in MANUALS:
            with self.subTest(manual=name):
                marks = outline(name)
                self.assertGreaterEqual(len(marks), MANUALS[name][3])
                for title, page in marks:
                    self.assertIn(title, words(name, "-f", page, "-l", page))

    def test_contents_name_the_pages_of_the_chapters(self):
        text = run("pdftotext", "-layout", "-l", "1", pdf("Malvone"), "-")
        entries = dict(re.findall(r"(\w[^.\n]*\w)[ .]{6,}(\d+)", text))
        self.assertEqual(len(entries), 11)
        self.assertLessEqual(entries.items(), dict(outline("Malvone")).items())

    def test_what_a_player_must_find(self):
        for name, sentences in SENTENCES.items():
            text = words(name)
            patterns = {re.escape(sentence) for sentence in sentences}
            for pattern in patterns | (messages() if name == "Meldefenster" else set()):
                with self.subTest(manual=name, sentence=pattern):
                    self.assertTrue(re.search(pattern, text), "not found in the text")

    def test_a_group_is_worth_the_square_of_its_stones(self):
        text = run("pdftotext", "-layout", pdf("Malvone"), "-")
        stones, points = ([int(number) for row in re.findall(rf"^ +{word}((?: +\d+)+)$", text, re.M)
                           for number in row.split()] for word in ("Steine", "Punkte"))
        self.assertEqual(stones, [*range(2, 17), 18, 20, 25, 30, 40])
        self.assertEqual(points, [number ** 2 for number in stones])

    def test_the_example_of_a_game_adds_up(self):
        text = run("pdftotext", "-layout", pdf("Malvone"), "-")
        rows = [row for row in re.findall(r"^ *(\S.*\S) +(\d+) +(\d+) +(\d+) +(\d+)$", text, re.M)
                if not row[0].startswith(("Steine", "Punkte"))]
        self.assertEqual(len(rows), 10)
        level = of_level = points = kept = 0
        for what, *numbers in rows:
            moves = re.match(r"Züge für (\d+) Punkte", what)
            if moves:
                points += int(moves[1])
                of_level += int(moves[1])
                if "Bonus" in what:
                    level, of_level, points = level + 1, 0, points + 1000
            elif what.startswith("»Nächster Level«"):
                level, of_level, kept = level + 1, 0, points
            elif what.startswith("»Wiederholen«"):
                of_level, points = 0, kept
            else:
                self.assertEqual(what, "»Neues Spiel«")
                level, of_level, points, kept = 1, 0, 0, 0
            self.assertEqual([*map(int, numbers)], [level, of_level, points, kept], what)


class Making(unittest.TestCase):
    def build(self, pictures, out, **environment):
        return subprocess.run(
            [sys.executable, "-B", ROOT / "assets/manuals/typeset.py", "--pictures", pictures,
             "--out", out], check=False, env={**os.environ, **environment}, capture_output=True,
            encoding="utf-8")

    def test_the_same_input_gives_the_same_bytes(self):
        with tempfile.TemporaryDirectory() as folder:
            for place in ("1", "2"):
                made = self.build(ROOT / "assets/pictures", Path(folder) / place, TZ=f"UTC{place}",
                                  PYTHONHASHSEED=place, SOURCE_DATE_EPOCH="1700000000")
                self.assertEqual((made.returncode, made.stderr), (0, ""))
            for name in MANUALS:
                first, second = ((Path(folder) / place / f"{name}.pdf") for place in ("1", "2"))
                self.assertEqual(first.read_bytes(), second.read_bytes(), name)
                self.assertIn("2023", run("pdfinfo", first))

    def test_a_missing_picture_stops_the_making_and_is_named(self):
        with tempfile.TemporaryDirectory() as folder:
            made = self.build(folder, Path(folder) / "out")
            self.assertEqual(made.returncode, 1)
            self.assertIn("stone-2-laughing.svg", made.stderr)
            self.assertEqual(list((Path(folder) / "out").glob("*.pdf")), [])


if __name__ == "__main__":
    build = sys.argv.pop(1) if len(sys.argv) > 1 else os.environ.get("MALVONE_BUILD")
    if not build:
        sys.exit(__doc__)
    FOLDER = Path(build).resolve()
    unittest.main()
