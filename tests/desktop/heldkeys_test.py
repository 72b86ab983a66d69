#!/usr/bin/python3
"""Holds keys down on a private display, as a hand does: Enter and Space act once for each press.

usage: heldkeys_test.py BUILD-FOLDER x11|wayland
"""

import subprocess
import sys

from session import LIMIT, Reader, Session, WaylandSession, install, wait

REPEATS = 12
WELCOME = "Welcome to Duskmarch, version 0.1 testing 3, by Quorvane.  Main menu."


class X11Keys:
    """Holds a key until the display has told of its repetitions."""

    presser = "xdotool", "key"

    def __init__(self, session):
        self.log = session.folder / "keys"
        with open(self.log, "wb") as log:
            session.children.append(subprocess.Popen(
                ["stdbuf", "-oL", "xinput", "test-xi2", "--root"], stdout=log))
        wait(lambda: self.do("key", "shift") or self.presses() > 0, "the display's key events")

    def do(self, action, key):
        subprocess.run(["xdotool", action, key], check=True, timeout=LIMIT)

    def presses(self):
        return self.log.read_bytes().count(b"(KeyPress)")

    def hold(self, key):
        before = self.presses()
        self.do("keydown", key)
        wait(lambda: self.presses() > before + REPEATS, f"{key} to repeat")
        self.do("keyup", key)


class WaylandKeys:
    """There the program repeats a key itself, and nobody else knows how often: after 0.6 s, 25 times
    a second. That it does so in this time is seen by the key that may."""

    presser = "wtype", "-k"

    def __init__(self, session):
        pass

    def hold(self, key):
        subprocess.run(["wtype", "-P", key, "-s", "2500", "-p", key], check=True, timeout=LIMIT)


DISPLAYS = {"x11": (Session, X11Keys), "wayland": (WaylandSession, WaylandKeys)}


def main(build, display):
    kind, hands = DISPLAYS[display]
    with kind() as session:
        reader, keys = Reader(hands.presser), hands(session)
        program = install(build, session.folder / "package")
        (program.parent / "progress.ini").write_bytes(b" 1 \r\n 2 \r\n\r\n")
        game = session.start(program)
        reader.expect_window("frame", WELCOME)
        reader.expect("Start new game", "Down")
        reader.expect("Test mission", "Down")
        reader.expect_focus("text", "Story", "Return")
        reader.expect("B 4,", "Escape", "Up")
        start = len(reader.heard)
        keys.hold("space")
        reader.expect("Move.  ", "Down")
        said = [text.split(" ")[0] for text in reader.heard[start:]]
        assert said == ["Nightjar", "Move."], said  # and not to and fro between map and list
        keys.hold("Return")
        reader.expect_window("dialog", "Choose direction")
        reader.expect("Nightjar moves to the North.", "n", "Return")
        assert "Canceled." not in reader.heard, reader.heard  # the box took none for its answer
        before = len(reader.heard)
        keys.hold("Down")  # every other key repeats
        reader.wait(lambda: len(reader.heard) > before + REPEATS // 2, "Down to repeat")
        game.terminate()
        assert game.wait(LIMIT) == 0


main(*sys.argv[1:])
