#!/usr/bin/python3
"""Starts the game while the screen readers' registry hangs: keys act all the same, and a reader
hears the game as soon as the registry is back.

usage: frozenregistry_test.py BUILD-FOLDER
"""

import os
import pathlib
import signal
import subprocess
import sys

from session import LIMIT, Reader, Session, install, wait


def registry(session):
    """The process that serves this session's screen readers."""
    for entry in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            if (b"at-spi2-registryd" in (entry / "cmdline").read_bytes()
                    and str(session.folder).encode() in (entry / "environ").read_bytes()):
                return int(entry.name)
        except OSError:
            continue
    return None


def titled(title):
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", title],
                           capture_output=True, check=False, timeout=LIMIT)
    return found.stdout.split()


def main(build):
    with Session() as session:
        reader = Reader()
        program = install(build, session.folder / "package")
        (program.parent / "progress.ini").write_bytes(b" 1 \r\n 2 \r\n\r\n")
        wait(lambda: registry(session), "the registry")
        frozen = registry(session)
        os.kill(frozen, signal.SIGSTOP)
        try:
            game = session.start(program)
            wait(lambda: titled("^Welcome to Duskmarch"), "the window")
            number = titled("^Welcome to Duskmarch")[0].decode()
            subprocess.run(["xdotool", "windowactivate", "--sync", number], check=True,
                           timeout=LIMIT)
            subprocess.run(["xdotool", "key", "Down"], check=True, timeout=LIMIT)
            # The toolkit's own question to the registry would take most of a minute.
            wait(lambda: titled("^Start new game"), "a key to act", limit=10)
        finally:
            os.kill(frozen, signal.SIGCONT)
        reader.expect_window("frame", "Start new game")
        reader.expect("Test mission", "Down")
        game.terminate()
        assert game.wait(LIMIT) == 0


main(sys.argv[1])
