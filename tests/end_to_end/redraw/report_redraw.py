# SPDX-License-Identifier: MIT
"""The report forms drawn a second time, from a tally's JSON and what a site says of itself; no code is shared with
the program. What both draw alike was worked out twice."""
from dataclasses import dataclass, field
from decimal import Decimal
from math import trunc

from own_company import Block
from pen import Pen, byte_length, count, right, rounded, single, total_weight, weight
from report_forms import PAPERS, ULBON, ULBON_HEADS, ULBON_RULES, form_of

DIAMETERS = ["D 10", "D 13", "D 16", "D 19", "D 22", "D 25", "D 29", "D 32", "D 35", "D 38", "D 41", "D 51"]
ULBON_DIAMETERS = ["U  6", "U  7", "U  9", "U 11", "U 12", "U 16"]


@dataclass
class Sheet:
    """A site, and what is asked of its report."""
    client: str
    short_name: str
    long_name: str
    name_break: int
    grades: list
    company: dict
    name_whole: bool
    address2_whole: bool
    western: bool
    tally: dict
    sub_project: str = ""
    date: tuple = ("2026", "11", "21")
    body: int = 1
    percent: int = 0
    hides_cuts: bool = False
    grid: list = field(default_factory=list)  # height of a row, Y of row 0

    def y(self, row):
        return single(self.grid[0] * row + self.grid[1])


def money(x):
    """A double as Currency: four places, halves to even."""
    return Decimal(round(x * 10000)) / 10000


def ulbon_sum(tally, percent):
    sums = [tally["UlbonWeight"][d] + tally["SpiralUlbonByDia"][d] for d in range(12, 18)]
    return sum(trunc(weighs + weighs * percent / 100 + 0.5) for weighs in sums)


def ulbon_welds(tally):
    return sum(tally["UlbonWeldCount"][12:18])


def date_text(sheet):
    """The typed date, Western or in the years of its era."""
    year, month, day = sheet.date
    rest = f" 年 {right(month, 2)} 月 {right(day, 2)} 日"
    if sheet.western:
        return right(year, 4) + rest
    typed = (right(year, 2) + right(month, 2) + right(day, 2)).replace(" ", "0")
    old = typed[:2] == "30" or typed[:2] == "31" and typed[2:] < "0501"
    return f"{'平成' if old else '令和'} {right(year, 2)}{rest}"


