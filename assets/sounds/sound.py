#!/usr/bin/env python3
"""Makes the seven waves of the game, the same every time, and measures them.

  klingen.py             writes the waves beside this script and prints what they measure
  klingen.py --pruefen   writes nothing; fails if a wave is not what this script makes

Every sound begins with tones of its own, so that ear and tests/sound/hoeren.py know it from its
first 150 ms. Loudness is the mean power after the K weighting of ITU-R BS.1770, taken over the
10 ms pieces that lie within 20 dB of the loudest; all seven are brought to the same value.
"""
import array
import math
import os
import struct
import sys
import wave

RATE = 44100
LAUTHEIT_DB = -19.0         # below full scale, K-weighted, over the active part
TOLERANZ_DB = 1.5           # what --pruefen allows between the waves
SPITZE_HOECHSTENS = 0.85    # of full scale; nothing may come near clipping


def leer(dauer):
    return [0.0] * round(dauer * RATE)


def ton(ziel, beginn, dauer, hz, teiltoene, staerke=1.0, abkling=None, anstieg=0.006, ende=0.03):
    """Adds one note: partials (ratio, strength, decay factor), soft at both ends."""
    erster, zahl = round(beginn * RATE), round(dauer * RATE)
    an, aus = max(1, round(anstieg * RATE)), max(1, round(ende * RATE))
    for i in range(min(zahl, len(ziel) - erster)):
        t = i / RATE
        wert = sum(s * math.sin(2 * math.pi * hz * v * t)
                   * (math.exp(-t * f / abkling) if abkling else 1.0) for v, s, f in teiltoene)
        rand = min(1.0, i / an, (zahl - 1 - i) / aus)
        ziel[erster + i] += staerke * wert * (0.5 - 0.5 * math.cos(math.pi * rand))


BLECH = [(n, n ** -1.3, 0.6 + 0.25 * n) for n in range(1, 8)]
GLOCKE = [(1.0, 1.0, 1.0), (2.0, 0.35, 1.6), (3.01, 0.16, 2.4), (4.2, 0.06, 4.0)]
HOLZ = [(1.0, 1.0, 1.0), (3.93, 0.22, 5.0)]
DUMPF = [(n, n ** -1.5, 0.8 + 0.1 * n) for n in (1, 2, 3, 4, 5)]
HELL = [(1.0, 1.0, 1.0), (2.76, 0.28, 2.2)]


def tada():
    x = leer(1.15)
    for hz in (392.0, 493.9):
        ton(x, 0.0, 0.15, hz, BLECH, abkling=0.6, anstieg=0.012)
    for hz, s in ((523.3, 1.0), (659.3, 0.8), (784.0, 0.8)):
        ton(x, 0.16, 0.99, hz, BLECH, s, abkling=0.55, anstieg=0.015, ende=0.25)
    return x


def whoosh():
    """Noise through a band that rises and falls again (a state variable filter)."""
    x, zufall, tief, band = leer(0.42), 20011, 0.0, 0.0
    for i in range(len(x)):
        teil = i / len(x)
        zufall = (zufall * 1103515245 + 12345) % 2 ** 31
        hz = 600 * (5.5 ** math.sin(math.pi * teil ** 0.7))
        f = 2 * math.sin(math.pi * hz / RATE)
        tief += f * band
        band += f * (zufall / 2 ** 30 - 1 - tief - 0.45 * band)
        x[i] = band * math.sin(math.pi * teil ** 0.55) ** 2
    return x


def chimes():
    x = leer(1.2)
    for k, hz in enumerate((1046.5, 1318.5, 1568.0, 2093.0)):
        ton(x, 0.13 * k, 1.2 - 0.13 * k, hz, GLOCKE, (1.0, 0.9, 0.8, 0.8)[k], abkling=0.22, ende=0.3)
    return x


def frage():
    x = leer(0.5)
    ton(x, 0.0, 0.2, 587.3, HOLZ, abkling=0.14, ende=0.05)
    ton(x, 0.17, 0.33, 880.0, HOLZ, abkling=0.14, ende=0.12)
    return x


def fehler():
    x = leer(0.62)
    ton(x, 0.0, 0.22, 233.1, DUMPF, abkling=0.5, anstieg=0.01)
    ton(x, 0.24, 0.38, 174.6, DUMPF, abkling=0.4, anstieg=0.01, ende=0.12)
    return x


