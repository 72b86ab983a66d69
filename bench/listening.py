"""A null sink to listen to, real key events, and a client of the system's speech service."""

import ctypes
import os
import pathlib
import socket
import subprocess
import sys
import threading
import time

import numpy

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "tests" / "desktop"))
from session import wait  # noqa: E402

RATE = 48000
LOUD = 200
TEMPLATE = RATE // 10
LONG = ("I have enjoyed playing it, but I have been relying on visual input and don't know how "
        "well it will translate into audio, and this line goes on for quite a while. ") * 3


def without_ambience(folder):
    """The game in the folder plays what it is measured by, and nothing else."""
    (pathlib.Path(folder) / "comfort.ini").write_bytes(b" 1 \r\n 0 \r\n 0 \r\n\r\n")


class Monitor:
    """What reaches a sink, by default the system's own, sample by sample, and when."""

    def __init__(self, sink=None):
        device = f"{sink}.monitor" if sink else "@DEFAULT_MONITOR@"
        self.samples, self.arrivals = [], []  # blocks; (time, samples up to then)
        self.total = 0
        self.source = subprocess.Popen(
            ["parec", f"--device={device}", "--raw", "--format=s16le", f"--rate={RATE}",
             "--channels=1", "--latency-msec=2"], stdout=subprocess.PIPE)
        threading.Thread(target=self.read, daemon=True).start()
        wait(lambda: self.total > 0, "samples from the sink")

    def read(self):
        rest = b""
        while block := self.source.stdout.read1(4096):
            now, block = time.monotonic(), rest + block
            whole = len(block) & ~1
            rest = block[whole:]
            self.samples.append(numpy.frombuffer(block[:whole], dtype=numpy.int16))
            self.total += whole // 2
            self.arrivals.append((now, self.total))

    def since(self, moment):
        """The samples that arrived after a moment, and when the first of them did."""
        first = next((n for n, (when, _) in enumerate(list(self.arrivals)) if when > moment), None)
        if first is None:
            return numpy.zeros(0, numpy.int16), moment
        block = self.samples[first]
        return numpy.concatenate(self.samples[first:]), self.arrivals[first][0] - len(block) / RATE

    def quiet(self, seconds=0.5):
        wait(lambda: not (numpy.abs(self.since(time.monotonic() - seconds)[0]) > LOUD).any(),
             "silence")

    def onset(self, moment, template=None, patience=5):
        """Seconds until something sounds; with a template, until that begins to sound."""
        while True:
            samples, begin = self.since(moment)
            found = self.matched(samples, template) if template is not None else next(
                iter(numpy.flatnonzero(numpy.abs(samples.astype(int)) > LOUD)), None)
            if found is not None:
                return begin + found / RATE - moment, samples[found:]
            if time.monotonic() - moment > patience:
                raise AssertionError("nothing was heard")
            time.sleep(0.02)

    @staticmethod
    def matched(samples, template):
        if len(samples) < RATE:  # the likest place in a second, not the first that is a bit alike
            return None
        signal, pattern = samples.astype(float), template.astype(float)
        size = len(signal) + len(pattern)
        product = numpy.fft.irfft(numpy.fft.rfft(signal, size)
                                  * numpy.conj(numpy.fft.rfft(pattern, size)), size)
        product = product[:len(signal) - len(pattern) + 1]
        power = numpy.convolve(signal ** 2, numpy.ones(len(pattern)), "valid")
        likeness = product / numpy.sqrt(power * (pattern ** 2).sum() + 1)
        best = int(likeness.argmax())
        return best if likeness[best] > 0.6 else None


class Keyboard:
    def __init__(self):
        self.x, self.test = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.display = ctypes.c_void_p(self.x.XOpenDisplay(None))

    def press(self, name):
        """Presses a key; returns when that was."""
        code = self.x.XKeysymToKeycode(self.display,
                                       ctypes.c_ulong(self.x.XStringToKeysym(name.encode())))
        moment = time.monotonic()
        for down in (1, 0):
            self.test.XTestFakeKeyEvent(self.display, code, down, 0)
        self.x.XFlush(self.display)
        return moment


class Service:
    """A client of the system's speech service."""

    def __init__(self, path, process):
        self.process = process
        self.line = socket.socket(socket.AF_UNIX)
        self.line.connect(str(path))
        self.ask("SET SELF CLIENT_NAME bench:bench:main")

    def ask(self, command):
        self.line.sendall(command.encode() + b"\r\n")
        return self.line.recv(4096)

    def speak(self, text, interrupting=False):
        moment = time.monotonic()
        if interrupting:
            self.ask("CANCEL SELF")
        self.ask("SPEAK")
        self.ask(text + "\r\n.")
        return moment


def start_sound(session, *more_sinks):
    server = session.start(
        "pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1",
        *(f"--load=module-null-sink sink_name={name} rate=48000" for name in ("bench", *more_sinks)),
        "--load=module-native-protocol-unix", "--load=module-suspend-on-idle timeout=3600")
    wait(lambda: subprocess.run(["pactl", "info"], capture_output=True).returncode == 0, "pulse")
    os.environ.update(SDL_AUDIODRIVER="pulseaudio", PULSE_SINK="bench")
    return server


def start_service(session, program="speech-dispatcher"):
    """In the place where every program looks for it."""
    path = session.folder / "run" / "speech-dispatcher" / "speechd.sock"
    path.parent.mkdir(exist_ok=True)
    path.unlink(missing_ok=True)
    process = session.start(program, "--run-single", "--timeout=0",
                            "--communication-method=unix_socket", f"--socket-path={path}")
    wait(path.exists, "the speech service")
    return Service(path, process)
