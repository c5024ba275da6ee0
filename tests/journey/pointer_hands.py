#!/usr/bin/env python3
"""A person's way through the built program: real keys in a real window on a virtual display. Types a proposal from an
empty start, saves it, compares the file byte for byte, starts the program again, opens the file, prints it to PDF and
compares the words on paper."""

import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
DATA = ROOT / "tests" / "data" / "jane_roe"


class Failed(Exception):
    pass


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
        self.env.pop("WAYLAND_DISPLAY", None)
        self.env.pop("QT_QPA_PLATFORM", None)
        self.manager = subprocess.Popen(["openbox"], env=self.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

        wait_for("a window manager", self.managed)

    def managed(self):
        answer = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], env=self.env, capture_output=True, text=True,
                                check=False).stdout
        return "window id" in answer

    def start(self, folder):
        program = subprocess.Popen([str(folder / "quillbrook")], env=self.env, cwd="/")
        self.programs.append(program)
        return program

    def tool(self, *words):
        return subprocess.run(["xdotool", *words], env=self.env, capture_output=True, text=True, check=False, timeout=60).stdout.strip()

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


class Person:
    def __init__(self, display):
        self.display = display

    def title(self):
        return self.display.tool("getactivewindow", "getwindowname")

    def sees(self, title):
        wait_for(f"the window {title!r} (now {self.title()!r})", lambda: self.title() == title)

    def presses(self, *keys):
        for key in keys:
            self.display.tool("key", "--clearmodifiers", key)
            time.sleep(0.03)

    def types(self, text):
        self.display.tool("type", "--delay", "12", text)
        time.sleep(0.05)

    def fills(self, *texts):
        """Each text, then Enter to the field that follows."""
        for text in texts:
            if text:
                self.types(text)
            self.presses("Return")

    def chooses_page(self, number):
        # The page buttons stand at the right end of the tool strip, the client's copy last.
        x = 1060 + 33 * (number - 1)
        self.display.tool("mousemove", str(x), "58", "click", "1")
        time.sleep(0.15)


def write_proposal(person):
    person.fills("January 21, 2008", "6:00 PM", "Jane Roe", "12 Elm Street", "Springfield, IL 62701", "(217) 555-0100", "", "",
                 "Garden Hall", "")
    person.fills("Ceremony arch", "1250", "Aisle runner")
    person.types("75.5")
    # The menu key opens the field's own menu; from its foot upwards: taxable, then exempt.
    person.presses("Menu", "Up", "Up", "Return")
    person.chooses_page(2)
    person.presses("F8")
    person.fills("3", "Chair covers", "19.99")
    person.chooses_page(5)
    person.presses(*["Down"] * 32)
    person.fills("Last line")
    person.types("10")
    person.chooses_page(6)
    person.presses("ctrl+a")
    person.types("500")
    person.chooses_page(1)


def save_and_leave(person, program, folder):
    person.sees("Quillbrook - File Name = Jane Roe.hef")
    person.presses("ctrl+s")
    person.sees("Quillbrook")  # the box that says so
    person.presses("Return")
    person.sees("Quillbrook - File Name = Jane Roe.hef")
    written = (folder / "Proposals" / "Jane Roe.hef").read_bytes()
    expected = (DATA / "Jane Roe.hef").read_bytes()
    if written != expected:
        at = next((i for i, (a, b) in enumerate(zip(written, expected)) if a != b), min(len(written), len(expected)))
        raise Failed(f"the file differs at {at}: {written[at - 20:at + 20]!r} for {expected[at - 20:at + 20]!r}")
    person.presses("alt+F4")
    try:
        program.wait(20)
    except subprocess.TimeoutExpired:
        raise Failed("the program did not close") from None
    if program.returncode != 0:
        raise Failed(f"the program ended with {program.returncode}")


def open_and_print(person, folder):
    person.presses("ctrl+o")
    person.sees("Opening Proposal File")
    person.presses("Down", "Return")
    person.sees("Quillbrook - File Name = Jane Roe.hef")
    person.presses("ctrl+p")
    person.sees("Print to PDF")
    person.presses("Return")
    pdf = folder / "Proposals" / "Jane Roe.pdf"
    wait_for("the PDF", lambda: pdf.exists() and pdf.stat().st_size > 0)
    person.sees("Quillbrook - File Name = Jane Roe.hef")
    return pdf


def words_on(pdf, page):
    return subprocess.run(["pdftotext", "-layout", "-f", str(page), "-l", str(page), str(pdf), "-"], capture_output=True,
                          text=True, check=True).stdout


def compare_paper(pdf):
    expected = {
        1: ["January 21, 2008", "6:00 PM", "Jane Roe", "12 Elm Street", "Springfield, IL 62701", "(217) 555-0100", "Garden Hall",
            "Ceremony arch", "1,250.00", "Aisle runner", "75.50", "Page 1 of 6", "Continued on Page 2", "Proposal for Jane Roe"],
        2: ["Chair covers", "59.97", "19.99", "ea.", "@ $", "Page 2 of 6"],
        5: ["Last line", "10.00", "Page 5 of 6"],
        6: ["1,395.47", "1,319.97", "108.90", "1,504.37", "500.00", "1,004.37", "Page 6 of 6", "Our Copy"],
        7: ["1,395.47", "1,319.97", "108.90", "1,504.37", "500.00", "1,004.37", "Page 6 of 6", "Client's Copy"],
    }
    for page, texts in expected.items():
        found = " ".join(words_on(pdf, page).split())
        for text in texts:
            if text not in found:
                raise Failed(f"page {page} lacks {text!r}: {found[:600]}")


def starts(display, person, folder):
    program = display.start(folder)
    person.sees("Splash Screen")
    person.presses("Return")
    person.sees("Quillbrook")
    time.sleep(0.5)
    return program


def travel(display, folder):
    person = Person(display)
    program = starts(display, person, folder)
    write_proposal(person)
    save_and_leave(person, program, folder)

    program = starts(display, person, folder)
    compare_paper(open_and_print(person, folder))
    person.presses("alt+F4")
    try:
        program.wait(5)
    except subprocess.TimeoutExpired:
        program.kill()
        raise Failed("an opened and printed proposal asked about changes on closing") from None


def main():
    leave_in_order()
    with tempfile.TemporaryDirectory(prefix="quillbrook-journey-") as scratch:
        folder = pathlib.Path(scratch)
        shutil.copy(sys.argv[1], folder / "quillbrook")
        shutil.copy(DATA / "UserPreferences.txt", folder)
        (folder / "Proposals").mkdir()
        shutil.copy(DATA / "SalesTax.txt", folder / "Proposals")
        display = Display()
        try:
            travel(display, folder)
        except Failed as failure:
            print(f"FAIL: {failure}")
            logs = ROOT / "build" / "logs"
            logs.mkdir(parents=True, exist_ok=True)
            if shutil.which("import"):
                subprocess.run(["import", "-window", "root", str(logs / "journey.png")], env=display.env, check=False)
            return 1
        finally:
            display.close()
    print("OK: typed, saved, opened and printed")
    return 0


if __name__ == "__main__":
    sys.exit(main())
