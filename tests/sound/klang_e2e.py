#!/usr/bin/env python3
"""Plays through real sound servers of every condition and checks what is heard, counted and awaited.

  klang_e2e.py [PROGRAM]      PROGRAM: the player; spieler in MALVONE_BUILD otherwise
"""
import collections
import concurrent.futures
import glob
import os
import subprocess
import sys
import time

import erkennen
import hoeren

SPIELER = sys.argv[1] if sys.argv[1:] else os.path.join(os.environ.get('MALVONE_BUILD', '.'), 'spieler')
DATEIEN = {hoeren.kurz(name): os.path.join(erkennen.ORDNER, name) for name in erkennen.NAMEN}
SPAETER = 120           # ms that a sound may take longer than another one from call to ear
ANLAUF = 900            # ms from the start of the player to its first sound, on a busy machine
SOFORT = 200.0          # ms that a call may take on a busy machine; a held-up one takes far more
ZAEHLEN = 100.0 + SOFORT

Fall = collections.namedtuple('Fall', 'was woerter geraete gehoert server dann optionen frist')
Fall.__new__.__defaults__ = ('null', (), (), 20)

# The words are those of the player: sounds by their short names, pauses in milliseconds.
# What shall be heard: None where nothing can be recorded.
FAELLE = [
    Fall('every wave is played whole, the first before the server has been reached',
         'TADA zaehlen 1500 WHOOSH 700 CHIMES 1500 FRAGE 800 FEHLER 900 BLIP 400 DING 1000', 1,
         'TADA WHOOSH CHIMES FRAGE FEHLER BLIP DING'),
    Fall('a new sound takes the place of the old one',
         'zaehlen 100 CHIMES 250 TADA 250 WHOOSH 170 WHOOSH 170 FRAGE 170 DING 200 FEHLER 900', 1,
         'CHIMES TADA WHOOSH WHOOSH FRAGE DING FEHLER'),
    Fall('of many sounds at once the last one sounds',
         'zaehlen 100 TADA CHIMES FRAGE TADA DING FEHLER BLIP CHIMES 1500', 1, 'CHIMES'),
    Fall('what is no wave changes nothing',
         'zaehlen 100 CHIMES 200 leer /nirgends/TADA.WAV %s /tmp 1200' % __file__, 1, 'CHIMES'),
    Fall('leaving does not wait for the last sound', 'zaehlen 100 BLIP 300 TADA', 1, None),
    Fall('leaving at once, before the library is loaded', 'TADA', None, None),
    Fall('no server', 'TADA zaehlen 900 zaehlen CHIMES 300 TADA', 0, None, 'none'),
    Fall('a server without a sink', 'TADA zaehlen 900 zaehlen CHIMES 300 TADA', 0, None, 'nosink'),
    Fall('a desktop without hardware', 'TADA zaehlen 900 zaehlen CHIMES 300 TADA', 0, None, 'always'),
    Fall('no library', 'TADA zaehlen 900 zaehlen CHIMES 300 TADA', 0, '', 'null', (),
         ('--bibliothek', 'libgibtesnicht.so.0')),
    Fall('a server that never answers', 'TADA zaehlen CHIMES 900 zaehlen TADA 100 DING', 0, None,
         'hung'),
    Fall('a server that is away for a while: what was due then does not come later',
         'zaehlen 300 BLIP 1000 TADA 400 FRAGE 150 DING 150 FEHLER 1600 CHIMES 1400', 1, 'BLIP CHIMES',
         'null', ((0.8, 'anhalten'), (2.9, 'weiter'))),
    Fall('back at once after a restart of the server',
         'zaehlen 300 BLIP 3500 CHIMES 1400', 1, 'BLIP CHIMES', 'null', ((1.0, 'neustart'),)),
    Fall('a server that comes later', '200 zaehlen BLIP 3000 CHIMES 1400', 0, 'CHIMES', 'none',
         ((0.8, 'starten'),)),
]


def gemessen(ausgabe):
    """The player's report: what it measured last under each name, and the longest time."""
    werte, alle = {}, collections.defaultdict(float)
    for zeile in ausgabe.splitlines():
        name, wert = zeile.split()[:2]
        werte[name] = float(wert)
        alle[name] = max(alle[name], float(wert))
    return werte, alle


def pausen(woerter):
    """When the player was asked for each sound that has to be heard, in ms after the first."""
    jetzt, liste = 0, []
    for wort in woerter.split():
        if wort.isdigit():
            jetzt += int(wort)
        elif wort in DATEIEN:
            liste.append((jetzt, wort))
    return liste


