# SPDX-License-Identifier: GPL-3.0-or-later
# The printer is a queue whose end is a socket of this story: what arrives there is what was printed.
import collections
import socket
import subprocess

from gi.repository import Atspi
from support import story
from support.program import command_line, expect


class Printer:
    """The far end of the queue that prints by default."""

    def __init__(self):
        self.listener = socket.create_server(("127.0.0.1", 0))
        self.listener.settimeout(60)
        port = self.listener.getsockname()[1]
        subprocess.run(["lpadmin", "-p", "Staffroom", "-E", "-m", "raw", "-v",
                        f"socket://127.0.0.1:{port}/?waiteof=false"], check=True, stderr=subprocess.DEVNULL)
        subprocess.run(["lpadmin", "-d", "Staffroom"], check=True)

    def next_job(self):
        connection, _ = self.listener.accept()
        with connection:
            connection.settimeout(60)
            return b"".join(iter(lambda: connection.recv(65536), b""))


def words(pdf):
    """What stands on the sheets but for their numbers: the printer's paper may break them elsewhere."""
    text = subprocess.run(["pdftotext", "-", "-"], input=pdf, capture_output=True, check=True).stdout
    counted = collections.Counter(text.decode().split())
    for page in range(1, text.count(b"\f") + 1):
        counted.subtract(["Page", str(page)])
    return counted


def made(this, code):
    """The same report by the command line."""
    out = this.path(f"{code}.pdf")
    command_line("report", "--code", code, "--title", "MATH", "--out", out, this.path("MATH.TYR"))
    with open(out, "rb") as file:
        return words(file.read())


def print_class(this, program, printer):
    program.keys("alt+p")
    program.window("Tallyroll Printing")
    program.keys("Return")
    expect("the grades of the class", words(printer.next_job()), made(this, "1"))
    program.window("Printer Portal")


def print_from_preview(this, program, printer):
    program.keys("alt+c")
    program.click(program.widget(Atspi.Role.PUSH_BUTTON, "Preview"))
    program.window("Tallyroll Printing")
    program.keys("Return")
    program.window("Print Preview Portal")
    program.keys("alt+p")
    program.window("Print")
    program.keys("Return")
    expect("the averages", words(printer.next_job()), made(this, "11"))
    program.window("Print Preview Portal")
    program.keys("Escape")
    program.window("Printer Portal")


def tell(this):
    printer = Printer()
    program = this.start(this.sample("MATH.TYR"))
    program.frame("MATH.TYR")
    program.keys("ctrl+p")
    program.window("Printer Portal")
    print_class(this, program, printer)
    print_from_preview(this, program, printer)
    program.keys("Escape")
    program.frame("MATH.TYR")
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
