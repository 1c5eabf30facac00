#!/usr/bin/env python3
"""Plays a script with the program `drehbuch`, or with a build of it for Node, and compares.

    spielen.py [--schreiben] PROGRAM NAME.drehbuch      PROGRAM: drehbuch, or drehbuch.js

A script is its own transcript. Behind the line that says that the program waits, `> WINDOW`, stands
the command that it is given there; the other lines are its answers. A difference is printed as a
unified diff and ends with status 1. --schreiben writes the answers of today into the script, which
then has to be read line by line before it is worth anything; for a new command any window will do.

Each script is played in fresh folders: `daten` stands for the root of the drive and `programm` for
the program's folder, which holds the seven sounds as empty files and the three manuals.

Lines that begin with `#:` are for the player. Those before the first command are done before the
program starts, the others in their place, while the program waits:

    #: optionen --klanggeraete 0      further options of the program
    #: ohne TADA.WAV Malvone.pdf      removes files of the program's folder
    #: datei daten/x.ini              a file of the `#|` and `#*` lines that follow, in Windows-1252
                                      with CR LF; folders above it are made; without lines it is empty
    #: roh daten/x.ini 610d           a file of these bytes
    #: ordner daten/x.ini             a folder, empty
    #: verweis daten/x nirgends       a symbolic link
    #: weg daten/lindenspiele         removes a file or a whole folder
    #: pruefe daten/x.ini             the file has exactly the lines that follow
    #: pruefe daten/x.ini wie BRETT   ... or one line for each character of the answer BRETT
    #: fehlt daten/x.ini              there is no such file or folder
    #: merke BRETT [REGEX]            the next answer is kept (and must match); {BRETT} in the transcript
    #: gleich BRETT                   the next answer must be the one that was kept
    #: mal 5                          the next command is given five times, and told once if it is
                                      answered alike each time
    #: neustart [OPTIONEN]            ends the program by the end of its input and starts it anew
    #: spur 3fa9 ...                  what can be asked after each command, as two short sums: the
                                      windows and lists, and the board; -- where each run differs.
                                      Written by --schreiben at the end; a script without one has none

    #|text                            one line of a file
    #*139 text                        139 such lines
"""
import difflib
import os
import pathlib
import re
import shutil
import sys
import tempfile
import zlib

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir, "support"))
from processes import Failed, end, script, start

FILES = ("TADA.WAV", "WHOOSH.WAV", "CHIMES.WAV", "FRAGE.WAV", "FEHLER.WAV", "BLIP.WAV", "ding.wav",
         "Malvone.pdf", "Meldefenster.pdf", "Bestespieler.pdf")
LIMIT_S = 100

# All that a player sees and that a command may change; what lies on the board goes its own way, as
# a board that was drawn by lot is another one in each run.
SEEN = ["windows", "state"] + ["get " + name for name in (
    *(f"frmTessel.{label}.{what}" for label in ("lblMeldung", "lblSumme", "lblNeu") for what in ("Caption", "ForeColor")),
    *(f"frmTessel.{image}.{what}" for image in ("imgNext", "imgStart", "imgNaechsterLevel", "imgWiederholen", "lblHilfe", "lblInfo")
      for what in ("Picture", "Visible")),
    *(f"frmTessel.{row}({place}).Picture" for row, places in (("imgDiggiPunkte", 5), ("imgDiggiLevelPunkte", 4), ("imgDiggiLevel", 2))
      for place in range(places)),
    *(f"frmTessel.cmdSchalt({place}).{what}" for place in range(4) for what in ("Caption", "Enabled", "Visible", "Default")),
    *(f"frmTessel.mnuTessel({place}).Enabled" for place in range(1, 5)),
    "frmTessel.mnuSoundan.Checked", "frmTessel.mnuSoundaus.Checked", "frmTessel.Timer1.Enabled", "frmTessel.Timer1.Interval",
    "frmTessel.Picture1.Visible", "frmTessel.Caption", "frmHintergrund.Width",
    *(f"frmBeste.{what}.ListCount" for what in ("lstName", "lstPunkte")),
    *(f"frmBeste.{what}.List({place})" for what in ("lstName", "lstPunkte") for place in range(5)),
    *(f"frmBeste.txtSpieler({place}).{what}" for place in range(10) for what in ("Text", "Locked", "SelStart", "SelLength")),
    *(f"frmBeste.imgDiggi({place}).{what}" for place in range(25) for what in ("Picture", "Visible")),
    *(f"{window}.{label}.Caption" for window in ("frmMsgOk", "frmMsgJa") for label in ("lblMeldung", "lblTitel", "lblName")))]
