#!/usr/bin/env python3
"""Plays a script with the program `drehbuch`, or with a build of it for Node, and compares.

    play.py [--write] PROGRAM NAME.drehbuch      PROGRAM: drehbuch, or drehbuch.js

A script is its own transcript. After `> WINDOW`, which says who waits, comes the command that is
given there; the other lines are what it has changed, as the option --changes reports it. A
difference ends with status 1. --write writes what is reported today into the script, which is worth
nothing until somebody has read it; for a new command any window will do.

Each script is played in fresh folders: `daten` stands for the root of the drive and `programm` for
the program's folder, with seven empty sounds and three manuals. The clock stands still, so each
board is the same in every run. `! usual start` stands for the lines of the first start in
start.drehbuch; where a start differs from it, the lines that it lacks or adds follow.

Lines that begin with `#:` are for the player, each in its place: before the program starts, or
while it waits.

    #: plain                      without --changes, as any other program would drive it
    #: spoken                     with --spoken instead: what a screen reader says
    #: options --klanggeraete 0   further options of the program
    #: restart [OPTIONS]          ends the program by the end of its input and starts it again
    #: times 4                    the next command is given four times; what is told each time is
                                  told once
    #: without TADA.WAV           removes files of the program's folder
    #: file daten/x.ini           a file of the `#|` lines that follow, in Windows-1252 with CR LF;
                                  folders above it are made; without lines it is empty
    #: bytes daten/x.ini 610d     a file of these bytes
    #: folder daten/x.ini         an empty folder
    #: link daten/x nowhere       a symbolic link
    #: remove daten/x             a file, or a whole folder
    #: look daten/x.ini           the lines of the file follow

    #|text                        a line of a file
    #*139 text                    139 such lines
    #+1234                        a line for each of these characters
"""
import difflib
import itertools
import os
import pathlib
import shutil
import sys
import tempfile

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir, "support"))
from processes import Failed, end, script, start

FILES = ("TADA.WAV", "WHOOSH.WAV", "CHIMES.WAV", "FRAGE.WAV", "FEHLER.WAV", "BLIP.WAV", "ding.wav",
         "Malvone.pdf", "Meldefenster.pdf", "Bestespieler.pdf")
USUAL_START = "start.drehbuch"
LIMIT_S = 100


def readable(raw):
    """A line as it stands in the script: bytes that are no UTF-8 and a CR are spelled out."""
    return raw.decode("utf-8", "backslashreplace").removesuffix("\n").replace("\r", "\\x0d")


def file_from(lines):
    """The bytes of a file from its lines in a script."""
    plain = []
    for line in lines:
        times, _, text = line[2:].partition(" ") if line[1] == "*" else ("1", "", line[2:])
        plain += list(text) if line[1] == "+" else [text] * int(times)
    return "".join(line + "\r\n" for line in plain).encode("cp1252")


def lines_from(path):
    """A file as it stands in a script."""
    if not path.is_file():
        return ["#(a folder)" if path.is_dir() else "#(a link)" if path.is_symlink() else "#(none)"]
    text = path.read_bytes().decode("cp1252", "backslashreplace")
    lines = text.split("\r\n")
    if lines.pop():
        return ["#(no end)" + repr(text)]
    if len(lines) > 9 and all(len(line) == 1 for line in lines):
        return ["#+" + "".join(lines)]
    runs = [(line, len(list(run))) for line, run in itertools.groupby(lines)]
    return [f"#*{times} {line}" if times > 1 else f"#|{line}" for line, times in runs]


