#!/usr/bin/python3
"""Listens to music that the system plays for the game, under Wine.

usage: music_test.py BUILD-FOLDER
"""

import array
import ctypes
import math
import subprocess
import sys

from winesession import LIMIT, WINE, WineSession, windows_path

RATE, SECONDS = 48000, 2
MP3, WAV = 0x230082, 0x010006  # as libsndfile numbers them
EDGE = RATE // 10  # frames at both ends, where the encoding blurs


class Format(ctypes.Structure):
    _fields_ = [("frames", ctypes.c_int64), ("samplerate", ctypes.c_int), ("channels", ctypes.c_int),
                ("format", ctypes.c_int), ("sections", ctypes.c_int), ("seekable", ctypes.c_int)]


def write_tone(file, form):
    library = ctypes.CDLL("libsndfile.so.1")
    library.sf_open.restype = ctypes.c_void_p
    tone = array.array("f", (0.5 * math.sin(n * 2 * math.pi * 500 / RATE)
                             for n in range(RATE * SECONDS) for _ in range(2)))
    sound = library.sf_open(bytes(file), 0x20, ctypes.byref(Format(0, RATE, 2, form, 0, 0)))
    assert sound, file
    samples = (ctypes.c_float * len(tone)).from_buffer(tone)
    assert library.sf_writef_float(ctypes.c_void_p(sound), samples, ctypes.c_int64(RATE * SECONDS)) \
        == RATE * SECONDS
    library.sf_close(ctypes.c_void_p(sound))


def level(samples):
    """In decibels, of the middle of a sound."""
    middle = samples[EDGE:-EDGE]
    return 10 * math.log10(sum(sample * sample for sample in middle) / len(middle))


class Player:
    def __init__(self, session):
        self.program = session.start(WINE, session.build / "musicplayer.exe",
                                     stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def tell(self, command):
        self.program.stdin.write(command.encode() + b"\n")
        self.program.stdin.flush()
        return self.program.stdout.readline().strip() == b"yes"


def heard(session, player, *commands):
    with session.listening() as ears:
        for command in commands:
            assert player.tell(command), command
        return ears.next_sound()


def main(build):
    with WineSession(build) as session:
        music, other = session.folder / "muzyka żółw.mp3", session.folder / "other.mp3"
        write_tone(music, MP3)
        write_tone(other, WAV)
        player = Player(session)
        assert not player.tell("load " + windows_path(other))
        assert not player.tell("load " + windows_path(session.folder / "missing.mp3"))
        load = "load " + windows_path(music)

        left, right = heard(session, player, load, "volume 0", "balance 0", "position 0", "run")
        tone = 20 * math.log10(0.5) - 10 * math.log10(2)
        assert math.isclose(len(left) / RATE, SECONDS, abs_tol=0.2), len(left) / RATE
        assert math.isclose(level(left), tone, abs_tol=0.2), (level(left), tone)
        assert math.isclose(level(right), tone, abs_tol=0.2), (level(right), tone)

        left, right = heard(session, player, load, "volume -2000", "balance 1000", "run")
        assert math.isclose(level(left), tone - 30, abs_tol=0.3), (level(left), tone - 30)
        assert math.isclose(level(right), tone - 20, abs_tol=0.3), (level(right), tone - 20)

        # What is asked for meanwhile holds as well, and what is asked for last.
        left, right = heard(session, player, load, "position 9", "position 1", "run", "volume 0")
        assert math.isclose(len(left) / RATE, SECONDS - 1, abs_tol=0.2), len(left) / RATE

        player.program.stdin.close()
        assert player.program.wait(LIMIT) == 0


main(*sys.argv[1:])
