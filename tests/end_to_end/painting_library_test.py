#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The libraries that paint reports and solve linear programs, beside an installed program: found there wherever the
program lies, asked for by reports and plans alone, told of where they are missing or none of ours.

usage: painting_library_test.py RBTALLY CMAKE BUILD
"""
import pathlib
import subprocess
import sys
import tempfile

import scenario

ROW = "太さ=19 伸総計=10".split()
PIECES = "length,count\n2340,15\n1980,17\n1730,21\n3210,9\n2875,13\n"


def check(world, line, stderr=(), status=0):
    world.run(line)
    said = (world.status, world.stderr)
    assert said == (status, list(stderr)), f"{line}: {said}"


def check_told(world, line, library, what):
    """Whoever asks for it is told why it is not there."""
    shown = str(library).replace(str(world.folder), "$tmp")
    for content, cause in ((b"no library", "file too short"), (None, "cannot open shared object file")):
        library.unlink()
        if content:
            library.write_bytes(content)
        world.run(line)
        assert world.status == 1 and len(world.stderr) == 1, world.stderr
        assert f"{what} is not available: {shown}: {cause}" in world.stderr[0], world.stderr


def main():
    program, cmake, build = sys.argv[1:]
    with tempfile.TemporaryDirectory(prefix="rbtally-") as folder:
        place = pathlib.Path(folder, "a place of its own")
        subprocess.run([cmake, "--install", build, "--prefix", place, "--component", "command-line"], check=True,
                       stdout=subprocess.DEVNULL)
        world = scenario.World(place / "bin" / pathlib.Path(program).name, folder)
        world.row(ROW)
        report, pdf = f"rbtally report ulbon -o {folder}/u.pdf", pathlib.Path(folder, "u.pdf")
        check(world, report)
        assert pdf.read_bytes().startswith(b"%PDF"), pdf.read_bytes()[:20]
        # From elsewhere, by a link.
        link = pathlib.Path(folder, "link")
        link.symlink_to(world.program)
        world.program = link
        check(world, f"{report} --force")
        pdf.unlink()

        libraries = place / "lib" / "rbtally"
        check_told(world, report, libraries / "rbtally_pdf.so", "PDF")
        assert not pdf.exists()
        solver = libraries / "rbtally_lp.so"
        if solver.exists():  # without it plans are greedy ones
            pathlib.Path(folder, "pieces.csv").write_text(PIECES)
            plan = f"rbtally plan --pieces {folder}/pieces.csv --lengths 6000,7000,12000"
            check(world, plan)
            check_told(world, plan, solver, "the solver of linear programs")
            check(world, f"{plan} --effort greedy")
        # Whoever asks for no page does not miss it.
        check(world, f"rbtally report ulbon --trace {folder}/t --force")
        check(world, "rbtally tally bulk")
    return 0


if __name__ == "__main__":
    sys.exit(main())
