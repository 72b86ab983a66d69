#!/usr/bin/python3
"""Plays the packed game for Windows by real keys, under Wine.

usage: desktop_test.py BUILD-FOLDER [SCENE...]
"""

import math
import signal
import sys
import zipfile

from winesession import LIMIT, WineSession, loudness, wav_samples, windows_path

PROMPT = "Enter N S E W to choose your direction, or leave blank to cancel."
STORY = "Nightjar and Steelwing storm into a pool hall"
BEGIN = 480  # samples
READONLY, MULTILINE = 0x800, 0x4


def unpack(session):
    """The package in a folder whose name is in no code page."""
    place = session.folder / "gra żółw Ελληνικός"
    with zipfile.ZipFile(session.package("ZIP", "windows-x86_64.zip")) as files:
        files.extractall(place)
    [folder] = place.iterdir()
    for text in ("readme.txt", "COPYING.txt", "sounds/LICENSE.txt"):
        lines = (folder / text).read_bytes().splitlines(keepends=True)
        assert all(line.endswith(b"\r\n") for line in lines), text
    return folder


def choose(folder, mode):
    (folder / "progress.ini").write_bytes(b" %d \r\n 2 \r\n\r\n" % mode)


def start(game, folder, mode):
    choose(folder, mode)
    game.play(folder / "duskmarch.exe")


def texts(game):
    return [line.partition(" ")[2] for line in game.said()]


def settings(folder):
    return (folder / "progress.ini").read_bytes()


def expect_logged(game, folder, words):
    """One line in the log of errors, which is then gone."""
    errors = folder / "debuglog.txt"
    game.expect(errors.exists, "an error logged")
    [line] = errors.read_text(encoding="utf-8").splitlines()[:1]
    assert words in line, line
    errors.unlink()


def expect_message(game, start):
    """The message box with a text that begins so."""
    game.expect(lambda: game.window("#32770"), "the box")
    words = [part["text"] for part in game.window("#32770")["parts"]]
    assert any(text.startswith(start) for text in words), words
    game.expect(lambda: game.gets_keys("Button"), "the box before the others")


def close(game):
    game.ask("close")
    assert game.program.wait(LIMIT) == 0


def enter_the_test_mission(game):
    game.expect_focus("Duskmarch", "Welcome to Duskmarch")
    game.expect_title("Start new game", "Down")
    game.expect_title("Test mission where you control 2", "Down")
    for say_it_again in (lambda: game.press("r"), lambda: game.ask("dictate R")):
        before = game.title()
        say_it_again()
        game.expect(lambda: game.title() != before, "the same title, new to a reader")
        assert game.title().strip() == before.strip(), game.title()
    game.expect_focus("Edit", STORY, "Return")


def expect_heard(game, key, file, decibels=0):
    """The sound of the file upon the key, on both sides alike."""
    gain = 10 ** (decibels / 20)
    expected = [gain * sample for sample in wav_samples(file) if sample]
    with game.listening() as ears:
        game.press(key)
        left, right = ears.next_sound()
    assert left == right, file
    # A busy machine may lose a few samples on the way, but not make others of them.
    begin = zip(left[:BEGIN], expected[:BEGIN])
    assert all(math.isclose(*pair, rel_tol=0.001, abs_tol=1e-6) for pair in begin), file
    assert math.isclose(loudness(left), loudness(expected), abs_tol=0.5), file


def line_of_caret(game):
    page = game.focus()
    text, caret = page["text"], page["caret"]
    return text[text.rfind("\n", 0, caret) + 1:].partition("\r")[0]


def choose_to_move(game):
    game.expect_title("Nightjar selected at location B 5.", "space")
    game.expect_title("Move.  Moving is only allowed", "Down")


def open_the_box(game):
    game.expect_focus("Edit", "", "Return")
    box = game.window("#32770")
    assert box["text"] == "Choose direction", box
    assert [part["class"] for part in box["parts"]] == ["Static", "Edit", "Button", "Button"], box
    assert [part["text"] for part in box["parts"]] == [PROMPT, "", "OK", "Cancel"], box


