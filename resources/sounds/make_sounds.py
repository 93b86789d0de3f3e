#!/usr/bin/env python3
"""Makes Bip.wav and Zoum.wav beside this script: mono, 16 bit, 44100 Hz, the same bytes at every run."""

import math
import struct
import wave
from pathlib import Path

RATE = 44100
PEAK = 0.4 * 32767


def tone(milliseconds, frequency_at, decay):
    """Samples of a sine whose frequency is frequency_at(0..1); it fades out and begins and ends at silence."""
    count = RATE * milliseconds // 1000
    edge = RATE * 3 // 1000  # without a ramp the ends would click
    phase = 0.0
    samples = []
    for i in range(count):
        part = i / count
        ramp = min(1.0, i / edge, (count - 1 - i) / edge)
        samples.append(round(PEAK * ramp * math.exp(-decay * part) * math.sin(phase)))
        phase += 2 * math.pi * frequency_at(part) / RATE
    return samples


def write(name, samples):
    with wave.open(str(Path(__file__).parent / name), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(struct.pack(f"<{len(samples)}h", *samples))


write("Bip.wav", tone(60, lambda part: 1320, decay=2))
write("Zoum.wav", tone(150, lambda part: 900 * 0.2**part, decay=1))
