# SPDX-License-Identifier: GPL-3.0-or-later
# A report goes from the preview by keyboard in the plain dialogue, through a server that nobody here
# wrote where there is one, then to thirty parents as PDF over STARTTLS; both arrive.
import email
import email.policy
import pathlib
import sys

from gi.repository import Atspi
from support import story
from support.program import expect, wait_for

sys.path.append(str(pathlib.Path(__file__).parent.parent / "mail"))
from servers import AioServer, Exim, Mailbox, build_class, certificate  # noqa: E402

MAIL, MANY = "E-mail Portal", "Send to Several"
PARENTS = 30


def preview_of_all(program):
    program.keys("ctrl+p")
    program.window("Printer Portal")
    program.keys("alt+s")
    program.click(program.widget(Atspi.Role.PUSH_BUTTON, "Choose All"))
    program.click(program.widget(Atspi.Role.PUSH_BUTTON, "Preview"))
    program.window("Tallyroll Printing")
    program.keys("Return")
    program.window("Print Preview Portal")


def parsed(arrived):
    return email.message_from_bytes(arrived[2], policy=email.policy.default)


def one_by_keys(program, box, host):
    program.await_labels(" 1", str(PARENTS))
    program.keys("alt+n")
    program.await_labels(" 2")
    program.keys("alt+m")
    program.window(MAIL)
    program.await_text("To Address", "parent11@home.example")
    program.await_focus(Atspi.Role.TEXT, "Outgoing Mail (SMTP) Server")
    program.type(host)
    program.keys("alt+r")
    program.type("teacher@school.example")
    program.keys("alt+j")
    program.type("Marks")
    program.keys("alt+i", "Home")
    program.keys("alt+s")
    program.box("Message sent successfuly.", "Return")
    wait_for("the message", lambda: len(box.arrived) == 1)
    message = parsed(box.arrived[0])
    expect("to", message["To"], "parent11@home.example")
    expect("subject", message["Subject"], "Marks")
    expect("their report", b"Ng11, Ad" in box.arrived[0][2], True)
    expect("nobody else's", b"Ng10, Ad" in box.arrived[0][2], False)


def thirty_over_starttls(this, program, box, host, cert):
    program.keys("alt+v")
    program.keys("ctrl+a")
    program.type(host)
    program.keys("alt+i", "End", "alt+k")
    program.type(cert)
    program.click(program.widget(Atspi.Role.CHECK_BOX, "Attach this report as PDF"))
    program.keys("alt+a")
    program.window(MANY)
    program.await_label(f"{PARENTS} to be sent, 0 sent")
    program.keys("alt+s")
    program.box(f"Send {PARENTS} messages, one to each address?", "alt+y")
    program.box(f"0 to be sent, {PARENTS} sent.", "Return")
    wait_for("all messages", lambda: len(box.arrived) == 1 + PARENTS)
    got = {each[1][0]: parsed(each) for each in box.arrived[1:]}
    expect("who", set(got), {f"parent{i}@home.example" for i in range(1, PARENTS + 1)})
    for i in range(1, PARENTS + 1):
        files = [(part.get_filename(), part.get_content()[:5])
                 for part in got[f"parent{i}@home.example"].iter_attachments()]
        expect("the PDF", files, [(f"Ng{i}, Ad\u00e8le.pdf", b"%PDF-")])
    program.keys("alt+l")
    program.choose_file("Save As", this.path("list.csv"))
    program.window(MANY)
    program.keys("alt+x")


def tell(this):
    path = build_class(this.path("MATH.TYR"), PARENTS)
    box = Mailbox()
    key, cert = certificate(str(this.folder), "story")
    encrypted = AioServer(box, key, cert)
    plain = Exim(box) if Exim.is_there() else AioServer(box)
    program = this.start(path)
    program.frame("MATH.TYR")
    preview_of_all(program)
    one_by_keys(program, box, f"localhost:{plain.port}")
    thirty_over_starttls(this, program, box, f"localhost:{encrypted.port}", cert)
    program.window(MAIL)
    program.keys("alt+e")
    program.window("Print Preview Portal")
    program.keys("Escape")
    program.window("Printer Portal")
    program.keys("Escape")
    program.frame("MATH.TYR")
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
