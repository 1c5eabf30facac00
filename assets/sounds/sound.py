#!/usr/bin/env python3
"""Makes the seven waves of the game, the same every time, and measures them.

  sound.py          writes the waves beside this script and prints what they measure
  sound.py --check  writes nothing; fails if a wave is not what this script makes

Every sound begins with tones of its own, so that ear and tests know it from its first
150 ms. Loudness is the mean power after the K weighting of ITU-R BS.1770, taken over the
10 ms pieces that lie within 20 dB of the loudest; all seven are brought to the same value.
"""
import array
import math
import os
import struct
import sys
import wave

RATE = 44100
LOUDNESS_DB = -19.0  # below full scale, K-weighted, over the active part
TOLERANCE_DB = 1.5   # what --check allows between the waves
HIGHEST_PEAK = 0.85  # of full scale; nothing may come near clipping


def silence(duration):
    return [0.0] * round(duration * RATE)


def note(target, start, duration, hz, partials, strength=1.0, decay=None, attack=0.006, release=0.03):
    """Adds one note: partials (ratio, strength, decay factor), soft at both ends."""
    first, count = round(start * RATE), round(duration * RATE)
    rising, falling = max(1, round(attack * RATE)), max(1, round(release * RATE))
    for i in range(min(count, len(target) - first)):
        t = i / RATE
        value = sum(s * math.sin(2 * math.pi * hz * v * t)
                    * (math.exp(-t * f / decay) if decay else 1.0) for v, s, f in partials)
        edge = min(1.0, i / rising, (count - 1 - i) / falling)
        target[first + i] += strength * value * (0.5 - 0.5 * math.cos(math.pi * edge))


BRASS = [(n, n ** -1.3, 0.6 + 0.25 * n) for n in range(1, 8)]
BELL = [(1.0, 1.0, 1.0), (2.0, 0.35, 1.6), (3.01, 0.16, 2.4), (4.2, 0.06, 4.0)]
WOOD = [(1.0, 1.0, 1.0), (3.93, 0.22, 5.0)]
DULL = [(n, n ** -1.5, 0.8 + 0.1 * n) for n in (1, 2, 3, 4, 5)]
BRIGHT = [(1.0, 1.0, 1.0), (2.76, 0.28, 2.2)]


def tada():
    x = silence(1.15)
    for hz in (392.0, 493.9):
        note(x, 0.0, 0.15, hz, BRASS, decay=0.6, attack=0.012)
    for hz, s in ((523.3, 1.0), (659.3, 0.8), (784.0, 0.8)):
        note(x, 0.16, 0.99, hz, BRASS, s, decay=0.55, attack=0.015, release=0.25)
    return x


def whoosh():
    """Noise through a band that rises and falls again (a state variable filter)."""
    x, random, low, band = silence(0.42), 20011, 0.0, 0.0
    for i in range(len(x)):
        part = i / len(x)
        random = (random * 1103515245 + 12345) % 2 ** 31
        hz = 600 * (5.5 ** math.sin(math.pi * part ** 0.7))
        f = 2 * math.sin(math.pi * hz / RATE)
        low += f * band
        band += f * (random / 2 ** 30 - 1 - low - 0.45 * band)
        x[i] = band * math.sin(math.pi * part ** 0.55) ** 2
    return x


def chimes():
    x = silence(1.2)
    for k, hz in enumerate((1046.5, 1318.5, 1568.0, 2093.0)):
        note(x, 0.13 * k, 1.2 - 0.13 * k, hz, BELL, (1.0, 0.9, 0.8, 0.8)[k], decay=0.22, release=0.3)
    return x


def frage():
    x = silence(0.5)
    note(x, 0.0, 0.2, 587.3, WOOD, decay=0.14, release=0.05)
    note(x, 0.17, 0.33, 880.0, WOOD, decay=0.14, release=0.12)
    return x


def fehler():
    x = silence(0.62)
    note(x, 0.0, 0.22, 233.1, DULL, decay=0.5, attack=0.01)
    note(x, 0.24, 0.38, 174.6, DULL, decay=0.4, attack=0.01, release=0.12)
    return x


