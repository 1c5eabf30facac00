#!/usr/bin/env python3
"""Tells which of the game's sounds a recording holds, and when they begin.

  erkennen.py RECORDING [...]     WAV (mono, 16 bit, 44100 Hz) or raw samples of that kind
  erkennen.py --probe [gruendlich]
                                  cuts and softens the waves, adds strangers and checks the answers

Every 5 ms of the recording become the strengths of some frequency bands. Where something sounds that
no recognised sound explains, the wave whose beginning fits best begins; it explains the recording for
as long as it fits, so that a sound that is cut off by the next one is found as well as the next one.
What fits no wave for 60 ms is reported as "unbekannt".
"""
import array
import cmath
import math
import os
import sys
import wave

RATE = 44100
SCHRITT = 220               # samples from one picture of the bands to the next: 5 ms
FENSTER = 512               # samples at half the rate: 23 ms
BAENDER = 48
TIEFSTES, HOECHSTES = 120.0, 7000.0
STILLE = 40                 # peak of 32768 below which nothing sounds
ANFANG = 30                 # pictures that decide what begins: 150 ms
GLEICH = 0.80               # likeness from which a beginning counts
BLEIBT = 0.80               # likeness below which a sound no longer explains what is heard
LAUTER = 1.6                # a sound louder or softer than its beginning promised by this is another
GEDULD = 8                  # pictures that may fit badly before a sound counts as cut off
ZURUECK = 15                # pictures by which a beginning may have been overlooked
FREMD = 12                  # pictures of something else that are reported
NAMEN = ('TADA.WAV', 'WHOOSH.WAV', 'CHIMES.WAV', 'FRAGE.WAV', 'FEHLER.WAV', 'BLIP.WAV', 'ding.wav')
ORDNER = os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', '..', 'assets', 'sounds')

