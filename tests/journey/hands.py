"""A person's hands and eyes for the journeys: a virtual display with a window manager of its own, real keys and a real
mouse. Where a widget is and when the program has dealt with what came is asked from the program itself, which builds for
tests can be asked (see src/desktop/test_hook.h)."""

import errno
import os
import pathlib
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
DATA = ROOT / "tests" / "data" / "jane_roe"
CANNOT_RUN = 77


class Failed(Exception):
    pass


class Gone(Exception):
    """The program has ended."""


def wait_for(what, condition, seconds=20.0):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.05)
    raise Failed(f"waited in vain for {what}")


def leave_in_order():
    """Whoever ends a journey early ends what it started, too."""
    def leave(number, _):
        raise SystemExit(128 + number)

    for ending in (signal.SIGTERM, signal.SIGHUP):
        signal.signal(ending, leave)


class Display:
    """A virtual display of its own, with a window manager."""

    def __init__(self):
        self.scratch = tempfile.TemporaryDirectory(prefix="quillbrook-display-")
        read, write = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x1024x24", "-nolisten", "tcp",
                                        "-noreset"],
                                       pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        self.manager = None
        self.programs = []
        try:
            self.set_up(read)
        except BaseException:
            self.close()
            raise

    def set_up(self, read):
        number = ""
        while not number.endswith("\n"):  # the server writes digits and line end apart
            piece = os.read(read, 16).decode()
            if not piece:
                break
            number += piece
        os.close(read)
        number = number.strip()
        if not number:
            raise Failed("no virtual display")
        self.env = {**os.environ, "DISPLAY": ":" + number, "LC_ALL": "C.UTF-8"}
        self.env["CUPS_SERVER"] = "127.0.0.1:9"  # nobody's printer may start to print
        for name in ("HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"):  # nor anybody's files be found
            self.env[name] = self.scratch.name
        self.env.pop("WAYLAND_DISPLAY", None)
        self.env.pop("QT_QPA_PLATFORM", None)
        self.manager = subprocess.Popen(["openbox"], env=self.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

        wait_for("a window manager", self.managed)

    def managed(self):
        answer = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], env=self.env, capture_output=True, text=True,
                                check=False).stdout
        return "window id" in answer

    def start(self, folder, **options):
        """Starts the program; a person is there as soon as it can be asked."""
        place = str(pathlib.Path(self.scratch.name) / f"hook-{len(self.programs)}")
        command = [str(folder / "quillbrook")]
        options |= {"env": {**self.env, "QUILLBROOK_TEST_HOOK": place}, "cwd": "/"}
        try:
            program = subprocess.Popen(command, **options)
        except OSError as busy:  # a child of another start still holds the copy open for writing, for a moment
            if busy.errno != errno.ETXTBSY:
                raise
            time.sleep(1)
            program = subprocess.Popen(command, **options)
        self.programs.append(program)
        return program, Person(self, program, place)

    def tool(self, *words):
        return subprocess.run(["xdotool", *words], env=self.env, capture_output=True, text=True, check=False, timeout=60).stdout.strip("\n")

    def close(self):
        for program in self.programs:
            if program.poll() is None:
                print("still running at the end: killed")
                program.kill()
        for process in (self.manager, self.server):
            if process is None:
                continue
            process.terminate()
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        self.scratch.cleanup()


class Person:
    def __init__(self, display, program, hook):
        self.display = display
        self.program = program
        self.line = wait_for("the program's ear", lambda: self.reach(hook), 60)

    def reach(self, hook):
        if self.program.poll() is not None:
            raise Failed(f"the program ended with {self.program.returncode}")
        ear = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        try:
            ear.connect(hook)
        except OSError:
            ear.close()
            return None
        ear.settimeout(120)
        return ear.makefile("rw", encoding="utf-8")

    def asks(self, *words):
        try:
            self.line.write(" ".join(words) + "\n")
            self.line.flush()
            return self.line.readline().rstrip("\n")
        except TimeoutError:
            raise Failed("the program does not answer") from None
        except OSError as gone:
            raise Gone(str(gone)) from None

    def settles(self):
        """Returns when the program has dealt with what the hands have done."""
        if self.asks("settle") != "settled":
            raise Gone("the program has ended")

    def title(self):
        return self.display.tool("getactivewindow", "getwindowname")

    def sees(self, title, seconds=60):
        try:
            wait_for(f"the window {title!r}", lambda: self.title() == title and self.asks("active") == title, seconds)
        except Failed as why:
            raise Failed(f"{why} (now {self.title()!r})") from None

    def presses(self, *keys):
        for key in keys:
            self.display.tool("key", "--clearmodifiers", key)
            try:
                self.settles()
            except Gone:
                return  # the key has ended the program

    def types(self, text):
        self.display.tool("type", "--delay", "12", text)
        self.settles()

    def fills(self, *texts):
        """Each text, then Enter to the field that follows."""
        for text in texts:
            if text:
                self.types(text)
            self.presses("Return")

    def place(self, name):
        """Left, top, width and height of a widget in the window in front."""
        found = wait_for(f"the widget {name!r}", lambda: self.asks("where", name))
        return tuple(int(number) for number in found.split())

    def clicks(self, name):
        left, top, width, height = self.place(name)
        self.display.tool("mousemove", str(left + width // 2), str(top + height // 2), "click", "1")
        self.settles()

    def has_keyboard(self, name):
        wait_for(f"the keyboard in {name!r}", lambda: self.asks("focus") == name)

    def chooses_page(self, number):
        """From 1; 7 is the client's copy."""
        self.clicks(f"imgPage({number - 1})")

    def leaves(self, seconds=30):
        self.presses("alt+F4")
        try:
            self.program.wait(seconds)
        except subprocess.TimeoutExpired:
            raise Failed("the program did not close") from None
        if self.program.returncode != 0:
            raise Failed(f"the program ended with {self.program.returncode}")


def starts(display, folder, **options):
    program, person = display.start(folder, **options)
    person.sees("Splash Screen")
    person.presses("Return")
    person.sees("Quillbrook")
    person.settles()
    if person.asks("text", "qt_msgbox_label") == "No Events Found":  # a folder without proposals
        time.sleep(0.6)  # nobody asked for it: it takes no key before
        person.presses("Return")
        person.sees("Quillbrook")
    return program, person


def install(folder, program):
    """A program folder with the settings of the example and no proposal."""
    shutil.copy(program, folder / "quillbrook")
    shutil.copy(DATA / "UserPreferences.txt", folder)
    (folder / "Proposals").mkdir()
    shutil.copy(DATA / "SalesTax.txt", folder / "Proposals")


def words_on(pdf, page):
    return subprocess.run(["pdftotext", "-layout", "-f", str(page), "-l", str(page), str(pdf), "-"], capture_output=True,
                          text=True, check=True).stdout


def journey(name, travel):
    """Runs a journey with a display and the folder of an installation; returns the exit code."""
    leave_in_order()
    with tempfile.TemporaryDirectory(prefix="quillbrook-journey-") as scratch:
        folder = pathlib.Path(scratch)
        install(folder, sys.argv[1])
        display = Display()
        try:
            travel(display, folder)
        except (Failed, Gone) as failure:
            print(f"FAIL: {failure}")
            logs = ROOT / "build" / "logs"
            logs.mkdir(parents=True, exist_ok=True)
            if shutil.which("import"):
                subprocess.run(["import", "-window", "root", str(logs / f"{name}.png")], env=display.env, check=False)
            return 1
        finally:
            display.close()
    return 0
