# SPDX-License-Identifier: GPL-3.0-or-later
# A form letter is written with formatting and codes, looked at for five students, made into one PDF,
# saved, mailed to one family and then to five, changed by find and replace, and opened again equal;
# labels are printed where there is a printer, and without one the program says so.
import email
import email.policy
import pathlib
import subprocess
import sys

from gi.repository import Atspi
from support import story
from support.program import build, command_line, expect, text_of, wait_for

sys.path.append(str(pathlib.Path(__file__).parent.parent / "mail"))
from servers import AioServer, Mailbox, certificate  # noqa: E402

PORTAL, MAIL, MANY = "Tallyroll Word Processor", "E-mail Portal", "Send to Several"
STUDENTS = [("Adams", "Ann", "Ruth Adams"), ("Berg", "B\u00f8rge", "Inger Berg"),
            ("Cho", "Min", "So-yun Cho"), ("Diaz", "In\u00e9s", "Rosa Diaz"),
            ("Ewing", "Tom", "Sam {Ewing}"), ("Fox", "Una", "Lee Fox"), ("Gray", "Val", "Kit Gray")]
CHOSEN = STUDENTS[:5]
FORM = ["Progress of the week", "Dear <Parent's Name>,", "<First Name> has done well. Please call on Friday."]


def make_class(path):
    build(path, {"description": "Algebra", "teacher": "M. Stone", "Students": [
        {"lastname": last, "firstname": first, "parent": parent, "id": str(number), "email": f"{last.lower()}@home.example",
         "address": f"{number} Elm Street", "city": "Lakewood", "state": "NJ", "zip": "08701", "Marks": None}
        for number, (last, first, parent) in enumerate(STUDENTS, 1)]})
    return path


def for_student(student, lines=None):
    _, first, parent = student
    return [line.replace("<Parent's Name>", parent).replace("<First Name>", first) for line in lines or FORM]


def letter(program, name="Form letter"):
    return text_of(program.widget(Atspi.Role.TEXT, name))


def await_letter(program, lines, name="Form letter"):
    text = "\n".join(lines)
    wait_for(f"{text!r} in the letter, not {letter(program, name)!r}", lambda: letter(program, name) == text)


def choose_code(program, downs):
    program.click(program.widget(Atspi.Role.COMBO_BOX, "Field Names"))
    program.keys("Home", *["Down"] * downs, "Return")


def write(program):
    """Bold and centred, left with italics and an underlined word; two codes."""
    program.keys("ctrl+e", "ctrl+b")
    program.type("Progress of the week")
    program.keys("ctrl+b", "Return", "ctrl+l")
    program.type("Dear ")
    choose_code(program, 3)
    await_letter(program, [FORM[0], "Dear <Parent's Name>"])
    program.type(",")
    program.keys("Return")
    choose_code(program, 1)
    await_letter(program, [FORM[0], FORM[1], "<First Name>"])
    program.type(" has done ")
    program.keys("ctrl+i")
    program.type("well")
    program.keys("ctrl+i")
    program.type(". Please call on ")
    program.keys("ctrl+u")
    program.type("Friday")
    program.keys("ctrl+u")
    program.type(".")
    await_letter(program, FORM)


def await_count(program, name, count):
    wait_for(f"{count} in {name!r}", lambda: program.widget(Atspi.Role.LIST, name).get_child_count() == count)


def choose_students(program, before, *keys):
    """Marked by the keys; whoever was chosen before is not any more."""
    program.keys("ctrl+t")
    program.window("Student Portal")
    program.await_focus(Atspi.Role.LIST, "Students")
    await_count(program, "Selected students", before)
    program.keys("alt+c")
    await_count(program, "Students", len(STUDENTS))
    program.keys(*keys, "alt+e")
    await_count(program, "Selected students", keys.count("shift+Down") + 1)
    program.keys("alt+f")
    program.window(PORTAL, PORTAL + " May.rtf")


def look_at_merged(program):
    program.keys("F5")
    for place, student in enumerate(CHOSEN, 1):
        last, first, _ = student
        program.await_label(f"{last}, {first} ({place} of 5)")
        await_letter(program, for_student(student), "Letter as merged")
        program.keys("alt+Next")
    program.keys("alt+Prior", "F6")
    program.await_labels("Diaz, In\u00e9s (4 of 5)", "Page 1 of 1")
    program.keys("Escape")
    await_letter(program, FORM)  # the form letter is what it was


def words_of(pdf):
    """The words of each page."""
    done = subprocess.run(["pdftotext", "-layout", pdf, "-"], capture_output=True, text=True, check=True)
    return [page.split() for page in done.stdout.split("\f")[:-1]]


def one_pdf(this, program):
    path = this.path("all.pdf")
    program.keys("alt+f", "d")
    program.choose_file("Save As", path)
    program.window(PORTAL)
    expect("the letters in the PDF", words_of(path), [" ".join(for_student(each)).split() for each in CHOSEN])


def save(this, program):
    path = this.path("May.rtf")
    program.keys("ctrl+s")
    program.choose_file("Save As", path)
    program.window(PORTAL + " May.rtf")
    out = pathlib.Path(this.path("merged"))
    out.mkdir()
    command_line("letters", this.path("MATH.TYR"), "--letter", path, "--out", str(out), "--format", "txt")
    expect("a letter of the command line", (out / "May_Gray.TXT").read_text().splitlines(), for_student(STUDENTS[6]))
    return path


