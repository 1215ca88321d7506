# SPDX-License-Identifier: MIT
"""The purchase lists drawn a second time, from the JSON of `rbtally detail` and what a site says of itself."""
from dataclasses import dataclass, field

from own_company import Block
from pen import Pen, byte_length, count, right, single, total_weight
from report_redraw import DIAMETERS, date_text, money

LENGTHS = [f"{half / 2:4}" for half in range(7, 25)] + ["13.0"]
TITLES = {1: "合  計  数  量  表", 2: "材  料  明  細  表"}
COUNTS = {"圧接": "WeldCount", "ｶﾌﾟﾗ": "ThreadCount", "ＤＢ": "PlateCount", "切断": "CutCount"}


@dataclass
class Wanted:
    """What is asked of a purchase list beside what every report asks of a site."""
    title: int  # 1, 2, or 3: the user's own text
    own_title: str
    with_13m: bool
    keeps_empty: bool
    installed: bool
    date_right: bool
    memos: list
    memos_above: bool
    tally: dict = field(default_factory=dict)  # after its changes


@dataclass
class Paper:
    """A4 in one orientation. Places are X in twips."""
    orientation: int
    title: int
    head_end: int           # client and project end here: the own company stands behind it
    dates: tuple            # in the middle, at the right
    company: tuple          # X, Y
    row: int                # height of a row of the table
    sums: list
    memo_places: list       # X, how much lower than the first, width, size, bold
    memo_characters: int


LANDSCAPE = Paper(2, 6500, 11000, (7000, 13600), (11200, 1000), 280, ["重量", "取重", "圧接", "ｶﾌﾟﾗ", "ＤＢ", "切断"],
                  [(x, 0, 4900, 12, True) for x in (530, 5530, 10530)], 1000)
PORTRAIT = Paper(1, 2800, 6400, (4300, 8500), (6550, 1100), 320, ["重量", "圧接", "切断"],
                 [(530, 300 * memo, 10300, 13, False) for memo in range(3)], 30)


@dataclass
class Place:
    """The place of a diameter in a repeat: where its name, its labels, "ｍ", its columns and its sums stand. A number
    is told by the X where it ends."""
    name: int
    grade_end: int
    label: int
    metre: int
    bars: tuple             # X of the heading, end of the counts
    weights: tuple          # the same, none on the lists of counts alone
    bars_heading: str
    weights_heading: str
    sums_end: int


@dataclass
class Form:
    paper: Paper
    period: int
    repeats: int
    rules: list             # X offset, width, "all" rows, "below" the names, or those of the "lengths"; first repeat alone
    blocks: list


FORMS = {
    "meisai-a4y": Form(LANDSCAPE, 2190, 7, [(0, 3, "all", 0), (450, 2, "below", 0), (1200, 1, "lengths", 0)],
                       [Place(100, 2160, 30, 150, (575, 1150), (1500, 2150), "本 数", "重 量", 2150)]),
    "meisai-a4y-count": Form(LANDSCAPE, 1910, 8, [(0, 3, "all", 0), (450, 2, "below", 0)],
                             [Place(100, 1880, 30, 150, (930, 1800), (), "本 数", "", 1800)]),
    "meisai-a4t": Form(PORTRAIT, 3450, 3, [(0, 3, "all", 0), (700, 2, "below", 0), (1725, 1, "lengths", 1),
                                           (1950, 1, "lengths", 0), (2225, 1, "lengths", 0)],
                       [Place(170, 3420, 170, 260, (912.5, 1705), (2537.5, 3400), "本　数", "重　量", 3400)]),
    "meisai-a4t-count": Form(PORTRAIT, 3450, 3, [(0, 3, "all", 0), (700, 2, "below", 0), (1725, 3, "all", 0),
                                                 (2225, 2, "below", 0)],
                             [Place(170, 1705, 170, 260, (912.5, 1705), (), "本　数", "", 1705),
                              Place(1895, 3420, 1795, 1885, (2537.5, 3400), (), "本　数", "", 3400)]),
}


def blank_zero(x, characters):
    """By the mask "#,###", which leaves nothing of what rounds to zero."""
    text = count(x, characters)
    return " " * characters if text.strip() == "0" else text


