#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""A plan that would take long, ended by its time limit and by Ctrl-C at random moments, also as a shell's background
job: it gives the best so far, at once, and judges all the same.

usage: interrupt_test.py RBTALLY [ROUNDS [SEED]]"""

import json
import os
import random
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
import plan_judge

LENGTHS = [3500 + 500 * i for i in range(18)]
OPTIONS = {"kerf": 0, "trim": 0, "plus": 0, "mix": 0, "maxLengths": 0, "usable": 1000, "scope": "site", "welded": "plan",
           "aim": "steel"}
PATIENCE = 20.0  # seconds: a sanitizer's program on a busy machine


def write_pieces(folder, rng):
    task = plan_judge.Task(OPTIONS, {d: {mm: (None, 0) for mm in LENGTHS} for d in (10, 16, 25, 32)}, [], False)
    lines = ["length,count,diameter"]
    for _ in range(500):
        cut, n, d = rng.randint(300, 11999), rng.randint(1, 400), rng.choice(list(task.allowed))
        lines.append(f"{cut},{n},{d}")
        task.add((0, "site", d, 1, False), cut, (0, len(lines), n, 0, 0))
    path = Path(folder) / "pieces.csv"
    path.write_text("\n".join(lines) + "\n", encoding="utf-8")
    return task, [f"--pieces={path}", "--lengths=" + ",".join(map(str, LENGTHS)), "--plus=0", "--format=json"]


def start(rbtally, words, ignoring):
    prepare = (lambda: signal.signal(signal.SIGINT, signal.SIG_IGN)) if ignoring else None
    return subprocess.Popen([rbtally, "plan", *words], stdout=subprocess.PIPE, stderr=subprocess.PIPE, preexec_fn=prepare)


def result_of(child, begin, what):
    out, err = child.communicate(timeout=120)
    took = time.monotonic() - begin
    if child.returncode != 0 or err:
        raise SystemExit(f"{what}: exit status {child.returncode}: {err.decode()}")
    if took > PATIENCE:
        raise SystemExit(f"{what}: it took {took:.1f} s to end")
    return json.loads(out)


def main():
    rbtally = os.path.abspath(sys.argv[1])
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 6
    rng = random.Random(int(sys.argv[3]) if len(sys.argv) > 3 else 20261122)
    with tempfile.TemporaryDirectory() as folder:
        task, words = write_pieces(folder, rng)
        for number in range(rounds):
            wait = rng.choice([0.05, 0.2, 0.5, 1.0])
            begin = time.monotonic()
            if number % 3 == 0:
                child = start(rbtally, [*words, "--advise=18", f"--time-limit={wait}"], False)
                doc, expected = result_of(child, begin, f"a limit of {wait} s"), "time"
            else:
                child = start(rbtally, [*words, "--advise=18", "--time-limit=1000"], number % 3 == 2)
                time.sleep(0.02 + wait)
                child.send_signal(signal.SIGINT)
                doc, expected = result_of(child, time.monotonic(), f"Ctrl-C after {wait} s"), "cancel"
            if doc["stopped"] != expected:
                raise SystemExit(f"stopped is {doc['stopped']}, not {expected}")
            doc.pop("advice")
            plan_judge.judge(task, doc)
    print(f"{rounds} plans ended when they were told")


if __name__ == "__main__":
    main()
