#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs one scenario file against a built rbtally; FORMAT.md tells how such a file reads.

usage: scenario.py RBTALLY FILE.scenario
"""
import fcntl
import json
import os
import pathlib
import re
import shlex
import shutil
import sqlite3
import subprocess
import sys
import tempfile

# What a `row` has where it says nothing: one straight D19 of 6 m, used whole.
ROW_DEFAULTS = {
    "頁": 1, "階": 1, "部位": 1, "名称": "", "太さ": 19, "形状No": 1, "寸法1": "6000", "本数": 1, "ヶ所": 1,
    "合計": 1, "伸切寸": 6000, "伸定尺": 6.0, "伸本定": 1, "伸総計": 1, "圧接": 0, "圧接太さ": 0, "ネジ数": 0,
    "切断": 0,
}
SAMPLES = pathlib.Path(__file__).resolve().parent.parent / "data" / "jet"
JET_FIRST_BYTES = b"\x00\x01\x00\x00Standard Jet DB\x00"
NOBODY = 65534
# What is told of a Jet file whose reading takes long; on a busy machine any may.
LONG_READING = re.compile(r"rbtally: reading \S+, which has changed or is new here")


class Mismatch(Exception):
    """The program did otherwise than the scenario says."""


def value_of(text):
    """A field's value as the scenario writes it: null, a number, or text."""
    if text == "null":
        return None
    for number in (int, float):
        try:
            return number(text)
        except ValueError:
            pass
    return text


def fields_of(words):
    return {name: value_of(text) for name, text in (word.split("=", 1) for word in words)}


def quoted(name):
    return '"' + name.replace('"', '""') + '"'


def readable(output):
    """Results are UTF-8, or code page 932 where that was asked for."""
    try:
        return output.decode("utf-8")
    except UnicodeDecodeError:
        return output.decode("cp932")


class FolderHolder:
    """A folder that is locked for its holder alone."""

    def __init__(self, folder):
        self.descriptor = os.open(folder, os.O_RDONLY)
        fcntl.flock(self.descriptor, fcntl.LOCK_EX)

    def close(self):
        os.close(self.descriptor)


