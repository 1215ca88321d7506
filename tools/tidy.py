#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs clang-tidy over the sources that need it.

usage: tidy.py BUILD [--all] [--since REVISION] [--tool PROGRAM]

BUILD is a tree of Ninja that is built: what a source reads is known from there, and read it is without precompiled
headers, so that an include which only they bring is found missing. What is compiled together is read source by source
all the same: each must stand by itself.

A source that passed is not read again before something changes that it is made of: its text and that of every file
it includes, its compile command, the checks, the tool. The digest of all that is its key; keys of sources that passed
are kept beside the compiler cache and hold for every clone on the machine.

Without --all the sources count that are reached by what changed since the last landing, which read all that it
reached: those that include a changed file, and all that a changed option or check concerns. The last landing is the
merge base with the branch's upstream (or with origin's, or with main); in a checkout of what has landed, 30 commits
ago; where git knows neither, all sources count.
"""
import argparse
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
import time
from concurrent.futures import ThreadPoolExecutor

COMMITS_OF_A_LANDING = 30
DAYS_A_KEY_IS_KEPT = 90
# They decide how each source is compiled or checked.
OPTIONS_OF_ALL = {"CMakeLists.txt", "CMakePresets.json", "cmake/Options.cmake", "tools/tidy.py"}

# Only where sources are compiled together is that said, or is it of no weight to what is read.
COMPILING = {"-Winvalid-pch", "-fpch-preprocess", "-Werror", "-Wno-subobject-linkage"}
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*["<]([^">]+)[">]', re.MULTILINE)

ROOT = pathlib.Path(os.getcwd())


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True, cwd=ROOT).stdout


def git_lists(*arguments):
    return {name for name in output_of("git", *arguments, "-z").split("\0") if name}


class Source:
    """A source with its compile command; reads: the files that it is compiled from, relative to ROOT if below it."""

    def __init__(self, name, command, directory, reads):
        self.name = name
        self.command = as_read(command)
        self.directory = directory
        self.reads = sorted(reads)

    def checks(self):
        """The files of checks that hold for it."""
        folders = pathlib.Path(self.name).parents
        return [str(folder / ".clang-tidy") for folder in folders if (ROOT / folder / ".clang-tidy").exists()]

    def key(self, tool, digest_of):
        command = " ".join(self.command).replace(self.directory, "BUILD").replace(str(ROOT), "ROOT")
        parts = [tool, self.name, command]
        parts += [f"{name.replace(self.directory, 'BUILD')} {digest_of(name)}" for name in self.checks() + self.reads]
        return hashlib.sha256("\n".join(parts).encode()).hexdigest()

    def is_unchanged_since(self, moment):
        return all((ROOT / name).stat().st_mtime < moment for name in self.checks() + self.reads)

    def is_reached(self, changed):
        if changed & OPTIONS_OF_ALL or changed.intersection(self.reads) or changed.intersection(self.checks()):
            return True
        forms = {"ui_" + pathlib.Path(name).stem + ".h" for name in changed if name.endswith(".ui")}
        own_list = str(pathlib.Path(self.name).parent / "CMakeLists.txt")
        return own_list in changed or any(pathlib.Path(name).name in forms for name in self.reads)


def relative(name):
    return os.path.relpath(name, ROOT) if name.startswith(f"{ROOT}/") else name


def as_read(command):
    """The command without precompiled headers and object; a warning of the compiler that is no check is no finding."""
    kept = []
    words = iter(command)
    for word in words:
        if word in ("-include", "-o"):
            next(words)
        elif word not in COMPILING:
            kept.append(word)
    return kept


def dependencies(build):
    """The files that each object of the build was made from, by the object's name."""
    reads, target = {}, None
    for line in output_of("ninja", "-C", str(build), "-t", "deps").splitlines():
        if line.startswith("    "):
            name = os.path.normpath(build / line.strip())
            if "/cmake_pch." not in name:
                reads[target].add(relative(name))
        elif ": #deps" in line:
            target = line.split(": #deps")[0]
            reads[target] = set()
    return reads


def compiled_by(file):
    """The sources that an entry of the compile commands stands for: what a file of cmake/Joined.cmake holds together."""
    if file.parent.name != "joined":
        return [file]
    return [pathlib.Path(os.path.normpath(file.parent / name)) for name in INCLUDE.findall(file.read_text())]


class Included:
    """The names that files include, as they write them."""

    def __init__(self):
        self.known = {}

    def by(self, name):
        if name not in self.known:
            self.known[name] = INCLUDE.findall((ROOT / name).read_text(errors="replace"))
        return self.known[name]