def the_reader_hears_a_turn(game, folder):
    start(game, folder, 1)
    enter_the_test_mission(game)
    page = game.focus()
    assert page["style"] & READONLY and page["style"] & MULTILINE, page
    game.press("Down")
    game.expect(lambda: game.focus()["caret"] > 0, "the caret in the second line")
    game.expect_focus("Duskmarch", "", "Escape")
    game.expect_title("B 4,", "Up")
    choose_to_move(game)
    open_the_box(game)
    game.expect_title("Canceled.", "Escape")
    open_the_box(game)
    game.press("x", "Return")
    game.expect(lambda: (game.window("#32770") or {}).get("text") == "Duskmarch", "the message box")
    assert [part["text"] for part in game.window("#32770")["parts"] if part["class"] == "Static"
            and part["text"]] == ["Canceled"]
    game.expect_focus("Duskmarch", "", "Return")
    open_the_box(game)
    game.expect_title("Nightjar moves to the North.", "n", "Return")
    game.expect_focus("Edit", "", "shift+e")
    lines = game.focus()["text"].splitlines()
    assert "-End of turn number 1." in lines and "Nightjar moves to the North." in lines, lines
    game.expect_title("Nightjar selected at location B 4.", "Return")
    game.expect_title("Exit the game", "shift+Escape")
    game.press("Return")
    assert game.program.wait(LIMIT) == 0


def the_voice_reads_pages_and_boxes(game, folder):
    start(game, folder, 0)
    game.expect_said("Start new game", "Down")
    game.press("Down", "Return")
    game.expect_focus("Edit", STORY)
    words = game.focus()["text"].split()
    game.expect_said("i", "Right")
    game.expect_said(words[1], "ctrl+Right")
    game.expect_said(words[0], "ctrl+Left")
    beginning = words[0] + " " + words[1]
    game.expect(lambda: game.focus()["caret"] == 0, "the caret at the start")
    before = len(game.said())
    game.press("Left")  # which cannot move
    game.expect(lambda: any(beginning in line for line in game.said()[before:]), "the line again")
    game.press("Escape", "space")
    game.press("Down")
    game.hold("Return")  # which opens the box, and must not answer it
    game.expect(lambda: game.window("#32770"), "the box")
    game.expect_focus("Edit", "")
    assert not any("Canceled." in line for line in game.said()), game.said()
    game.expect_said("x", "x")
    game.expect_said("n", "n")
    game.expect_said("n", "Left")
    game.expect_said("x", "shift+Left")
    game.expect_said("OK", "Tab")
    game.expect_said("Cancel", "Tab")
    game.expect_said(PROMPT + "  xn", "Tab")
    game.expect_said("xn", "BackSpace")  # selected, as ever after Tab
    game.expect_said("comma", "comma")  # which no voice says by itself
    game.expect_said("space", "space")
    close(game)  # with the box open


def an_arrow_answers_the_box(game, folder):
    start(game, folder, 1)
    enter_the_test_mission(game)
    game.expect_focus("Duskmarch", "", "Escape")
    choose_to_move(game)
    open_the_box(game)
    game.expect_title("Nightjar moves to the North.", "Up")
    close(game)


def pages_tell_of_keys_and_sounds(game, folder):
    (folder / "comfort.ini").write_bytes(b" 1 \r\n 10 \r\n 0 \r\n\r\n")  # cues, but no ambience
    start(game, folder, 1)
    game.expect_focus("Duskmarch", "Welcome to Duskmarch")
    game.expect_focus("Edit", "Step: somebody takes a step.", "F7")
    game.press("Down", "Down")
    game.expect(lambda: line_of_caret(game).startswith("Dive: "), "the line of a sound")
    expect_heard(game, "F7", folder / "sounds/cues/dive.wav", decibels=-2)
    game.expect_focus("Duskmarch", "Main menu.", "Escape")
    game.expect_focus("Edit", "Help for the main menu.", "F1")
    assert "\nF7: a page with all sounds" in game.focus()["text"], game.focus()
    game.expect_focus("Duskmarch", "Main menu.", "Escape")
    close(game)


