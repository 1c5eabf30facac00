#!/usr/bin/env python3
"""Runs a command beside a sound server of its own and tells which of the game's sounds were heard.

  hoeren.py [options] COMMAND [ARG ...]

  --server null|nosink|always|none|hung
        null    one sink (default)              nosink  a server without any sink
        always  a desktop without hardware      none    no server at all
        hung    accepts connections and never answers
  --erwartet A,B,...   sounds that must be heard, in this order and no others (TADA,ding); "" for none
  --stille-stderr      the command must write nothing to standard error
  --frist S            seconds that the command may take (30)
  --dann S:WHAT        S seconds after the start: anhalten, weiter, neustart or starten the server
  --daten FOLDER       XDG_DATA_HOME of the command, which stays (otherwise a passing one)

Exit 0 only if the command returned 0 in time and everything was as wanted. The command gets a HOME
and a runtime folder of its own, so no data of the player is touched and no real device sounds.
Needs pulseaudio and pulseaudio-utils.
"""
import argparse
import collections
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time

import erkennen

Ergebnis = collections.namedtuple('Ergebnis', 'exit ms ausgabe stderr klaenge')
Klang = collections.namedtuple('Klang', 'ms name dauer')      # ms counts from the command's start


class Server:
    """A PulseAudio of its own, and a recorder at its monitor."""
    MODULE = {
        # Without norewinds an idle null sink renders silence ahead, which swallows what comes first.
        'null': ['-L', 'module-null-sink sink_name=probe norewinds=1'],
        'always': ['-L', 'module-always-sink'],
        'nosink': [],
    }

    def __init__(self, art, env):
        self.art, self.env = art, env
        self.server = self.rekorder = self.leser = None
        self.teile = []         # of the recording: (time of arrival, bytes)
        self.aufnahmen = [self.teile]

    def starten(self):
        self.server = subprocess.Popen(
            ['pulseaudio', '--daemonize=no', '--exit-idle-time=-1', '-n']
            + self.MODULE.get(self.art, self.MODULE['null']) + ['-L', 'module-native-protocol-unix'],
            env=self.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        ende = time.monotonic() + 10
        while subprocess.run(['pactl', 'info'], env=self.env, stdout=subprocess.DEVNULL,
                             stderr=subprocess.DEVNULL).returncode != 0:
            if self.server.poll() is not None or time.monotonic() > ende:
                raise RuntimeError('pulseaudio does not start')
            time.sleep(0.03)
        if self.art not in ('nosink', 'hung'):
            self._aufnehmen()

    def _aufnehmen(self):
        self.rekorder = subprocess.Popen(
            ['parec', '-d', '@DEFAULT_MONITOR@', '--raw', '--format=s16le', '--channels=1',
             '--rate=%d' % erkennen.RATE, '--latency-msec=10'],
            env=self.env, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.teile = []
        self.aufnahmen.append(self.teile)
        self.leser = threading.Thread(target=self._lesen, args=(self.rekorder.stdout, self.teile),
                                      daemon=True)
        self.leser.start()
        ende = time.monotonic() + 5
        while not self.teile:
            if time.monotonic() > ende:
                raise RuntimeError('the recorder hears nothing, not even silence')
            time.sleep(0.01)
        time.sleep(2.5 if self.art == 'always' else 0.3)

    @staticmethod
    def _lesen(rohr, teile):
        while True:
            daten = os.read(rohr.fileno(), 65536)
            if not daten:
                return
            teile.append((time.monotonic(), daten))

    def anhalten(self):
        self.server.send_signal(signal.SIGSTOP)

    def weiter(self):
        self.server.send_signal(signal.SIGCONT)

    def neustart(self):
        self.beenden()
        self.starten()

    def beenden(self):
        for prozess in (self.rekorder, self.server):
            beenden(prozess)
        if self.leser:
            self.leser.join(2)
        self.server = self.rekorder = self.leser = None

    def gehoert(self, beginn):
        """What all recordings hold, with times counted from a moment."""
        liste, erkenner = [], erkennen.Erkenner()
        for teile in self.aufnahmen:
            ankunft, samples = [], 0
            for wann, daten in teile:
                samples += len(daten) // 2
                ankunft.append((samples, wann))
            for ms, name, _, dauer in erkenner.erkennen(
                    erkennen.roh_lesen(b''.join(d for _, d in teile))):
                stelle = ms * erkennen.RATE // 1000
                wann = next((w for s, w in ankunft if s > stelle), beginn)
                liste.append(Klang(round(1000 * (wann - beginn)), kurz(name), dauer))
        return liste


def kurz(name):
    return name.upper().removesuffix('.WAV')


def beenden(prozess):
    """Ends a process that was started here, also one that is stopped or deaf."""
    if prozess is None or prozess.poll() is not None:
        return
    prozess.send_signal(signal.SIGCONT)
    prozess.terminate()
    try:
        prozess.wait(3)
    except subprocess.TimeoutExpired:
        prozess.kill()
        prozess.wait()


def umgebung(ordner, daten=None):
    env = dict(os.environ, HOME=ordner, XDG_RUNTIME_DIR=ordner, XDG_CONFIG_HOME=ordner + '/config',
               XDG_DATA_HOME=daten or ordner + '/data', XDG_CACHE_HOME=ordner + '/cache')
    env.setdefault('XAUTHORITY', os.path.expanduser('~/.Xauthority'))
    for name in [n for n in env if n.startswith('PULSE_') or n == 'DBUS_SESSION_BUS_ADDRESS']:
        del env[name]
    return env


def hoeren(befehl, server='null', frist=30.0, dann=(), daten=None):
    """Runs the command; dann holds pairs of seconds and what to do: a name of a method of Server, or
    a function that gets the running process."""
    ordner = tempfile.mkdtemp(prefix='hoeren-')
    os.chmod(ordner, 0o700)
    env = umgebung(ordner, daten)
    pulse, prozess = Server(server, env), None
    try:
        os.makedirs(env['XDG_DATA_HOME'], exist_ok=True)
        if server != 'none':
            pulse.starten()
        if server == 'hung':
            pulse.anhalten()
        with open(ordner + '/stdout', 'w+b') as aus, open(ordner + '/stderr', 'w+b') as err:
            beginn = time.monotonic()
            prozess = subprocess.Popen(befehl, env=env, stdout=aus, stderr=err,
                                       stdin=subprocess.DEVNULL)
            for sekunden, tun in sorted(dann, key=lambda paar: paar[0]):
                time.sleep(max(0.0, beginn + sekunden - time.monotonic()))
                if callable(tun):
                    tun(prozess)
                else:
                    getattr(pulse, tun)()
            try:
                ergebnis = prozess.wait(max(0.01, beginn + frist - time.monotonic()))
            except subprocess.TimeoutExpired:
                ergebnis = 'timeout'
                beenden(prozess)
            ms = round(1000 * (time.monotonic() - beginn))
            time.sleep(0.3)
            pulse.beenden()
            aus.seek(0)
            err.seek(0)
            return Ergebnis(ergebnis, ms, aus.read().decode(errors='replace'),
                            err.read().decode(errors='replace'), pulse.gehoert(beginn))
    finally:
        beenden(prozess)
        pulse.beenden()
        shutil.rmtree(ordner, ignore_errors=True)


def maengel(ergebnis, erwartet=None, stille_stderr=False):
    """What is not as wanted, one line each."""
    liste = []
    if ergebnis.exit != 0:
        liste.append('the command did not end in time' if ergebnis.exit == 'timeout'
                     else 'the command ended with %s' % ergebnis.exit)
    if erwartet is not None:
        soll, ist = [kurz(n) for n in erwartet], [k.name for k in ergebnis.klaenge]
        if soll != ist:
            liste.append('wanted %s, heard %s' % (','.join(soll) or 'nothing', ','.join(ist) or 'nothing'))
    if stille_stderr and ergebnis.stderr:
        liste.append('standard error is not empty: %s' % ergebnis.stderr.strip())
    return liste


def main():
    ap = argparse.ArgumentParser(usage=__doc__)
    ap.add_argument('--server', default='null', choices=['null', 'nosink', 'always', 'none', 'hung'])
    ap.add_argument('--erwartet')
    ap.add_argument('--stille-stderr', action='store_true')
    ap.add_argument('--frist', type=float, default=30)
    ap.add_argument('--dann', action='append', default=[])
    ap.add_argument('--daten')
    ap.add_argument('befehl', nargs=argparse.REMAINDER)
    o = ap.parse_args()
    befehl = o.befehl[1:] if o.befehl[:1] == ['--'] else o.befehl
    if not befehl:
        ap.error('no command')
    dann = []
    for eintrag in o.dann:
        sekunden, _, was = eintrag.partition(':')
        if was not in ('anhalten', 'weiter', 'neustart', 'starten'):
            ap.error('--dann ' + eintrag)
        dann.append((float(sekunden), was))
    erwartet = None if o.erwartet is None else [n for n in o.erwartet.split(',') if n]
    if erwartet and o.server in ('nosink', 'hung'):
        ap.error('nothing can be heard with --server ' + o.server)
    try:
        ergebnis = hoeren(befehl, o.server, o.frist, dann, o.daten)
    except RuntimeError as fehler:
        sys.exit('hoeren.py: %s' % fehler)
    sys.stdout.write(ergebnis.ausgabe)
    sys.stderr.write(ergebnis.stderr)
    for klang in ergebnis.klaenge:
        print('%6d ms  %s (%d ms)' % klang)
    liste = maengel(ergebnis, erwartet, o.stille_stderr)
    for mangel in liste:
        print('hoeren.py: ' + mangel, file=sys.stderr)
    print('%s after %d ms' % ('not as wanted' if liste else 'as wanted', ergebnis.ms))
    return 1 if liste else 0


if __name__ == '__main__':
    sys.exit(main())
