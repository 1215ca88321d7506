#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Every command in pairs on one site, beside programs that read it, that write it and that start on it in another
mode: each must end well, say nothing, and give the figures of the site as it stood at one moment, under the start
mode that it was asked for. Before that, pairs of tallies on a site that nobody writes, and locks that are held.

usage: sharing_test.py RBTALLY

RBTALLY_STRESS=full runs sixty-four pairs of every command, first on idle and then on busy cores; else a few.
"""
import json
import os
import pathlib
import re
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import threading
import time

FULL = os.environ.get("RBTALLY_STRESS") == "full"
PAIRS = 64 if FULL else 2
TALLY_PAIRS = 64
ROWS = 3000 if FULL else 300
MODES = (-1, 1, 4)
SITE = "GENBA001.MDB"
WAIT = "120"

# Two states of the schedule that another program brings about in turn, each in one transaction.
STATES = (
    "UPDATE 加工テーブル SET 合計 = 本数 * ヶ所, 伸総計 = 本数 * ヶ所",
    "UPDATE 加工テーブル SET 合計 = 2 * 本数 * ヶ所, 伸総計 = 2 * 本数 * ヶ所",
)


class Root:
    """A root folder, and the environment in which the program works on it."""

    def __init__(self, program, folder):
        self.program = program
        self.root = pathlib.Path(folder)
        self.environment = {
            "PATH": os.environ["PATH"], "HOME": str(self.root.parent), "LC_ALL": "C.UTF-8", "TZ": "Asia/Tokyo",
            "RBK_ROOT": str(self.root), "RBK_SETTINGS": str(self.root.parent / "settings.ini"),
            "RBK_CLOCK": "2026-11-21T09:00:00",
        }
        for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS"):
            if name in os.environ:
                self.environment[name] = os.environ[name]

    def site(self):
        return sqlite3.connect(self.root / "DATA" / SITE, timeout=float(WAIT), isolation_level=None)

    def start(self, words):
        return subprocess.Popen([self.program, *words], env=self.environment, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, stdin=subprocess.DEVNULL)

    def run(self, words):
        child = self.start(words)
        output, errors = child.communicate(timeout=600)
        return child.returncode, output, errors

    def must(self, words):
        status, output, errors = self.run(words)
        if status != 0:
            raise SystemExit(f"rbtally {' '.join(words)}: {errors.decode()}")
        return output


def words_of_tally(kind):
    """Without a name that is chosen a tally of names has something to say."""
    return ["tally", kind, "--format", "json"] + (["--names", "1"] if kind == "names" else [])


def kinds_of(program):
    text = subprocess.run([program, "tally", "--help"], capture_output=True, text=True, check=True).stdout
    return re.search(r"KIND[^{\n]*\{([^}]*)\}", text)[1].split(",")


def commands(program):
    """What gives figures: (name, words without the start mode)."""
    for kind in kinds_of(program):
        yield f"tally {kind}", words_of_tally(kind)
    yield "plan", ["plan", "--effort", "greedy", "--format", "json"]
    yield "report", ["report", "ulbon", "--trace", "/dev/stdout"]
    yield "stock", ["stock", "4200", "10", "19", "--format", "json"]


def set_state(connection, state):
    connection.execute("BEGIN IMMEDIATE")
    connection.execute(STATES[state])
    connection.execute("COMMIT")


def references(root):
    """The right answers: by command and mode those of the two states, each from a root of its own."""
    right = {}
    for mode in MODES:
        for state in range(len(STATES)):
            with tempfile.TemporaryDirectory(prefix="rbtally-") as folder:
                own = Root(root.program, pathlib.Path(folder) / "root")
                shutil.copytree(root.root, own.root)
                with own.site() as connection:
                    set_state(connection, state)
                connection.close()
                # A new schedule finds its forms with the second start.
                for _ in range(2):
                    own.must(["prepare", "--start-mode", str(mode)])
                for name, words in commands(root.program):
                    output = traced(own, words, [f"--start-mode={mode}"])[1]
                    right.setdefault((name, mode), []).append(output)
    return right


def traced(root, words, more):
    """A report writes its trace into a file, whose text then stands for the output."""
    if "/dev/stdout" not in words:
        return root.run([*words, *more])
    file = root.root.parent / f"{os.getpid()}-{threading.get_ident()}-{time.monotonic_ns()}.trace"
    status, _, errors = root.run([str(file) if word == "/dev/stdout" else word for word in words] + more)
    output = file.read_bytes() if file.exists() else b""
    file.unlink(missing_ok=True)
    return status, output, errors


class Company:
    """The other programs: they go on until they are told to end, and keep what went wrong."""

    def __init__(self, root):
        self.root = root
        self.done = threading.Event()
        self.wrong = []
        self.counts = {"read": 0, "written": 0, "started": 0}
        self.threads = [threading.Thread(target=self.guard, args=(work,))
                        for work in (self.read, self.write, self.change_modes)]

    def __enter__(self):
        for thread in self.threads:
            thread.start()
        return self

    def __exit__(self, *_):
        self.done.set()
        for thread in self.threads:
            thread.join()

    def guard(self, work):
        try:
            while not self.done.is_set():
                work()
        except Exception as failure:  # pylint: disable=broad-except
            self.wrong.append(f"{work.__name__}: {failure}")

    def read(self):
        connection = self.root.site()
        connection.execute("SELECT sum(合計), sum(伸総計) FROM 加工テーブル").fetchall()
        connection.close()
        self.counts["read"] += 1
        time.sleep(0.02)

    def write(self):
        """Changes the schedule as a whole, and saves a row that nobody may lose."""
        number = self.counts["written"]
        connection = self.root.site()
        set_state(connection, number % len(STATES))
        connection.execute("INSERT INTO 重量集計名称 (作成日, 作成時間, 重量集計名称) VALUES ('20261121', ?, '保存')",
                           (f"{number:06}",))
        connection.close()
        self.counts["written"] += 1
        time.sleep(0.05)

    def change_modes(self):
        for mode in MODES:
            status, _, errors = self.root.run(["prepare", "--start-mode", str(mode), "--wait", WAIT])
            if status != 0 or errors:
                self.wrong.append(f"prepare in mode {mode}: status {status}: {errors.decode()}")
            self.counts["started"] += 1

    def saved(self):
        connection = self.root.site()
        count = connection.execute("SELECT count(*) FROM 重量集計名称").fetchone()[0]
        connection.close()
        return count


def run_pair(root, name, words, mode, right, wrong):
    """Two at once: one command in one mode, and in the next."""
    results = []

    def one(start_mode):
        results.append((start_mode, *traced(root, words, [f"--start-mode={start_mode}", "--wait", WAIT])))

    pair = [threading.Thread(target=one, args=(m,)) for m in (mode, MODES[(MODES.index(mode) + 1) % len(MODES)])]
    for thread in pair:
        thread.start()
    for thread in pair:
        thread.join()
    for start_mode, status, output, errors in results:
        if status != 0 or errors:
            wrong.append(f"{name} in mode {start_mode}: status {status}: {errors.decode()}")
        elif output not in right[name, start_mode]:
            other = [m for m in MODES if output in right[name, m]]
            wrong.append(f"{name} in mode {start_mode}: figures of " +
                         (f"mode {other[0]}" if other else "no moment"))


def run_all(root, right):
    with Company(root) as company:
        wrong = company.wrong
        for name, words in commands(root.program):
            for pair in range(PAIRS):
                run_pair(root, name, words, MODES[pair % len(MODES)], right, wrong)
    if company.saved() < company.counts["written"]:
        wrong.append(f"{company.counts['written']} rows were saved, {company.saved()} are there")
    print(json.dumps(company.counts))
    connection = root.site()
    if connection.execute("PRAGMA integrity_check").fetchone()[0] != "ok":
        wrong.append("the site is damaged")
    connection.execute("DELETE FROM 重量集計名称")
    connection.close()
    return wrong


class Alone:
    """A site in the first state, prepared for the usual mode, which nobody else works on."""

    def __init__(self, root):
        self.folder = tempfile.TemporaryDirectory(prefix="rbtally-")
        self.root = Root(root.program, pathlib.Path(self.folder.name) / "root")

    def __enter__(self):
        return self.root

    def __exit__(self, *_):
        self.folder.cleanup()


def prepare_alone(site, root):
    shutil.copytree(root.root, site.root)
    connection = site.site()
    set_state(connection, 0)
    connection.close()
    for _ in range(2):
        site.must(["prepare"])


def pairs_of_tallies(root, right):
    """Sixty-four pairs of tallies at once, on a site that is as they want it."""
    wrong = []
    tallies = [(f"tally {kind}", words_of_tally(kind)) for kind in kinds_of(root.program)]
    with Alone(root) as site:
        prepare_alone(site, root)
        for pair in range(TALLY_PAIRS):
            two = [tallies[(pair + i) % len(tallies)] for i in range(2)]
            running = [site.start([*words, "--wait", WAIT]) for _, words in two]
            for (name, _), child in zip(two, running):
                output, errors = child.communicate(timeout=600)
                if child.returncode != 0 or errors:
                    wrong.append(f"{name} in a pair: status {child.returncode}: {errors.decode()}")
                elif output != right[name, MODES[0]][0]:
                    wrong.append(f"{name} in a pair: other figures")
    return wrong


def digest(file):
    """By a program of its own: a file that is opened and closed beside its holder's locks loses them."""
    return subprocess.run(["sha256sum", file], capture_output=True, check=True).stdout