class World:
    """A generated root, the settings, and what the last command did."""

    def __init__(self, program, folder):
        self.folder = pathlib.Path(folder)
        self.program = pathlib.Path(program).resolve()
        self.root = self.folder / "root"
        self.settings = self.folder / "settings.ini"
        self.rows = 0
        self.read_only = False
        self.holders = []
        self.stdout, self.stderr, self.status = "", [], 0
        self.environment = {
            "PATH": os.environ["PATH"], "HOME": str(self.folder), "LC_ALL": "C.UTF-8", "TZ": "Asia/Tokyo",
            "RBK_ROOT": str(self.root), "RBK_SETTINGS": str(self.settings), "RBK_CLOCK": "2026-11-21T09:00:00",
        }
        for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS"):
            if name in os.environ:
                self.environment[name] = os.environ[name]
        made = subprocess.run([self.program, "demo", self.root, "--sites", "1", "--rows", "0"],
                              env=self.environment, capture_output=True, text=True)
        if made.returncode != 0:
            raise Mismatch(f"the root could not be made: {made.stderr}")
        self.execute("HIROI001.mdb", "DELETE FROM スパイラル")

    # -- what a scenario prepares ------------------------------------------------------------------------

    def database(self, name):
        return self.root / "DATA" / name

    def execute(self, file, statement, values=()):
        connection = sqlite3.connect(self.database(file))
        with connection:
            result = connection.execute(statement, values).fetchall()
        connection.close()
        return result

    def insert(self, file, table, fields):
        names = ", ".join(quoted(name) for name in fields)
        marks = ", ".join("?" for _ in fields)
        self.execute(file, f"INSERT INTO {quoted(table)} ({names}) VALUES ({marks})", tuple(fields.values()))

    def row(self, words):
        self.rows += 1
        fields = {"行No": self.rows, "行": self.rows} | ROW_DEFAULTS | fields_of(words)
        columns = [found[1] for found in self.execute("GENBA001.MDB", "PRAGMA table_info(加工テーブル)")]
        fields = {name: value for name, value in fields.items() if name in columns or name not in ROW_DEFAULTS}
        self.insert("GENBA001.MDB", "加工テーブル", fields)

    def spiral(self, words):
        self.insert("HIROI001.mdb", "スパイラル", fields_of(words))

    def without(self, words):
        """without FILE TABLE [COLUMN]"""
        file, table, *column = words
        if column:
            self.execute(file, f"ALTER TABLE {quoted(table)} DROP COLUMN {quoted(column[0])}")
        else:
            self.execute(file, f"DROP TABLE {quoted(table)}")

    def sql(self, words):
        """sql FILE STATEMENT"""
        self.execute(words[0], words[1])

    def setting(self, words):
        """setting APPLICATION SECTION KEY=VALUE"""
        application, section, assignment = words
        heading = f"[{application}\\{section}]\n"
        text = self.settings.read_text(encoding="utf-8") if self.settings.exists() else ""
        if heading not in text:
            text += heading  # a section stands once: what a second one holds is not read
        self.settings.write_text(text.replace(heading, f"{heading}{assignment}\n"), encoding="utf-8")

    def file(self, words):
        """file PATH TEXT: a file below the root, in code page 932; \\r, \\n and \\xHH are what they are in C."""
        path, text = words
        data = re.sub(rb"\\(x[0-9A-Fa-f]{2}|r|n|0)", lambda found: {
            b"r": b"\r", b"n": b"\n", b"0": b"\0"}.get(found[1], bytes([int(found[1][1:] or b"0", 16)])),
            text.encode("cp932"))
        target = self.root / path
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(data)

    def remove(self, words):
        (self.root / words[0]).unlink()

    def rename(self, words):
        (self.root / words[0]).rename(self.root / words[1])

    def folder_at(self, words):
        (self.folder / words[0]).mkdir(parents=True)

    def jet(self, words):
        """jet FILE: a real Jet file stands under the name"""
        self.database(words[0]).write_bytes(JET_FIRST_BYTES + bytes(2048 - len(JET_FIRST_BYTES)))

    def sample(self, words):
        """sample NAME PATH: a real Jet file of tests/data/jet, below the folder above the root"""
        target = self.folder / words[1]
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes((SAMPLES / words[0]).read_bytes())

    def cut(self, words):
        """cut PATH BYTES: only the first bytes of a file stay, below the folder above the root"""
        os.truncate(self.folder / words[0], int(words[1]))

    def byte(self, words):
        """byte PATH OFFSET VALUE: one byte of such a file becomes another"""
        with open(self.folder / words[0], "r+b") as file:
            file.seek(int(words[1]))
            file.write(bytes([int(words[2])]))

    def as_jet(self, words):
        """as-jet 3|4 FOLDER: the DATA folder once more beside the root, its databases as real Jet files"""
        version, name = words
        folder = self.folder / name
        folder.mkdir(parents=True)
        for path in sorted((self.root / "DATA").iterdir()):
            if path.suffix.lower() == ".mdb":
                subprocess.run([self.program.parent / "store_to_jet", version, path, folder / path.name], check=True)
            elif path.is_file():
                shutil.copy(path, folder)

    def hold(self, words):
        """held FILE: another program has the database for itself"""
        connection = sqlite3.connect(self.database(words[0]), isolation_level=None)
        connection.execute("BEGIN EXCLUSIVE")
        self.holders.append(connection)

    def hold_folder(self, words):
        """held-folder PATH: another program has locked the folder, below the folder above the root"""
        holder = FolderHolder(self.folder / words[0])
        self.holders.append(holder)

    def let_go(self, _words=()):
        """let-go: the other programs end"""
        for holder in self.holders:
            holder.close()
        self.holders = []

    def setting_bytes(self, words):
        """setting-bytes TEXT: the whole settings file, in code page 932"""
        self.settings.write_bytes(words[0].replace("\\r", "\r").replace("\\n", "\n").encode("cp932"))

    def link(self, words):
        """link-to-itself PATH: below the root"""
        path = self.root / words[0]
        path.symlink_to(path.name)

    def lock(self, _words):
        """read-only: nothing below the root may be written"""
        for path in [self.root, *self.root.rglob("*")]:
            path.chmod(path.stat().st_mode & ~0o222)
        self.read_only = True

    # -- what it runs ------------------------------------------------------------------------------------

    def run(self, line):
        words = [word.replace("$tmp", str(self.folder)) for word in shlex.split(line)]
        environment = dict(self.environment)
        while re.fullmatch(r"[A-Z_]+=.*", words[0]):
            name, value = words.pop(0).split("=", 1)
            environment[name] = value
        if words[0] == "sql":
            found = self.execute(words[1], words[2])
            self.stdout = "".join("|".join("null" if v is None else str(v) for v in row) + "\n" for row in found)
            self.stderr, self.status = [], 0
            return
        if words[0] == "cat":
            self.stdout = readable((self.folder / words[1]).read_bytes())
            self.stderr, self.status = [], 0
            return
        if words[0] != "rbtally":
            raise Mismatch(f"unknown command {words[0]}")
        output = subprocess.PIPE
        if words[-2:-1] == [">"]:
            output = open(words[-1], "wb")
            words = words[:-2]
        elif words[-2:] == ["|", "closed"]:
            reading, writing = os.pipe()
            os.close(reading)
            output = os.fdopen(writing, "wb")
            words = words[:-2]
        done = subprocess.run([self.runnable(), *words[1:]], env=environment, cwd=self.folder, timeout=120,
                              stdout=output, stderr=subprocess.PIPE, stdin=subprocess.DEVNULL,
                              user=self.user())
        self.stdout = readable(done.stdout or b"")
        errors = done.stderr.decode("utf-8").replace(str(self.folder), "$tmp").splitlines()
        self.stderr = [line for line in errors if not LONG_READING.fullmatch(line)]
        self.status = done.returncode

    def user(self):
        """The superuser may write read-only files, so a read-only root is met by somebody else."""
        return NOBODY if self.read_only and os.geteuid() == 0 else None

    def runnable(self):
        if self.user() is None:
            return self.program
        for path in [self.folder, *self.folder.rglob("*")]:
            path.chmod(path.stat().st_mode | (0o555 if path.is_dir() else 0o444))
        copy = self.folder / "program" / "bin" / "rbtally"
        if not copy.exists():
            for file in (self.program, *self.libraries()):
                target = copy.parent.parent / file.relative_to(self.program.parent.parent)
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(file, target)
            copy.chmod(0o755)
        return copy

    def libraries(self):
        """What the program loads from beside it."""
        return (self.program.parent.parent / "lib" / "rbtally").glob("*.so")


