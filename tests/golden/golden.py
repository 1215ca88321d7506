#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compares what the report forms draw with the accepted traces, or accepts new ones.

usage: golden.py check RBTALLY [SITE]     fails at any difference, at a missing trace and at one that no form has
       golden.py accept RBTALLY [SITE]    shows each difference, then asks whether to take it (--yes: takes all)

A site is a file of sites/: the words of a scenario (tests/end_to_end/FORMAT.md) that set it up, then a line
`report OPTIONS`, `list OPTIONS`, `floors OPTIONS`, `parts OPTIONS` or `plan OPTIONS`: the options that each form of that
family is drawn with (comparison and Ulbon, purchase lists, floors, parts, sheets of the cutting plan). A line
`only FORM...` leaves the other forms of the family out. A trace is SITE.FORM.trace.
"""
import difflib
import pathlib
import re
import shlex
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "end_to_end"))
import scenario  # noqa: E402

# The forms that a site's options are for, by the beginning of their names; the names are the program's own.
FAMILIES = {"report": ("taihi-", "ulbon"), "list": ("meisai-",), "floors": ("kai-",), "parts": ("bui-",),
            "plan": ("plan-",)}
# The sheets of the cutting plan, by the options that ask for them.
SHEETS = {"plan-purchase": "--purchase-sheet", "plan-shop": "--shop-sheet"}


class Site:
    """A root folder set up as the site's file says."""

    def __init__(self, program, file, folder):
        self.name = file.stem
        self.world = scenario.World(program, folder)
        self.family, self.options, self.only = "", [], []
        for line in file.read_text(encoding="utf-8").splitlines():
            words = shlex.split(line, comments=True)
            if words[:1] == ["only"]:
                self.only = words[1:]
            elif words and words[0] in FAMILIES:
                self.family, *self.options = words
            elif words:
                scenario.DIRECTIVES[words[0]](self.world, words[1:])

    def all_forms(self):
        reports = re.search(r"NAME TEXT:\{([^}]*)\}", self.run("report", "--help")).group(1).split(",")
        return [*reports, *SHEETS]

    def family_forms(self):
        return [form for form in self.all_forms() if form.startswith(FAMILIES[self.family])]

    def forms(self):
        forms = self.family_forms()
        if strange := set(self.only) - set(forms):
            raise scenario.Mismatch(f"{self.name}: no forms of {self.family}: {' '.join(sorted(strange))}")
        return [form for form in forms if not self.only or form in self.only]

    def run(self, *words):
        self.world.run(shlex.join(["rbtally", *words]))
        if self.world.status != 0:
            raise scenario.Mismatch(f"{self.name}: {words[1]} ends with {self.world.stderr}")
        return self.world.stdout

    def trace(self, form):
        file = self.world.folder / f"{form}.trace"
        if form in SHEETS:
            sheet = str(self.world.folder / f"{form}.pdf")
            self.run("plan", *self.options, SHEETS[form], sheet, "--trace", str(file))
        else:
            self.run("report", form, *self.options, "--trace", str(file))
        return file.read_text(encoding="utf-8")


def sites(program, names):
    for file in sorted((HERE / "sites").glob("*.site")):
        if names and file.stem not in names:
            continue
        with tempfile.TemporaryDirectory(prefix="rbtally-") as folder:
            yield Site(program, file, folder)


def golden_file(site, form):
    return HERE / f"{site.name}.{form}.trace"


def difference(file, trace):
    old = file.read_text(encoding="utf-8") if file.exists() else ""
    return "".join(difflib.unified_diff(old.splitlines(True), trace.splitlines(True),
                                        f"{file.name} as accepted", "as drawn"))


def check(program, names):
    failures, known, undrawn, drawn = [], set(), set(), set()
    for site in sites(program, names):
        undrawn |= {form for form in site.all_forms() if not form.startswith(sum(FAMILIES.values(), ()))}
        undrawn |= set(site.family_forms())
        for form in site.forms():
            drawn.add(form)
            file = golden_file(site, form)
            known.add(file)
            if not file.exists():
                failures.append(f"{file.name} is missing: look at the page, then golden.py accept")
            elif text := difference(file, site.trace(form)):
                failures.append(text)
    if not names:
        failures += [f"{file.name} belongs to no form" for file in HERE.glob("*.trace") if file not in known]
        failures += [f"no site draws {form}" for form in sorted(undrawn - drawn)]
    if not known:
        failures.append(f"no such site: {' '.join(names)}")
    for failure in failures:
        print(failure, file=sys.stderr)
    return 1 if failures else 0


def accept(program, names, take_all):
    for site in sites(program, names):
        for form in site.forms():
            file, trace = golden_file(site, form), site.trace(form)
            text = difference(file, trace)
            if not text:
                continue
            print(text)
            if take_all or input(f"Take {file.name}? [y/N] ").strip().lower() == "y":
                file.write_text(trace, encoding="utf-8")
    return 0


def main():
    words = [word for word in sys.argv[1:] if word != "--yes"]
    if len(words) < 2 or words[0] not in ("check", "accept"):
        print(__doc__, file=sys.stderr)
        return 2
    command, program, *names = words
    return check(program, names) if command == "check" else accept(program, names, "--yes" in sys.argv)


if __name__ == "__main__":
    sys.exit(main())
