# SPDX-License-Identifier: GPL-3.0-or-later
# A server that nobody here wrote takes a run of ten, over each kind of connection.
import email
import email.policy
import sys

import servers
from servers import Mailbox, OpenSmtpd, build_class, expect, mail, states, wait_for


def tell(folder):
    if not OpenSmtpd.is_there():
        print("OpenSMTPD is not there, or this is not root")
        sys.exit(77)
    path = build_class(folder + "/class.TYR", 10)
    box = Mailbox()
    server = OpenSmtpd(folder, box)
    try:
        for security, port in (("plain", server.port), ("starttls", server.port), ("tls", server.tls_port)):
            before = len(box.arrived)
            status, out, err = mail(path, "--security", security, "--server", f"localhost:{port}", "--ca",
                                    server.cert, "--subject", f"\u00c9l\u00e8ve {security}", "--pdf")
            expect(security, (status, states(out), err), (0, ["sent"] * 10, ""))
            wait_for("what it passes on", lambda: len(box.arrived) == before + 10)
            expect("each one once", sorted(each[1][0] for each in box.arrived[before:]),
                   sorted(f"parent{i}@home.example" for i in range(1, 11)))
            for _, to, content, _ in box.arrived[before:]:
                message = email.message_from_bytes(content, policy=email.policy.default)
                expect("subject", message["Subject"], f"\u00c9l\u00e8ve {security}")
                number = to[0][6:].split("@")[0]
                text = message.get_body(("plain",)).get_content()
                expect("their own report", f"Ng{number}, Ad\u00e8le" in text, True)
                pdf = [part.get_content()[:5] for part in message.iter_attachments()]
                expect("PDF", pdf, [b"%PDF-"])
    finally:
        server.stop()


servers.run(tell)
