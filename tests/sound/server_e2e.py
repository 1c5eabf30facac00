#!/usr/bin/env python3
"""Plays through real sound servers of every condition and checks what is heard and counted, and that
no call is held up."""
import os
import subprocess
import sys
import tempfile
import time

import listening
from listening import FILES, Server
from processes import Failed, end, expect, script, sleeps, start, until

PLAYER = os.path.join(os.environ.get("MALVONE_BUILD", "build/release"), "sound_player")
HELD_UP_MS = 1000   # A call returns at once, or within 0.1 s. One that waits for a sound takes longer.
GIVEN_UP_S = 0.5    # By then a server that does not answer has been given up.


class Player:
    """The game's sound without the game. A name plays a sound, everything else is a path."""

    def __init__(self, server, *library):
        self.errors = tempfile.TemporaryFile("w+")
        self.process = start([PLAYER, *library], env=server.env, stdin=subprocess.PIPE, text=True,
                             stdout=subprocess.PIPE, stderr=self.errors)
        self.answer("the beginning")

    def __enter__(self):
        return self

    def __exit__(self, kind, *error):
        try:
            if kind is None:
                self.leave()
        finally:
            end(self.process)

    def answer(self, what):
        ms, *devices = self.process.stdout.readline().split() or ["inf"]
        expect(float(ms) < HELD_UP_MS, f"{what} was held up for {ms} ms")
        return [int(number) for number in devices]

    def plays(self, *names):
        self.process.stdin.writelines(FILES.get(name, name) + "\n" for name in names)
        self.process.stdin.flush()
        return [self.answer(name) for name in names]

    def devices(self):
        return self.plays("count")[0][0]

    def leave(self):
        self.process.stdin.close()
        self.answer("the end")
        expect(self.process.wait(30) == 0, f"exit status {self.process.poll()}")
        self.errors.seek(0)
        text = self.errors.read()
        expect(text == "", "on standard error: " + text)


def the_waves_are_what_their_script_makes():
    run = subprocess.run([sys.executable, "-B", os.path.join(listening.WAVES, "sound.py"),
                          "--check"], capture_output=True, text=True, timeout=60)
    expect(run.returncode == 0, run.stdout + run.stderr)


def every_wave_is_played_whole():
    """The first one is asked for before the server has been reached."""
    names = ["TADA", "WHOOSH", "CHIMES", "FRAGE", "FEHLER", "BLIP", "DING"]
    with Server() as server, Player(server) as player:
        for number, name in enumerate(names):
            player.plays(name)
            server.hears(*names[:number + 1])
        expect(player.devices() == 1, "one device")


def a_new_sound_takes_the_place_of_the_old_one():
    names = ["CHIMES", "TADA", "WHOOSH", "WHOOSH", "FRAGE", "DING", "FEHLER"]
    with Server() as server, Player(server) as player:
        for number, name in enumerate(names):
            player.plays(name)
            server.hears(*names[:number + 1], whole=False)
        server.hears(*names)
        expect(not all(whole for _, whole in server.heard()), "the old one cut")


def of_many_sounds_at_once_the_last_one_sounds():
    with Server() as server, Player(server) as player:
        player.plays("BLIP")
        server.hears("BLIP")
        player.plays("TADA", "CHIMES", "FRAGE", "TADA", "DING", "FEHLER", "BLIP", "CHIMES")
        until(lambda: server.heard()[-1] == ("CHIMES", True), "the last one")
        expect(not any(whole for _, whole in server.heard()[1:-1]), "the others cut")


def leaving_waits_for_nothing():
    with Server() as server:
        with Player(server) as player:
            player.plays("TADA")
        with Player(server) as player:
            player.plays("BLIP")
            until(lambda: ("BLIP", True) in server.heard(), "a sound")
            player.plays("TADA")


def where_nothing_sounds_nobody_waits():
    for kind in ("none", "nosink", "always", "hung"):
        with Server(kind) as server, Player(server) as player:
            player.plays("TADA")
            until(lambda: player.devices() == 0, f"to find no device with the server: {kind}")
            time.sleep(GIVEN_UP_S)
            player.plays("CHIMES", "TADA")


def without_the_library_nothing_sounds():
    with Server() as server:
        for library in ("libnosuchthing.so.0", "libm.so.6"):    # the other one has other functions
            with Player(server, library) as player:
                player.plays("TADA")
                expect(player.devices() == 0, "no device")
        # DING alone: nothing has sounded before it.
        with Player(server) as player:
            player.plays("DING")
            server.hears("DING")


def what_was_due_while_the_server_was_away_does_not_come_later():
    with Server() as server, Player(server) as player:
        player.plays("BLIP")
        server.hears("BLIP")
        server.freeze()
        player.plays("TADA")
        time.sleep(GIVEN_UP_S)
        player.plays("FRAGE", "DING", "FEHLER")
        time.sleep(GIVEN_UP_S)
        server.thaw()
        player.plays("CHIMES")
        server.hears("BLIP", "CHIMES")


def a_server_that_comes_late_or_again_is_found_at_once():
    with Server("none") as server, Player(server) as player:
        expect(player.devices() == 0, "no device")
        player.plays("BLIP")
        server.start()
        player.plays("CHIMES")
        server.hears("CHIMES")
        server.stop()
        server.start()
        player.plays("DING")
        server.hears("CHIMES", "DING")


def nothing_wakes_up_in_silence():
    for kind in ("null", "none", "hung"):
        with Server(kind) as server, Player(server) as player:
            player.plays("BLIP")
            if kind == "null":
                server.hears("BLIP")
            until(lambda: sleeps(player.process), f"sleep, with the server: {kind}")


CASES = (the_waves_are_what_their_script_makes, every_wave_is_played_whole,
         a_new_sound_takes_the_place_of_the_old_one, of_many_sounds_at_once_the_last_one_sounds,
         leaving_waits_for_nothing, where_nothing_sounds_nobody_waits,
         without_the_library_nothing_sounds,
         what_was_due_while_the_server_was_away_does_not_come_later,
         a_server_that_comes_late_or_again_is_found_at_once, nothing_wakes_up_in_silence)


def main():
    failed = 0
    for case in CASES:
        begin = time.monotonic()
        try:
            case()
            told = "ok"
        except Failed as failure:
            failed, told = 1, f"FAILED: {failure}"
        print(f"{time.monotonic() - begin:5.1f} s  {case.__name__}: {told}", flush=True)
    return failed


if __name__ == "__main__":
    script(main)
