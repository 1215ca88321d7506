# SPDX-License-Identifier: MIT
"""Where the report forms have what, in twips: written down a second time, from the sheets."""
from dataclasses import dataclass


@dataclass
class Paper:
    code: int
    orientation: int
    left: int
    drop: int        # from the top to the title
    between: int     # what a row is higher than its text
    indent: int      # from the left to a long name
    short_name: int
    title: tuple     # X, and the ends of the rule, as every place below
    western: tuple
    era: tuple
    date_rise: int
    before_block: int = 0  # X of the own-company block, which the client and the project's rule keep clear of
    total_row: float = 6
    low_rows: bool = False  # the rule of a short name stands right under it


@dataclass
class Form:
    rules: list
    heads: list      # X, text
    total: str
    label: int
    cells: list      # X, characters
    totals: list
    total_to: int    # where the rule under 総重量 ends
    loss: tuple      # place, blank, characters


A4T = Paper(9, 1, 500, 1000, 100, 960, 1567, (3800, 3600, 7400), (8500, 8400, 10800), (8300, 8200, 11000), 1500, 6400)
A4Y = Paper(9, 2, 1800, 500, 100, 960, 2760, (6000, 5800, 9500), (11800, 11700, 14100), (11600, 11500, 14300), 1300)
B5Y = Paper(13, 2, 700, 500, 35, 1067, 1767, (5200, 5000, 8750), (10700, 10600, 13000), (10500, 10400, 13200), 1300, 0, 5.8,
            True)
ULBON = Paper(9, 2, 1800, 500, 100, 960, 2760, (5900, 5700, 9700), A4Y.western, A4Y.era, 1300, 9900)
PAPERS = {"a4t": A4T, "a4y": A4Y, "b5y": B5Y}


def form(rules, heads, total, label, cells, total_to, loss=None, totals=None):
    return Form(rules, heads, total, label, cells, totals or cells, total_to, loss)


FORMS = {
    ("a", "a4t"): form(
        [500, 2500, 4500, 6500, 8300, 9600, 10900],
        [(1000, "太　　さ"), (2700, "定　尺　重　量"), (4700, "取　付　重　量"), (6900, "差　　引"), (8550, "圧　　接"),
         (9850, "切　　断")],
        "合　　計", 700, [(2700, 11), (4600, 11), (6550, 9), (8500, 7), (9800, 7)], 3700,
        ((6700, 6500, 8600), "　", 6), [(2600, 11), (4700, 11), (6550, 9), (8500, 7), (9800, 7)]),
    ("a", "a4y"): form(
        [1800, 3800, 6300, 8800, 11300, 12800, 14300],
        [(2100, "太　　　　さ"), (4000, "定   尺   重   量"), (6500, "取   付   重   量"), (9150, "差            引"),
         (11550, "圧　　接"), (13050, "切　　断")],
        "異　形　合　計", 2000, [(4400, 11), (6900, 11), (9400, 11), (11600, 7), (13100, 7)], 5100,
        ((9000, 8800, 10900), "　", 6)),
    ("a", "b5y"): form(
        [700, 2700, 5200, 7700, 10200, 11700, 13200],
        [(1100, "太　　　さ"), (3100, "定  尺  重  量"), (5600, "取  付  重  量"), (8250, "差　　　　引"), (10500, "圧　　接"),
         (12000, "切　　断")],
        "合　　　計", 900, [(3300, 11), (5800, 11), (8200, 11), (10700, 7), (12200, 7)], 4200,
        ((10400, 10200, 12900), " ", 12)),
    ("b", "a4t"): form(
        [500, 3500, 6500, 8700, 10900],
        [(1250, "太　　　　さ"), (3800, "定　　尺　　重　　量"), (6950, "圧　　　接"), (9150, "切　　　断")],
        "合　　　　計", 700, [(4500, 11), (7600, 7), (9800, 7)], 3700),
    ("b", "a4y"): form(
        [1800, 5300, 9800, 11800, 13800],
        [(2700, "太          さ"), (6300, "定    尺    重    量"), (10100, "圧        接"), (12050, "切        断")],
        "合          計", 2500, [(7300, 11), (10600, 7), (12500, 7)], 5100),
    ("b", "b5y"): form(
        [1000, 4500, 8000, 10500, 13000],
        [(1650, "太　　　　　　　さ"), (4800, "定　　尺　　重　　量"), (8600, "圧　　　接"), (11100, "切　　　断")],
        "合　　　　　　　計", 1400, [(6000, 11), (9000, 7), (11500, 7)], 4000, ((10700, 10500, 13200), " ", 12)),
}
INSTALLED = str.maketrans("定尺", "取付")


def form_of(kind, paper):
    """Kind C is kind B with the installed weight in the one column."""
    found = FORMS["b" if kind == "c" else kind, paper]
    heads = [(x, text.translate(INSTALLED)) for x, text in found.heads] if kind == "c" else found.heads
    return form(found.rules, heads, found.total, found.label, found.cells, found.total_to, found.loss, found.totals)


ULBON_RULES = [1800, 3800, 6800, 9800, 12800, 14300]
ULBON_HEADS = [(2100, "太　　　さ"), (4250, "定   尺   重   量"), (7250, "取   付   重   量"), (10350, "差            引"),
               (13050, "圧　　接")]
