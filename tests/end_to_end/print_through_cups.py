#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Comparison sheets printed through CUPS on PDF printers, and what comes out of them: paper, orientation, pages, text,
and where the text stands. Fails where CUPS is not installed: a printing program of which nobody has seen a sheet come
out of a printer is not tested.

usage: print_through_cups.py RBTALLY PRINT_SHEET
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time

import scenario
from cups_server import PrintServer
from page_picture import PagePicture

ROW = "太さ=19 伸総計=10".split()
WORDS = ("重量対比表", "取引先見本建設株式会社", "工事名見本町集合住宅", "2026年11月21日", "総重量135Kg", "D19", "SD345")
# Sheets as they lie in portrait, in points: A4 210 x 297 mm, A3 297 x 420 mm, the Japanese B5 182 x 257 mm, Letter.
A4, A3, B5, LETTER = (595, 842), (842, 1191), (516, 729), (612, 792)
BUTTONS = {"btnA4T": (A4, False), "btnA4Y": (A4, True), "btnB5Y": (B5, True)}
# Left, bottom, right and top of the sheet in portrait, all different.
MARGINS = (18, 12, 6, 30)
SAME, OTHER = 0.9, 0.7  # likeness of two pictures of one page, and more than different pages reach


class Desk:
    """The bulk result screen and its print buttons, at work on one site."""

    def __init__(self, world, program, server):
        self.world, self.program, self.server = world, program, server

    def run(self, *words):
        environment = self.world.environment | self.server.environment() | {
            "QT_QPA_PLATFORM": "offscreen", "QT_LOGGING_RULES": "*.warning=false",
            "XDG_RUNTIME_DIR": str(self.world.folder)}
        return subprocess.run([self.program, *words], env=environment, capture_output=True, text=True,
                              timeout=self.server.patience)

    def name_printer(self, name):
        """The printer that tally reports go to."""
        self.world.settings.unlink(missing_ok=True)
        self.world.setting(["Kakou", "プリンタ", f"集計用ドライバ名={name}"])

    def press(self, *buttons):
        done = self.run(*buttons)
        assert (done.returncode, done.stdout, done.stderr) == (0, "", ""), done

    def print(self, *buttons):
        """A pair of PDF files for each sheet: as it was handed to the print server, and as it came out."""
        return self.server.printed_by(lambda: self.press(*buttons))


