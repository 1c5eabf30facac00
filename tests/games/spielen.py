#!/usr/bin/env python3
"""Plays one script with the program `drehbuch` and compares the transcript with NAME.soll beside it.

    spielen.py [--schreiben] DREHBUCH-EXE NAME.drehbuch

A difference is printed as a unified diff and ends with status 1. --schreiben writes NAME.soll
instead, which then has to be read line by line before it is worth anything.

Each script is played in fresh folders: `daten` stands for the root of the drive and `programm` for
the program's folder, which holds the seven sounds as empty files and the three manuals. The
transcript holds what was sent behind each `> ` line and what came back.

Lines that begin with `#:` are for the player. Those before the first command are done before the
program starts, the others in their place, while the program waits:

    #: optionen --klanggeraete 0      further options of the program
    #: ohne TADA.WAV Malvone.pdf      removes files of the program's folder
    #: datei daten/x.ini              a file of the `#|` and `#*` lines that follow, in Windows-1252
                                      with CR LF; folders above it are made; without lines it is empty
    #: roh daten/x.ini 61 0d          a file of these bytes
    #: ordner daten/x.ini             a folder, empty
    #: verweis daten/x nirgends       a symbolic link
    #: weg daten/lindenspiele         removes a file or a whole folder
    #: pruefe daten/x.ini             the file has exactly the lines that follow
    #: pruefe daten/x.ini wie BRETT   ... or one line for each character of the answer BRETT
    #: fehlt daten/x.ini              there is no such file or folder
    #: merke BRETT [REGEX]            the next answer is kept (and must match); {BRETT} in the transcript
    #: gleich BRETT                   the next answer must be the one that was kept
    #: neustart [OPTIONEN]            ends the program by the end of its input and starts it anew

    #|text                            one line of a file
    #*139 text                        139 such lines
"""

import argparse
import difflib
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import threading

KLAENGE = ("TADA.WAV", "WHOOSH.WAV", "CHIMES.WAV", "FRAGE.WAV", "FEHLER.WAV", "BLIP.WAV", "ding.wav")
HANDBUECHER = ("Malvone.pdf", "Meldefenster.pdf", "Bestespieler.pdf")
GEDULD_S = 60


class Regiefehler(Exception):
    """A directive that is not in order: a mistake in the script, not in the game."""


def lesbar(zeile):
    """A line as it stands in the transcript: bytes that are no UTF-8 and a CR are spelled out."""
    text = zeile.encode("utf-8", "surrogateescape").decode("utf-8", "backslashreplace")
    return text.replace("\r", "\\x0d")


class Programm:
    """One run of `drehbuch`, driven line by line."""

    def __init__(self, exe, ordner, optionen):
        aufruf = [exe, "--daten", ordner / "daten", "--programm", ordner / "programm", *optionen]
        self.prozess = subprocess.Popen(aufruf, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        stderr=subprocess.PIPE)
        self.wecker = threading.Timer(GEDULD_S, self.prozess.kill)
        self.wecker.start()
        self.fehlertext = b""
        self.lauscher = threading.Thread(target=self.fehler_lesen)
        self.lauscher.start()
        self.wartet = False

    def fehler_lesen(self):
        self.fehlertext = self.prozess.stderr.read()

    def lies(self):
        """All lines up to the next one that says that the program waits, or up to the end."""
        zeilen = []
        self.wartet = False
        for roh in self.prozess.stdout:
            zeilen.append(lesbar(roh.decode("utf-8", "surrogateescape").removesuffix("\n")))
            if zeilen[-1].startswith("> "):
                self.wartet = True
                break
        return zeilen

    def sende(self, zeile):
        try:
            self.prozess.stdin.write(zeile.encode("utf-8", "surrogateescape") + b"\n")
            self.prozess.stdin.flush()
        except BrokenPipeError:
            pass

    def ende(self):
        """Ends the input; what is still written, the exit status and complaints are lines, too."""
        try:
            self.prozess.stdin.close()
        except BrokenPipeError:
            pass
        zeilen = self.lies()
        status = self.prozess.wait()
        self.lauscher.join()
        self.wecker.cancel()
        if status != 0:
            zeilen.append(f"status {status}")
        if self.fehlertext:
            zeilen += ["stderr " + z for z in self.fehlertext.decode("utf-8", "replace").splitlines()]
        return zeilen


