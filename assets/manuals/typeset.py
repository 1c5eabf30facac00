#!/usr/bin/env python3
"""Makes the three PDF manuals of the game from the HTML sources beside this script.

    typeset.py --pictures DIR --out DIR

DIR of --pictures holds the game's own SVG pictures; a source names them as "pictures/NAME.svg".
They are drawn as fine pixels by rsvg-convert, because PDF viewers differ in how they draw shaded
shapes: many show torn rims and lines where there are none. The screenshots lie in "screenshots"
beside this script.

The same input gives the same bytes wherever and whenever it is built; a date is written only where
SOURCE_DATE_EPOCH sets one. Whatever WeasyPrint warns about stops the build, so that no manual is
shipped with a hole in it.
"""

import argparse
import datetime
import html
import logging
import os
import re
import shutil
import subprocess
import sys
from pathlib import Path
from urllib.parse import unquote, urlparse

SOURCES = Path(__file__).resolve().parent
# Pictures are named in the PDF after their address, so the addresses are no paths of this machine.
ADDRESS = Path("/manual")
MANUALS = ("Malvone", "Meldefenster", "Bestespieler")
FONT = "Liberation-Sans"
PICTURE_ZOOM = 6  # A stone of 32 pixels printed 7.6 mm wide gets 640 dots per inch.


def fail(text):
    sys.exit(f"typeset.py: {text}")


def import_weasyprint():
    """Imports WeasyPrint, if need be with the interpreter that its own command uses."""
    try:
        import weasyprint
        return weasyprint
    except ImportError as error:
        reason = str(error)
    command = shutil.which("weasyprint")
    if command and "MANUALS_RESTARTED" not in os.environ:
        first_line = Path(command).read_bytes().split(b"\n", 1)[0].decode(errors="replace")
        interpreter = first_line[2:].strip() if first_line.startswith("#!") else ""
        if interpreter and " " not in interpreter and os.access(interpreter, os.X_OK):
            os.environ["MANUALS_RESTARTED"] = "1"
            os.execv(interpreter, [interpreter, *sys.argv])
    fail("WeasyPrint is needed to make the manuals and was not found "
         f"({reason}); install the package weasyprint")


class Complaints(logging.Handler):
    """Collects what WeasyPrint warns about."""

    def __init__(self):
        super().__init__(logging.WARNING)
        self.texts = []

    def emit(self, record):
        self.texts.append(record.getMessage())


BOARD_CELL = re.compile(r"[.#]|[1-4][ln]?")
CELL_PICTURES = {"": "stone-{}", "l": "stone-{}-laughing", "n": "stone-{}-neutral"}


def board(match):
    """Turns <board alt="..." size="...">rows</board> into a drawn section of the board.

    A cell is "." (empty) or a colour 1 to 4, followed by l (laughing) or n (neutral).
    """
    attributes = dict(re.findall(r'(\w+)="([^"]*)"', match[1]))
    rows = [line.split() for line in match[2].strip().splitlines()]
    if len({len(row) for row in rows}) != 1:
        fail(f"the rows of a board are not equally long: {match[2].strip()!r}")
    size = float(attributes.get("size", "7"))
    cells = []
    for top, row in enumerate(rows):
        for left, cell in enumerate(row):
            if not BOARD_CELL.fullmatch(cell):
                fail(f"a board holds the unknown cell {cell!r}")
            name = "tile" if cell == "." else CELL_PICTURES[cell[1:]].format(cell[0])
            cells.append(f'<img src="pictures/{name}.svg" alt="" style="left:{left * size:g}mm;'
                         f'top:{top * size:g}mm;width:{size:g}mm;height:{size:g}mm">')
    label = html.escape(attributes["alt"], quote=True)
    return (f'<span class="board" role="img" aria-label="{label}" '
            f'style="width:{len(rows[0]) * size:g}mm;height:{len(rows) * size:g}mm">'
            + "".join(cells) + "</span>")


