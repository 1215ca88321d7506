#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The PDF file of a report as other programs see it: one page of its paper, its text to be found, fonts inside; a file
that cannot be written leaves the old one.

usage: pdf_test.py RBTALLY
"""
import re
import subprocess
import sys
import tempfile

import scenario

# Points of the sheets, to the point: A4 210 x 297 mm, the Japanese B5 182 x 257 mm.
SHEETS = {"a4t": (595, 842), "a4y": (842, 595), "b5y": (729, 516)}
ROW = "太さ=19 伸総計=10".split()


def shown(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def check_page(pdf, paper):
    information = shown("pdfinfo", pdf)
    assert re.search(r"^Pages: +1$", information, re.MULTILINE), information
    width, height = map(float, re.search(r"Page size: +([\d.]+) x ([\d.]+)", information).groups())
    assert abs(width - SHEETS[paper][0]) < 1 and abs(height - SHEETS[paper][1]) < 1, information
    text = re.sub(r"[ 　]", "", shown("pdftotext", "-layout", pdf, "-"))
    for words in ("重量対比表", "工事名見本町集合住宅", "2026年11月21日", "D19", "135Kg"):
        assert words in text, f"{words} is not in\n{text}"
    fonts = shown("pdffonts", pdf).splitlines()[2:]
    assert fonts and all(line.split()[-5] == "yes" for line in fonts), fonts


def main():
    with tempfile.TemporaryDirectory(prefix="rbtally-") as folder:
        world = scenario.World(sys.argv[1], folder)
        world.row(ROW)
        for paper in SHEETS:
            pdf = f"{folder}/{paper}.pdf"
            world.run(f"rbtally report taihi-a-{paper} --date 2026/11/21 -o {pdf}")
            assert (world.status, world.stderr, world.stdout) == (0, [], ""), world.stderr
            check_page(pdf, paper)
        # A display that is set but not there does not matter, nor does a platform that the desktop would use.
        world.run(f"DISPLAY=:99 QT_QPA_PLATFORM=xcb rbtally report ulbon -o {folder}/u.pdf")
        assert (world.status, world.stderr) == (0, []), world.stderr
        world.run(f"rbtally report ulbon -o {folder}/none/u.pdf")
        assert world.status == 1 and len(world.stderr) == 1, world.stderr
    return 0


if __name__ == "__main__":
    sys.exit(main())
