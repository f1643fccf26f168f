# SPDX-License-Identifier: GPL-3.0-or-later
# A run to 20 parents is killed at a line of the dialogue and begun again: nobody gets two messages,
# at most one is named as uncertain, and everybody else has got theirs.
import collections

import servers
from servers import LineServer, build_class, expect, mail, states

PARENTS = 20
LINES_A_MESSAGE = ("MAIL", "RCPT", "DATA", "TEXT")


def run_and_kill(path, nth):
    """Kills at the nth line that the server hears; the answer is still given."""
    heard = [0]
    process = []

    def count(_):
        heard[0] += 1
        if heard[0] == nth and process:
            process[0].kill()
            process[0].wait()
    server = LineServer(heard=count)
    at = ("--security", "plain", "--server", f"localhost:{server.port}")
    process.append(mail(path, *at, wait=False))
    process[0].communicate(timeout=servers.PATIENCE)
    status, out, err = mail(path, *at)
    return server, status, states(out)


def tell(folder):
    path = build_class(folder + "/class.TYR", PARENTS)
    companion = folder + "/class.tyx"
    lines = 2 + PARENTS * len(LINES_A_MESSAGE)
    everybody = [f"parent{i}@home.example" for i in range(1, PARENTS + 1)]
    for nth in range(1, lines + 1):
        server, status, found = run_and_kill(path, nth)
        times = collections.Counter(server.arrived)
        expect(f"line {nth}: twice", [to for to in times if times[to] > 1], [])
        uncertain = found.count("uncertain")
        expect(f"line {nth}: states", sorted(set(found) - {"sent", "uncertain"}), [])
        expect(f"line {nth}: at most one uncertain", uncertain <= 1, True)
        missing = [to for to in everybody if to not in times]
        named = [everybody[i] for i, state in enumerate(found) if state == "uncertain"]
        expect(f"line {nth}: who got none is named", set(missing) <= set(named), True)
        expect(f"line {nth}: status", status, 1 if uncertain else 0)
        for ending in ("", "-wal", "-shm"):
            try:
                servers.os.unlink(companion + ending)
            except FileNotFoundError:
                pass


servers.run(tell)