def read_source(name, created):
    text = (SOURCES / f"{name}.html").read_text(encoding="utf-8")
    text = re.sub(r"<board\b([^>]*)>(.*?)</board>", board, text, flags=re.DOTALL)
    if created:
        text = text.replace("</title>",
                            f'</title>\n<meta name="dcterms.created" content="{created}">', 1)
    return text


def creation_date():
    epoch = os.environ.get("SOURCE_DATE_EPOCH")
    if not epoch:
        return None
    try:
        moment = datetime.datetime.fromtimestamp(int(epoch), datetime.timezone.utc)
    except (ValueError, OverflowError, OSError):
        fail(f"SOURCE_DATE_EPOCH is no point in time: {epoch!r}")
    return moment.strftime("%Y-%m-%dT%H:%M:%SZ")


def drawn(picture):
    """The PNG bytes of an SVG picture."""
    if not picture.is_file():
        raise ValueError(f"there is no picture {picture}")
    run = subprocess.run(["rsvg-convert", "--zoom", str(PICTURE_ZOOM), picture],
                         capture_output=True, check=False)
    if run.returncode != 0 or run.stderr:
        raise ValueError(run.stderr.decode(errors="replace").strip() or "rsvg-convert failed")
    return run.stdout


def fetcher(pictures):
    """Reads local files only, and the game's pictures where a source says pictures/."""

    def fetch(url, *_unused_limits, **_unused_options):
        path = Path(unquote(urlparse(url).path))
        if urlparse(url).scheme != "file":
            raise ValueError("only local files may be used")
        if path.parent == ADDRESS / "pictures":
            return {"string": drawn(pictures / path.name), "mime_type": "image/png"}
        mime = {".png": "image/png", ".css": "text/css"}[path.suffix]
        return {"string": (SOURCES / path.relative_to(ADDRESS)).read_bytes(), "mime_type": mime}

    return fetch


def finish(_document, pdf):
    """Lets a viewer show the title in its frame, packs the streams, makes sure of the fonts."""
    import pydyf
    pdf.catalog["ViewerPreferences"] = pydyf.Dictionary({"DisplayDocTitle": "true"})
    for thing in pdf.objects:
        if isinstance(thing, pydyf.Stream) and "Filter" not in thing.extra:
            thing.compress = True
        if isinstance(thing, pydyf.Dictionary) and thing.get("Type") == "/FontDescriptor":
            name = thing["FontName"]
            name = name.decode() if isinstance(name, bytes) else name
            if FONT not in name:
                fail(f"the font {name} was used in place of {FONT}; "
                     "install the package fonts-liberation2")


def make(weasyprint, name, created, pictures, out, complaints):
    complaints.texts.clear()
    document = weasyprint.HTML(string=read_source(name, created),
                               base_url=(ADDRESS / f"{name}.html").as_uri(),
                               url_fetcher=fetcher(pictures)).render()
    data = document.write_pdf(finisher=finish)
    if complaints.texts:
        fail(f"{name}.html:\n  " + "\n  ".join(complaints.texts))
    (out / f"{name}.pdf").write_bytes(data)


def main():
    parser = argparse.ArgumentParser(description="Makes the PDF manuals of the game.")
    parser.add_argument("--pictures", type=Path, required=True,
                        help="folder of the game's SVG pictures")
    parser.add_argument("--out", type=Path, required=True, help="folder for the PDF files")
    arguments = parser.parse_args()
    pictures = arguments.pictures.resolve()
    if not pictures.is_dir():
        fail(f"there is no picture folder {pictures}")
    weasyprint = import_weasyprint()
    if not shutil.which("rsvg-convert"):
        fail("rsvg-convert is needed to draw the pictures and was not found; "
             "install the package librsvg2-bin")
    complaints = Complaints()
    logging.getLogger("weasyprint").handlers = [complaints]
    arguments.out.mkdir(parents=True, exist_ok=True)
    created = creation_date()
    # The fonts get a date in any case: where none is set, one that does not pass.
    os.environ.setdefault("SOURCE_DATE_EPOCH", "0")
    for name in MANUALS:
        make(weasyprint, name, created, pictures, arguments.out, complaints)


if __name__ == "__main__":
    main()