def share_of(name, reads, build, included):
    """What a source reads of that which several read together: of the project what it includes, of libraries all."""
    ours = {}
    libraries = set()
    for file in reads:
        if os.path.isabs(file) and not file.startswith(f"{build}/"):
            libraries.add(file)
        else:
            ours.setdefault(os.path.basename(file), []).append(file)
    share, pending = set(), [name]
    while pending:
        file = pending.pop()
        if file not in share:
            share.add(file)
            for written in included.by(file):
                # Where it is found the include paths decide: all that it could mean count.
                end = "/" + written.lstrip("./")
                pending += [other for other in ours.get(os.path.basename(written), []) if f"/{other}".endswith(end)]
    return share | libraries


def sources_of(build):
    reads = dependencies(build)
    included = Included()
    tracked = git_lists("ls-files", "-co", "--exclude-standard", "*.cpp")
    found = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        command = shlex.split(entry["command"])
        target = command[command.index("-o") + 1]
        files = compiled_by(pathlib.Path(entry["file"]))
        for file in files:
            name = relative(str(file))
            if name in tracked and name not in found:
                if target not in reads:
                    sys.exit(f"{name}: {relative(str(build))} is not built")
                alone = [str(file) if word == entry["file"] else word for word in command]
                share = share_of(name, reads[target], build, included) if len(files) > 1 else reads[target]
                found[name] = Source(name, alone, entry["directory"], share)
    missing = sorted(name for name in tracked - found.keys() if (ROOT / name).exists())
    if missing:
        sys.exit("no compile command for: " + " ".join(missing))
    return list(found.values())


def last_landing():
    def revision(*arguments):
        answer = subprocess.run(["git", *arguments], capture_output=True, text=True, cwd=ROOT)
        return answer.stdout.strip() if answer.returncode == 0 else None

    head = revision("rev-parse", "HEAD")
    for upstream in ("@{upstream}", "origin/HEAD", "main"):
        base = revision("merge-base", "HEAD", upstream)
        if base and base != head:
            return base
    return revision("rev-parse", "--verify", "--quiet", f"HEAD~{COMMITS_OF_A_LANDING}")


class Keys:
    def __init__(self):
        compiler_cache = pathlib.Path(output_of("ccache", "--get-config", "cache_dir").strip())
        self.folder = compiler_cache.parent / "rbtally" / "tidy"
        self.folder.mkdir(parents=True, exist_ok=True)

    def holds(self, key):
        try:
            os.utime(self.folder / key)
            return True
        except FileNotFoundError:
            return False

    def add(self, key):
        (self.folder / key).touch()

    def forget_old(self):
        oldest = time.time() - DAYS_A_KEY_IS_KEPT * 86400
        for file in self.folder.iterdir():
            if file.stat().st_mtime < oldest:
                file.unlink(missing_ok=True)


def write_database(folder, sources):
    """Compile commands without precompiled headers, for clang-tidy to find."""
    folder.mkdir(exist_ok=True)
    entries = [{"directory": s.directory, "file": str(ROOT / s.name), "arguments": s.command} for s in sources]
    (folder / "compile_commands.json").write_text(json.dumps(entries))


def passes(tool, source, database):
    run = subprocess.run([tool, "--quiet", "-p", str(database), str(ROOT / source.name)],
                         capture_output=True, text=True, cwd=ROOT)
    if run.returncode != 0:
        print(run.stdout.strip() or f"{source.name}: {run.stderr.strip()}", flush=True)
    return run.returncode == 0


def digests():
    known = {}

    def digest_of(name):
        if name not in known:
            known[name] = hashlib.sha256((ROOT / name).read_bytes()).hexdigest()
        return known[name]

    return digest_of


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--all", action="store_true")
    parser.add_argument("--since")
    parser.add_argument("--tool", default="clang-tidy")
    arguments = parser.parse_args()
    build = (ROOT / arguments.build).resolve()
    begin = time.time()

    sources = sources_of(build)
    reached = sources
    base = None if arguments.all else arguments.since or last_landing()
    if base:
        changed = git_lists("diff", "--name-only", "--no-renames", base)
        changed |= git_lists("ls-files", "-o", "--exclude-standard")
        reached = [source for source in sources if source.is_reached(changed)]

    keys, digest_of, version = Keys(), digests(), output_of(arguments.tool, "--version")
    key_of = {source: source.key(version, digest_of) for source in reached}
    # The largest first, so that no processor is left waiting for one at the end.
    to_read = sorted((s for s in reached if not keys.holds(key_of[s])), key=lambda s: -len(s.reads))
    write_database(build / "tidy", to_read)

    def read(source):
        passed = passes(arguments.tool, source, build / "tidy")
        # What is edited meanwhile is not what the key tells.
        if passed and source.is_unchanged_since(begin):
            keys.add(key_of[source])
        return passed

    with ThreadPoolExecutor(os.cpu_count()) as pool:
        failed = list(pool.map(read, to_read)).count(False)
    keys.forget_old()
    print(f"{len(to_read)} sources read, {failed} with findings; {len(reached) - len(to_read)} known to be good, "
          f"{len(sources) - len(reached)} not reached by changes since {base or 'ever'}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