_HANN = [0.5 - 0.5 * math.cos(2 * math.pi * i / FENSTER) for i in range(FENSTER)]
_DREHUNG = {n: [cmath.exp(-2j * math.pi * k / n) for k in range(n // 2)]
            for n in (2 ** e for e in range(1, FENSTER.bit_length()))}


def _bandgrenzen():
    breite = (HOECHSTES / TIEFSTES) ** (1 / BAENDER)
    linien = [TIEFSTES * breite ** b * FENSTER / (RATE / 2) for b in range(BAENDER + 1)]
    grenzen = []
    for unten, oben in zip(linien, linien[1:]):
        paar = (round(unten), max(round(unten) + 1, round(oben)))
        if not grenzen or paar != grenzen[-1]:      # low bands are narrower than a line
            grenzen.append(paar)
    return grenzen


_GRENZEN = _bandgrenzen()


def _fft(x):
    if len(x) == 1:
        return x
    gerade, ungerade = _fft(x[::2]), _fft(x[1::2])
    gedreht = [w * u for w, u in zip(_DREHUNG[len(x)], ungerade)]
    return [g + d for g, d in zip(gerade, gedreht)] + [g - d for g, d in zip(gerade, gedreht)]


def bild(daten, mitte):
    """The bands around a sample, root of their power; None where it is silent."""
    anfang = mitte - FENSTER
    stueck = daten[max(0, anfang):mitte + FENSTER]
    if not stueck or max(stueck) < STILLE and min(stueck) > -STILLE:
        return None
    if anfang < 0 or len(stueck) < 2 * FENSTER:
        vorn = max(0, -anfang)
        stueck = [0] * vorn + list(stueck) + [0] * (2 * FENSTER - vorn - len(stueck))
    halb = [h * (stueck[2 * i] + stueck[2 * i + 1]) for i, h in enumerate(_HANN)]
    linien = [abs(z) ** 2 for z in _fft(halb)[:FENSTER // 2]]
    return [math.sqrt(sum(linien[a:b])) for a, b in _GRENZEN]


def bilder(daten):
    return [bild(daten, mitte) for mitte in range(0, len(daten) + SCHRITT, SCHRITT)]


def _summe(a, b):
    return sum(map(lambda x, y: x * y, a, b))


def aehnlich(gehoert, muster):
    """1 for the same colour of sound, 0 for nothing in common; loudness does not count."""
    if gehoert is None or muster is None:
        return 1.0 if gehoert is muster else 0.0
    teiler = math.sqrt(_summe(gehoert, gehoert) * _summe(muster, muster))
    return _summe(gehoert, muster) / teiler if teiler else 0.0


def beginnt(gehoert, ab, muster):
    """How well the recording fits the first pictures of a wave, in colour and in loudness together."""
    zahl = min(ANFANG, len(muster), len(gehoert) - ab)
    oben = links = rechts = 0.0
    for g, m in zip(gehoert[ab:ab + zahl], muster[:zahl]):
        if g is not None:
            links += _summe(g, g)
        if m is not None:
            rechts += _summe(m, m)
        if g is not None and m is not None:
            oben += _summe(g, m)
    return oben / math.sqrt(links * rechts) if links and rechts else 0.0


def staerke(b):
    return math.sqrt(_summe(b, b)) if b is not None else 0.0


class Erkenner:
    def __init__(self, ordner=ORDNER):
        self.muster = {name: self._muster(wav_lesen(os.path.join(ordner, name))) for name in NAMEN}

    @staticmethod
    def _muster(daten):
        b = bilder(daten)
        while b[-1] is None:
            b.pop()
        return b

    def erkennen(self, daten):
        """A list of (milliseconds, name, likeness of the beginning, milliseconds heard)."""
        gehoert, liste, k = bilder(daten), [], 0
        fremd_seit = None
        while k < len(gehoert):
            if gehoert[k] is None:
                fremd_seit = self._fremd(liste, fremd_seit, k)
                k += 1
                continue
            wert, name, ab = self._bester(gehoert, k)
            if wert < GLEICH:
                fremd_seit = k if fremd_seit is None else fremd_seit
                k += 1
                continue
            self._fremd(liste, fremd_seit, ab)
            fremd_seit = None
            ende = self._ende(gehoert, ab, self.muster[name])
            liste.append((round(ab * SCHRITT * 1000 / RATE), name, round(wert, 2),
                          round((ende - ab) * SCHRITT * 1000 / RATE)))
            k = max(ende, k + 1)
        self._fremd(liste, fremd_seit, k)
        return liste

    @staticmethod
    def _fremd(liste, seit, bis):
        # The window reaches into the neighbours, and the tail of a cut sound may be left over.
        if seit is not None and bis - seit >= FREMD:
            liste.append((round(seit * SCHRITT * 1000 / RATE), 'unbekannt', 0.0,
                          round((bis - seit) * SCHRITT * 1000 / RATE)))
        return None

    def _bester(self, gehoert, k):
        """The best beginning near picture k: before it, since the last sound may have seemed to
        go on for a while, or up to 30 ms behind it."""
        return max((beginnt(gehoert, ab, muster), name, ab)
                   for name, muster in self.muster.items() for ab in range(max(0, k - ZURUECK), k + 7))

    @staticmethod
    def _ende(gehoert, ab, muster):
        """The first picture that this wave no longer explains: another colour, or louder or softer
        than its beginning promised."""
        schlecht, verstaerkung = 0, None
        for i, m in enumerate(muster):
            if ab + i >= len(gehoert):
                break
            g = gehoert[ab + i]
            passt = aehnlich(g, m) >= BLEIBT
            if passt and m is not None:
                jetzt = staerke(g) / staerke(m)
                if verstaerkung is None or i < 6:
                    verstaerkung = jetzt
                passt = verstaerkung / LAUTER < jetzt < verstaerkung * LAUTER
            elif g is None and m is not None and staerke(m) < 60 * STILLE:
                passt = True        # softer than what counts as silence
            schlecht = 0 if passt else schlecht + 1
            if schlecht >= GEDULD:
                return ab + i - GEDULD + 1
        return ab + len(muster)


def wav_lesen(pfad):
    with wave.open(pfad, 'rb') as datei:
        if (datei.getnchannels(), datei.getsampwidth(), datei.getframerate()) != (1, 2, RATE):
            sys.exit('%s: not mono, 16 bit, %d Hz' % (pfad, RATE))
        return array.array('h', datei.readframes(datei.getnframes()))


def roh_lesen(rohdaten):
    return array.array('h', rohdaten[:len(rohdaten) // 2 * 2])


def probe(gruendlich):
    """Recordings made here: the waves whole, soft, cut after 150 ms by each other, and strangers."""
    erkenner, fehler, faelle = Erkenner(), 0, 0
    wellen = {n: list(wav_lesen(os.path.join(ORDNER, n))) for n in NAMEN}

    def fall(was, stuecke, leiser=1.0, versatz=0, fremd=None):
        nonlocal fehler, faelle
        daten, soll = [0] * (4410 + versatz), []
        if fremd:
            soll.append((100, 'unbekannt'))
            daten += fremd
        for name, dauer in stuecke:
            soll.append((round(len(daten) / RATE * 1000), name))
            teil = wellen[name][:round(dauer * RATE)] if dauer else wellen[name] + [0] * 8820
            daten += [round(w * leiser) for w in teil]
        daten += [0] * 4410
        ist = erkenner.erkennen(array.array('h', daten))
        faelle += 1
        if [n for _, n in soll] != [e[1] for e in ist] or \
                any(abs(s[0] - e[0]) > 30 for s, e in zip(soll, ist)):
            fehler += 1
            print('%s\n  wanted %s\n  heard  %s' % (was, soll, ist), file=sys.stderr)

    for versatz in (0, 37, 110, 173) if gruendlich else (0, 110):
        fall('all, one after the other', [(n, 0) for n in NAMEN], versatz=versatz)
    fall('all, softly', [(n, 0) for n in NAMEN], leiser=0.2)
    for hz in (300, 1000, 1568, 3000):
        sinus = [round(6000 * math.sin(2 * math.pi * hz * i / RATE)) for i in range(RATE // 3)]
        fall('a tone of %d Hz that is none of ours' % hz, [], fremd=sinus)
    fall('silence', [])
    for i, a in enumerate(NAMEN):
        # By itself and by the one before it in the list; thoroughly: by each.
        for b in NAMEN if gruendlich else (a, NAMEN[i - 1]):
            for dauer in (0.15, 0.32) if a == b else (0.15,):
                if len(wellen[a]) > dauer * RATE:
                    fall('%s cut after %.2f s by %s' % (a, dauer, b), [(a, dauer), (b, 0)], versatz=60)
    print('%d of %d recordings recognised' % (faelle - fehler, faelle))
    return 1 if fehler else 0


def main():
    if sys.argv[1:] in (['--probe'], ['--probe', 'gruendlich']):
        return probe(gruendlich=len(sys.argv) > 2)
    if not sys.argv[1:] or sys.argv[1].startswith('-'):
        sys.exit(__doc__)
    erkenner = Erkenner()
    for pfad in sys.argv[1:]:
        if pfad.lower().endswith('.wav'):
            daten = wav_lesen(pfad)
        else:
            with open(pfad, 'rb') as datei:
                daten = roh_lesen(datei.read())
        for ms, name, wert, dauer in erkenner.erkennen(daten):
            print('%7d ms  %-10s likeness %.2f, %d ms' % (ms, name, wert, dauer))
    return 0


if __name__ == '__main__':
    sys.exit(main())
