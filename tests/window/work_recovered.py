# SPDX-License-Identifier: GPL-3.0-or-later
# The program is killed at a random moment while grades are entered, again and again. The next start
# offers all of them but the last one at most, and the file on the disk is what it was.
import random
import sys
import threading

from support import story
from support.earlier import enter_grade, fresh, grades, save
from support.program import Failure, expect

PORTAL = "Recovered Work Portal"
ROUNDS = 6
MOST = 9.0  # seconds that a program lives


def entered_until_killed(program, moment):
    """How many grades were in the class when the program was killed."""
    threading.Timer(moment, program.process.kill).start()
    entered = 0
    while True:
        try:
            enter_grade(program, f"G{entered}")
        except Failure:
            return entered
        if program.process.poll() is not None:  # its window went with it
            return entered
        entered += 1


def take_up(program):
    """Whether the program offered work; it is taken."""
    if program.window(PORTAL, "Tallyroll - [A.TYR]").get_name() != PORTAL:
        return False
    program.keys("alt+k")
    program.gone(PORTAL)
    program.frame("A.TYR", changed=True)
    return True


def one_round(this, path, moment):
    fresh(path)
    before = open(path, "rb").read()
    program = this.start(path)
    program.frame("A.TYR")
    entered = entered_until_killed(program, moment)
    program.stop()
    expect("the file after the kill", open(path, "rb").read() == before, True)
    again = this.start(path)
    offered = take_up(again)
    expect("the file after Keep", open(path, "rb").read() == before, True)
    if offered:
        save(again, "A.TYR")
    again.keys("ctrl+q")
    again.ended()
    found = grades(path)[2:]
    wanted = [f"G{i}" for i in range(len(found))]
    expect(f"the grades after {moment:.2f} s", found, wanted)
    # The last one may have been on its way, or just have been accepted.
    expect(f"{len(found)} grades came back of {entered}", entered - 1 <= len(found) <= entered + 1, True)
    return entered


def discard(this, path):
    fresh(path)
    program = this.start(path)
    program.frame("A.TYR")
    enter_grade(program, "Lost")
    enter_grade(program, "Lost2")
    program.stop()
    again = this.start(path)
    again.window(PORTAL)
    again.keys("alt+d")
    again.gone(PORTAL)
    again.frame("A.TYR", changed=False)
    again.keys("ctrl+q")
    again.ended()
    last = this.start(path)
    last.frame("A.TYR", changed=False)
    last.keys("ctrl+q")
    last.ended()


def tell(this):
    seed = random.randrange(1 << 32)
    print(f"seed {seed}")
    moments = random.Random(seed)
    entered = [one_round(this, this.path("A.TYR"), moments.uniform(0.5, MOST)) for _ in range(ROUNDS)]
    print(f"grades entered before each kill: {entered}")
    discard(this, this.path("A.TYR"))


story.run(tell)
sys.exit(0)
