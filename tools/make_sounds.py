#!/usr/bin/env python3
"""Makes the WAV files in sounds/, the same bytes each time. Needs espeak-ng for the spoken names.

    make_sounds.py [FOLDER ...]          makes sounds/menu, game, cues and ambience, or only those
    make_sounds.py --check [FOLDER ...]  makes nothing; fails if the files are not what it would make

All are mono and 16 bit, at the rate of the game's mixer, so that none is resampled when it is
loaded. Loudness of the menu's and the game's is the loudest 50 milliseconds, in decibels below full
scale; the game's voice reaches about -15 by the same measure, and the sounds heard most often stay
well below it. The cues of a fight and the loops have a measure of their own, in soundmaking/.
"""

import argparse
import array
import io
import math
import pathlib
import subprocess
import sys
import tempfile
import wave

from soundmaking import cuefiles

RATE = 48000
SOUNDS = pathlib.Path(__file__).resolve().parent.parent / "sounds"


def tone(seconds, frequency, decay, partials=((1, 1.0),)):
    """A struck tone; frequency is a number or a function of time."""
    samples, phase = [], 0.0
    for n in range(round(seconds * RATE)):
        t = n / RATE
        phase += 2 * math.pi * (frequency(t) if callable(frequency) else frequency) / RATE
        samples.append(sum(level * math.exp(-t * multiple / decay) * math.sin(multiple * phase)
                           for multiple, level in partials))
    return faded(samples, 0.004, 0.015)


def faded(samples, fade_in, fade_out):
    """Raised-cosine ends: nothing clicks."""
    samples = list(samples)
    for seconds, index in ((fade_in, lambda n: n), (fade_out, lambda n: -1 - n)):
        length = round(seconds * RATE)
        for n in range(length):
            samples[index(n)] *= 0.5 - 0.5 * math.cos(math.pi * n / length)
    return samples


def together(*parts):
    """Adds (start in seconds, samples) pairs."""
    length = max(round(start * RATE) + len(samples) for start, samples in parts)
    total = [0.0] * length
    for start, samples in parts:
        for n, sample in enumerate(samples, round(start * RATE)):
            total[n] += sample
    return total


def loudness(samples):
    window = round(0.05 * RATE)
    energy = [0.0]
    for sample in samples:
        energy.append(energy[-1] + sample * sample)
    loudest = max(energy[min(n + window, len(samples))] - energy[n]
                  for n in range(0, len(samples), 48))
    return 10 * math.log10(loudest / window)


def spoken(text):
    with tempfile.TemporaryDirectory() as folder:
        file = f"{folder}/spoken.wav"
        subprocess.run(["espeak-ng", "-v", "en", "-s", "165", "-w", file, text], check=True)
        with wave.open(file) as source:
            rate = source.getframerate()
            samples = array.array("h", source.readframes(source.getnframes()))
    loud = [n for n, sample in enumerate(samples) if abs(sample) > 200]
    margin = rate // 100
    samples = samples[max(loud[0] - margin, 0):loud[-1] + margin]
    return faded(resampled([sample / 32768 for sample in samples], rate), 0.005, 0.02)


def resampled(samples, rate, reach=24):
    """A windowed sinc up to RATE; the same fractions of a sample come again and again."""
    step = math.gcd(rate, RATE)
    rate, phases = rate // step, RATE // step
    kernels = []
    for phase in range(phases):
        offsets = [k - phase / phases for k in range(1 - reach, reach + 1)]
        kernel = [(math.sin(math.pi * x) / (math.pi * x) if x else 1.0)
                  * math.cos(math.pi * x / (2 * reach)) ** 2 for x in offsets]
        kernels.append([value / sum(kernel) for value in kernel])
    padded = [0.0] * (reach - 1) + samples + [0.0] * (reach + 1)
    result = []
    for n in range(len(samples) * phases // rate):
        whole, phase = divmod(n * rate, phases)
        result.append(sum(a * b for a, b in zip(kernels[phase], padded[whole:])))
    return result


def wav(samples, wanted):
    factor = 32767 * 10 ** ((wanted - loudness(samples)) / 20)
    return array.array("h", (round(sample * factor) for sample in samples))


WOOD = ((1, 1.0), (2.76, 0.35))
BELL = ((1, 1.0), (2, 0.3), (3, 0.12))
ENGINES = {"SAPI": "sappy", "NVDA": "N V D A", "WE": "Window Eyes", "JAWS": "jaws"}


def menu():
    yield "arrows", wav(tone(0.06, 880, 0.012, WOOD), -25)
    yield "enter", wav(together((0, tone(0.13, 440, 0.03, WOOD)),
                                (0.03, tone(0.13, 660, 0.035, BELL))), -20)
    yield "previous", wav(tone(0.2, lambda t: 620 * 2 ** (-t / 0.2), 0.09, BELL), -21)
    for name, text in ENGINES.items():
        yield name, wav(spoken(text), -16)


def game():
    yield "saved", wav(together((0, tone(0.3, 523.25, 0.09, BELL)),
                                (0.13, tone(0.42, 783.99, 0.12, BELL))), -20)


def file_of(data):
    if sys.byteorder == "big":
        data.byteswap()
    content = io.BytesIO()
    with wave.open(content, "wb") as file:
        file.setparams((1, 2, RATE, 0, "NONE", ""))
        file.writeframes(data.tobytes())
    return content.getvalue()


def made(folder, check):
    """Makes or compares a folder's files; whether all are as they should be."""
    good = True
    for name, data in FOLDERS[folder]():
        path = SOUNDS / folder / f"{name}.wav"
        content = file_of(data)
        if not check:
            path.parent.mkdir(exist_ok=True)
            path.write_bytes(content)
        elif not path.exists() or path.read_bytes() != content:
            print(f"{path} is not what would be made")
            good = False
    return good


FOLDERS = {"menu": menu, "game": game, "cues": cuefiles.cues, "ambience": cuefiles.ambience}

if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    parser.add_argument("--check", action="store_true")
    parser.add_argument("folders", nargs="*", metavar="FOLDER")
    asked = parser.parse_args()
    results = [made(folder, asked.check) for folder in asked.folders or FOLDERS]
    sys.exit(0 if all(results) else 1)
