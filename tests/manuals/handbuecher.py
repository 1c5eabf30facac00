#!/usr/bin/env python3
"""Checks the three PDF manuals in a build folder: their form, and what they tell the player.

    handbuecher.py [BUILDDIR]

Without BUILDDIR the environment variable MALVONE_BUILD names the folder.
Needs pdfinfo, pdffonts, pdftotext and pdftohtml of poppler-utils. The last two tests make the
manuals themselves, so they also need what assets/manuals/bauen.py needs.
"""

import os
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

ASSETS = Path(__file__).resolve().parents[2] / "assets"
BUILDER = ASSETS / "manuals" / "bauen.py"
FOLDER = Path()

# Name: title, fewest and most pages.
MANUALS = {
    "Malvone": ("Malvone – Spielanleitung", 6, 10),
    "Meldefenster": ("Malvone – Meldefenster", 1, 2),
    "Bestespieler": ("Malvone – Beste Spieler", 1, 2),
}
EDGE = 24  # Points, 8.5 mm: no word may come nearer to the edge of the paper.

MESSAGES = """
Sind Sie sicher, dass Sie das aktuelle Spiel beenden möchten?
Wenn Sie sich für »Ja« entscheiden, beginnen Sie ein neues Spiel. Mit »0« Punkten im ersten Level. »Neues Spiel« bestätigen
Sind Sie sicher, dass Sie das Spiel beenden möchten?"
»Beenden« bestätigen
Sehr gut!! Sie haben eine neue Bestmarke erreicht.
Möchten Sie sich in die Liste der »Besten Spieler« eintragen?
Das aktuelle Spiel ist beendet. Möchten Sie ein neues Spiel beginnen?" »Neues Spiel« bestätigen
Sind Sie sicher, dass Sie alle Einträge löschen möchten?
»Einträge löschen« bestätigen
Sehr gut!!! Sie haben alle Spielsteine entfernt! Sie erhalten 1000 Bonuspunkte
Es ist kein weiterer Zug mehr möglich. Es sind noch 12 Felder belegt.
Es ist noch ein Feld belegt.
Sie erhalten keine Bonuspunkte in diesem Level.
Ein Eintrag in die Liste der »Besten Spieler« ist leider nicht möglich!
Mehr Erfolg beim nächsten Spiel.
Die Festplatte auf Ihrem System wurde nicht erkannt!
Ein Speichern von Daten ist leider nicht möglich
Das Anlegen des Ordners für die Daten ist fehlgeschlagen!
Die Daten für die Stastitik können nicht gespeichert werden!
Das Schreiben der Daten in die Datei »tessel.ini« ist fehlgeschlagen.
»Level wiederholen« ist nicht möglich.
Die zur Wiederholung des Levels erforderliche Datei »tessel.ini« wurde nicht gespeichert.
Beim Einlesen der Werte für die Wiederholung des Levels ist ein Fehler aufgetreten.
Die Daten für »Beste Spieler« konnten nicht gelesen werden!
Die Werte für »Beste Spieler« konnten nicht gespeichert werden.
Fehler beim Speichern
""".strip().splitlines()

