#!/usr/bin/python3
"""Installs the game for Windows silently, over an older one too, and removes it, under Wine: the
player's files stay.

usage: setup_test.py BUILD-FOLDER
"""

import os
import sys

from winesession import LIMIT, WineSession, windows_path

STARTMENU = "drive_c/users/*/AppData/Roaming/Microsoft/Windows/Start Menu/Programs"
LISTED = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Duskmarch"
OURS = {"progress.ini": b" 1 \r\n 7 \r\n\r\n", "game.sav": b"anything", "sounds/menu/mine.wav": b"",
        "my notes.txt": b"left at the pool hall"}


def files_in(folder):
    """Even while folders are removed from it."""
    return {os.path.relpath(os.path.join(place, name), folder)
            for place, _, names in os.walk(folder) for name in names}


def main(build):
    with WineSession(build) as game:
        setup = game.package("External", "setup.exe")
        place = game.folder / "żółw-Ελληνικός"
        for _ in range(2):
            game.run(setup, "/S", "/D=" + windows_path(place))
            for name in ("duskmarch.exe", "duskmarch-replay.exe", "readme.txt", "COPYING.txt",
                         "sounds/menu/arrows.wav", "uninstall.exe"):
                assert (place / name).exists(), name
            for name, content in OURS.items():
                (place / name).write_bytes(content)
        [entry] = game.prefix.glob(STARTMENU + "/Duskmarch.lnk")
        assert game.value(LISTED, "QuietUninstallString")
        game.play(place / "duskmarch.exe")
        game.expect_title("Start new game", "Down")
        (place / "readme.txt").write_bytes(b"")
        assert not game.runs(setup, "/S", "/D=" + windows_path(place))
        assert (place / "readme.txt").read_bytes() == b"", "put in under a game that runs"
        # Without a copy of itself, so that its end can be waited for.
        assert not game.runs(place / "uninstall.exe", "/S", "_?=" + windows_path(place))
        assert (place / "readme.txt").exists(), "removed from under a game that runs"
        game.ask("close")
        assert game.program.wait(LIMIT) == 0
        game.run(place / "uninstall.exe", "/S")
        # It goes on in a copy of itself, so that it can remove itself too.
        game.expect(lambda: files_in(place) == set(OURS), f"no more than {set(OURS)}")
        for name, content in OURS.items():
            assert (place / name).read_bytes() == content, name
        game.expect(lambda: not entry.exists(), "no entry in the Start menu")
        game.expect(lambda: not game.value(LISTED, "QuietUninstallString"),
                    "no entry in the list of programs")


main(sys.argv[1])