def blip():
    """One short tone that glides upwards."""
    x = leer(0.1)
    phase = 0.0
    for i in range(len(x)):
        phase += 2 * math.pi * (680 + 300 * i / len(x)) / RATE
        rand = min(1.0, i / 350, (len(x) - 1 - i) / 900)
        x[i] = (math.sin(phase) + 0.15 * math.sin(2 * phase)) * (0.5 - 0.5 * math.cos(math.pi * rand))
    return x


def ding():
    x = leer(0.8)
    ton(x, 0.0, 0.8, 1760.0, HELL, abkling=0.2, ende=0.25)
    return x


KLAENGE = [('TADA.WAV', tada), ('WHOOSH.WAV', whoosh), ('CHIMES.WAV', chimes), ('FRAGE.WAV', frage),
           ('FEHLER.WAV', fehler), ('BLIP.WAV', blip), ('ding.wav', ding)]


def k_gewichtet(x):
    """The two filters of BS.1770 (a shelf for the head, a high pass), computed for our rate."""
    k = math.tan(math.pi * 1681.974450955533 / RATE)
    q, vh = 0.7071752369554196, 10 ** (3.999843853973347 / 20)
    vb, a0 = vh ** 0.4996667741545416, 1 + k / q + k * k
    regal = ((vh + vb * k / q + k * k) / a0, 2 * (k * k - vh) / a0, (vh - vb * k / q + k * k) / a0,
             2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0)
    k, q = math.tan(math.pi * 38.13547087602444 / RATE), 0.5003270373238773
    a0 = 1 + k / q + k * k
    hoch = (1.0, -2.0, 1.0, 2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0)
    for b0, b1, b2, a1, a2 in (regal, hoch):
        y, z1, z2 = [], 0.0, 0.0
        for w in x:
            o = b0 * w + z1
            z1, z2 = b1 * w - a1 * o + z2, b2 * w - a2 * o
            y.append(o)
        x = y
    return x


def lautheit(x):
    y, breite = k_gewichtet(x), RATE // 100
    teile = [sum(w * w for w in y[i:i + breite]) / len(y[i:i + breite]) for i in range(0, len(y), breite)]
    aktiv = [p for p in teile if p > max(teile) / 100]
    return 10 * math.log10(sum(aktiv) / len(aktiv))


def ganze_zahlen(x):
    faktor = 10 ** ((LAUTHEIT_DB - lautheit(x)) / 20)
    return array.array('h', [max(-32767, min(32767, round(32767 * faktor * w))) for w in x])


def schreiben(pfad, werte):
    with wave.open(pfad, 'wb') as datei:
        datei.setnchannels(1)
        datei.setsampwidth(2)
        datei.setframerate(RATE)
        datei.writeframes(struct.pack('<%dh' % len(werte), *werte))


def lesen(pfad):
    with wave.open(pfad, 'rb') as datei:
        if (datei.getnchannels(), datei.getsampwidth(), datei.getframerate()) != (1, 2, RATE):
            sys.exit('%s: not mono, 16 bit, %d Hz' % (pfad, RATE))
        return struct.unpack('<%dh' % datei.getnframes(), datei.readframes(datei.getnframes()))


def main():
    ordner, pruefen = os.path.dirname(os.path.abspath(__file__)), sys.argv[1:] == ['--pruefen']
    if sys.argv[1:] and not pruefen:
        sys.exit(__doc__)
    klagen, laut = [], []
    for name, machen in KLAENGE:
        soll, pfad = ganze_zahlen(machen()), os.path.join(ordner, name)
        if not pruefen:
            schreiben(pfad, soll)
        ist = lesen(pfad)
        # The mathematics of another machine may round one step differently.
        if len(ist) != len(soll) or any(abs(a - b) > 1 for a, b in zip(ist, soll)):
            klagen.append('%s is not what klingen.py makes' % name)
        x = [w / 32768 for w in ist]
        spitze, sprung = max(map(abs, x)), max(abs(x[0]), abs(x[-1]))
        laut.append(lautheit(x))
        print('%-11s %5.0f ms  peak %.2f  loudness %.2f dB' % (name, 1e3 * len(x) / RATE, spitze, laut[-1]))
        if spitze > SPITZE_HOECHSTENS:
            klagen.append('%s: peak %.2f' % (name, spitze))
        if sprung > 0.002:
            klagen.append('%s begins or ends with a click' % name)
    if max(laut) - min(laut) > TOLERANZ_DB:
        klagen.append('the waves differ by %.1f dB' % (max(laut) - min(laut)))
    for klage in klagen:
        print(klage, file=sys.stderr)
    return 1 if klagen else 0


if __name__ == '__main__':
    sys.exit(main())
