#!/usr/bin/env python3
"""Serves the files of a folder to this machine alone, until Ctrl+C.

    ausliefern.py FOLDER [PORT]

The address is printed, and opened where there is a desktop. A browser keeps the best list for one
address, so the port stays the same from start to start; port 0 takes any that is free.
"""
import functools
import http.server
import os
import shutil
import subprocess
import sys

PORT = 8713


class Handler(http.server.SimpleHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    # An answer leaves in one piece: in two, the second would wait for the word that the first came.
    wbufsize = -1
    extensions_map = {**http.server.SimpleHTTPRequestHandler.extensions_map,
                      ".wasm": "application/wasm", ".webmanifest": "application/manifest+json"}

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