def body_of(arrived):
    return email.message_from_bytes(arrived[2], policy=email.policy.default)


def mail_one(program, box, host):
    program.keys("alt+f", "e")
    program.box("For E-mail, choose the name of only ONE student.", "Return")
    program.window(PORTAL + " May.rtf")
    choose_students(program, 5, "Home", "Down")
    program.await_label("Chosen: Berg, B\u00f8rge")
    program.keys("alt+f", "e")
    program.window(MAIL)
    program.await_text("To Address", "berg@home.example")
    program.await_focus(Atspi.Role.TEXT, "Outgoing Mail (SMTP) Server")
    program.type(host)
    program.keys("alt+r")
    program.type("teacher@school.example")
    program.keys("alt+j")
    program.type("A letter")
    program.keys("alt+i", "Home", "alt+s")
    program.box("Message sent successfuly.", "Return")
    wait_for("the message", lambda: len(box.arrived) == 1)
    expect("to", box.arrived[0][1], ["berg@home.example"])
    expect("the letter", body_of(box.arrived[0]).get_payload(decode=True).decode("cp1252").split(),
           " ".join(for_student(STUDENTS[1])).split())
    program.keys("alt+e")
    program.window(PORTAL + " May.rtf")


def mail_five(program, box, host, cert):
    choose_students(program, 1, "Home", *["shift+Down"] * 4)
    program.await_label("5 students are chosen")
    program.keys("alt+f", "m")
    program.window(MAIL)
    program.await_label("For 5 students, each their own letter. This is the one for Adams, Ann.")
    program.await_text("Subject", "May")
    program.keys("alt+v", "ctrl+a")
    program.type(host)
    program.keys("alt+i", "End", "alt+k")
    program.type(cert)
    program.keys("alt+a")
    program.window(MANY)
    program.await_label("5 to be sent, 0 sent")
    program.keys("alt+s")
    program.box("Send 5 messages, one to each address?", "alt+y")
    program.box("0 to be sent, 5 sent.", "Return")
    got = {each[1][0]: body_of(each) for each in box.arrived[1:]}
    expect("how many", len(box.arrived), 6)
    for student in CHOSEN:
        message = got[f"{student[0].lower()}@home.example"]
        expect("subject", message["Subject"], "May")
        expect("their own letter", message.get_body(("plain",)).get_content().splitlines(), for_student(student))
    program.window(MANY)
    program.keys("alt+s")
    program.box("There is nothing to be sent.", "Return")
    program.window(MANY)
    program.keys("alt+x")
    program.window(MAIL)
    program.keys("alt+e")
    program.window(PORTAL + " May.rtf")


def labels(program):
    program.keys("alt+f", "l")
    program.await_label("Do you want the labels addressed to the student or the parent?")
    program.keys("Down", "alt+c")
    program.window("Tallyroll Printing")
    program.keys("Return")
    program.box("The printer can't be used. Choose one at Printer Set Up.", "Return")
    program.window(PORTAL + " May.rtf")


def replace_and_take_back(program):
    program.keys("ctrl+Home", "ctrl+f")
    program.window("Find and Replace Portal")
    program.fill("we", "YOU")
    program.keys("alt+h", "alt+f")  # "we" is a part of two words and none itself
    program.box("String not found", "Return")
    program.window("Find and Replace Portal")
    program.keys("alt+h", "alt+f", "alt+a")
    program.box("          Replacing Completed", "Return")
    await_letter(program, [FORM[0].replace("week", "YOUek"), FORM[1], FORM[2].replace("well", "YOUll")])
    program.window("Find and Replace Portal")
    program.keys("Escape")
    program.window(PORTAL + " May.rtf")
    program.keys("ctrl+z")
    await_letter(program, FORM)


def open_again(program, path):
    before = pathlib.Path(path).read_bytes()
    program.keys("ctrl+s", "ctrl+n")  # undone, the letter is what was saved
    program.window(PORTAL)
    await_letter(program, [""])
    program.keys("ctrl+o")
    program.choose_file("Open", path)
    program.window(PORTAL + " May.rtf")
    await_letter(program, FORM)
    program.keys("ctrl+End")
    program.type("x")
    program.keys("BackSpace", "ctrl+s", "ctrl+n")
    program.window(PORTAL)
    expect("the file, written from what was read", pathlib.Path(path).read_bytes(), before)
    for word in (b"\\b", b"\\i", b"\\ul", b"\\qc"):
        expect(f"{word} in the file", word in before, True)


def tell(this):
    program = this.start(make_class(this.path("MATH.TYR")))
    box = Mailbox()
    key, cert = certificate(str(this.folder), "story")
    program.frame("MATH.TYR")
    program.keys("alt+t", "w")
    program.window(PORTAL)
    write(program)
    choose_students(program, 0, "Home", *["shift+Down"] * 4)
    program.await_label("5 students are chosen")
    look_at_merged(program)
    one_pdf(this, program)
    path = save(this, program)
    mail_one(program, box, f"localhost:{AioServer(box).port}")
    mail_five(program, box, f"localhost:{AioServer(box, key, cert).port}", cert)
    labels(program)
    replace_and_take_back(program)
    open_again(program, path)
    program.keys("Escape")
    program.frame("MATH.TYR")
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