BOARD = ["board", "marks", "previews", "pictures"]
PER_LINE = 18
RUNS = 20       # in which what differs by chance has shown it


def readable(raw):
    """A line as it stands in the script: bytes that are no UTF-8 and a CR are spelled out."""
    return raw.decode("utf-8", "backslashreplace").removesuffix("\n").replace("\r", "\\x0d")


class Play:
    def __init__(self, program, lines, folder):
        self.call = (["node"] if program.suffix == ".js" else []) + [
            program.resolve(), "--daten", folder / "daten", "--programm", folder / "programm"]
        self.lines, self.folder = lines, folder
        self.at, self.transcript, self.options = 0, [], []
        self.process = self.prompt = None
        self.times = 1
        self.kept, self.wanted = {}, None   # (name, regex): the next answer is kept or compared
        self.trace, self.traced = [], any(line.startswith("#: spur") for line in lines)
        for name in ("daten", "programm"):
            (folder / name).mkdir()
        for name in FILES:
            (folder / "programm" / name).touch()

    def play(self):
        while self.at < len(self.lines):
            line = self.lines[self.at]
            self.at += 1
            if line.startswith("#: spur"):
                continue
            if line.startswith("#") or not line:
                if line.startswith("#: neustart"):
                    self.begin()
                    self.finish()
                self.transcript.append(line)
                if line.startswith("#:"):
                    self.direct(*line[2:].split())
                continue
            self.begin()
            if line.startswith("> ") and line.count(" ") > 1:
                before, told = len(self.transcript), []
                for _ in range(self.times):
                    self.command(line.split(" ", 2)[2])
                    told.append(self.transcript[before:])
                    del self.transcript[before:]
                alike = all(each == told[0] for each in told)
                self.transcript += told[0] if alike else sum(told, [])
                self.times = 1
        self.begin()
        self.finish()
        return self.transcript

    def begin(self):
        if self.process is None:
            self.errors = tempfile.TemporaryFile()
            self.process = start([*self.call, *self.options], stdin=-1, stdout=-1, stderr=self.errors)
            self.read()

    def read(self):
        """All lines up to the next one that says that the program waits, or up to its end."""
        self.prompt = None
        for raw in self.process.stdout:
            line = readable(raw)
            if line.startswith("> "):
                self.prompt = line
                return
            self.transcript.append(self.disguised(line))

    def command(self, text):
        if self.prompt is None:
            raise Failed("the program has ended before this command")
        self.transcript.append(f"{self.prompt} {text}")
        self.process.stdin.write(text.encode("utf-8", "surrogateescape") + b"\n")
        self.process.stdin.flush()
        if text.rstrip("\r") and not text.startswith("#"):
            self.read()
        if self.traced:
            self.trace.append((self.all(SEEN), self.all(BOARD)) if self.prompt else ("", ""))

    def all(self, questions):
        """The answers to many questions, with the questions."""
        self.process.stdin.write("".join(question + "\n" for question in questions).encode())
        self.process.stdin.flush()
        answers = []
        while len(answers) < len(questions):
            line = readable(self.process.stdout.readline())
            if not line:
                raise Failed("the program has ended with a question")
            if not line.startswith("> "):
                answers.append(f"{questions[len(answers)]} {line}\n")
                if line.startswith("? unknown"):
                    raise Failed(answers[-1])
        while not readable(self.process.stdout.readline()).startswith("> "):
            pass
        return "".join(answers)

    def disguised(self, line):
        """Stands a name in for an answer that is different each time."""
        if self.wanted is None or not line.startswith("= "):
            return line
        (name, pattern), self.wanted = self.wanted, None
        if pattern and re.fullmatch(pattern, line[2:]):
            self.kept[name] = line[2:]
        return "= {" + name + "}" if self.kept.get(name) == line[2:] else line

    def finish(self):
        """Ends the input; an open window, the exit status and complaints are lines, too."""
        if self.prompt not in (None, "> -"):
            self.transcript.append(self.prompt)
        self.process.stdin.close()
        self.read()
        status = self.process.wait()
        if status != 0:
            self.transcript.append(f"status {status}")
        self.errors.seek(0)
        self.transcript += ["stderr " + readable(line) for line in self.errors]
        self.process = None

    def direct(self, name, *arguments):
        try:
            getattr(self, "do_" + name)(*arguments)
        except (AttributeError, KeyError, OSError, TypeError, ValueError) as fault:
            raise Failed(f"{name}: {fault!r}") from fault

    def path(self, name):
        if name.split("/")[0] not in ("daten", "programm") or ".." in name:
            raise Failed("a path begins with daten or programm")
        return self.folder / name

    def text(self):
        """The lines of a file that follow here."""
        lines = []
        while self.at < len(self.lines) and self.lines[self.at][:2] in ("#|", "#*"):
            line = self.lines[self.at]
            self.at += 1
            self.transcript.append(line)
            times, _, what = line[2:].partition(" ") if line[1] == "*" else ("1", "", line[2:])
            lines += [what] * int(times)
        return "".join(line + "\r\n" for line in lines).encode("cp1252")

    def do_optionen(self, *options):
        self.options = options

    def do_ohne(self, *names):
        for name in names:
            self.path("programm/" + name).unlink()

    def do_datei(self, name):
        self.path(name).parent.mkdir(parents=True, exist_ok=True)
        self.path(name).write_bytes(self.text())

    def do_roh(self, name, values):
        self.path(name).write_bytes(bytes.fromhex(values))

    def do_ordner(self, name):
        self.path(name).mkdir(parents=True)

    def do_verweis(self, name, target):
        self.path(name).symlink_to(target)

    def do_weg(self, name):
        target = self.path(name)
        (shutil.rmtree if target.is_dir() and not target.is_symlink() else pathlib.Path.unlink)(target)

    def do_pruefe(self, name, *like):
        wanted = self.text()
        if like:
            wanted = "".join(value + "\r\n" for value in self.kept[like[1]]).encode("cp1252")
        try:
            found = self.path(name).read_bytes()
        except OSError as fault:
            found = fault.strerror
        if found != wanted:
            self.transcript.append(f"pruefe {name}: is {found!r}, should be {wanted!r}")

    def do_fehlt(self, name):
        if os.path.lexists(self.path(name)):
            self.transcript.append(f"fehlt {name}: it is there")

    def do_merke(self, name, pattern=".*"):
        self.wanted = (name, pattern)

    def do_gleich(self, name):
        self.wanted = (name, None)

    def do_mal(self, times):
        self.times = int(times)

    def do_neustart(self, *options):
        self.options = options      # The end of the run before it is told above this line.


