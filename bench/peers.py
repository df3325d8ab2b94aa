# SPDX-License-Identifier: MIT
"""Orvik and other terminals that happen to be installed, started on a display of their own."""
import mmap
import os
import pathlib
import shutil
import signal
import statistics
import struct
import subprocess
import tempfile
import time

# What a terminal is started with to run a program; it must not hand over to a server or go to the background.
PEERS = {
    "urxvt": ["urxvt", "-e"],
    "xterm": ["xterm", "-e"],
    "st": ["stterm", "-e"],
    "qterminal": ["qterminal", "-e"],
    "konsole": ["konsole", "--nofork", "-e"],
}


def installed(names):
    return [name for name in names if shutil.which(PEERS[name][0])]


class Display:
    """An Xvfb, as long as it is open."""

    def __enter__(self):
        self.folder = tempfile.TemporaryDirectory()
        read_end, write_end = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1600x1200x24", "-noreset", "-fbdir", self.folder.name],
            pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as answer:
            number = answer.readline().strip()
        if not number:
            raise SystemExit("Xvfb does not start")
        self.name = ":" + number
        with open(os.path.join(self.folder.name, "Xvfb_screen0"), "rb") as file:
            self.screen = mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)
        return self

    def __exit__(self, *_):
        self.screen.close()
        self.server.terminate()
        self.server.wait()
        self.folder.cleanup()

    def red_points(self):
        """How many of the points of a grid are red. The server shares its screen as a file in the format of xwd(1):
        25 numbers, a name and a table of colours precede the pixels, four bytes each with blue first."""
        step = 20
        header = struct.unpack(">25I", self.screen[:100])
        header_size, height, line_bytes, colours = header[0], header[5], header[12], header[19]
        begin = header_size + 12 * colours
        count = 0
        for y in range(0, height, step):
            line = self.screen[begin + y * line_bytes:begin + (y + 1) * line_bytes]
            points = zip(line[::4 * step], line[1::4 * step], line[2::4 * step])
            count += sum(1 for blue, green, red in points if red > 1.5 * max(green, blue) + 30)
        return count


class Run:
    """A terminal with a program in it that writes its findings to the file $FINDINGS."""

    def __init__(self, display, name, orvik, program, environment=()):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="bench."))
        self.findings = self.home / "findings"
        data = pathlib.Path(__file__).resolve().parent.parent / "data"
        environment = dict(os.environ, DISPLAY=display.name, HOME=str(self.home), LOGNAME="bench", SHELL=str(program),
                           ORVIK_HOME=str(data), QT_QPA_PLATFORM="xcb", FINDINGS=str(self.findings), **dict(environment))
        command = [orvik] if name == "orvik" else [*PEERS[name], str(program)]
        self.begin = time.time()
        self.process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL, start_new_session=True)

    def wait(self, seconds):
        """The numbers found; nothing when the terminal has ended without an answer or takes too long."""
        def numbers():
            text = self.findings.read_text() if self.findings.exists() else ""
            return [float(number) for number in text.split()] if text.endswith("\n") else None

        return self.wait_for(numbers, seconds, 0.01)

    def wait_for(self, condition, seconds, interval):
        """What the condition gives as soon as that is something; nothing when the terminal has ended or it takes too long."""
        deadline = time.monotonic() + seconds
        while time.monotonic() < deadline:
            if found := condition():
                return found
            if self.process.poll() is not None:
                return None
            time.sleep(interval)
        return None

    def peak_memory(self):
        """Megabytes (10^6 bytes) that the terminal's own process has held at most so far."""
        status = pathlib.Path(f"/proc/{self.process.pid}/status").read_text()
        return next(int(line.split()[1]) * 1024 / 1e6 for line in status.splitlines() if line.startswith("VmHWM"))

    def close(self):
        if self.process.poll() is None:
            os.killpg(self.process.pid, signal.SIGTERM)
            try:
                self.process.wait(5)
            except subprocess.TimeoutExpired:
                os.killpg(self.process.pid, signal.SIGKILL)
                self.process.wait()
        shutil.rmtree(self.home, ignore_errors=True)


def write_program(folder, name, text):
    path = pathlib.Path(folder, name)
    path.write_text(text)
    path.chmod(0o755)
    return path


def median(values):
    return statistics.median(values) if values else None


def cell(value, form):
    return f"{value:{form}}" if value is not None else "-"


def print_table(heads, rows):
    widths = [max(len(row[i]) for row in [heads, *rows]) for i in range(len(heads))]
    for row in [heads, ["-" * width for width in widths], *rows]:
        print("| " + " | ".join(text.ljust(width) for text, width in zip(row, widths)) + " |")