DIRECTIVES = {
    "row": World.row, "spiral": World.spiral, "without": World.without, "sql": World.sql,
    "setting": World.setting, "file": World.file, "remove": World.remove, "rename": World.rename,
    "folder": World.folder_at, "jet": World.jet, "sample": World.sample, "as-jet": World.as_jet, "cut": World.cut,
    "byte": World.byte,
    "read-only": World.lock, "held": World.hold, "held-folder": World.hold_folder, "let-go": World.let_go,
    "setting-bytes": World.setting_bytes, "link-to-itself": World.link,
}


class Expectation:
    """What stands below one command."""

    def __init__(self, command):
        self.command = command
        self.lines, self.errors, self.shown, self.contained, self.fields = [], [], [], [], []
        self.status = 0

    def check(self, world):
        if world.status != self.status:
            raise Mismatch(f"exit status {world.status}, expected {self.status}; standard error: {world.stderr}")
        if world.stderr != self.errors:
            raise Mismatch(f"standard error\n  {world.stderr}\nexpected\n  {self.errors}")
        for text in self.contained:
            if text not in world.stdout:
                raise Mismatch(f"standard output lacks {text!r}:\n{world.stdout}")
        collapsed = [" ".join(line.split(" ")).split() for line in world.stdout.splitlines()]
        for text in self.shown:
            if text.split() not in collapsed:
                raise Mismatch(f"no line reads {text!r} in\n{world.stdout}")
        if self.fields:
            self.check_fields(json.loads(world.stdout))
        if not (self.contained or self.shown or self.fields):
            actual = world.stdout.replace("\r", "\\r").splitlines()
            if actual != self.lines:
                raise Mismatch("standard output\n" + "\n".join(actual) + "\nexpected\n" + "\n".join(self.lines))

    def check_fields(self, table):
        for name, text in self.fields:
            expected = json.loads(text)
            if name not in table:
                raise Mismatch(f"no field {name}")
            if table[name] != expected:
                raise Mismatch(f"{name} is {json.dumps(table[name], ensure_ascii=False)}, expected {text}")


def parse(text):
    """The steps of a scenario: (directive, words) and expectations, in their order."""
    steps, current = [], None
    for number, line in enumerate(text.splitlines(), 1):
        if line.startswith("# ") or line == "#" or (not line and current is None):
            continue
        word = line.split(" ", 1)[0]
        rest = line[len(word) + 1:]
        if word == "$":
            current = Expectation(rest)
            steps.append(current)
        elif word in DIRECTIVES and (current is None or word not in ("row",) or "=" in rest):
            current = None
            steps.append((word, shlex.split(rest)))
        elif current is None:
            raise Mismatch(f"line {number}: unknown word {word!r}")
        elif word == "!":
            current.errors.append(rest)
        elif word == "=":
            current.status = int(rest)
        elif word == "~":
            current.contained.append(rest)
        elif word == "shows":
            current.shown.append(rest)
        elif word == "json":
            current.fields.append(rest.split(" ", 1))
        else:
            current.lines.append(line)
    for step in steps:
        while isinstance(step, Expectation) and step.lines and not step.lines[-1]:
            step.lines.pop()
    if not any(isinstance(step, Expectation) for step in steps):
        raise Mismatch("the scenario runs nothing")
    return steps


def take(world, step):
    if not isinstance(step, Expectation):
        word, words = step
        DIRECTIVES[word](world, words)
        return
    world.run(step.command)
    try:
        step.check(world)
    except Mismatch as mismatch:
        raise Mismatch(f"$ {step.command}\n{mismatch}") from None


def play(program, text):
    with tempfile.TemporaryDirectory(prefix="rbtally-") as folder:
        world = World(program, folder)
        try:
            for step in parse(text):
                take(world, step)
        finally:
            world.let_go()


def main():
    program, file = sys.argv[1:]
    try:
        play(program, pathlib.Path(file).read_text(encoding="utf-8"))
    except Mismatch as mismatch:
        print(f"{file}: {mismatch}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