def the_voice_changes(game, folder):
    start(game, folder, 0)
    game.expect_said("Start new game", "Down")
    game.expect_said("High Voice", "F11")
    close(game)
    game.speech.unlink()
    game.play(folder / "duskmarch.exe")
    game.expect(lambda: "Voice High Voice" in game.said(), "the same voice again")
    game.expect_said("Low Voice", "shift+F11")
    assert game.said().count("Voice Low Voice") == 1, game.said()
    game.expect_said("Exit the game", "Escape")
    game.expect_said("Good bye.", "Return")
    assert game.program.wait(LIMIT) == 0


def without_voices_the_title_tells(game, folder):
    game.tell("voice", "none")
    start(game, folder, 0)
    game.expect_title("Start new game", "Down")
    close(game)
    game.tell("voice", None)


def the_voice_hangs(game, folder):
    start(game, folder, 0)
    game.expect_said("Start new game", "Down")
    game.tell("voice", "hang")
    game.press("Down", "Prior")
    game.expect(lambda: settings(folder) == b" 0 \r\n 3 \r\n\r\n", "the new rate kept")
    game.tell("voice", None)
    game.expect(lambda: "Sapi rate changed to 3." in texts(game), "the voice again")
    game.expect_said("About", "Down")
    close(game)


def jaws_speaks_goes_and_comes_back(game, folder):
    start(game, folder, 3)
    game.expect_said("Start new game", "Down")
    assert game.said()[-1] == "SayString(0) Start new game", game.said()
    game.tell("jaws", "gone")
    game.expect_said("Speech service lost.  Test mission where you control 2 established heroes "
                     "against many foes.", "Down")
    game.tell("jaws", None)
    game.expect(lambda: game.press("r") or game.said()[-1].startswith("SayString(0) Test mission"),
                "JAWS again")
    close(game)
    expect_logged(game, folder, "error in sayit: FreedomSci.JawsApi cannot be made")


def tab_goes_round_the_engines(game, folder):
    start(game, folder, 0)
    for mode in (1, 2, 3, 0):
        game.press("Tab")
        game.expect(lambda: settings(folder) == b" %d \r\n 2 \r\n\r\n" % mode, f"mode {mode}")
    close(game)
    game.without_jaws()
    game.play(folder / "duskmarch.exe")
    game.press("Tab", "Tab")
    game.expect_said("Jaws does not seem to be responding, Sapi on.", "Tab")
    game.with_standins()
    close(game)


def the_settings_are_locked(game, folder):
    start(game, folder, 1)
    game.expect_focus("Duskmarch", "Welcome to Duskmarch")
    assert game.ask("hold " + windows_path(folder / "progress.ini"))
    game.expect_title("Sapi rate changed to 3.  Your speech settings cannot be saved.", "Prior")
    assert settings(folder) == b" 1 \r\n 2 \r\n\r\n", settings(folder)
    assert game.ask("letgo")
    game.expect_title("Sapi rate changed to 4.", "Prior")
    game.expect(lambda: settings(folder) == b" 1 \r\n 4 \r\n\r\n", "the settings kept")
    close(game)


def window_eyes_is_sent_its_keys(game, folder):
    start(game, folder, 2)
    game.expect_focus("Duskmarch", "Welcome to Duskmarch")
    before = len(game.ask("sentkeys"))
    # The keys of mode 2 are the player's to no one: as a Ctrl, one would have emptied the title.
    game.expect_title("Start new game", "Down")
    sent = ["17 down", "16 down", "84 down", "17 up", "16 up", "84 up"]
    game.expect(lambda: game.ask("sentkeys")[before:] == sent, "Ctrl, Shift and T")
    game.expect_title("Test mission where you control 2", "Down")
    game.expect_title("Rev 1, Test mission", "bracketright")
    close(game)


