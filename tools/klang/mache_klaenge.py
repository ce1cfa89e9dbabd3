#!/usr/bin/env python3
"""Makes the program's three short sounds, shell/app/klang/1.wav to 3.wav: a click, a note, a closing pair of notes."""
import math
import pathlib
import struct
import wave

RATE = 22050
ZIEL = pathlib.Path(__file__).resolve().parents[2] / "shell" / "app" / "klang"


def ton(frequenz, sekunden, abfall, staerke=0.4):
    """A sine that dies away: `abfall` is the decay per second."""
    return [staerke * math.exp(-abfall * i / RATE) * math.sin(2 * math.pi * frequenz * i / RATE)
            for i in range(int(RATE * sekunden))]


def schreibe(nummer, werte):
    with wave.open(str(ZIEL / f"{nummer}.wav"), "wb") as datei:
        datei.setnchannels(1)
        datei.setsampwidth(2)
        datei.setframerate(RATE)
        datei.writeframes(b"".join(struct.pack("<h", int(32767 * w)) for w in werte))


schreibe(1, [a + b for a, b in zip(ton(1800, 0.04, 160), ton(620, 0.04, 90))])
schreibe(2, ton(880, 0.18, 22))
schreibe(3, ton(660, 0.1, 20) + ton(440, 0.2, 16))