class List:
    """The pages of a purchase list."""

    def __init__(self, name, sheet, wanted):
        self.form, self.sheet, self.wanted = FORMS[name], sheet, wanted
        self.paper = self.form.paper
        self.pen = Pen(9, self.paper.orientation)
        tally = wanted.tally
        self.bars = {(d, l): bars for d, l, bars in tally["BarCount"]}
        self.weights = {(d, l): money(weight) for d, l, weight in tally["StockWeight"]}
        self.lengths = 19 if wanted.with_13m else 18
        self.installed = wanted.installed and "取重" in self.paper.sums
        self.sums = [sum_ for sum_ in self.paper.sums if self.installed or sum_ != "取重"]

    def lines(self):
        return [*self.pen.lines, "end"]

    def draw(self):
        weights = self.wanted.tally["StockWeightByDia"]
        listed = [d for d in range(12) if self.wanted.keeps_empty or money(weights[d])]
        on_a_page = self.form.repeats * len(self.form.blocks)
        for first in range(0, max(len(listed), 1), on_a_page):
            if first:
                self.pen.lines.append(f"page\t{first // on_a_page + 1}")
            self.page(listed[first:first + on_a_page])
        return self

    def page(self, diameters):
        self.head()
        self.frame()
        for place, d in enumerate(diameters):
            repeat, block = divmod(place, len(self.form.blocks))
            self.diameter(500 + repeat * self.form.period, self.form.blocks[block], d)
        self.company().draw(self.pen, *self.paper.company)
        self.memos()

    # The head: its rows are as high as a line of the title and 30 twips.

    def head_y(self, row):
        return single(500 + 390 * row)

    def head(self):
        self.title()
        self.client()
        self.project()
        self.date()
        self.total(700, 500, 4400, "総重量", self.wanted.tally["TotalStockWeight"])
        if self.installed:
            self.total(7000, 6800, 10700, "取付総重量", self.wanted.tally["TotalInstalledWeight"])
        company_bottom = self.company().bottom(self.paper.company[1])
        lowest = self.head_y(5.9 if self.memos_stand_above() else 6.6)
        self.lower = 1 if company_bottom > lowest else 0
        self.table = self.head_y(6.6 + self.lower)

    def title(self):
        pen, x = self.pen, self.paper.title
        pen.font(18, True)
        pen.rule_width = 4
        if self.wanted.title != 3:
            text = TITLES[self.wanted.title]
            pen.ruled((x, x - 200, x + pen.width(text) + 200), 500, text)
            return
        pen.spread(x, 500, self.wanted.own_title, pen.gap(3500, self.wanted.own_title))
        pen.rule(x - 200, 500 + pen.height(), x + 3500 + 200, 500 + pen.height())

    def shrunk(self, text, size, room):
        """The size, by half points, in which a text has room."""
        while size > 0.5 and byte_length(text) * size * 10 > room:
            size -= 0.5
        return size

    def client(self):
        pen, text = self.pen, self.sheet.client + "　御中"
        if not self.sheet.client:
            return
        pen.font(self.shrunk(text, 14, self.paper.head_end - 500), False)
        pen.rule_width = 2
        pen.ruled((500, 500, 500 + pen.width(text) + 100), self.head_y(1.5), text)

    def project(self):
        pen, sheet = self.pen, self.sheet
        pen.font(14, False)
        pen.rule_width = 2
        name_x = 500 + pen.width("工事名　")
        labels, names = ["工事名　"], [sheet.long_name]
        if not sheet.long_name:
            labels, names = ["工事名  "], [sheet.short_name]
        elif sheet.name_break != 50:
            labels = ["工事名　", "　　　  "]
            names = [sheet.long_name[:sheet.name_break], sheet.long_name[sheet.name_break:]]
        rows = [2.5, 3.5][-len(names):]
        for row, label in zip(rows, labels):
            pen.text(500, self.head_y(row), label)
        under_label, longest = pen.y, max(names, key=byte_length)
        pen.font(self.shrunk(longest, 14, self.paper.head_end - name_x))
        for row, name in zip(rows, names):
            pen.text(name_x, self.head_y(row), name)
        under = max(under_label, pen.y)
        pen.rule(500, under, name_x + pen.width(longest) + 100, under)

    def date(self):
        pen, sheet = self.pen, self.sheet
        x = self.paper.dates[self.wanted.date_right]
        place = (x, x - 100, x + 2000) if sheet.western else (x - 200, x - 300, x + 2100)
        pen.font(10, False)
        pen.rule_width = 2
        pen.ruled(place, self.head_y(-0.25 if self.wanted.date_right else 4.25), date_text(sheet))

    def total(self, x, left, end, label, weighs):
        self.pen.font(14, False)
        self.pen.rule_width = 3
        self.pen.ruled((x, left, end), self.head_y(5), f"{label}  {total_weight(money(weighs))}")

    def company(self):
        return Block(self.sheet.company, self.sheet.name_whole, self.sheet.address2_whole)

    # The table: a row of names, one of headings, the lengths, the sums.

    def y(self, row):
        return single(self.table + self.paper.row * row)

    def text_y(self, row):
        return single(self.y(row) + (self.paper.row - 200) / 2)

    def rows(self):
        first_sum = 2 + self.lengths
        return first_sum, first_sum + len(self.sums)

    def frame(self):
        pen, form = self.pen, self.form
        first_sum, last = self.rows()
        reach = {"all": (0, last), "below": (1, last), "lengths": (1, first_sum)}
        for repeat in range(form.repeats):
            for offset, pen.rule_width, rows, first_alone in form.rules:
                if not (first_alone and repeat):
                    x = 500 + repeat * form.period + offset
                    pen.rule(x, self.y(reach[rows][0]), x, self.y(reach[rows][1]))
        end = 500 + form.repeats * form.period
        pen.rule_width = 3
        pen.rule(end, self.y(0), end, self.y(last))
        for row in range(last + 1):
            pen.rule_width = 3 if row in (0, last) else 2 if row in (2, first_sum) else 1
            pen.rule(500, self.y(row), end, self.y(row))

    def number(self, end, row, value, characters):
        """Right-aligned in so many characters; a zero is left out."""
        if value:
            self.pen.text(end - characters * 100, self.text_y(row), blank_zero(value, characters))

    def diameter(self, left, block, d):
        pen = self.pen
        pen.font(10, False)
        pen.text(left + block.name, self.text_y(0), DIAMETERS[d])
        if self.sheet.grades[d]:
            grade_x = block.name + 500
            pen.font(self.shrunk(self.sheet.grades[d], 10, block.grade_end - grade_x))
            pen.text(left + grade_x, self.text_y(0), self.sheet.grades[d])
            pen.font(10)
        pen.text(left + block.metre, self.text_y(1), "ｍ")
        pen.text(left + block.bars[0], self.text_y(1), block.bars_heading)
        if block.weights:
            pen.text(left + block.weights[0], self.text_y(1), block.weights_heading)
        self.labels(left + block.label)
        pen.font(10)
        for length in range(self.lengths):
            self.number(left + block.bars[1], 2 + length, self.bars.get((d, length)), 7)
            if block.weights:
                self.number(left + block.weights[1], 2 + length, self.weights.get((d, length)), 9)
        for row, label in enumerate(self.sums, self.rows()[0]):
            self.sum(left + block.sums_end, row, label, d)

    def labels(self, x):
        self.pen.font(9)
        for row, label in enumerate([*LENGTHS[:self.lengths], *self.sums], 2):
            self.pen.text(x, self.text_y(row), right(label, 4) if row < 2 + self.lengths else label)

    def sum(self, end, row, label, d):
        tally = self.wanted.tally
        if label in COUNTS:
            self.number(end, row, tally[COUNTS[label]][d], 7)
        else:
            weights = tally["StockWeightByDia" if label == "重量" else "InstalledWeightByDia"]
            self.number(end, row, money(weights[d]), 11)

    # The memos, above the table's head or below the blocks.

    def memos_stand_above(self):
        return self.paper is LANDSCAPE and self.wanted.memos_above and any(self.wanted.memos)

    def memos(self):
        top = self.head_y(5.9 + self.lower) if self.memos_stand_above() else self.y(self.rows()[1]) + 60
        for memo, (x, lower, width, size, bold) in zip(self.wanted.memos, self.paper.memo_places):
            text = memo[:self.paper.memo_characters]
            if not text:
                continue
            while size > 8 and byte_length(text) * size * 10 > width:
                size -= 0.5
            while byte_length(text) * size * 10 > width:
                text = text[:-1]
            self.pen.font(size, bold)
            self.pen.text(x, top + lower, text)
