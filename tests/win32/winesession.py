"""The game for Windows on a private display: its windows as a screen reader finds them, and keys."""

import array
import contextlib
import json
import math
import os
import pathlib
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile
import wave

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "desktop"))
from session import LIMIT, end_with_the_test, wait  # noqa: E402

WINE = HERE.parent.parent / "tools" / "wine"
REPEATS = 12  # of a key that is held
FRAME = 8  # bytes, of two samples
QUIET = 24000  # frames: no sound of the game has such a gap
# Of Wine itself: no other device than ours, and none of its own questions.
WINES_OWN = ((r"HKCU\Software\Wine\Drivers", "Audio", "pulse"),
             (r"HKCU\Software\Wine\WineDbg", "ShowCrashDialog", "0"))
# For the voice of the system and for JAWS: the classes of standin.cpp.
CLASSES = "HKLM\\Software\\Classes\\"
STANDINS = (("SAPI.SpVoice", "{6C0F4A51-2F0E-4B6D-9A11-5D0C376E8001}"),
            ("FreedomSci.JawsApi", "{6C0F4A51-2F0E-4B6D-9A11-5D0C376E8002}"))


class WineSession:
    """A display, a sound device that nobody hears, and Wine on them, in a prefix that is kept for the
    next time."""

    def __init__(self, build):
        self.build = pathlib.Path(build).resolve()

    def __enter__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="duskmarch-wine-"))
        self.prefix = self.build.parent / "wine.desktop"
        self.speech = self.folder / "speech"
        self.children = []
        try:
            self.set_environment()
            self.start_display()
            self.sink = self.start_sink()
            self.start_wine()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for child in reversed(self.children):
            child.terminate()
        self.wineserver("--kill")
        for child in self.children:
            child.wait(LIMIT)
        shutil.rmtree(self.folder, ignore_errors=True)

    def set_environment(self):
        run = self.folder / "run"
        run.mkdir(mode=0o700)
        for name in ("PULSE_SERVER", "PULSE_SINK", "WAYLAND_DISPLAY"):
            os.environ.pop(name, None)
        os.environ.update(DUSKMARCH_WINEPREFIX=str(self.prefix), XDG_RUNTIME_DIR=str(run),
                          PULSE_COOKIE=str(run / "cookie"), SPEECH_LOG=windows_path(self.speech))

    def start_display(self):
        read, write = os.pipe()
        self.start("Xvfb", "-displayfd", str(write), "-screen", "0", "1400x800x24",
                   "-nolisten", "tcp", pass_fds=(write,))
        os.close(write)
        with os.fdopen(read) as answer:
            os.environ["DISPLAY"] = ":" + answer.readline().strip()
        self.keys = self.folder / "keys"
        with open(self.keys, "wb") as log:
            self.start("stdbuf", "-oL", "xinput", "test-xi2", "--root", stdout=log)

    def start_sink(self):
        sink = self.start(
            "pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
            "--load=module-null-sink sink_name=ears rate=48000 format=float32le",
            "--load=module-native-protocol-unix auth-anonymous=1",
            env={**os.environ, "HOME": str(self.folder)}, stderr=subprocess.DEVNULL)
        wait(lambda: subprocess.run(["pactl", "info"], capture_output=True).returncode == 0,
             "the sound service")
        return sink

    def start_wine(self):
        # It all ends with its first program: none is left from another display.
        self.wineserver("--kill")
        self.reader = self.start(WINE, self.build / "windowreader.exe", stdin=subprocess.PIPE,
                                 stdout=subprocess.PIPE)
        for key, name, value in WINES_OWN:
            self.set_value(key, name, value)
        shutil.copy(self.build / "speechstandin.dll", self.prefix / "drive_c/windows/system32")
        self.with_standins()

    def wineserver(self, *options):
        subprocess.run(["/usr/lib/wine/wineserver64", *options], check=False, timeout=LIMIT,
                       env={**os.environ, "WINEPREFIX": str(self.prefix)})

    def start(self, *command, **options):
        self.children.append(subprocess.Popen(
            command, preexec_fn=end_with_the_test,
            **{"stdin": subprocess.DEVNULL, "stdout": subprocess.DEVNULL, **options}))
        return self.children[-1]

    def package(self, generator, ending):
        """Made anew in the build's folder, where it stays."""
        for old in self.build.glob("duskmarch-*-" + ending):
            old.unlink()
        subprocess.run(["cpack", "-G", generator, "--config", self.build / "CPackConfig.cmake",
                        "-B", self.build], check=True, stdout=subprocess.DEVNULL)
        [package] = self.build.glob("duskmarch-*-" + ending)
        return package

    def run(self, *command):
        """A program that has to end well."""
        log = self.folder / "output"
        with open(log, "wb") as output:
            program = self.start(WINE, *command, stdout=output, stderr=output)
        assert program.wait(LIMIT) == 0, log.read_text(encoding="utf-8", errors="replace")

    def runs(self, *command):
        """Whether the program ends well."""
        return self.start(WINE, *command).wait(LIMIT) == 0

    def answer_of(self, *command, terminal=False):
        """What the program says to whoever reads it by pipes, or on a terminal."""
        words = [WINE, *command]
        if terminal:
            words = ["script", "-qec", shlex.join(map(str, words)), "/dev/null"]
        return subprocess.run(words, check=False, capture_output=True, encoding="utf-8",
                              stdin=subprocess.DEVNULL, timeout=LIMIT)

    def with_standins(self):
        for name, number in STANDINS:
            server = CLASSES + rf"CLSID\{number}\InprocServer32"
            self.set_value(rf"{CLASSES}{name}\CLSID", "", number)
            self.set_value(server, "", "speechstandin.dll")
            self.set_value(server, "ThreadingModel", "Both")

    def without_jaws(self):
        assert self.ask("forget\t" + CLASSES + "FreedomSci.JawsApi")

    def set_value(self, key, name, text):
        """In the registry, by the reader: it runs anyway, and Wine has failed to start its own tool."""
        assert self.ask("\t".join(("setvalue", key, name, text))), key

    def value(self, key, name):
        return self.ask("\t".join(("value", key, name)))

    def start_program(self, program, **environment):
        self.program = self.start(WINE, program, env={**os.environ, **environment})

    def play(self, program):
        """Starts the game; returns when its window gets the keys."""
        self.start_program(program)
        self.expect(lambda: self.program.poll() is not None or self.gets_keys("Duskmarch"),
                    "the window")

    # What a screen reader finds.

    def ask(self, command):
        self.reader.stdin.write(command.encode() + b"\n")
        self.reader.stdin.flush()
        return json.loads(self.reader.stdout.readline())

    def window(self, kind):
        return next((one for one in self.ask("state")["windows"] if one["class"] == kind), None)

    def title(self):
        window = self.window("Duskmarch")
        return window and window["text"]

    def focus(self):
        return self.ask("state")["focus"] or {"class": None, "text": None}

    def gets_keys(self, kind):
        """Whether something of that class has the focus, and the display gives a window the keys."""
        return self.focus()["class"] == kind and subprocess.run(
            ["xdotool", "getwindowfocus", "getwindowname"], check=False, capture_output=True,
            timeout=LIMIT).stdout.strip()

    def said(self):
        """What the voice was given, line by line."""
        if not self.speech.exists():
            return []
        return self.speech.read_text(encoding="utf-8").splitlines()

    def tell(self, whom, order):
        """What `voice` or `jaws` does from now on; see standin.cpp. With None, they speak."""
        file = self.speech.with_suffix("." + whom)
        if order is None:
            file.unlink()
        else:
            file.with_suffix(".new").write_text(order)
            file.with_suffix(".new").rename(file)

    @contextlib.contextmanager
    def frozen_sink(self):
        """The sound device answers nothing in a `with`."""
        os.kill(self.sink.pid, signal.SIGSTOP)
        try:
            yield
        finally:
            os.kill(self.sink.pid, signal.SIGCONT)

    def listening(self):
        return Ears(self)

    # The player's hands, and what has to come of it.

    def press(self, *keys):
        for key in keys:
            subprocess.run(["xdotool", "key", key], check=True, timeout=LIMIT)

    def expect(self, condition, what):
        wait(condition, lambda: f"{what}\n{json.dumps(self.ask('state'), indent=1)}\n{self.said()}")

    def expect_title(self, text, *keys):
        self.press(*keys)
        self.expect(lambda: (self.title() or "").startswith(text), f"the title {text}")

    def expect_said(self, text, *keys):
        before = len(self.said())
        self.press(*keys)
        self.expect(lambda: any(line.partition(" ")[2] == text for line in self.said()[before:]),
                    f"{text} spoken")

    def expect_focus(self, kind, text, *keys):
        self.press(*keys)

        def has_it():
            focus = self.focus()
            return focus["class"] == kind and focus["text"].startswith(text)
        self.expect(has_it, f"focus on {kind} {text}")

    def presses(self):
        return self.keys.read_bytes().count(b"(KeyPress)")

    def hold(self, key):
        """Until the display has repeated it."""
        before = self.presses()
        subprocess.run(["xdotool", "keydown", key], check=True, timeout=LIMIT)
        wait(lambda: self.presses() > before + REPEATS, f"{key} to repeat")
        subprocess.run(["xdotool", "keyup", key], check=True, timeout=LIMIT)