SENTENCES = {
    "Malvone": [
        "14 Spalten mit je 10 Feldern, also Platz für 140 Steine in vier Farben",
        "Schräg zählt nicht.",
        "Dieser Spielzug ergibt 49 Punkte!",
        "7 × 7 = 49 Punkte",
        "Spielzug ist nicht möglich Es ist nur ein Feld markiert.",
        "Für sieben Steine gibt es 49, für doppelt so viele schon 196.",
        "Auf einmal werden bis zu sechs leere Spalten geschlossen.",
        "kommen 1000 Bonuspunkte, und der nächste Level beginnt sofort",
        "Das Spiel endet, wenn in Level 5 Steine liegenbleiben",
        "Ab Level 10 bleibt die Anzeige »Level« dunkel",
        "Zwei Gruppen zu fünf Steinen bringen zusammen 50 Punkte, eine Gruppe zu zehn bringt 100.",
        "mehr als eine Gruppe von 31 Steinen",
        "5000, 4700, 4400, 4100 und 3800 Punkten",
        "mindestens 3801 Punkte",
        "Enter , Leertaste , Alt + N", "Alt + W oder Strg + W", "Alt + E oder Strg + E", "Strg + N",
        "~/.local/share/lindenspiele", "$XDG_DATA_HOME/lindenspiele", "tessel.ini", "malvone.txt",
    ],
    "Meldefenster": ["Enter , Leertaste und alle anderen tun nichts", "ist zu kurz (62)",
                     "schließt das Fenster und gilt als Nein", *MESSAGES],
    "Bestespieler": [
        "3800 kein Eintrag", "3801 Platz 5", "4700 Platz 3", "5000 Platz 2", "5001 Platz 1",
        "behält der ältere Eintrag den besseren Platz",
        "so wird Ihr Eintrag verworfen",
        "Enter und Esc schließen das Fenster nicht.",
        "Alt + A",
        "~/.local/share/lindenspiele", "$XDG_DATA_HOME/lindenspiele",
        *(f"{place + 1} Niemand {5000 - 300 * place}" for place in range(5)),
    ],
}


def run(*command):
    return subprocess.run(command, capture_output=True, check=True, encoding="utf-8").stdout


def pdf(name):
    return FOLDER / f"{name}.pdf"


def flat(text):
    return re.sub(r"\s+", " ", text)


def words(name):
    """The words in reading order, table cells after each other, as one line."""
    return flat(run("pdftotext", pdf(name), "-"))


def outline(name):
    """The bookmarks as (title, page), without the one of the whole manual."""
    with tempfile.TemporaryDirectory() as folder:
        page = Path(folder) / "seite"
        run("pdftohtml", "-xml", "-i", "-q", pdf(name), page)
        tree = ElementTree.parse(f"{page}.xml")
    marks = [(flat(item.text), int(item.get("page"))) for item in tree.iter("item")]
    return marks[1:]


class Form(unittest.TestCase):
    def test_title_language_and_number_of_pages(self):
        for name in MANUALS:
            with self.subTest(manual=name):
                title, fewest, most = MANUALS[name]
                info = dict(re.findall(r"^([^:]+):\s+(.*)$", run("pdfinfo", pdf(name)), re.M))
                self.assertEqual(info["Title"], title)
                self.assertTrue(fewest <= int(info["Pages"]) <= most, info["Pages"])
                self.assertRegex(info["Page size"], r"A4")
                self.assertIn(b"/Lang (de)", pdf(name).read_bytes())

    def test_every_page_bears_its_number(self):
        for name in MANUALS:
            with self.subTest(manual=name):
                pages = run("pdftotext", "-layout", pdf(name), "-").rstrip("\f").split("\f")
                for number, text in enumerate(pages, 1):
                    self.assertIn(f"Seite {number} von {len(pages)}", text)

    def test_only_liberation_sans_and_embedded(self):
        for name in MANUALS:
            with self.subTest(manual=name):
                fonts = run("pdffonts", pdf(name)).splitlines()[2:]
                self.assertTrue(fonts)
                for font in fonts:
                    self.assertRegex(font, r"^[A-Z]{6}\+Liberation-?Sans\S* .* yes +yes +yes ")

    def test_no_word_lies_near_the_edge_of_the_paper(self):
        for name in MANUALS:
            with self.subTest(manual=name):
                text = run("pdftotext", "-bbox", pdf(name), "-")
                box = r'<word xMin="([\d.-]+)" yMin="([\d.-]+)" xMax="([\d.-]+)" yMax="([\d.-]+)">'
                boxes = [tuple(map(float, found)) for found in re.findall(box, text)]
                self.assertGreater(len(boxes), 300)
                for left, top, right, bottom in boxes:
                    self.assertTrue(EDGE < left and EDGE < top and right < 595 - EDGE
                                    and bottom < 842 - EDGE, (left, top, right, bottom))

    def test_bookmarks_lead_to_the_page_that_bears_their_heading(self):
        for name in MANUALS:
            with self.subTest(manual=name):
                marks = outline(name)
                self.assertGreaterEqual(len(marks), 5 if name == "Bestespieler" else 3)
                for title, page in marks:
                    text = run("pdftotext", "-f", str(page), "-l", str(page), pdf(name), "-")
                    self.assertIn(title, flat(text))

    def test_contents_name_the_pages_of_the_chapters(self):
        text = run("pdftotext", "-layout", "-l", "1", pdf("Malvone"), "-")
        entries = dict(re.findall(r"(\w[^.\n]*\w)[ .]{6,}(\d+)", text))
        self.assertEqual(len(entries), 11)
        pages = dict(outline("Malvone"))
        self.assertEqual({title: int(page) for title, page in entries.items()},
                         {title: pages[title] for title in entries})


