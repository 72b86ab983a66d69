#!/usr/bin/python3
"""Plays the first minutes of the installed package, by keys, and hears what a screen reader would.

usage: desktop_test.py BUILD-FOLDER
"""

import sys

from session import LIMIT, Reader, Session, install

BESIDE_THE_PROGRAM = ("duskmarch-replay", "readme.txt", "COPYING", "add-to-menu",
                      "sounds/LICENSE.txt", "sounds/menu/arrows.wav",
                      "share/applications/duskmarch.desktop")


def choose_the_engine(reader, settings):
    reader.press("Tab")
    reader.wait(lambda: settings.exists() and settings.read_bytes() == b" 1 \r\n 2 \r\n\r\n",
                "the settings of engine 1")
    reader.expect("Start new game", "Down")
    reader.expect("Test mission where you control 2", "Down")
    reader.expect("Test mission where you control 2", "r")


def read_the_story(reader):
    reader.expect_focus("text", "Story", "Return")
    story = reader.text()
    assert story.startswith("Nightjar and Steelwing storm into a pool hall"), story
    first = reader.line()
    assert story.startswith(first), first
    reader.press("Down")
    reader.wait(lambda: reader.line() != first and reader.line() in story, "the second line")
    reader.press("Escape")


def explore_and_move(reader):
    reader.expect("B 4,", "Up")
    reader.expect("Nightjar selected at location B 5.", "space")
    reader.expect("Move.  Moving is only allowed", "Down")
    reader.press("Return")
    reader.expect_window("dialog", "Choose direction")
    reader.expect("Canceled.", "Escape")
    reader.press("Return")
    reader.expect_window("dialog", "Choose direction")
    reader.expect_focus("text", "Enter N S E W to choose your direction, or leave blank to cancel.")
    reader.expect("Nightjar moves to the North.", "n", "Return")


def end_the_turn(reader):
    reader.expect("-End of turn number 1.", "shift+e")
    reader.expect_focus("text", "Turn summary")
    lines = reader.text().splitlines()
    assert "-End of turn number 1." in lines, lines
    assert "Nightjar moves to the North." in lines, lines
    assert lines[-1] == "-Mission 0 begins: Invade the mobster meeting at the pool hall.", lines
    first = reader.line()
    assert lines[0].startswith(first), (lines[0], first)
    reader.press("Down")
    reader.wait(lambda: reader.line() not in ("", first), "the line below")
    reader.expect("Nightjar selected at location B 4.", "Return")


def behind_the_boxes(reader):
    """What the window has to say when it is active again was said once."""
    for text in ("Canceled.", "Nightjar moves to the North."):
        assert reader.heard.count(text) == 1, reader.heard
    assert "" not in reader.heard, reader.heard


def leave(reader, game):
    reader.expect("Exit the game", "shift+Escape")
    reader.expect("Good bye.", "Return")
    assert game.wait(LIMIT) == 0


def main(build):
    with Session() as session:
        reader = Reader()
        program = install(build, session.folder / "package with spaces")
        missing = [name for name in BESIDE_THE_PROGRAM if not (program.parent / name).exists()]
        assert not missing, f"not installed: {missing}"
        game = session.start(program)
        reader.expect_window("frame", "Duskmarch")
        choose_the_engine(reader, program.parent / "progress.ini")
        read_the_story(reader)
        explore_and_move(reader)
        end_the_turn(reader)
        behind_the_boxes(reader)
        leave(reader, game)
        errors = program.parent / "debuglog.txt"
        assert not errors.exists(), errors.read_text()


main(sys.argv[1])