def held_locks(root, right):
    """A lock on reading or on writing holds up no tally of a site that is as it wants it; one that has to write waits
    for either, as long as it is told to, and leaves the file as it was."""
    wrong = []
    name, words = "tally bulk", ["tally", "bulk", "--format", "json"]
    with Alone(root) as site:
        prepare_alone(site, root)
        file = site.root / "DATA" / SITE
        for lock in ("BEGIN", "BEGIN IMMEDIATE"):
            holder = site.site()
            holder.execute(lock)
            holder.execute("SELECT count(*) FROM 加工テーブル").fetchone()
            before = digest(file)
            status, output, errors = site.run([*words, "--wait", "0"])
            if (status, output, errors) != (0, right[name, MODES[0]][0], b""):
                wrong.append(f"{lock} holds up a tally: status {status}: {errors.decode()}")
            status, _, errors = site.run([*words, f"--start-mode={MODES[1]}", "--wait", "0"])
            if status != 1 or SITE.encode() not in errors or errors.count(b"\n") != 1:
                wrong.append(f"{lock} is not told: status {status}: {errors.decode()}")
            if digest(file) != before:
                wrong.append(f"{lock}: the site has changed")
            waiting = site.start([*words, f"--start-mode={MODES[1]}", "--wait", WAIT])
            time.sleep(0.2)
            holder.execute("ROLLBACK")
            holder.close()
            output, errors = waiting.communicate(timeout=600)
            if (waiting.returncode, output, errors) != (0, right[name, MODES[1]][0], b""):
                wrong.append(f"{lock} is not waited for: status {waiting.returncode}: {errors.decode()}")
            for _ in range(2):
                site.must(["prepare"])
    return wrong


def main():
    program = str(pathlib.Path(sys.argv[1]).resolve())
    with tempfile.TemporaryDirectory(prefix="rbtally-") as folder:
        root = Root(program, pathlib.Path(folder) / "root")
        root.must(["demo", str(root.root), "--sites", "1", "--rows", str(ROWS)])
        for _ in range(2):
            root.must(["prepare"])
        right = references(root)
        wrong = pairs_of_tallies(root, right) + held_locks(root, right) + run_all(root, right)
        if FULL:
            burners = [subprocess.Popen(["sh", "-c", "while :; do :; done"]) for _ in range(2 * os.cpu_count())]
            try:
                wrong += run_all(root, right)
            finally:
                for burner in burners:
                    burner.send_signal(signal.SIGKILL)
                    burner.wait()
    for line in sorted(set(wrong)):
        print(f"{wrong.count(line)} times: {line}", file=sys.stderr)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