class Page:
    def __init__(self, sheet, paper, is_ulbon=False):
        self.sheet, self.paper, self.is_ulbon = sheet, paper, is_ulbon
        self.pen = Pen(paper.code, paper.orientation)

    def head(self, title):
        pen, paper, sheet = self.pen, self.paper, self.sheet
        pen.font(18, True)
        pen.rule_width = 4
        pen.ruled(paper.title, paper.drop, title)
        top = paper.drop + 2 * pen.height()
        pen.font(13, False)
        height = pen.height() + paper.between
        sheet.grid = [height, top]
        if sheet.client:
            pen.rule_width = 2
            sheet.grid[1] += 2 * height
            end = paper.left + byte_length(sheet.client + "　御中") * 283 / 2 + 100
            line = "取引先  " + sheet.client
            while paper.before_block and pen.size > 0.5 and paper.left + pen.width(line) > paper.before_block:
                pen.font(pen.size - 0.5)
            pen.ruled((paper.left, paper.left, self.clear_of_block(end)), sheet.y(0), line)
        if self.is_ulbon:
            pen.rule_width = 2
        self.project()

    def project(self):
        if not self.sheet.long_name:
            self.short_name()
        elif self.sheet.name_break == 50:
            self.long_name()
        else:
            self.broken_name()

    def clear_of_block(self, x):
        return min(x, self.paper.before_block or x)

    def project_rule(self, y, length):
        end = 9300 if self.is_ulbon else self.clear_of_block(self.paper.left + length)
        self.pen.rule(self.paper.left, y, end, y)

    def shrink(self, size, length):
        """From a size down by half points until the name ends within the head; what its rule measures."""
        while size > 0.5 and self.paper.indent + length * size * 10 > 6000:
            size -= 0.5
        self.pen.font(size)
        return self.paper.indent + length / 2 * size * 20.1 + 100

    def bracketed(self, y, size):
        """Smaller where the own-company block stands in the way."""
        pen, sheet, left = self.pen, self.sheet, self.paper.left
        text = f"　　　（{sheet.sub_project}）"
        free = 9900 if self.is_ulbon else 7000 if self.paper.orientation == 1 else None
        pen.font(size)
        if free and left + pen.width(text) > free:
            pen.font(7)
        pen.text(left, y, text)

    def long_name(self):
        pen, sheet, left = self.pen, self.sheet, self.paper.left
        pen.font(12)
        y = sheet.y(1.3 if sheet.sub_project else 2) - 240 + 400
        pen.text(left, y, "工事名　" if self.is_ulbon else "工事名")
        under_label = pen.y
        length = self.shrink(12, byte_length(sheet.long_name))
        pen.text(left + self.paper.indent, y, sheet.long_name)
        under = max(under_label, pen.y)
        self.project_rule(under, length)
        if sheet.sub_project:
            self.bracketed(under, 7 if len(sheet.sub_project) > 22 and not self.is_ulbon else 12)

    def broken_name(self):
        pen, sheet, left = self.pen, self.sheet, self.paper.left
        lines = sheet.long_name[:sheet.name_break], sheet.long_name[sheet.name_break:]
        pen.font(12)
        pen.text(left, sheet.y(3.5) - 240, "工事名　")
        length = self.shrink(12 if self.is_ulbon else 13, max(byte_length(line) for line in lines))
        for row, line in zip((2.5, 3.5), lines):
            pen.text(left + self.paper.indent, sheet.y(row) - pen.height(), line)
        self.project_rule(pen.y, length)
        if sheet.sub_project:
            self.bracketed(sheet.y(3.5) + 50, 12)

    def short_name(self):
        pen, sheet = self.pen, self.sheet
        pen.font(12)
        pen.text(self.paper.left, sheet.y(2), "工事名　" if self.is_ulbon else "工事名  ")
        pen.text(self.paper.short_name, sheet.y(2), sheet.short_name)
        under = pen.y if self.paper.low_rows else sheet.y(2.7)
        self.project_rule(under, len(sheet.short_name) * 264 + 1600)
        if sheet.sub_project:
            self.bracketed(sheet.y(3.3), 12)

    def total(self, x, end, weighs):
        self.pen.font(14, False)
        self.pen.rule_width = 3
        self.pen.ruled((x, self.paper.left, end), self.sheet.y(self.paper.total_row), "総重量  " + total_weight(weighs))

    def date(self):
        self.pen.font(12, False)
        self.pen.rule_width = 2
        place = self.paper.western if self.sheet.western else self.paper.era
        self.pen.ruled(place, self.sheet.y(1) - self.paper.date_rise, date_text(self.sheet))

    def frame(self, rules, first, last):
        self.pen.rule_width = 5
        for x in rules:
            self.pen.rule(x, self.sheet.y(first), x, self.sheet.y(last))
        for row in range(first, last + 1):
            self.pen.rule(rules[0], self.sheet.y(row), rules[-1], self.sheet.y(row))
        self.pen.font(12, False)

    def row(self, row, *cells):
        for x, text in cells:
            self.pen.text(x, self.sheet.y(row) + 50, text)

    def block(self):
        return Block(self.sheet.company, self.sheet.name_whole, self.sheet.address2_whole)

    def lines(self):
        return [*self.pen.lines, "end"]


def figures(kind, hides_cuts, stock, installed, welds, cuts):
    """The texts of a row's cells, each with the characters it stands in."""
    weighs = {"a": (stock, installed, stock - installed), "b": (stock,), "c": (installed,)}[kind]
    return [(weight, x) for x in weighs] + [(count, welds)] + ([] if hides_cuts else [(count, cuts)])