def blip():
    """One short tone that glides upwards."""
    x = silence(0.1)
    phase = 0.0
    for i in range(len(x)):
        phase += 2 * math.pi * (680 + 300 * i / len(x)) / RATE
        edge = min(1.0, i / 350, (len(x) - 1 - i) / 900)
        x[i] = (math.sin(phase) + 0.15 * math.sin(2 * phase)) * (0.5 - 0.5 * math.cos(math.pi * edge))
    return x


def ding():
    x = silence(0.8)
    note(x, 0.0, 0.8, 1760.0, BRIGHT, decay=0.2, release=0.25)
    return x


SOUNDS = [('TADA.WAV', tada), ('WHOOSH.WAV', whoosh), ('CHIMES.WAV', chimes), ('FRAGE.WAV', frage),
          ('FEHLER.WAV', fehler), ('BLIP.WAV', blip), ('ding.wav', ding)]


def k_weighted(x):
    """The two filters of BS.1770 (a shelf for the head, a high pass), computed for our rate."""
    k = math.tan(math.pi * 1681.974450955533 / RATE)
    q, vh = 0.7071752369554196, 10 ** (3.999843853973347 / 20)
    vb, a0 = vh ** 0.4996667741545416, 1 + k / q + k * k
    shelf = ((vh + vb * k / q + k * k) / a0, 2 * (k * k - vh) / a0, (vh - vb * k / q + k * k) / a0,
             2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0)
    k, q = math.tan(math.pi * 38.13547087602444 / RATE), 0.5003270373238773
    a0 = 1 + k / q + k * k
    high = (1.0, -2.0, 1.0, 2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0)
    for b0, b1, b2, a1, a2 in (shelf, high):
        y, z1, z2 = [], 0.0, 0.0
        for w in x:
            o = b0 * w + z1
            z1, z2 = b1 * w - a1 * o + z2, b2 * w - a2 * o
            y.append(o)
        x = y
    return x


def loudness(x):
    y, width = k_weighted(x), RATE // 100
    parts = [sum(w * w for w in y[i:i + width]) / len(y[i:i + width]) for i in range(0, len(y), width)]
    active = [p for p in parts if p > max(parts) / 100]
    return 10 * math.log10(sum(active) / len(active))


def whole_numbers(x):
    factor = 10 ** ((LOUDNESS_DB - loudness(x)) / 20)
    return array.array('h', [max(-32767, min(32767, round(32767 * factor * w))) for w in x])


def write(path, values):
    with wave.open(path, 'wb') as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(struct.pack('<%dh' % len(values), *values))


def read(path):
    with wave.open(path, 'rb') as file:
        if (file.getnchannels(), file.getsampwidth(), file.getframerate()) != (1, 2, RATE):
            sys.exit('%s: not mono, 16 bit, %d Hz' % (path, RATE))
        return struct.unpack('<%dh' % file.getnframes(), file.readframes(file.getnframes()))


def main():
    folder, checking = os.path.dirname(os.path.abspath(__file__)), sys.argv[1:] == ['--check']
    if sys.argv[1:] and not checking:
        sys.exit(__doc__)
    complaints, loudnesses = [], []
    for name, make in SOUNDS:
        wanted, path = whole_numbers(make()), os.path.join(folder, name)
        if not checking:
            write(path, wanted)
        found = read(path)
        # The mathematics of another machine may round one step differently.
        if len(found) != len(wanted) or any(abs(a - b) > 1 for a, b in zip(found, wanted)):
            complaints.append('%s is not what sound.py makes' % name)
        x = [w / 32768 for w in found]
        peak, step = max(map(abs, x)), max(abs(x[0]), abs(x[-1]))
        loudnesses.append(loudness(x))
        print('%-11s %5.0f ms  peak %.2f  loudness %.2f dB' % (name, 1e3 * len(x) / RATE, peak, loudnesses[-1]))
        if peak > HIGHEST_PEAK:
            complaints.append('%s: peak %.2f' % (name, peak))
        if step > 0.002:
            complaints.append('%s begins or ends with a click' % name)
    if max(loudnesses) - min(loudnesses) > TOLERANCE_DB:
        complaints.append('the waves differ by %.1f dB' % (max(loudnesses) - min(loudnesses)))
    for complaint in complaints:
        print(complaint, file=sys.stderr)
    return 1 if complaints else 0


if __name__ == '__main__':
    sys.exit(main())
