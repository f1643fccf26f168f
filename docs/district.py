#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""district.py SCHEDULER FOLDER: the averages of every class in FOLDER by school and course, worked out on a
Dask cluster. Each worker runs tallyroll-cli on its share of the files; a file that fails on one worker is tried
again on another. Every machine sees FOLDER under the same path."""
import json
import os
import pathlib
import subprocess
import sys
import time

from distributed import Client, get_worker

SHARE = 50  # files that a worker takes at a time
PATIENCE = 10  # seconds


def share(files):
    """The sums of these files, and those of them that could not be read here."""
    run = subprocess.run([os.environ.get("TALLYROLL_CLI", "tallyroll-cli"), "rows", "--table", "averages", *files],
                         capture_output=True, text=True)
    failed = [file for file in files if f"\n{file}: " in "\n" + run.stderr]
    if run.returncode != 0 and not failed:  # it did not even run
        return {"worker": get_worker().address, "sums": [], "failed": files, "told": run.stderr}
    sums = {}
    for row in map(json.loads, run.stdout.splitlines()):
        entry = sums.setdefault((row["school"], row["class"]), [0, 0.0])
        entry[0] += 1
        entry[1] += row["average"]
    return {"worker": get_worker().address, "sums": list(sums.items()), "failed": failed, "told": run.stderr}


def elsewhere(client, worker):
    """Where else to try; another worker may still be on its way to the cluster."""
    end = time.monotonic() + PATIENCE
    while True:
        others = [address for address in client.scheduler_info()["workers"] if address != worker]
        if others or time.monotonic() > end:
            return {"workers": others} if others else {}
        time.sleep(0.2)


def main(scheduler, folder):
    client = Client(scheduler)
    client.wait_for_workers(1)
    files = sorted(str(path) for path in pathlib.Path(folder).resolve().rglob("*.TYR"))
    shares = [files[i:i + SHARE] for i in range(0, len(files), SHARE)]
    results = client.gather(client.map(share, shares, pure=False, retries=2))
    places = {worker: elsewhere(client, worker) for worker in {result["worker"] for result in results if result["failed"]}}
    again = [client.submit(share, [file], pure=False, **places[result["worker"]])
             for result in results for file in result["failed"]]
    second = client.gather(again)
    totals = {}
    for result in results + second:
        for key, (count, amount) in result["sums"]:
            entry = totals.setdefault(tuple(key), [0, 0.0])
            entry[0] += count
            entry[1] += amount
    for (school, course), (count, amount) in sorted(totals.items()):
        print(f"{school}|{course}|{count}|{amount / count:.2f}")
    lost = [result for result in second if result["failed"]]
    for result in lost:
        print(result["told"].strip() or f"{result['failed'][0]}: tallyroll-cli did not run", file=sys.stderr)
    return 1 if lost else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
