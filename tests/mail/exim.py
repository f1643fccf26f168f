# SPDX-License-Identifier: GPL-3.0-or-later
# A server that nobody here wrote takes a run of ten with PDF after a login over STARTTLS, and passes each
# on as it was.
import email
import email.policy
import pathlib
import sys

import servers
from servers import Mailbox, Exim, build_class, expect, mail, states, wait_for


def tell(folder):
    if not Exim.is_there():
        print("Exim is not there, or this is not root")
        sys.exit(77)
    path = build_class(folder + "/class.TYR", 10)
    box = Mailbox()
    secret = pathlib.Path(folder) / "password"
    secret.write_text(Exim.LOGIN[1] + "\n")
    server = Exim(box)
    status, out, err = mail(path, "--server", f"localhost:{server.port}", "--ca", server.cert,
                            "--user", Exim.LOGIN[0], "--password-from", secret,
                            "--subject", "\u00c9l\u00e8ve", "--pdf")
    expect("the run", (status, states(out), err), (0, ["sent"] * 10, ""))
    wait_for("what it passes on", lambda: len(box.arrived) == 10)
    expect("each one once", sorted(each[1][0] for each in box.arrived),
           sorted(f"parent{i}@home.example" for i in range(1, 11)))
    for _, to, content, _ in box.arrived:
        message = email.message_from_bytes(content, policy=email.policy.default)
        expect("subject", message["Subject"], "\u00c9l\u00e8ve")
        expect("defects", message.defects, [])
        number = to[0][6:].split("@")[0]
        text = message.get_body(("plain",)).get_content()
        expect("their own report", f"Ng{number}, Ad\u00e8le" in text, True)
        pdf = [part.get_content()[:5] for part in message.iter_attachments()]
        expect("PDF", pdf, [b"%PDF-"])


servers.run(tell)