def comparison(sheet, kind, paper):
    tally, form = sheet.tally, form_of(kind, paper)
    page = Page(sheet, PAPERS[paper])
    page.head("重  量  対  比  表")
    ulbon, spirals = (ulbon_sum(tally, sheet.percent), money(tally["SpiralTotal"])) if sheet.body else (0, 0)
    total = money(tally["TotalInstalledWeight" if kind == "c" else "TotalStockWeight"]) + ulbon + spirals
    portrait = paper == "a4t"
    if portrait:
        page.total(500, form.total_to, total)
    page.date()
    if not portrait:
        page.total(page.paper.left, form.total_to, total)

    first = 8 if portrait or not sheet.body else 7
    last = first + 14 + (ulbon > 0) + (spirals > 0)
    columns = len(form.rules) - sheet.hides_cuts
    page.frame(form.rules[:columns], first, last)
    page.row(first, *form.heads[:columns - 1])
    for d, label in enumerate(DIAMETERS):
        page.row(first + 1 + d, (form.label, label), (form.label + 1000, sheet.grades[d]))

    def cells(places, *values):
        drawn = figures(kind, sheet.hides_cuts, *values)
        return [(x, write(value, characters)) for (x, characters), (write, value) in zip(places, drawn)]

    for d in range(12):
        page.row(first + 1 + d, *cells(form.cells, money(tally["StockWeightByDia"][d]),
                                       money(tally["InstalledWeightByDia"][d]), tally["WeldCount"][d],
                                       tally["CutCount"][d]))
    page.row(first + 13, (form.heads[0][0], form.total),
             *cells(form.totals, money(tally["TotalStockWeight"]), money(tally["TotalInstalledWeight"]),
                    tally["TotalWeldCount"], tally["TotalCutCount"]))
    weight_x, welds_x = form.totals[kind == "a"][0], form.totals[-2][0]
    if ulbon > 0:
        page.row(first + 14, (form.label, "ウルボン合計"), (weight_x, weight(ulbon)),
                 (welds_x, count(ulbon_welds(tally), 7)))
    if spirals > 0:
        page.row(last - 1, (form.label, "スパイラル合計"), (weight_x, weight(spirals)))
    if form.loss:
        place, blank, characters = form.loss
        page.pen.rule_width = 2
        rate = right(str(rounded(f"{tally['LossRatePercent']:.15g}", 2)), characters)
        page.pen.ruled(place, sheet.y(last + 1) + 50, f"ロス率{blank}{rate} %")
    if portrait:
        page.block().draw(page.pen, 6600, 2200)
    return page


def ulbon_report(sheet):
    tally, page = sheet.tally, Page(sheet, ULBON, is_ulbon=True)
    page.head("ウ ル ボ ン 重 量 表")
    total = ulbon_sum(tally, 0)
    page.total(1900, 5100, total)
    page.date()
    page.frame(ULBON_RULES, 7, 21)
    page.row(7, *ULBON_HEADS)
    for index, label in enumerate(ULBON_DIAMETERS):
        weighs = money(tally["UlbonWeight"][12 + index]) + money(tally["SpiralUlbonByDia"][12 + index])
        raised = trunc(weighs + money(float(weighs) * sheet.percent / 100) + Decimal("0.5"))
        page.row(8 + index, (2000, label), (7900, weight(raised)),
                 (13100, count(tally["UlbonWeldCount"][12 + index], 7)))
    page.row(14, (2000, "合　　　計"), (7900, weight(total)), (13100, count(ulbon_welds(tally), 7)))
    block = page.block()
    block.draw(page.pen, 10000, 2300 - max(0, block.bottom(2300) - sheet.y(7)))  # clear of the table
    return page


def redraw(name, sheet):
    return ulbon_report(sheet) if name == "ulbon" else comparison(sheet, *name.split("-")[1:])
