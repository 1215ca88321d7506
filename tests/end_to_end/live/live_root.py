# SPDX-License-Identifier: MIT
"""Roots whose databases are real Jet files, their imported twins, and what a folder holds to the last byte."""
import hashlib
import json
import os
import pathlib
import re
import shutil
import sqlite3
import subprocess

SITE = "GENBA001.MDB"
SECOND_SITE = "GENBA002.MDB"
NOBODY = 65534
# What is told of a file whose reading takes long; on a busy machine any may.
LONG_READING = re.compile(r"rbtally: reading .*, which has changed or is new here")


class Source:
    """A demonstration root of the store: what its databases hold is what the Jet files get. It is changed here and
    written anew, as another program would change them."""

    def __init__(self, program, folder, rows=200):
        self.program = pathlib.Path(program).resolve()
        self.data = pathlib.Path(folder) / "source" / "DATA"
        self.home = pathlib.Path(folder) / "source-home"
        self.must("demo", self.data.parent, "--sites", "2", "--rows", str(rows), "--seed", "7")

    def must(self, *words, clock="2026-11-20T08:00:00"):
        environment = environment_of(self.home, self.data.parent) | {"RBK_CLOCK": clock}
        subprocess.run([self.program, *words], env=environment, check=True, capture_output=True)

    def execute(self, statement, file=SITE):
        connection = sqlite3.connect(self.data / file)
        with connection:
            result = connection.execute(statement).fetchall()
        connection.close()
        return result

    def databases(self):
        return sorted(path for path in self.data.iterdir() if path.suffix.lower() == ".mdb")

    def to_jet(self, version, name, target):
        subprocess.run([self.program.parent / "store_to_jet", str(version), self.data / name, target], check=True)


def environment_of(home, root):
    """Of a user of its own: the machine's clock, locale, settings and caches are no matter."""
    environment = {
        "PATH": os.environ["PATH"], "HOME": str(home), "LC_ALL": "C.UTF-8", "TZ": "Asia/Tokyo",
        "RBK_ROOT": str(root), "RBK_SETTINGS": str(home / "settings.ini"), "XDG_CACHE_HOME": str(home / "cache"),
    }
    for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS"):
        if name in os.environ:
            environment[name] = os.environ[name]
    return environment


class Done:
    """What a command did; paths of its root read $root."""

    def __init__(self, root, child, output, errors):
        self.status = child.returncode
        self.output = output
        text = errors.decode("utf-8").replace(str(root.folder), "$root")
        self.errors = "".join(line + "\n" for line in text.splitlines() if not LONG_READING.fullmatch(line))

    def json(self):
        return json.loads(self.output)


class Root:
    """A root folder, and the environment in which the program works on it."""

    def __init__(self, program, folder):
        self.program = pathlib.Path(program).resolve()
        self.folder = pathlib.Path(folder)
        self.data = self.folder / "DATA"
        self.home = self.folder.parent / (self.folder.name + "-home")
        self.out = self.folder.parent / (self.folder.name + "-out")
        for path in (self.home, self.out):
            path.mkdir(parents=True)
        self.environment = environment_of(self.home, self.folder)
        self.commands = 0
        self.user = None

    def start(self, words):
        """Each command a second later than the one before."""
        self.commands += 1
        clock = f"2026-11-21T09:{self.commands // 60:02}:{self.commands % 60:02}"
        words = [str(word).replace("$out", str(self.out)) for word in words]
        return subprocess.Popen([self.program, *words], env=self.environment | {"RBK_CLOCK": clock},
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, stdin=subprocess.DEVNULL,
                                cwd=self.folder.parent, user=self.user)

    def end(self, child):
        return Done(self, child, *child.communicate(timeout=300))

    def run(self, *words):
        return self.end(self.start(words))

    def must(self, *words):
        """What the command wrote; it ends well and says nothing."""
        done = self.run(*words)
        if done.status != 0 or done.errors:
            raise AssertionError(f"rbtally {' '.join(map(str, words))}: status {done.status}: {done.errors}")
        return done.output

    def tally(self, *words):
        return json.loads(self.must("tally", "bulk", "--format", "json", *words))

    def saved(self, *words):
        return json.loads(self.must("list", "--format", "json", *words))

    def names(self):
        return sorted(path.name for path in self.data.iterdir())


def jet_root(source, version, folder):
    """A root with all databases of the source as real Jet files, and its other files as they are."""
    root = Root(source.program, folder)
    root.data.mkdir(parents=True)
    for path in sorted(source.data.iterdir()):
        if path in source.databases():
            source.to_jet(version, path.name, root.data / path.name)
        else:
            shutil.copy(path, root.data)
    for name in ("KAKOU", "rbshopTM"):
        (root.folder / name).mkdir()
    return root