class Ears:
    """What the sink plays, from the beginning to the end of a `with`."""

    def __init__(self, session):
        self.session = session

    def __enter__(self):
        self.file = self.session.folder / "heard"
        with open(self.file, "wb") as file:
            self.recorder = self.session.start(
                "parec", "--device=@DEFAULT_MONITOR@", "--raw", "--format=float32le",
                "--rate=48000", "--channels=2", "--latency-msec=10", stdout=file)
        wait(lambda: self.played(), "what the sink plays")
        return self

    def __exit__(self, *_):
        self.recorder.terminate()
        self.recorder.wait(LIMIT)
        self.session.children.remove(self.recorder)

    def played(self):
        data = self.file.read_bytes()
        return data[:len(data) - len(data) % FRAME]

    def next_sound(self):
        """The left and the right samples of what is heard, once it has been quiet for a while."""
        def over():
            data = self.played()
            return any(data) and not any(data[-QUIET * FRAME:])
        wait(over, lambda: f"a sound and its end, in {len(self.played())} bytes, of which "
                           f"{len(self.played().rstrip(bytes(1)))} before silence")
        samples = array.array("f", self.played())
        sounding = [n for n in range(0, len(samples), 2) if samples[n] or samples[n + 1]]
        return [samples[n] for n in sounding], [samples[n + 1] for n in sounding]


def wav_samples(file):
    """Of a mono file with whole numbers."""
    with wave.open(str(file)) as sound:
        width, data = sound.getsampwidth(), sound.readframes(sound.getnframes())
    top = 1 << (8 * width - 1)
    return [int.from_bytes(data[n:n + width], "little", signed=True) / top
            for n in range(0, len(data), width)]


def loudness(samples):
    """The energy of a whole sound, in decibels."""
    return 10 * math.log10(sum(sample * sample for sample in samples))


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")
