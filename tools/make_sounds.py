#!/usr/bin/env python3
"""Writes the short wave files that come with the client into resources/sounds/.

Each sound is a sum of decaying sine partials, 16-bit mono PCM at 22050 Hz, so the files are
small and play through any wave player. Run from anywhere: python3 tools/make_sounds.py
"""

import math
import struct
import wave
from pathlib import Path

RATE = 22050
PEAK = 0.6 * 32767


def tone(partials, seconds, decay, start=0.0, length=None):
    """Samples of (frequency, weight) partials with an exponential decay, placed at start."""
    total = int(RATE * (length or seconds + start))
    out = [0.0] * total
    first = int(RATE * start)
    attack = int(RATE * 0.005)
    for i in range(int(RATE * seconds)):
        t = i / RATE
        envelope = math.exp(-decay * t) * min(1.0, i / attack if attack else 1.0)
        value = sum(w * math.sin(2 * math.pi * f * t) for f, w in partials)
        if first + i < total:
            out[first + i] += envelope * value
    return out


def mix(*tracks):
    length = max(len(t) for t in tracks)
    return [sum(t[i] for t in tracks if i < len(t)) for i in range(length)]


def write(path, samples):
    peak = max(1e-9, max(abs(s) for s in samples))
    frames = b"".join(struct.pack("<h", int(s / peak * PEAK)) for s in samples)
    with wave.open(str(path), "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(frames)


def chime():
    bell = [(1.0, 1.0), (2.76, 0.35), (5.4, 0.12)]
    first = tone([(880 * r, w) for r, w in bell], 0.6, 6.0, length=0.8)
    second = tone([(1318.5 * r, w) for r, w in bell], 0.6, 6.0, start=0.15, length=0.8)
    return mix(first, second)


def gong():
    partials = [(110, 1.0), (164.8, 0.6), (231.5, 0.45), (297.3, 0.3), (412.7, 0.15)]
    return tone(partials, 1.2, 3.0)


def start_music():
    notes = [523.25, 659.25, 783.99, 1046.5]
    tracks = [tone([(f, 1.0), (2 * f, 0.25)], 0.5, 5.0, start=0.12 * i, length=0.9)
              for i, f in enumerate(notes)]
    return mix(*tracks)


def main():
    folder = Path(__file__).resolve().parent.parent / "resources" / "sounds"
    folder.mkdir(parents=True, exist_ok=True)
    write(folder / "Chime.wav", chime())
    write(folder / "Gong.wav", gong())
    write(folder / "T_STARTMUSIC.wav", start_music())


if __name__ == "__main__":
    main()
