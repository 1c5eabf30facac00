#!/usr/bin/env python3
"""Serves the files of a folder to this machine alone, until Ctrl+C.

    serve.py FOLDER [PORT]

The address is printed, and opened where there is a desktop. A browser keeps the best list for one
address, so the port stays the same from start to start; port 0 takes any that is free.
"""
import functools
import gzip
import http.server
import os
import pathlib
import re
import shutil
import subprocess
import sys
import urllib.parse
import zlib

PORT = 8713
COMPRESSED = {".html", ".css", ".js", ".wasm", ".svg", ".webmanifest"}
compress = functools.lru_cache(functools.partial(gzip.compress, compresslevel=6))


class Handler(http.server.SimpleHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    # An answer leaves in one piece: in two, the second would wait until the first is acknowledged.
    wbufsize = -1
    extensions_map = {**http.server.SimpleHTTPRequestHandler.extensions_map,
                      ".wasm": "application/wasm", ".webmanifest": "application/manifest+json"}

    def handle_one_request(self):
        try:
            super().handle_one_request()
        except ConnectionError:  # the browser has changed its mind
            self.close_connection = True

    def do_GET(self):
        self.answer(self.wfile.write)

    def do_HEAD(self):
        self.answer(lambda body: None)

    def answer(self, write):
        try:
            if re.search(r"%(?![0-9A-Fa-f]{2})", self.path):
                raise ValueError
            urllib.parse.unquote(self.path, errors="strict")
            path = pathlib.Path(self.translate_path(self.path))
            path = path / "index.html" if path.is_dir() else path
            body = path.read_bytes()
        except ValueError:  # no file can have such a name
            self.send_error(400)
            return
        except OSError:
            self.send_error(404)
            return
        tag = f'"{zlib.crc32(body):08x}"'
        known = self.headers.get("If-None-Match", "").endswith(tag)
        self.send_response(304 if known else 200)
        self.send_header("ETag", tag)
        # What is asked for under the mark of its build never changes.
        marked = "?" in self.path and path.suffix in (".css", ".js", ".wasm")
        self.send_header("Cache-Control", "max-age=31536000, immutable" if marked else "no-cache")
        self.send_header("Vary", "Accept-Encoding")
        if not known:
            if path.suffix in COMPRESSED and "gzip" in self.headers.get("Accept-Encoding", ""):
                body = compress(body)
                self.send_header("Content-Encoding", "gzip")
            self.send_header("Content-Type", self.guess_type(str(path)))
            self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        if not known:
            write(body)

    def log_message(self, *_):
        pass


def main():
    folder = sys.argv[1]
    port = int(sys.argv[2]) if len(sys.argv) > 2 else PORT
    try:
        server = http.server.ThreadingHTTPServer(("127.0.0.1", port),
                                                 functools.partial(Handler, directory=folder))
    except OSError as fault:
        sys.exit(f"Port {port} cannot be used: {fault.strerror}. Is the game running already?")
    address = f"http://127.0.0.1:{server.server_port}/"
    print(f"The game is at {address}    Ctrl+C ends it.", flush=True)
    desktop = os.environ.get("DISPLAY") or os.environ.get("WAYLAND_DISPLAY")
    if port and desktop and shutil.which("xdg-open"):
        # What it opens may be the player's only browser: Ctrl+C must not reach that.
        subprocess.Popen(["xdg-open", address], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                         stderr=subprocess.DEVNULL, start_new_session=True)
    try:
        server.serve_forever()
    except KeyboardInterrupt:
        print()


if __name__ == "__main__":
    main()