class Play:
    def __init__(self, program, lines, usual, folder):
        self.call = (["node"] if program.suffix == ".js" else []) + [
            program.resolve(), "--daten", folder / "daten", "--programm", folder / "programm"]
        self.lines, self.usual, self.folder = lines, usual, folder
        self.at, self.transcript, self.times = 0, [], 1
        self.options, self.changes = [], ["--changes", "--clock", "1"]
        self.process = self.prompt = None
        for name in ("daten", "programm"):
            (folder / name).mkdir()
        for name in FILES:
            (folder / "programm" / name).touch()

    def play(self):
        while self.at < len(self.lines):
            line = self.lines[self.at]
            self.at += 1
            if line.startswith("#: restart"):
                self.begin()
                self.finish()
            if line.startswith("#") or not line:
                self.transcript.append(line)
                if line.startswith("#:"):
                    self.direct(*line[2:].split())
            elif line.startswith("> ") and line.count(" ") > 1:
                self.begin()
                self.commands(line.split(" ", 2)[2])
        self.begin()
        self.finish()
        return self.transcript

    def begin(self):
        if self.process is None:
            self.errors = tempfile.TemporaryFile()
            self.process = start([*self.call, *self.changes, *self.options], stdin=-1, stdout=-1, stderr=self.errors)
            told = self.read()
            self.transcript += self.shortened(told)
            self.usual = self.usual or told

    def shortened(self, told):
        """The same with `! usual start` for the lines that every start tells."""
        if self.usual is None or 2 * sum(line in told for line in self.usual) < len(self.usual):
            return told
        return ["! usual start", *(line for line in difflib.ndiff(self.usual, told) if line[:2] in ("- ", "+ "))]

    def read(self):
        """All lines up to the next one that says who waits, or up to the program's end."""
        self.prompt, told = None, []
        for raw in self.process.stdout:
            line = readable(raw)
            if line.startswith("> "):
                self.prompt = line
                break
            told.append(line)
        return told

    def commands(self, text):
        asked, told = None, []
        for _ in range(self.times):
            if self.prompt is None:
                raise Failed("the program has ended before this command")
            asked = asked or f"{self.prompt} {text}"
            self.process.stdin.write(text.encode("utf-8", "surrogateescape") + b"\n")
            self.process.stdin.flush()
            told.append(self.shortened(self.read()) if text.rstrip("\r") and not text.startswith("#") else [])
        always = [line for line in told[0] if all(line in each for each in told)]
        self.transcript += [asked, *always, *(line for each in told for line in each if line not in always)]
        self.times = 1

    def finish(self):
        """Ends the input; an open window, the exit status and complaints are lines, too."""
        if self.prompt not in (None, "> -"):
            self.transcript.append(self.prompt)
        self.process.stdin.close()
        self.transcript += self.read()
        status = self.process.wait()
        self.transcript += [f"status {status}"] if status else []
        self.errors.seek(0)
        self.transcript += ["stderr " + readable(line) for line in self.errors]
        self.process = None

    def direct(self, name, *rest):
        try:
            self.obey(name, rest, self.path(rest[0]) if rest and "/" in rest[0] else None)
        except (AttributeError, IndexError, OSError, ValueError) as fault:
            raise Failed(f"{name}: {fault!r}") from fault

    def path(self, name):
        if name.split("/")[0] not in ("daten", "programm") or ".." in name:
            raise Failed("a path begins with daten or programm")
        return self.folder / name

    def file_lines(self):
        first = self.at
        while self.at < len(self.lines) and self.lines[self.at][:2] in ("#|", "#*", "#+", "#("):
            self.at += 1
        return self.lines[first:self.at]

    def obey(self, name, rest, path):
        if name in ("plain", "spoken"):
            self.changes = ["--clock", "1", "--spoken"][:2 if name == "plain" else 3]
        elif name in ("options", "restart"):
            self.options = rest
        elif name == "times":
            self.times = int(rest[0])
        elif name == "without":
            for file in rest:
                self.path("programm/" + file).unlink()
        elif name == "file":
            lines = self.file_lines()
            self.transcript += lines
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(file_from(lines))
        elif name == "bytes":
            path.write_bytes(bytes.fromhex(rest[1]))
        elif name == "folder":
            path.mkdir(parents=True)
        elif name == "link":
            path.symlink_to(rest[1])
        elif name == "remove":
            (shutil.rmtree if path.is_dir() and not path.is_symlink() else pathlib.Path.unlink)(path)
        elif name == "look":
            self.file_lines()
            self.transcript += lines_from(path)
        else:
            raise ValueError("no such directive")


def difference(source, wanted, played):
    """What differs, with the lines around it and marks below what differs within a line."""
    for group in difflib.SequenceMatcher(None, wanted, played, autojunk=False).get_grouped_opcodes(3):
        yield f"{source}:{group[0][1] + 1}:   - in the script   + now"
        for kind, i1, i2, j1, j2 in group:
            for old, new in itertools.zip_longest(wanted[i1:i2], played[j1:j2]):
                if kind == "equal":
                    yield "  " + old
                    continue
                yield from (mark + line for mark, line in (("- ", old), ("+ ", new)) if line is not None)
                if old and new and old.split()[:2] == new.split()[:2]:
                    yield "  " + "".join(" " if a == b else "^" for a, b in itertools.zip_longest(old, new))


def lines_of(source):
    return source.read_bytes().decode("utf-8", "surrogateescape").removesuffix("\n").split("\n")


def main():
    arguments = [argument for argument in sys.argv[1:] if argument != "--write"]
    if len(arguments) != 2:
        sys.exit(__doc__)
    program, source = map(pathlib.Path, arguments)
    lines = lines_of(source)
    before = itertools.takewhile(lambda line: not line.startswith("> "), lines_of(source.parent / USUAL_START))
    usual = None if source.name == USUAL_START else [line for line in before if not line.startswith("#")]
    with tempfile.TemporaryDirectory(prefix="malvone-") as folder:
        play = Play(program, lines, usual, pathlib.Path(folder))
        try:
            played = play.play()
        except Failed as failure:
            print("\n".join(play.transcript[-20:]))
            raise Failed(f"{source}:{play.at}: {failure}") from failure
        finally:
            end(play.process)
    if "--write" in sys.argv:
        source.write_bytes("".join(line + "\n" for line in played).encode("utf-8", "surrogateescape"))
        return 0
    text = "\n".join(difference(source, lines, played))
    sys.stdout.buffer.write(text.encode("utf-8", "backslashreplace"))
    return 1 if played != lines else 0


if __name__ == "__main__":
    script(main, LIMIT_S)