def sums(traces):
    """For each command of all runs, two short sums of what was seen then."""
    def short(answers):
        return zlib.crc32(answers[0].encode("utf-8", "surrogateescape")) & 0xFF if len(set(answers)) == 1 else None
    return ["".join("--" if value is None else f"{value:02x}" for value in map(short, zip(*runs))) for runs in zip(*traces)]


def wanted_sums(lines):
    return [value for line in lines if line.startswith("#: spur") for value in line.split()[2:]]


def compared(trace, lines):
    """The sums of a run, as blind where the script is blind; prints what was seen where they differ first."""
    wanted = wanted_sums(lines)
    found = ["".join(blind if blind == "--" else seen for blind, seen in ((old[:2], new[:2]), (old[2:], new[2:])))
             for old, new in zip(wanted, sums([trace]))]
    for number, (old, new, seen) in enumerate(zip(wanted, found, trace), 1):
        if old != new:
            print(f"Seen after command {number}, where the sums are {new} instead of {old}:", *seen, sep="\n")
            break
    return found + sums([trace])[len(wanted):]


def in_lines(values):
    return ["#: spur " + " ".join(values[i:i + PER_LINE]) for i in range(0, len(values), PER_LINE)]


def played_once(program, source, lines):
    with tempfile.TemporaryDirectory(prefix="malvone-") as folder:
        play = Play(program, lines, pathlib.Path(folder))
        try:
            return play.play(), play.trace
        except Failed as failure:
            print("\n".join(play.transcript[-20:]))
            raise Failed(f"{source}:{play.at}: {failure}") from failure
        finally:
            end(play.process)


def main():
    arguments = sys.argv[1:]
    writing = "--schreiben" in arguments
    if writing:
        arguments.remove("--schreiben")
    if len(arguments) != 2:
        sys.exit(__doc__)
    program, source = map(pathlib.Path, arguments)
    lines = source.read_bytes().decode("utf-8", "surrogateescape").removesuffix("\n").split("\n")
    if writing:
        runs = [played_once(program, source, lines) for _ in range(RUNS)]
        played = runs[0][0] + in_lines(sums([trace for _, trace in runs]))
        source.write_bytes("".join(line + "\n" for line in played).encode("utf-8", "surrogateescape"))
        return 0
    played, trace = played_once(program, source, lines)
    played += in_lines(compared(trace, lines))
    difference = list(difflib.unified_diff(lines, played, str(source), "played", lineterm=""))
    sys.stdout.buffer.write("\n".join(difference).encode("utf-8", "backslashreplace"))
    return 1 if difference else 0


if __name__ == "__main__":
    script(main, LIMIT_S)
