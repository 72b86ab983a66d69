"""A private desktop session, and the ears of a screen reader in it.

Nothing here waits for a time, only for what has to happen, with a limit no machine should need.
"""

import ctypes
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time

LIMIT = 60


def end_with_the_test():
    ctypes.CDLL(None).prctl(1, signal.SIGTERM)  # PR_SET_PDEATHSIG


def wait(condition, what, limit=LIMIT):
    limit += time.monotonic()
    while not condition():
        if time.monotonic() > limit:
            raise AssertionError(f"in vain: {what() if callable(what) else what}")
        time.sleep(0.02)


def install(build, folder):
    """The program, put into a folder as players get it."""
    subprocess.run(["cmake", "--install", build, "--prefix", folder], check=True,
                   stdout=subprocess.DEVNULL)
    return folder / "duskmarch"


class Session:
    """A home, a display, a window manager and a session bus. What it started ends with it."""

    def __enter__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="duskmarch-desktop-"))
        self.log = open(self.folder / "log", "w+", encoding="utf-8", errors="replace")
        self.children = []
        try:
            self.set_environment()
            self.start_display()
            os.environ["DBUS_SESSION_BUS_ADDRESS"] = self.answer_of(
                "dbus-daemon", "--session", "--nofork", "--print-address={}")
            self.start_manager()
        except BaseException as error:
            self.__exit__(type(error), error, None)
            raise
        return self

    def __exit__(self, kind, error, trace):
        for child in reversed(self.children):
            child.terminate()
            try:
                child.wait(LIMIT)
            except subprocess.TimeoutExpired:
                child.kill()
                child.wait()
        if kind is not None:
            self.log.seek(0)
            print("What the programs of the session wrote:", self.log.read(), sep="\n")
        shutil.rmtree(self.folder, ignore_errors=True)

    def set_environment(self):
        home, run = self.folder / "home", self.folder / "run"
        home.mkdir()
        run.mkdir(mode=0o700)
        path = os.environ["PATH"]
        os.environ.clear()
        os.environ.update(PATH=path, HOME=str(home), XDG_RUNTIME_DIR=str(run), LANG="C.UTF-8",
                          GSETTINGS_BACKEND="memory", SDL_AUDIODRIVER="dummy")

    def start_display(self):
        os.environ["DISPLAY"] = ":" + self.answer_of(
            "Xvfb", "-displayfd", "{}", "-screen", "0", "1400x800x24", "-nolisten", "tcp")

    def start_manager(self):
        managed = self.folder / "managed"  # a window that came sooner would not get the focus
        self.start("openbox", "--sm-disable", "--startup", f"touch {managed}")
        wait(managed.exists, "the window manager")

    def start(self, *command, **options):
        self.children.append(subprocess.Popen(
            command, stdin=subprocess.DEVNULL, stdout=self.log, stderr=self.log,
            preexec_fn=end_with_the_test, **options))
        return self.children[-1]

    def answer_of(self, *command):
        """Starts a program that writes a line when it is ready, to the descriptor that {} names."""
        read, write = os.pipe()
        self.start(*(word.format(write) for word in command), pass_fds=(write,))
        os.close(write)
        with os.fdopen(read) as answer:
            line = answer.readline().strip()
        assert line, f"{command[0]} did not start"
        return line


class WaylandSession(Session):
    """One whose display is Wayland's, without X11."""

    def start_display(self):
        folder = self.folder / "display"
        folder.mkdir(mode=0o700)
        settings, named = folder / "settings", folder / "named"
        settings.write_text(f'exec echo "$WAYLAND_DISPLAY" > {named}\n')
        user = ()
        if os.geteuid() == 0:  # it does not run for root
            user = ("setpriv", "--reuid=nobody", "--regid=nogroup", "--clear-groups")
            self.folder.chmod(0o711)
            shutil.chown(folder, "nobody", "nogroup")
        self.start(*user, "sway", "-c", str(settings), env=dict(
            os.environ, XDG_RUNTIME_DIR=str(folder), LIBSEAT_BACKEND="noop",
            WLR_BACKENDS="headless", WLR_LIBINPUT_NO_DEVICES="1", WLR_RENDERER="pixman"))
        wait(lambda: named.exists() and named.read_text().endswith("\n"), "the display")
        os.environ.update(WAYLAND_DISPLAY=str(folder / named.read_text().strip()),
                          QT_QPA_PLATFORM="wayland")

    def start_manager(self):
        # The display manages itself. A window keeps the focus only while there is a keyboard.
        self.start("wtype", "-s", str(3600 * 1000))


class Reader:
    """What reaches a screen reader over the accessibility bus; and the player's hands."""

    def __init__(self, presser=("xdotool", "key")):
        self.presser = presser
        import gi  # here, because it looks for the session at once
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi, GLib
        self.atspi, self.gone = Atspi, GLib.Error
        self.events = GLib.MainContext.default()
        self.heard = []  # the window's titles, as they were announced
        self.focus = None
        Atspi.init()
        self.listener = Atspi.EventListener.new(self.hear)
        for kind in ("object:property-change:accessible-name", "object:state-changed:focused",
                     "window:activate"):
            self.listener.register(kind)

    def hear(self, event):
        if event.type.startswith("object:property-change"):
            if isinstance(event.any_data, str):  # else it only says that there is another name
                self.heard.append(event.any_data.strip())
        elif event.type.startswith("window:activate"):
            # A title set before the window is active again, as behind a box that closes, is not
            # announced: a reader says the one it finds now.
            self.heard.append(event.source.get_name().strip())
        elif event.detail1:
            self.focus = event.source

    def wait(self, condition, what):
        def after_the_news():
            while self.events.iteration(False):
                pass
            try:
                return condition()
            except self.gone:  # what was asked about has just disappeared
                return False
        wait(after_the_news, lambda: f"{what}\nheard: {self.heard}\nfocus: {self.described()}")

    def described(self):
        return self.focus and (self.focus.get_role_name(), self.focus.get_name())

    def press(self, *keys):
        for key in keys:
            subprocess.run([*self.presser, key], check=True, timeout=LIMIT)

    def expect(self, text, *keys):
        """Presses the keys; a title that begins with the text has to be announced for it."""
        before = len(self.heard)
        self.press(*keys)
        self.wait(lambda: any(said.startswith(text) for said in self.heard[before:]), text)

    def expect_focus(self, role, name, *keys):
        self.press(*keys)
        self.wait(lambda: self.described() == (role, name), f"focus on {role} {name}")

    def expect_window(self, role, name):
        """An active window of that role and name."""
        def windows():
            desktop = self.atspi.get_desktop(0)
            for program in map(desktop.get_child_at_index, range(desktop.get_child_count())):
                yield from map(program.get_child_at_index, range(program.get_child_count()))

        def active():
            return any(window.get_role_name() == role and window.get_name() == name
                       and window.get_state_set().contains(self.atspi.StateType.ACTIVE)
                       for window in windows() if window)
        self.wait(active, f"an active {role} {name}")

    def text(self):
        return self.atspi.Text.get_text(self.focus, 0, -1)

    def line(self):
        """The line of the caret, as it is shown."""
        caret = self.atspi.Text.get_caret_offset(self.focus)
        return self.atspi.Text.get_text_at_offset(
            self.focus, caret, self.atspi.TextBoundaryType.LINE_START).content.strip()