class Vorstellung:
    """A script on its way: folders, program, transcript."""

    def __init__(self, exe, ordner, skript):
        self.exe = exe
        self.ordner = ordner
        self.zeilen = skript.read_bytes().decode("utf-8", "surrogateescape").split("\n")
        if self.zeilen[-1] == "":
            self.zeilen.pop()
        self.stelle = 0
        self.mitschrift = []
        self.optionen = []
        self.programm = None
        self.gemerkt = {}
        self.erwartet = None  # (name, regex): the next answer is kept or compared under the name

        (ordner / "daten").mkdir()
        (ordner / "programm").mkdir()
        for name in KLAENGE + HANDBUECHER:
            (ordner / "programm" / name).touch()

    def spiele(self):
        while self.stelle < len(self.zeilen):
            zeile = self.zeilen[self.stelle]
            self.stelle += 1
            if zeile.startswith("#:"):
                self.regie(zeile[2:].split())
            else:
                self.befehl(zeile)
        self.beginne()
        self.schluss()
        return "".join(zeile + "\n" for zeile in self.mitschrift)

    def beginne(self):
        if self.programm is None:
            self.programm = Programm(self.exe, self.ordner, self.optionen)
            self.mitschrift += self.programm.lies()

    def schluss(self):
        self.mitschrift += self.programm.ende()
        self.programm = None

    def befehl(self, zeile):
        ist_kommentar = zeile.rstrip("\r") == "" or zeile.startswith("#")
        if ist_kommentar and self.programm is None:
            return
        self.beginne()
        if not ist_kommentar and not self.programm.wartet:
            raise Regiefehler("the program has ended before this command")
        self.programm.sende(zeile)
        self.mitschrift.append(lesbar(zeile))
        if not ist_kommentar:
            self.mitschrift += [self.verkleidet(z) for z in self.programm.lies()]

    def verkleidet(self, zeile):
        """Stands a name in for an answer that is different each time."""
        if self.erwartet is None or not zeile.startswith("= "):
            return zeile
        (name, muster), self.erwartet = self.erwartet, None
        wert = zeile[2:]
        if muster is not None:
            if not re.fullmatch(muster, wert):
                return zeile
            self.gemerkt[name] = wert
        return "= {" + name + "}" if self.gemerkt.get(name) == wert else zeile

    def regie(self, worte):
        name, argumente = worte[0], worte[1:]
        anweisung = getattr(self, "regie_" + name, None)
        if anweisung is None:
            raise Regiefehler("unknown directive")
        try:
            anweisung(*argumente)
        except (KeyError, OSError, TypeError, ValueError) as fehler:
            raise Regiefehler(f"{name}: {fehler!r}") from fehler

    def pfad(self, name):
        ziel = self.ordner / name
        if ziel.parts[len(self.ordner.parts)] not in ("daten", "programm") or ".." in ziel.parts:
            raise Regiefehler("a path begins with daten or programm")
        return ziel

    def text(self):
        """The lines of a file that follow here."""
        zeilen = []
        while self.stelle < len(self.zeilen) and self.zeilen[self.stelle][:2] in ("#|", "#*"):
            zeile = self.zeilen[self.stelle]
            self.stelle += 1
            if zeile.startswith("#|"):
                zeilen.append(zeile[2:])
            else:
                mal, _, was = zeile[2:].partition(" ")
                zeilen += [was] * int(mal)
        return "".join(z + "\r\n" for z in zeilen).encode("cp1252")

    def neue_datei(self, name, inhalt):
        self.pfad(name).parent.mkdir(parents=True, exist_ok=True)
        self.pfad(name).write_bytes(inhalt)

    def regie_optionen(self, *optionen):
        self.optionen = list(optionen)

    def regie_ohne(self, *namen):
        for name in namen:
            (self.ordner / "programm" / name).unlink()

    def regie_datei(self, name):
        self.neue_datei(name, self.text())

    def regie_roh(self, name, *werte):
        self.neue_datei(name, bytes.fromhex("".join(werte)))

    def regie_ordner(self, name):
        self.pfad(name).mkdir(parents=True)

    def regie_verweis(self, name, ziel):
        self.pfad(name).symlink_to(ziel)

    def regie_weg(self, name):
        ziel = self.pfad(name)
        if ziel.is_dir() and not ziel.is_symlink():
            shutil.rmtree(ziel)
        else:
            ziel.unlink()

    def regie_pruefe(self, name, *wie):
        soll = self.text()
        if wie:
            soll = "".join(z + "\r\n" for z in self.gemerkt[wie[1]]).encode("cp1252")
        try:
            ist = self.pfad(name).read_bytes()
        except OSError as fehler:
            self.mitschrift.append(f"pruefe {name}: {fehler.strerror}")
            return
        if ist != soll:
            self.mitschrift.append(f"pruefe {name}: is {ist!r}, should be {soll!r}")

    def regie_fehlt(self, name):
        if self.pfad(name).exists():
            self.mitschrift.append(f"fehlt {name}: it is there")

    def regie_merke(self, name, muster=".*"):
        self.erwartet = (name, muster)

    def regie_gleich(self, name):
        self.erwartet = (name, None)

    def regie_neustart(self, *optionen):
        self.beginne()
        self.schluss()
        self.mitschrift.append("-- neustart")
        self.optionen = list(optionen)


def main():
    argumente = argparse.ArgumentParser(description="Plays one script and compares the transcript.")
    argumente.add_argument("--schreiben", action="store_true", help="write the expected transcript")
    argumente.add_argument("exe", type=pathlib.Path)
    argumente.add_argument("skript", type=pathlib.Path)
    wahl = argumente.parse_args()
    soll_datei = wahl.skript.with_suffix(".soll")

    with tempfile.TemporaryDirectory(prefix="malvone-") as ordner:
        vorstellung = Vorstellung(wahl.exe.resolve(), pathlib.Path(ordner), wahl.skript)
        try:
            ist = vorstellung.spiele()
        except Regiefehler as fehler:
            print("\n".join(vorstellung.mitschrift[-20:]))
            print(f"{wahl.skript}:{vorstellung.stelle}: {fehler}")
            return 1
        finally:
            if vorstellung.programm is not None:
                vorstellung.schluss()

    if wahl.schreiben:
        soll_datei.write_text(ist, encoding="utf-8", newline="\n")
        return 0
    if not soll_datei.exists():
        print(f"{soll_datei} is missing; --schreiben writes it")
        return 1
    soll = soll_datei.read_text(encoding="utf-8")
    unterschied = list(difflib.unified_diff(soll.split("\n"), ist.split("\n"), soll_datei.name,
                                            wahl.skript.name, lineterm=""))
    if unterschied:
        print("\n".join(unterschied))
    return 1 if unterschied else 0


if __name__ == "__main__":
    sys.exit(main())
