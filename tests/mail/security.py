# SPDX-License-Identifier: GPL-3.0-or-later
# The three kinds of connection, with and without a login, and certificates that must not be taken.
import email
import email.policy
import os
import pathlib
import subprocess

import servers
from servers import AioServer, Mailbox, build_class, certificate, expect, mail, states


def arrived(box):
    return [email.message_from_bytes(each[2], policy=email.policy.default) for each in box.arrived]


def look_at_one(path, box, encrypted, *options, **popen):
    """One message arrives, and says what was sent."""
    before = len(box.arrived)
    status, out, err = mail(path, "--student", "1", "--subject", "\u00c9l\u00e8ve", "--again", *options, **popen)
    expect("status", (status, err), (0, ""))
    expect("state", states(out), ["sent"])
    expect("arrived", len(box.arrived), before + 1)
    sender, to, _, secure = box.arrived[-1]
    expect("envelope", (sender, to), ("teacher@school.example", ["parent1@home.example"]))
    expect("encrypted", secure, encrypted)
    message = arrived(box)[-1]
    expect("subject", message["Subject"], "\u00c9l\u00e8ve")
    expect("to", message["To"], "parent1@home.example")
    expect("defects", message.defects, [])
    report = subprocess.run([servers.CLI, "report", "--code", "13", "--student", "1", path],
                            capture_output=True, check=True).stdout.decode()
    body = message.get_body(("plain",)).get_content()
    expect("text", body.splitlines(), report.splitlines())
    return message


def refused(path, box, words, *options):
    before = len(box.arrived)
    status, out, err = mail(path, "--student", "1", "--again", *options)
    expect("status", status, 1)
    expect(f"{words!r} in {err!r}", words in err, True)
    expect("state", states(out), ["waiting"])
    expect("arrived", len(box.arrived), before)


def tell(folder):
    path = build_class(folder + "/class.TYR", 3)
    secret = pathlib.Path(folder) / "password"
    secret.write_text("s3cret\n")
    login = ("--user", "ada", "--password-from", secret)
    key, cert = certificate(folder, "good")
    box = Mailbox()

    plain = AioServer(box)
    look_at_one(path, box, False, "--security", "plain", "--server", f"localhost:{plain.port}")
    refused(path, box, "doesn't offer STARTTLS", "--server", f"localhost:{plain.port}")
    named = AioServer(box, login=("ada".encode(), b"s3cret"))
    look_at_one(path, box, False, "--security", "plain", "--server", f"localhost:{named.port}", *login)

    starttls = AioServer(box, key, cert, login=(b"ada", b"s3cret"))
    at = ("--server", f"localhost:{starttls.port}")
    message = look_at_one(path, box, True, *at, "--ca", cert, *login, "--pdf")
    pdf = [part.get_content() for part in message.iter_attachments()]
    expect("PDF", [part[:5] for part in pdf], [b"%PDF-"])
    expect("its name", [part.get_filename() for part in message.iter_attachments()], ["Ng1, Ad\u00e8le.pdf"])
    # A password that can be read once reaches the program that draws, too.
    reading, writing = os.pipe()
    os.write(writing, b"s3cret\n")
    os.close(writing)
    look_at_one(path, box, True, *at, "--ca", cert, "--user", "ada", "--password-from", reading, "--pdf",
                pass_fds=[reading])
    os.close(reading)
    refused(path, box, "not trusted", *at, *login)
    secret.write_text("wrong\n")
    refused(path, box, "535", *at, "--ca", cert, *login)
    secret.write_text("s3cret\n")

    tls = AioServer(box, key, cert, at_once=True)
    at = ("--security", "tls", "--server", f"localhost:{tls.port}")
    look_at_one(path, box, True, *at, "--ca", cert)
    refused(path, box, "not trusted", *at)

    for name, made in (("expired", {"start": ("20200101000000Z", "20200201000000Z")}),
                       ("wrong", {"subject": "other.example"})):
        key, cert = certificate(folder, name, **made)
        for at_once in (False, True):
            server = AioServer(box, key, cert, at_once=at_once)
            refused(path, box, "not trusted", "--security", "tls" if at_once else "starttls",
                    "--server", f"localhost:{server.port}", "--ca", cert)

    # The password is nowhere on the disk but where it was given.
    secret.unlink()
    for file in pathlib.Path(folder).rglob("*"):
        if file.is_file():
            expect(f"the password in {file}", b"s3cret" in file.read_bytes(), False)


servers.run(tell)
