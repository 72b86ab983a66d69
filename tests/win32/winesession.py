"""The game for Windows on a private display: its windows as a screen reader finds them, and keys."""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "desktop"))
from session import LIMIT, end_with_the_test, wait  # noqa: E402

WINE = HERE.parent.parent / "tools" / "wine"
REPEATS = 12  # of a key that is held


class WineSession:
    """A display, and Wine on it, in a prefix that is kept for the next time."""

    def __init__(self, build):
        self.build = pathlib.Path(build).resolve()

    def __enter__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="duskmarch-wine-"))
        self.prefix = self.build.parent / "wine.desktop"
        os.environ.update(DUSKMARCH_WINEPREFIX=str(self.prefix),
                          SPEECH_LOG=windows_path(self.folder / "speech"))
        self.children = []
        read, write = os.pipe()
        self.start("Xvfb", "-displayfd", str(write), "-screen", "0", "1400x800x24",
                   "-nolisten", "tcp", pass_fds=(write,))
        os.close(write)
        with os.fdopen(read) as answer:
            os.environ["DISPLAY"] = ":" + answer.readline().strip()
        # It all ends with its first program: none is left from another display.
        self.wineserver("--kill")
        self.reader = self.start(WINE, self.build / "windowreader.exe", stdin=subprocess.PIPE,
                                 stdout=subprocess.PIPE)
        self.keys = self.folder / "keys"
        with open(self.keys, "wb") as log:
            self.start("stdbuf", "-oL", "xinput", "test-xi2", "--root", stdout=log)
        return self

    def __exit__(self, *_):
        for child in reversed(self.children):
            child.terminate()
        self.wineserver("--kill")
        for child in self.children:
            child.wait(LIMIT)
        shutil.rmtree(self.folder, ignore_errors=True)

    def wineserver(self, *options):
        subprocess.run(["/usr/lib/wine/wineserver64", *options], check=False, timeout=LIMIT,
                       env={**os.environ, "WINEPREFIX": str(self.prefix)})

    def start(self, *command, **options):
        self.children.append(subprocess.Popen(
            command, preexec_fn=end_with_the_test,
            **{"stdin": subprocess.DEVNULL, "stdout": subprocess.DEVNULL, **options}))
        return self.children[-1]

    def run(self, *command):
        """A program that has to end well."""
        log = self.folder / "run"
        with open(log, "wb") as output:
            program = self.start(WINE, *command, stdout=output, stderr=output)
        assert program.wait(LIMIT) == 0, log.read_text(encoding="utf-8", errors="replace")

    def runs(self, *command):
        """Whether the program ends well."""
        return self.start(WINE, *command).wait(LIMIT) == 0

    def play(self, program):
        """Starts the game; returns when its window is there."""
        game = self.start(WINE, program)
        wait(lambda: game.poll() is not None or self.window("Duskmarch"), "the window")
        return game

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

    def said(self):
        """What the voice was given, line by line."""
        log = self.folder / "speech"
        return log.read_text(encoding="utf-8").splitlines() if log.exists() else []

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
        self.expect(lambda: self.focus()["class"] == kind
                    and self.focus()["text"].startswith(text), f"focus on {kind} {text}")

    def presses(self):
        return self.keys.read_bytes().count(b"(KeyPress)")

    def hold(self, key):
        """Until the display has repeated it."""
        before = self.presses()
        subprocess.run(["xdotool", "keydown", key], check=True, timeout=LIMIT)
        wait(lambda: self.presses() > before + REPEATS, f"{key} to repeat")
        subprocess.run(["xdotool", "keyup", key], check=True, timeout=LIMIT)


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")
