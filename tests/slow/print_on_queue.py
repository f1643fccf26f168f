# SPDX-License-Identifier: GPL-3.0-or-later
# The printer is a queue whose end is a socket of this story: what arrives there is what was printed.
import collections
import json
import socket
import subprocess

from gi.repository import Atspi
from support import story
from support.program import command_line, expect, wait_for


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


HEADS = ("95 - 100", "90 - 94", "85 - 89", "80 - 84", "75 - 79", "70 - 74", "65 - 69", "55 - 64", "0 - 54")


def print_distribution(this, program, printer):
    """The table of ranges and the figures, line by line, and the graph."""
    program.keys("alt+v", "s")
    program.window("Statistics Portal")
    program.await_focus(Atspi.Role.LIST, "TITLES")
    program.keys("Home", "alt+o")
    told = json.loads(command_line("statistics", "--grade", "1", "--json", this.path("MATH.TYR")))[0]
    title = f"Graph Portal - {told['title'].upper()}"
    program.window(title)
    program.keys("alt+d")
    program.window("Tallyroll Printing")
    program.keys("Return")
    sheet = subprocess.run(["pdftotext", "-layout", "-", "-"], input=printer.next_job(), capture_output=True,
                           check=True).stdout.decode()
    # Some readers of PDF see no blank before a percent sign.
    lines = [" ".join(line.split()).replace(" %", "%") for line in sheet.splitlines()]
    wanted = [f"{head} {count}" for head, count in zip(HEADS, told["ranges"])]
    wanted += [f"The number of students {what} was {told[key]}" for what, key in
               (("present", "present"), ("absent", "absent"), ("who passed", "passed"), ("who failed", "failed"))]
    wanted += [f"The percent of students who passed was {told['perpassed']}%",
               f"The percent of students who failed was {told['perfailed']}%",
               f"The lowest grade was {told['lowest']}", f"The highest grade was {told['highest']}",
               f"The standard deviation was {told['std']}", f"The class average was {told['average']}"]
    expect("the distribution", [line for line in wanted if line not in lines], [])
    expect("its order", sorted(wanted, key=lines.index), wanted)
    expect("its head", any(line.endswith(f"{told['title']} Statistics:") for line in lines), True)
    program.window(title)
    program.keys("alt+g")
    expect("the graph's words", words(printer.next_job())["95-100"], 1)
    program.window(title)
    program.keys("alt+x")
    program.frame("MATH.TYR")


def print_chart(this, program, printer):
    """The seats as the command line writes them."""
    program.keys("alt+t", "s")
    program.window("Seating Chart Portal")
    program.keys("alt+p")
    program.window("Tallyroll Printing")
    program.keys("Return")
    out = this.path("chart.pdf")
    command_line("seating", "--chart", "1", "--out", out, this.path("MATH.TYR"))
    with open(out, "rb") as file:
        wanted = words(file.read())
    missing = wanted - words(printer.next_job())
    expect("the seating chart", dict(missing), {})
    program.window("Seating Chart Portal")
    program.keys("alt+x")
    program.frame("MATH.TYR")


def print_letters_and_labels(this, program, printer):
    """What the word processor prints for five students is what the command line makes for them."""
    program.keys("alt+t", "w")
    program.window("Tallyroll Word Processor")
    program.type("Dear <First Name> <Last Name>")
    program.keys("ctrl+t")
    program.window("Student Portal")
    program.keys("Home", *["shift+Down"] * 4, "alt+e")
    chosen = program.widget(Atspi.Role.LIST, "Selected students")
    wait_for("the choice", lambda: chosen.get_child_count() == 5)
    program.keys("alt+f")
    program.window("Tallyroll Word Processor")
    students = json.loads(command_line("dump", "--opened", this.path("MATH.TYR")))["Students"][:5]
    program.keys("ctrl+p")
    program.window("Tallyroll Printing")
    program.keys("Return")
    names = [f"{each['firstname'].strip()} {each['lastname'].strip()}" for each in students]
    expect("the letters", plain_words(printer.next_job()), " ".join("Dear " + name for name in names).split())
    program.window("Tallyroll Word Processor")
    program.keys("alt+f", "l")
    program.await_focus(Atspi.Role.RADIO_BUTTON, "Student")
    program.keys("alt+c")
    program.window("Tallyroll Printing")
    program.keys("Return")
    out = this.path("labels.pdf")
    options = [option for each in students for option in ("--student", each["id"].strip())]
    command_line("labels", this.path("MATH.TYR"), "--to", "student", *options, "--out", out)
    with open(out, "rb") as file:
        expect("the labels", sorted(plain_words(printer.next_job())), sorted(plain_words(file.read())))
    program.window("Tallyroll Word Processor")
    program.keys("alt+f", "x")
    program.box("Data has been changed. Save File?  ", "alt+n")
    program.frame("MATH.TYR")


def plain_words(pdf):
    return subprocess.run(["pdftotext", "-", "-"], input=pdf, capture_output=True,
                          check=True).stdout.decode().split()


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
    print_distribution(this, program, printer)
    print_chart(this, program, printer)
    print_letters_and_labels(this, program, printer)
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