def imported_twin(root, folder):
    """The same, its Jet files taken into the store."""
    twin = Root(root.program, folder)
    twin.run("import", root.folder, twin.folder)
    return twin


def settle(root):
    """As if nobody had come to the files for long: what is known of one that was just written is looked at twice."""
    for path in root.data.iterdir():
        state = path.stat()
        if path.suffix.lower() == ".mdb":
            os.utime(path, ns=(state.st_atime_ns, state.st_mtime_ns - 3600 * 10**9))


def snapshot(folder):
    """Every path below a folder with all that can be told of it."""
    found = {}
    for path in sorted(pathlib.Path(folder).rglob("*")):
        state = path.lstat()
        digest = hashlib.sha256(path.read_bytes()).hexdigest() if path.is_file() else ""
        found[str(path.relative_to(folder))] = (state.st_ino, state.st_mode, state.st_nlink, state.st_uid,
                                                None if path.is_dir() else state.st_mtime_ns,
                                                None if path.is_dir() else state.st_size, digest)
    return found


def is_ours(name):
    """A name that this program may put beside the files of others."""
    return ".work" in name


def changes(before, after):
    """What became of the files of others, and what came to stand beside them that is not ours."""
    theirs = [name for name in before if not is_ours(name)]
    told = [f"{name} is gone" for name in theirs if name not in after]
    told += [f"{name} is another" for name in theirs if name in after and before[name] != after[name]]
    return told + [f"{name} is new" for name in after if name not in before and not is_ours(name)]


def words_of(program, command, name):
    """The words of a positional argument, as the help lists them."""
    text = subprocess.run([program, command, "--help"], capture_output=True, text=True, check=True).stdout
    return re.search(name + r"[^{\n]*\{([^}]*)\}", text)[1].split(",")


def everything(program):
    """What the program can do on the command line, in an order in which saved tallies come and go."""
    kinds = words_of(program, "tally", "KIND")
    saved = words_of(program, "save", "KIND")
    chosen = {"names": ["--names", "1,2,3"], "page": ["--from", "1/1", "--to", "3/9"]}
    yield "list", "--format", "json"
    for kind in kinds:
        yield "tally", kind, *chosen.get(kind, []), "--format", "json"
        yield "tally", kind, "--kinds", "5", "--forms", "3", "--ulbon", "0", "--calc", "0", "--format", "csv"
        yield "tally", kind, "--hoops", "1", "--plates", "1", "--start-mode", "1", "--format", "table"
    yield "tally", "shape", "--shapes", "1-20", "--format", "json"
    yield "tally", "floor", "--floors", "1..3", "--special", "5", "--uplift", "10", "--format", "json"
    yield "tally", "bulk", "--no-prepare", "--format", "json"
    yield "tally", "bulk", "--site", SECOND_SITE, "--format", "json"
    yield "names", "--format", "json"
    for kind in words_of(program, "detail", "KIND"):
        yield "detail", kind, *chosen.get(kind, []), "--percent", "10", "--set", "D19/6.0=3", "--format", "json"
    yield "stock", "4200", "10", "19", "--format", "json"
    yield "plan", "--effort", "greedy", "--format", "json"
    yield "plan", "--effort", "greedy", "--kinds", "1", "--scope", "floor", "--format", "csv"
    for form in words_of(program, "report", "NAME"):
        yield "report", form, "--trace", f"$out/{form}.trace"
    for kind in kinds:
        yield "export", kind, *chosen.get(kind, []), "-o", f"$out/{kind}.csv"
    for kind in saved:
        whole = ["--special", "7"] if kind in ("floor", "part") else []
        yield "save", kind, *whole, "--name", f"{kind} 一"
        yield "save", kind, *whole, "--name", f"{kind} 二"
        yield "load", kind, f"{kind} 一", "--format", "json"
        yield "export", kind, "--saved", f"{kind} 二", "-o", f"$out/saved-{kind}.csv"
        yield "rename", kind, f"{kind} 一", f"{kind} 三"
        yield "delete", kind, f"{kind} 二"
    yield "list", "--format", "json"
    yield "accumulate", SITE, SECOND_SITE, "--format", "json"
    yield "prepare",
    yield "prepare", "--start-mode", "4"
    for kind in saved:
        yield "load", kind, f"{kind} 三", "--format", "json"
    yield "tally", "bulk", "--format", "json"
