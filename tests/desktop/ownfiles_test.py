#!/usr/bin/python3
"""Plays the installed package where its folder cannot be written, and starts it twice.

usage: ownfiles_test.py BUILD-FOLDER
"""

import array
import os
import pathlib
import signal
import subprocess
import sys

from session import LIMIT, Reader, Session, install, wait

WELCOME = "Welcome to Duskmarch, version 0.1 testing 3, by Quorvane.  Main menu."
REFUSAL = "Duskmarch is already running."


def unwritable(folder):
    """What comes before a command so that it cannot write into the folder. Permissions are enough,
    but for the administrator, who is held back by a file system alone."""
    if os.geteuid() != 0:
        folder.chmod(0o555)
        return []
    return ["unshare", "--mount", "sh", "-c",
            'mount --bind "$0" "$0" && mount -o remount,bind,ro "$0" && exec "$@"', folder]


def contents(folder):
    return sorted(str(file.relative_to(folder)) for file in folder.rglob("*"))


def is_heard(recording):
    samples = array.array("f")
    if recording.exists():
        data = recording.read_bytes()
        samples.frombytes(data[:len(data) // 4 * 4])
    return any(abs(sample) > 0.05 for sample in samples)


def the_second_is_heard(session, program):
    """Before there is a reader, by the own voice; until Enter closes its box."""
    recording = session.folder / "recording"
    second = subprocess.Popen(program, env=dict(
        os.environ, SDL_AUDIODRIVER="disk", SDL_DISKAUDIOFILE=str(recording)))
    session.children.append(second)
    wait(lambda: is_heard(recording), "the voice of the second game")
    assert second.poll() is None

    def closed():
        subprocess.run(["xdotool", "key", "Return"], check=True, timeout=LIMIT)
        return second.poll() is not None
    wait(closed, "the end of the second game")
    assert second.returncode == 1, second.returncode


def labels(reader):
    """The texts that all windows show."""
    def below(node):
        for child in map(node.get_child_at_index, range(node.get_child_count())):
            if child.get_role_name() == "label":
                yield child.get_name()
            yield from below(child)
    return list(below(reader.atspi.get_desktop(0)))


def the_second_is_shown(session, reader, program):
    second = session.start(*program)
    reader.expect_window("dialog", "Duskmarch")
    reader.wait(lambda: REFUSAL in labels(reader), REFUSAL)
    reader.press("Return")
    assert second.wait(LIMIT) == 1


def end(game, how):
    game.send_signal(how)
    game.wait(LIMIT)


def main(build):
    with Session() as session:
        program = install(build, session.folder / "package")
        folder = program.parent
        brought = contents(folder)
        own = pathlib.Path(os.environ["HOME"]) / ".local/share/duskmarch"
        command = [*unwritable(folder), program]
        first = session.start(*command)
        wait(own.is_dir, "the folder of the player's files")
        the_second_is_heard(session, command)
        end(first, signal.SIGKILL)

        reader = Reader()
        (own / "progress.ini").write_bytes(b" 1 \r\n 2 \r\n\r\n")
        first = session.start(*command)  # nothing is left of the one that was killed
        reader.expect_window("frame", WELCOME)
        the_second_is_shown(session, reader, command)
        reader.expect("Start new game", "Down")
        reader.press("Tab")
        wait(lambda: (own / "progress.ini").read_bytes().startswith(b" 2 "), "the settings")
        end(first, signal.SIGTERM)
        assert contents(folder) == brought, contents(folder)

        folder.chmod(0o755)  # where it can be written now, it is
        (folder / "progress.ini").write_bytes(b" 1 \r\n 2 \r\n\r\n")
        game = session.start(program)
        reader.expect_window("frame", WELCOME)
        reader.press("Tab")
        wait(lambda: (folder / "progress.ini").read_bytes().startswith(b" 2 "), "settings beside it")
        end(game, signal.SIGTERM)


main(sys.argv[1])
