#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The comparison with accepted traces checks itself: it must fail at a missing trace, a changed one, and one too many.

usage: check_golden.py RBTALLY
"""
import contextlib
import io
import pathlib
import shutil
import sys
import tempfile

import golden

SITE = "bare"


def failures_after(change, program):
    """What the check says of a copy of the accepted traces that was tampered with."""
    with tempfile.TemporaryDirectory(prefix="rbtally-golden-") as folder:
        copy = pathlib.Path(folder)
        (copy / "sites").mkdir()
        shutil.copy(here / "sites" / f"{SITE}.site", copy / "sites")
        for file in here.glob(f"{SITE}.*.trace"):
            shutil.copy(file, copy)
        change(copy)
        golden.HERE = copy
        said = io.StringIO()
        with contextlib.redirect_stderr(said):
            status = golden.check(program, [])
        return status, said.getvalue()


def change_a_figure(copy):
    file = copy / f"{SITE}.taihi-a-a4t.trace"
    text = file.read_text(encoding="utf-8")
    assert "196 Kg" in text
    file.write_text(text.replace("196 Kg", "197 Kg"), encoding="utf-8")


here = golden.HERE
EXPECTED = [
    (lambda copy: None, 0, ""),
    (lambda copy: (copy / f"{SITE}.ulbon.trace").unlink(), 1, f"{SITE}.ulbon.trace is missing"),
    (change_a_figure, 1, "197 Kg"),
    (lambda copy: (copy / f"{SITE}.taihi-d-a4t.trace").write_text(""), 1, "belongs to no form"),
]


def main():
    for change, status, words in EXPECTED:
        found, said = failures_after(change, sys.argv[1])
        if found != status or words not in said:
            print(f"expected status {status} and {words!r}, got {found} and\n{said}", file=sys.stderr)
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