class Words(unittest.TestCase):
    def test_what_a_player_must_find(self):
        for name, sentences in SENTENCES.items():
            text = words(name)
            for sentence in sentences:
                with self.subTest(manual=name, sentence=sentence):
                    self.assertTrue(sentence in text, "not found in the text")

    def test_a_group_is_worth_the_square_of_its_stones(self):
        text = run("pdftotext", "-layout", pdf("Malvone"), "-")
        rows = {word: [int(number) for row in re.findall(rf"^ +{word}((?: +\d+)+)$", text, re.M)
                       for number in row.split()] for word in ("Steine", "Punkte")}
        self.assertEqual(rows["Steine"], [*range(2, 17), 18, 20, 25, 30, 40])
        self.assertEqual(rows["Punkte"], [stones ** 2 for stones in rows["Steine"]])

    def test_the_example_of_a_game_adds_up(self):
        text = run("pdftotext", "-layout", pdf("Malvone"), "-")
        rows = re.findall(r"^ *(\S.*\S) +(\d+) +(\d+) +(\d+) +(\d+)$", text, re.M)
        rows = [row for row in rows if not row[0].startswith(("Steine", "Punkte"))]
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
            self.assertEqual([int(number) for number in numbers],
                             [level, of_level, points, kept], what)


class Making(unittest.TestCase):
    def build(self, pictures, out, **environment):
        return subprocess.run(
            [sys.executable, "-B", BUILDER, "--pictures", pictures, "--out", out], check=False,
            env={**os.environ, **environment}, capture_output=True, encoding="utf-8")

    def test_the_same_input_gives_the_same_bytes(self):
        with tempfile.TemporaryDirectory() as folder:
            for place in ("1", "2"):
                made = self.build(ASSETS / "pictures", Path(folder) / place, PYTHONHASHSEED=place,
                                  SOURCE_DATE_EPOCH="1700000000", TZ=f"UTC{place}")
                self.assertEqual((made.returncode, made.stderr), (0, ""))
            for name in MANUALS:
                first, second = ((Path(folder) / place / f"{name}.pdf") for place in ("1", "2"))
                self.assertEqual(first.read_bytes(), second.read_bytes(), name)
                self.assertIn("2023", run("pdfinfo", first))

    def test_a_missing_picture_stops_the_making_and_is_named(self):
        with tempfile.TemporaryDirectory() as folder:
            made = self.build(folder, Path(folder) / "out")
            self.assertEqual(made.returncode, 1)
            self.assertIn("stein-2-lacht.svg", made.stderr)
            self.assertEqual(list((Path(folder) / "out").glob("*.pdf")), [])


if __name__ == "__main__":
    build = sys.argv.pop(1) if len(sys.argv) > 1 else os.environ.get("MALVONE_BUILD")
    if not build:
        sys.exit(__doc__)
    FOLDER = Path(build).resolve()
    unittest.main()
