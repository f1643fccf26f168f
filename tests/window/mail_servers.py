# SPDX-License-Identifier: GPL-3.0-or-later
# Files of five megabytes arrive as they were, in the plain dialogue and over STARTTLS. A silent server
# leaves the window alive, to be tried again, cancelled or left; one that talks before it is asked or
# never ends a line comes to a message.
import binascii
import email
import email.policy
import os
import pathlib
import sys

from gi.repository import Atspi
from support import story
from support.program import build, expect, wait_for

sys.path.append(str(pathlib.Path(__file__).parent.parent / "mail"))
from servers import AioServer, LineServer, Mailbox, certificate  # noqa: E402

PORTAL, MAIL = "Tallyroll Word Processor", "E-mail Portal"
PLAIN, STARTTLS = "Home", "End"  # of the list of connections


def open_mail(this, program):
    program.keys("alt+t", "w")
    program.window(PORTAL)
    program.type("A letter with a file.")
    program.keys("ctrl+t")
    program.window("Student Portal")
    program.keys("alt+s")
    wait_for("the choice", lambda: program.widget(Atspi.Role.LIST, "Selected students").get_child_count() == 1)
    program.keys("alt+f")
    program.window(PORTAL)
    program.await_label("Chosen: Ng, Ada")
    program.keys("alt+f", "e")
    program.window(MAIL)
    program.keys("alt+r")
    program.type("teacher@school.example")
    program.keys("alt+j")
    program.type("A file")


def fill(program, key, text):
    program.keys(key, "ctrl+a")
    program.type(text)


def choose(program, connection, port):
    fill(program, "alt+v", f"localhost:{port}")
    program.keys("alt+i", connection)


def uudecoded(text):
    lines = text.split("\r\n")
    start = next(i for i, line in enumerate(lines) if line.startswith("begin 664 "))
    expect("the name", lines[start], "begin 664 year.bin")
    end = lines.index("end", start)
    expect("the line before the end", lines[end - 1], "`")
    # The last line is filled with blanks, which are no part of the file.
    return b"".join(binascii.a2b_uu(line[:((ord(line[0]) - 32) * 4 + 5) // 3].replace("`", " "))
                    for line in lines[start + 1:end - 1])


def files(program, box, this, cert, plain, encrypted):
    content = os.urandom(5 * 1024 * 1024)
    path = pathlib.Path(this.path("year.bin"))
    path.write_bytes(content)
    fill(program, "alt+h", str(path))
    choose(program, PLAIN, plain.port)
    program.keys("alt+s")
    program.box("Message sent successfuly.", "Return")
    wait_for("the message", lambda: len(box.arrived) == 1)
    expect("the file, plain", uudecoded(box.arrived[0][2].decode("cp1252")) == content, True)
    choose(program, STARTTLS, encrypted.port)
    fill(program, "alt+k", cert)
    program.keys("alt+s")
    program.box("Message sent successfuly.", "Return")
    wait_for("the message", lambda: len(box.arrived) == 2)
    expect("encrypted", box.arrived[1][3], True)
    message = email.message_from_bytes(box.arrived[1][2], policy=email.policy.default)
    got = [(part.get_filename(), part.get_content() == content) for part in message.iter_attachments()]
    expect("the file, encrypted", got, [("year.bin", True)])
    expect("the text", message.get_body(("plain",)).get_content().splitlines(), ["A letter with a file."])
    fill(program, "alt+h", " ")
    program.keys("BackSpace")


def silent(program, server, heard):
    """Nothing comes: the window takes keys, begins anew, and can cancel where it sends by itself."""
    choose(program, PLAIN, server.port)
    program.keys("alt+s")
    wait_for("a connection", lambda: heard.count("CONNECT") == 1)
    fill(program, "alt+j", "Typed meanwhile")
    program.await_text("Subject", "Typed meanwhile")
    program.keys("alt+s")
    wait_for("another connection", lambda: heard.count("CONNECT") == 2)
    choose(program, STARTTLS, server.port)
    program.keys("alt+s")
    wait_for("a third connection", lambda: heard.count("CONNECT") == 3)
    program.await_label("Sending e-mail")
    fill(program, "alt+j", "Typed again")
    program.await_text("Subject", "Typed again")
    program.keys("alt+g")
    program.box("Cancelled", "Return", title="SMTP Error")
    program.window(MAIL)


def odd(program):
    """The message is what the told dialogue makes of it; the window stays alive."""
    endless = LineServer(lambda verb, line: "554 " + "x" * 1_000_000 if verb == "CONNECT" else None)
    choose(program, PLAIN, endless.port)
    program.keys("alt+s")
    program.box("SMTP Error: 554 " + "x" * 996 + "...", "Return", title="SMTP Error")
    program.window(MAIL)
    early = LineServer(lambda verb, line: "220 hi\r\n250 early" if verb == "CONNECT" else None)
    choose(program, PLAIN, early.port)
    program.keys("alt+s")
    program.box("Message sent successfuly.", "Return")
    program.window(MAIL)
    wait_for("who got it", lambda: len(early.arrived) == 1)


def tell(this):
    path = this.path("MATH.TYR")
    build(path, {"Students": [{"lastname": "Ng", "firstname": "Ada", "id": "1", "email": "ada@home.example",
                               "Marks": None}]})
    box, heard = Mailbox(), []
    key, cert = certificate(str(this.folder), "story")
    plain, encrypted = AioServer(box), AioServer(box, key, cert)
    mute = LineServer(lambda verb, line: "", heard.append)
    program = this.start(path)
    program.frame("MATH.TYR")
    open_mail(this, program)
    files(program, box, this, cert, plain, encrypted)
    silent(program, mute, heard)
    odd(program)
    choose(program, PLAIN, mute.port)
    program.keys("alt+s")
    wait_for("the last connection", lambda: heard.count("CONNECT") == 4)
    program.keys("alt+e")
    program.window(PORTAL)


story.run(tell)