def zu_spaet(fall, klaenge):
    """Sounds that came late after their call, compared with the promptest of them."""
    gerufen, wege = pausen(fall.woerter), []
    for klang in klaenge:
        while gerufen[0][1] != klang.name:
            gerufen.pop(0)      # replaced or dropped before it could sound
        wann, _ = gerufen.pop(0)
        wege.append((klang.ms - wann, klang.name))
    promptester = min(wege)[0]
    liste = ['%s came %d ms after its call, others after %d ms' % (name, weg, promptester)
             for weg, name in wege[1:] if weg > promptester + SPAETER]
    if wege[0][0] > ANLAUF:
        liste.append('%s came only %d ms after the start' % (wege[0][1], wege[0][0]))
    return liste


def ausfuehren(fall):
    woerter = [DATEIEN.get(wort, wort) for wort in fall.woerter.split()]
    ergebnis = hoeren.hoeren([SPIELER, *fall.optionen, *woerter], fall.server, fall.frist, fall.dann)
    erwartet = None if fall.gehoert is None else fall.gehoert.split()
    liste = hoeren.maengel(ergebnis, erwartet, stille_stderr=True)
    if liste:
        return ergebnis, liste
    if erwartet:
        liste += zu_spaet(fall, ergebnis.klaenge)
    werte, laengste = gemessen(ergebnis.ausgabe)
    if fall.geraete is not None and werte['Geraete'] != fall.geraete:
        liste.append('counted %d devices, not %d' % (werte['Geraete'], fall.geraete))
    for name, grenze in (('Vorbereiten', SOFORT), ('Zaehlen', ZAEHLEN), ('Spielen', SOFORT),
                         ('Beenden', SOFORT)):
        if laengste[name] > grenze:
            liste.append('%s took %.1f ms' % (name, laengste[name]))
    return ergebnis, liste


def wecker(pid):
    """How often the threads of a process have gone to sleep and come back."""
    summe = 0
    for datei in glob.glob('/proc/%d/task/*/status' % pid):
        with open(datei) as zeilen:
            summe += sum(int(z.split()[1]) for z in zeilen if 'ctxt_switches' in z)
    return summe


def ruhe(server):
    """Idle, connected or not, no thread wakes up."""
    gezaehlt = []
    hoeren.hoeren([SPIELER, 'zaehlen', '200', DATEIEN['BLIP'], '4500'], server,
                  dann=[(s, lambda prozess: gezaehlt.append(wecker(prozess.pid))) for s in (1.5, 4.0)])
    return [] if gezaehlt[0] and gezaehlt[0] == gezaehlt[1] else \
        ['woke up %d times in 2.5 s of silence' % (gezaehlt[1] - gezaehlt[0])]


# What must hold before anything heard means something.
SKRIPTE = {
    'the waves are what their script makes, equally loud and without clicks':
        [os.path.join(erkennen.ORDNER, 'klingen.py'), '--pruefen'],
    'the recogniser knows whole, soft and cut waves, and strangers': [erkennen.__file__, '--probe'],
}


def pruefen(fall):
    """A case, the name of a script, or of a server in whose presence the idle player is watched."""
    beginn = time.monotonic()
    if fall in SKRIPTE:
        lauf = subprocess.run([sys.executable, '-B', *SKRIPTE[fall]], capture_output=True, text=True)
        was, liste = fall, (lauf.stdout + lauf.stderr).splitlines() if lauf.returncode else []
    elif isinstance(fall, str):
        was, liste = 'no waking in silence, server: ' + fall, ruhe(fall)
    else:
        was, (ergebnis, liste) = fall.was, ausfuehren(fall)
        if liste:
            liste += ergebnis.ausgabe.splitlines()
            liste += ['heard %s at %d ms for %d ms' % (k.name, k.ms, k.dauer) for k in ergebnis.klaenge]
    return was, liste, time.monotonic() - beginn


def main():
    fehler = 0
    # Most of the time the cases wait, so that some of them can do so together.
    with concurrent.futures.ProcessPoolExecutor(3) as helfer:
        for was, liste, dauer in helfer.map(pruefen, [*SKRIPTE, *FAELLE, 'null', 'none', 'hung']):
            fehler += bool(liste)
            print('%-6s %5.1f s  %s' % ('FAILED' if liste else 'ok', dauer, was), flush=True)
            for zeile in liste:
                print('       ' + zeile)
    return 1 if fehler else 0


if __name__ == '__main__':
    sys.exit(main())