def shown(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def sheet_of(pdf):
    """Sides of the one page, in points."""
    information = shown("pdfinfo", pdf)
    assert re.search(r"^Pages: +1$", information, re.MULTILINE), information
    return tuple(map(float, re.search(r"Page size: +([\d.]+) x ([\d.]+)", information).groups()))


def places_of(pdf):
    """Each word with its left and top, in points."""
    found = re.findall(r'<word xMin="([\d.]+)" yMin="([\d.]+)"[^>]*>(.*?)</word>', shown("pdftotext", "-bbox", pdf, "-"))
    assert found, pdf
    return [(word, float(x), float(y)) for x, y, word in found]


def check_sheet(handed, came_out, paper, landscape):
    """The document has the paper and the text; what came out is the paper in portrait and shows the document."""
    sides = sheet_of(handed)
    expected = paper[::-1] if landscape else paper
    assert all(abs(a - b) < 1 for a, b in zip(sides, expected)), (sides, expected)
    text = re.sub(r"[ 　\n]", "", shown("pdftotext", "-layout", handed, "-"))
    for words in WORDS:
        assert words in text, f"{words} is not in\n{text}"
    # Printers' own tables of papers round the sides of B5.
    sides = sheet_of(came_out)
    assert all(abs(a - b) <= 2 for a, b in zip(sides, paper)), (sides, paper)
    picture, wanted = PagePicture.of(came_out), PagePicture.of(handed)
    right, wrong = (wanted.turned_left(), wanted) if landscape else (wanted, wanted.turned_left())
    assert picture.likeness(right) > SAME, f"{came_out}: only {picture.likeness(right):.2f} of it as it should be"
    assert picture.likeness(wrong) < OTHER, f"{came_out}: pictures that differ are taken for the same"


def check_shift(plain, shifted, across, down):
    """Every word of a sheet stands so far from where it stands on another."""
    before, after = places_of(plain), places_of(shifted)
    assert [word for word, *_ in before] == [word for word, *_ in after], (before, after)
    for (word, x, y), (_, new_x, new_y) in zip(before, after):
        assert abs(new_x - x - across) < 0.1 and abs(new_y - y - down) < 0.1, (word, new_x - x, new_y - y)


def check_list(desk):
    """The system's default comes first, then the others, each with its own paper, and PDF last."""
    done = desk.run("list")
    printers = [line.split("\t") for line in done.stdout.splitlines()]
    assert printers == [["大", "8", "1", "0", "0"], ["手紙", "256", "1", "12240", "15840"], ["甲", "9", "1", "0", "0"],
                        ["縁", "9", "1", "0", "0"], ["PDF", "9", "1", "0", "0"]], done


def check_named_printer(desk):
    """The printer of the setting gets orientation and paper of each button, whatever the default printer is. Without
    margins a sheet is the one that is written as PDF."""
    desk.name_printer("甲")
    sheets = desk.print(*BUTTONS)
    assert len(sheets) == len(BUTTONS), sheets
    for (handed, came_out), (paper, landscape) in zip(sheets, BUTTONS.values()):
        check_sheet(handed, came_out, paper, landscape)
    for (handed, _), button in zip(sheets, BUTTONS):
        file = desk.world.folder / f"{button}.pdf"
        desk.world.run(f"rbtally report taihi-a-{button[3:].lower()} --date 2026/11/21 -o {file}")
        assert desk.world.status == 0, desk.world.stderr
        check_shift(file, handed, 0, 0)
    return sheets


def check_printable_area(desk, plain):
    """On a printer with margins the origin is the corner of what it can print on."""
    left, bottom, right, top = MARGINS
    desk.name_printer("縁")
    sheets = desk.print(*BUTTONS)
    for (handed, came_out), (before, _), (paper, landscape) in zip(sheets, plain, BUTTONS.values()):
        check_sheet(handed, came_out, paper, landscape)
        shift = (max(top, bottom), max(left, right)) if landscape else (left, top)
        check_shift(before, handed, *shift)


def check_unknown_name(desk):
    """Where no printer bears the name, the default one prints, on its paper and in its orientation."""
    desk.name_printer("EPSON VP-4200")
    sheets = desk.print(*BUTTONS)
    assert len(sheets) == len(BUTTONS), sheets
    for handed, came_out in sheets:
        check_sheet(handed, came_out, A3, False)
    assert "大" in desk.server.run("lpstat", "-d"), "the system's default printer was changed"
    desk.server.run("lpadmin", "-d", "手紙")
    (sheet,) = desk.print("btnA4T")
    check_sheet(*sheet, LETTER, False)


def check_refusal(desk):
    """Of a printer that takes no jobs the screen says so, with its name."""
    desk.name_printer("甲")
    desk.server.run("cupsreject", "甲")

    def press():
        done = desk.run("btnA4T")
        assert "甲" in done.stderr and "not accepting" in done.stderr, done

    assert desk.server.printed_by(press) == []


def check_no_server(desk):
    """Without a print server there is PDF alone, and nobody waits."""
    desk.server.stop()
    start = time.monotonic()
    done = desk.run("list")
    assert done.stdout.split("\t")[0] == "PDF" and len(done.stdout.splitlines()) == 1, done
    assert time.monotonic() - start < 10, "waited for a print server that is not there"


def main():
    if os.geteuid() != 0:
        assert shutil.which("sudo"), "the PDF printer of CUPS works for root only, and there is no sudo"
        os.execvp("sudo", ["sudo", "-n", "--", sys.executable, "-B", *sys.argv])
    with tempfile.TemporaryDirectory(prefix="rbtally-") as folder, PrintServer() as server:
        world = scenario.World(sys.argv[1], folder)
        world.row(ROW)
        server.add_printer("甲")
        server.add_printer("縁", margins=MARGINS)
        server.add_printer("大", paper="A3")
        server.add_printer("手紙", paper="Letter")
        server.run("lpadmin", "-d", "大")
        desk = Desk(world, sys.argv[2], server)
        check_list(desk)
        plain = check_named_printer(desk)
        check_printable_area(desk, plain)
        check_unknown_name(desk)
        check_refusal(desk)
        check_no_server(desk)
    return 0


if __name__ == "__main__":
    sys.exit(main())
