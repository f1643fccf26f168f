# SPDX-License-Identifier: GPL-3.0-or-later
# Servers that refuse, put off, hang up, talk before they are asked and never end a line.
import servers
from servers import LineServer, build_class, expect, mail, states


def conduct(path, answer, wanted, words, *options):
    server = LineServer(answer)
    status, out, err = mail(path, "--security", "plain", "--server", f"localhost:{server.port}", "--again",
                            *options)
    expect(f"states with {words!r}: {err}", states(out), wanted)
    expect("status", status, 0 if set(wanted) == {"sent"} else 1)
    expect(f"{words!r} in {(out + err)!r}", words in out + err, True)
    return server


def at(verb, reply, who=b"parent2"):
    """This reply to the second parent's line of this verb."""
    seen = [b""]

    def answer(heard, line):
        if heard == "RCPT":
            seen[0] = line
        return reply if heard == verb and (verb in ("CONNECT", "EHLO") or who in seen[0]) else None
    return answer


def tell(folder):
    path = build_class(folder + "/class.TYR", 3)
    conduct(path, at("RCPT", "550 no such user"), ["sent", "refused", "sent"], "refused: 550 no such user")
    conduct(path, at("RCPT", "450 come later"), ["sent", "waiting", "sent"], "waiting: 450 come later")
    conduct(path, at("RCPT", "421 too many"), ["sent", "waiting", "waiting"], "421 too many")
    conduct(path, at("DATA", "554 not this"), ["sent", "refused", "sent"], "554 not this")
    conduct(path, at("TEXT", "552 too large"), ["sent", "refused", "sent"], "552 too large")
    conduct(path, at("TEXT", "452 full"), ["sent", "waiting", "sent"], "452 full")
    conduct(path, at("CONNECT", "554 go away"), ["waiting"] * 3, "554 go away")
    conduct(path, at("RCPT", "close"), ["sent", "waiting", "waiting"], "waiting: ")
    conduct(path, at("TEXT", "close"), ["sent", "uncertain", "waiting"], "uncertain: ")
    conduct(path, at("MAIL", "close", who=b"parent1"), ["sent", "waiting", "waiting"], "waiting: ")
    # What went on comes in the next run, and the uncertain one stays.
    server = LineServer()
    again = ("--security", "plain", "--server", f"localhost:{server.port}")
    conduct(path, at("TEXT", "close"), ["sent", "uncertain", "waiting"], "uncertain: ")
    status, out, _ = mail(path, *again)
    expect("the next run", states(out), ["sent", "uncertain", "sent"])
    expect("who got it", server.arrived, ["parent3@home.example"])
    # Talks before it is asked, and a line of a million characters: an end, whatever it is.
    for reply in ("220 hi\r\n250 early\r\n250 earlier", "220 " + "x" * 1_000_000):
        server = LineServer(at("CONNECT", reply))
        status, out, err = mail(path, "--security", "plain", "--server", f"localhost:{server.port}",
                                "--again")
        expect("the lines", len(out.splitlines()), 3)
        expect("the words have a length", len(err) < 2000, True)
        expect("nobody twice", len(server.arrived), len(set(server.arrived)))
    nobody = servers.socket.create_server(("127.0.0.1", 0))
    port = nobody.getsockname()[1]
    nobody.close()
    status, out, err = mail(path, "--server", f"localhost:{port}", "--again")
    expect("nobody there", (status, states(out), "can't be reached" in err), (1, ["waiting"] * 3, True))
    # A limit and a pause.
    server = LineServer()
    status, out, err = mail(path, "--security", "plain", "--server", f"localhost:{server.port}", "--subject",
                            "Limit", "--limit", 10_000, "--pause", 1, "--student", "1", "--student", "2")
    expect("with a pause", (status, states(out)), (0, ["sent", "sent"]))
    status, out, err = mail(path, "--security", "plain", "--server", f"localhost:{server.port}", "--subject",
                            "Limit", "--limit", 1)
    expect("the limit", (status, states(out), "limit of 1 messages" in err),
           (1, ["sent", "sent", "waiting"], True))


servers.run(tell)
