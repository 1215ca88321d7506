#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The scenarios check themselves: every command, kind and option that --help lists is run by at least one,
every exit status and format too, and the runner notices when the program does otherwise than a scenario says.

usage: check_scenarios.py RBTALLY FOLDER
"""
import pathlib
import re
import shlex
import subprocess
import sys

import scenario

# Each must be refused by the runner: the result of a D19 bar of 6 m is 13.5 kg of stock and installed weight.
WRONG = {
    "a wrong figure": "row 太さ=19\n$ rbtally tally bulk --format json\njson TotalStockWeight 15\n",
    "a wrong line": "row 太さ=19\n$ rbtally tally bulk\nshows 総合計\n",
    "a wrong status": "$ rbtally tally bulk --format json\njson kind \"bulk\"\n= 1\n",
    "an error that does not come": "$ rbtally tally bulk --format json\njson kind \"bulk\"\n! rbtally: none\n",
    "an error that nobody expects": "$ rbtally tally\n= 2\n",
    "text that is not there": "$ rbtally --help\n~ no such words\n",
    "output that nobody expects": "$ rbtally --help\n",
    "an unknown word": "rows 太さ=19\n$ rbtally --help\n",
    "nothing run": "row 太さ=19\n",
}


def help_of(program, *words):
    return subprocess.run([program, *words, "--help"], capture_output=True, text=True, check=True).stdout


def listed(program):
    """(command, what must stand on its line) for everything that --help lists."""
    subcommands = help_of(program).split("Subcommands:")[1]
    for command in re.findall(r"^  ([a-z-]+)", subcommands, re.MULTILINE):
        text = help_of(program, command)
        yield command, command
        for option in re.findall(r"(?<![\w-])--[a-z0-9-]+", text):
            yield command, option
        for choices in re.findall(r"KIND[^{\n]*\{([^}]*)\}", text):
            yield from ((command, kind) for kind in choices.split(","))
        for choices in re.findall(r"--format ([a-z|]+)", text):
            yield from ((command, choice) for choice in choices.split("|"))


def main():
    program, folder = sys.argv[1:]
    texts = [path.read_text(encoding="utf-8") for path in sorted(pathlib.Path(folder).glob("*.scenario"))]
    steps = [step for text in texts for step in scenario.parse(text) if isinstance(step, scenario.Expectation)]
    lines = [shlex.split(step.command) for step in steps]
    failures = []
    for command, word in listed(program):
        if not any(command in line and word in line for line in lines):
            failures.append(f"no scenario runs rbtally {command} with {word}")
    for status in (0, 1, 2):
        if not any(step.status == status for step in steps):
            failures.append(f"no scenario ends with exit status {status}")
    for what, text in WRONG.items():
        try:
            scenario.play(program, text)
            failures.append(f"the runner lets {what} pass")
        except scenario.Mismatch:
            pass
    print("\n".join(failures), file=sys.stderr)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
