# SPDX-License-Identifier: GPL-3.0-or-later
# A form letter to every family: each its own over STARTTLS, nobody two, and a run that was cut short
# goes on where it stopped.
import collections
import email
import email.policy
import pathlib
import subprocess

import servers
from servers import AioServer, LineServer, Mailbox, build_class, certificate, expect, states

FAMILIES = 12
LETTER = r"""{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}
Dear {\b <First} Name> <Last Name>,\par
.\par
Number <ID Number>. \u915?\u949?\u953?\u945?, caf\'e9.\par}"""
LINES = ["Dear Ad\u00e8le Ng{0},", ".", "Number {0}. \u0393\u03b5\u03b9\u03b1, caf\u00e9."]


def post(path, letter, *options):
    line = [servers.CLI, "mail", path, "--letter", letter, "--from", "teacher@school.example",
            *map(str, options)]
    done = subprocess.run(line, capture_output=True, text=True, timeout=servers.PATIENCE)
    return done.returncode, done.stdout, done.stderr


def look_at(arrived, subject):
    """Each family's own letter, and no other line in it."""
    expect("families", sorted(each[1][0] for each in arrived),
           sorted(f"parent{i}@home.example" for i in range(1, FAMILIES + 1)))
    for _, to, content, secure in arrived:
        number = to[0][6:].split("@")[0]
        message = email.message_from_bytes(content, policy=email.policy.default)
        expect("encrypted", secure, True)
        expect("one address", (len(to), message["To"]), (1, to[0]))
        expect("subject", message["Subject"], subject)
        expect("defects", message.defects, [])
        body = message.get_body(("plain",)).get_content()
        expect("the letter", body.splitlines(), [line.format(number) for line in LINES])


def tell(folder):
    path = build_class(folder + "/class.TYR", FAMILIES)
    letter = pathlib.Path(folder) / "May.rtf"
    letter.write_text(LETTER)
    before = letter.read_bytes()
    key, cert = certificate(folder, "good")
    box = Mailbox()
    safe = ("--ca", cert, "--server", f"localhost:{AioServer(box, key, cert).port}")

    status, out, err = post(path, letter, *safe)
    expect("the run", (status, states(out), err), (0, ["sent"] * FAMILIES, ""))
    look_at(box.arrived, "May")
    expect("the form letter", letter.read_bytes(), before)
    status, out, _ = post(path, letter, *safe)
    expect("once more", (status, states(out), len(box.arrived)), (0, ["sent"] * FAMILIES, FAMILIES))

    # Another letter is another run, though a report or a letter went before.
    other = letter.with_name("June.rtf")
    letter.rename(other)
    box.arrived.clear()
    status, out, _ = post(path, other, *safe)
    expect("another letter", (status, states(out)), (0, ["sent"] * FAMILIES))
    look_at(box.arrived, "June")

    # The server has enough in the middle of the run.
    seen = collections.Counter()

    def busy(verb, _):
        seen[verb] += 1
        return "421 too many" if verb == "RCPT" and seen[verb] == 5 else None
    server = LineServer(busy)
    plain = ("--security", "plain", "--server", f"localhost:{server.port}", "--subject", "July")
    status, out, err = post(path, other, *plain)
    expect("cut short", (status, states(out)), (1, ["sent"] * 4 + ["waiting"] * (FAMILIES - 4)))
    expect("why", "421 too many" in err, True)
    status, out, _ = post(path, other, *plain)
    expect("gone on", (status, states(out)), (0, ["sent"] * FAMILIES))
    expect("nobody twice", sorted(server.arrived),
           sorted(f"parent{i}@home.example" for i in range(1, FAMILIES + 1)))


servers.run(tell)