def sounds_are_heard_as_they_are_recorded(game, folder):
    (folder / "comfort.ini").write_bytes(b" 1 \r\n 0 \r\n 0 \r\n\r\n")  # no cues, no ambience
    start(game, folder, 1)
    game.expect_focus("Duskmarch", "Welcome to Duskmarch")
    for key, sound in (("Down", "arrows"), ("Tab", "WE")):
        expect_heard(game, key, folder / "sounds" / "menu" / (sound + ".wav"))
    close(game)


def without_a_device_it_ends(game, folder):
    choose(folder, 1)
    game.start_program(folder / "duskmarch.exe",
                       PULSE_SERVER=f"unix:{game.folder}/nowhere")
    expect_message(game, "Unable to start DirectSound")
    game.press("Return")
    assert game.program.wait(LIMIT) == 1
    expect_logged(game, folder, "sound")


def a_frozen_device_holds_nothing_up(game, folder):
    choose(folder, 1)
    with game.frozen_sink():
        game.start_program(folder / "duskmarch.exe")
        expect_message(game, "Unable to start DirectSound")
        game.press("Return")
        assert game.program.wait(LIMIT) == 1
    expect_logged(game, folder, "the sound device does not answer")
    game.play(folder / "duskmarch.exe")
    game.expect_title("Start new game", "Down")
    with game.frozen_sink():
        game.expect_title("Test mission where you control 2", "Down")
        game.ask("close")
        # Wine falls over a thread of its own driver, which waits for the device when all are ended.
        assert game.program.wait(LIMIT) in (0, -signal.SIGSEGV)
    assert not (folder / "crash.txt").exists()


def a_second_start_is_refused(game, folder):
    start(game, folder, 1)
    game.expect_title("Start new game", "Down")
    first = game.program
    game.start_program(folder / "duskmarch.exe")
    expect_message(game, "Duskmarch is already running.")
    game.press("Return")
    assert game.program.wait(LIMIT) == 1
    game.program = first
    game.expect_title("Test mission where you control 2", "Down")
    close(game)


def arguments_are_answered(game, folder):
    for terminal in (False, True):
        answer = game.answer_of(folder / "duskmarch.exe", "--żółw", terminal=terminal)
        assert answer.returncode == 2, answer
        said = answer.stdout if terminal else answer.stderr
        assert 'duskmarch: There is no argument "--żółw"; --help tells' in said, answer


def a_crash_leaves_the_keys(game, folder):
    start(game, folder, 1)
    game.expect_title("Start new game", "Down")
    game.expect_title("Test mission where you control 2", "Down")
    assert game.ask("crash")
    assert game.program.wait(LIMIT) != 0
    note = (folder / "crash.txt").read_text(encoding="utf-8")
    assert note.count("key 40\n") == 2, note
    [dump] = folder.glob("*.dmp")
    assert dump.read_bytes().startswith(b"MDMP"), dump


def the_system_shuts_down(game, folder):
    start(game, folder, 2)
    game.expect_title("Start new game", "Down")
    assert game.ask("endsession")
    assert game.program.wait(LIMIT) == 0


SCENES = (the_reader_hears_a_turn, the_voice_reads_pages_and_boxes, an_arrow_answers_the_box,
          pages_tell_of_keys_and_sounds, the_voice_changes, the_voice_hangs,
          without_voices_the_title_tells, jaws_speaks_goes_and_comes_back,
          tab_goes_round_the_engines, window_eyes_is_sent_its_keys,
          sounds_are_heard_as_they_are_recorded, the_settings_are_locked, the_system_shuts_down,
          a_second_start_is_refused, arguments_are_answered, without_a_device_it_ends,
          a_frozen_device_holds_nothing_up, a_crash_leaves_the_keys)


def main(build, *chosen):
    with WineSession(build) as game:
        game.run(game.build / "onscreen-tests.exe")
        folder = unpack(game)
        errors = folder / "debuglog.txt"
        for scene in SCENES:
            if not chosen or scene.__name__ in chosen:
                print(scene.__name__, flush=True)
                scene(game, folder)
                assert not errors.exists(), errors.read_text(encoding="utf-8")


main(*sys.argv[1:])
