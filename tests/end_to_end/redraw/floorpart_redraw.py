# SPDX-License-Identifier: MIT
"""The forms of floors and parts drawn a second time, from the JSON of a tally and what a site says of itself."""
from dataclasses import dataclass, field

from own_company import Block
from pen import FONT, Pen, byte_length, right, single, total_weight

TOP = 500 + 6.25 * 390
PROPORTIONAL = "ＭＳ Ｐゴシック"
CODES = [10, 13, 16, 19, 22, 25, 29, 32, 35, 38, 41, 51, 6, 7, 9, 11, 12, 16]
NAMES = [f"{'DU'[row > 11]} {code:2}" for row, code in enumerate(CODES)]
WIDE = {str(digit): chr(ord("０") + digit) for digit in range(10)} | {"D": "Ｄ", "U": "Ｕ", " ": "　"}
SPECIAL_WORDS = {76: "Ｒ階", 77: "ＰＨ階", 78: "階なし"}


@dataclass
class FloorSheet:
    """A site, its tally, and what is asked of a report."""
    client: str
    short_name: str
    long_name: str
    name_break: int
    grades: list
    makers: list
    parts: list
    company: dict
    name_whole: bool
    address2_whole: bool
    western: bool
    date: tuple
    start: int
    end: int
    special: int
    thin: bool
    with_13m: bool
    tally: dict = field(default_factory=dict)

    def part(self, number):
        return "その他" if number == 11 else self.parts[number - 1]

    def columns(self):
        """The stock columns that sums take in."""
        return range(1, 19) if self.with_13m else range(18)

    def rows(self):
        """The diameters of a list: the thin ones stand where the deformed do."""
        return list(range(12, 18)) + [None] * 6 if self.thin else list(range(12))


def number(value, characters):
    """None for a cell that shows nothing."""
    return right(f"{int(value):,}", characters) if value else None


def taken(sheet):
    return sheet.special if sheet.start < 76 else 0


def list_scope(sheet):
    words = [word for bit, word in ((1, "Ｒ階"), (2, "Ｐ階"), (4, "階なし")) if taken(sheet) & bit]
    behind = "、".join(words) + "を含む。" if words else ""
    if sheet.start == sheet.end and sheet.start > 75:
        behind = SPECIAL_WORDS[sheet.start]
    return f"【{sheet.start}階～{sheet.end}階】{behind}"


def range_scope(sheet):
    def end(floor):
        return {76: "Ｒ階", 77: "ﾍﾟﾝﾄﾊｳｽ", 78: "階なし"}.get(floor, f"{floor}階")

    words = "".join(word for bit, word in ((1, "R階 "), (2, "P階 ")) if taken(sheet) & bit)
    return f"【{end(sheet.start)}～{end(sheet.end)}】" + (f"({words}を含む)" if words else "")


class FloorPaper:
    """A document of such a form; its head differs in the places that are given."""

    def __init__(self, sheet, title, title_x, total, total_to, scope, scope_beside, date, page_at=None, label="総重量",
                 label_face=FONT, block_stays=False):
        self.sheet, self.pen = sheet, Pen(9, 2)
        self.title, self.title_x, self.total, self.total_to = title, title_x, total, total_to
        self.scope, self.scope_at = scope, (3900, 5) if scope_beside else (500, 4.25)
        self.date_at, self.page_at, self.label = date, page_at, label
        self.label_face, self.block_stays = label_face, block_stays
        self.page = 0

    @staticmethod
    def y(row):
        return 500 + 390 * row

    def new_page(self):
        self.page += 1
        if self.page > 1:
            self.pen.lines.append(f"page\t{self.page}")
        self.head()

    def head(self):
        pen, sheet = self.pen, self.sheet
        pen.font(18, True)
        pen.rule_width = 4
        pen.ruled((self.title_x, self.title_x - 200, self.title_x + pen.width(self.title)), 500, self.title)
        pen.rule_width = 3
        if sheet.client:
            line = sheet.client + "　御中"
            pen.font(14, False)
            while pen.width(line) > 10500:
                pen.font(pen.size - 0.5)
            pen.ruled((500, 500, min(500 + pen.width(line), 6000)), self.y(1.5), line)
        pen.font(12, False)
        self.project()
        pen.font(14, False)
        pen.ruled((600, 500, self.total_to), self.y(5), f"{self.label}  {total_weight(self.total)}")
        pen.font(12, False)
        pen.text(self.scope_at[0], self.y(self.scope_at[1]), self.scope)
        self.date()
        if self.page_at:
            pen.font(11, False)
            pen.text(*self.page_at, f"page:{self.page}")
        block = Block(sheet.company, sheet.name_whole, sheet.address2_whole, self.label_face)
        block.draw(pen, 11200, 1000 if self.block_stays else 1000 - max(0, block.bottom(1000) - TOP))

    def project(self):
        pen, sheet = self.pen, self.sheet
        if not sheet.long_name:
            pen.text(500, self.y(3.5), "工事名  ")
            while pen.width(sheet.short_name) > 11000 - 1567:
                pen.font(pen.size - 0.5)
            pen.text(1567, self.y(3.5), sheet.short_name)
            self.project_rule(min(500 + 264 * len(sheet.short_name) + 1600, 11000))
            return
        lines = [sheet.long_name]
        if sheet.name_break != 50:
            lines = [sheet.long_name[:sheet.name_break], sheet.long_name[sheet.name_break:]]
        pen.text(500, self.y(3.5), "工事名　")
        longest = max(byte_length(line) for line in lines)
        pen.font(13)
        while 960 + longest * pen.size * 10 >= 6000:
            pen.font(pen.size - 0.5)
        for line, row in zip(lines, (2.5, 3.5) if len(lines) == 2 else (3.5,)):
            pen.text(1460, self.y(row), line)
        self.project_rule(500 + 960 + longest / 2 * pen.size * 20.1 + 100)

    def project_rule(self, end):
        """Under the label of size 12, or under a larger name."""
        y = max(self.y(3.5) + 240, self.pen.y)
        self.pen.rule(500, y, end, y)

    def date(self):
        year, month, day = self.sheet.date
        self.pen.rule_width = 2
        rest = f" 年 {right(month, 2)} 月 {right(day, 2)} 日"
        if self.sheet.western:
            self.pen.ruled(self.date_at[0], self.y(4.25), right(year, 4) + rest)
            return
        typed = (right(year, 2) + right(month, 2) + right(day, 2)).replace(" ", "0")
        old = typed[:2] == "30" or typed[:2] == "31" and typed[2:] < "0501"
        self.pen.ruled(self.date_at[-1], self.y(4.25), f"{'平成' if old else '令和'} {right(year, 2)}{rest}")

    def shrunk(self, size, bold, x, y, text, width):
        self.pen.font(size, bold)
        while self.pen.width(text) > width:
            self.pen.font(self.pen.size - 0.5)
        self.pen.text(x, y, text)

    def verticals(self, places, top, bottom):
        for x, width in places:
            self.pen.rule_width = width
            self.pen.rule(x, top, x, bottom)

    def across(self, left, right_end, y, width):
        self.pen.rule_width = width
        self.pen.rule(left, y, right_end, y)

    def middle(self, left, width, y, text):
        self.pen.text(left + (width - self.pen.width(text)) / 2, y, text)

    def lines(self):
        return [*self.pen.lines, "end"]


LIST_DATE = [(7050, 6750, 9550)]
SHEET_DATE = [(7000, 6700, 9500)]
COLUMNS = [500, 1300, *range(2450, 13951, 1150)]


class PartList(FloorPaper):
    """A table with a column for each part."""

    def __init__(self, sheet, title, first, total, scope, page_at):
        super().__init__(sheet, title, 5900, total, 3800, scope, True, LIST_DATE, page_at, label_face=PROPORTIONAL)
        self.first = first

    def table_head(self):
        pen = self.pen
        self.verticals([(x, 2) for x in COLUMNS] + [(15500, 5)], TOP, TOP + 390)
        for y in (TOP, TOP + 390):
            self.across(500, 15500, y, 5)
        pen.font(12, True)
        pen.text(700, TOP + 75, self.first)
        for part in range(1, 11):
            left, name = COLUMNS[part], self.sheet.part(part)
            if not name:
                continue
            pen.font(12, True)
            while pen.width(name) > 1090:
                pen.font(pen.size - 0.5)
            x = left + 450 - (len(name) - 1) * 120
            if x < left + 30 or x + pen.width(name) > left + 1120:
                x = left + (1150 - pen.width(name)) / 2
            pen.text(x, TOP + 75, name)
        pen.font(12, True)
        pen.text(13010, TOP + 75, "その他")
        pen.text(14250, TOP + 75, "合    計")

    def line(self, row, label, parts=(), total=0):
        y = TOP + 390 * (row + 1)
        self.verticals([(500, 5), *((x, 2) for x in COLUMNS[1:]), (15500, 5)], y, y + 390)
        self.across(500, 15500, y + 390, 5)
        self.pen.font(10, False)
        self.pen.text(600, y + 100, label)
        for index, weight in enumerate(parts):
            if weight:
                self.pen.text(1400 + 1150 * index, y + 100, number(weight, 9))
        if total:
            self.pen.text(14150, y + 100, number(total, 11))


def floor_list(sheet):
    tally = sheet.tally
    paper = PartList(sheet, "階 別 合 計 数 量 表", "階", tally["SouGoukei"], list_scope(sheet), (9600, 620))
    *floors, total = tally["KaiGyou"]
    used = 19  # so that the first floor opens a page
    for label, *weights in floors:
        if used == 19:
            paper.new_page()
            paper.table_head()
            used = 0
        paper.line(used, label, weights[:11], weights[11])
        used += 1
    paper.line(used, total[0], total[1:12], total[12])
    return [paper.lines()]


def part_list(sheet):
    tally = sheet.tally
    paper = PartList(sheet, "部 位 別 合 計 数 量 表", "太さ", tally["SouGoukei"], range_scope(sheet), None)
    paper.new_page()
    paper.table_head()
    cells = {(r, p): w for r, p, w in tally["BuiTaisaGoukei"]}
    totals = dict(map(tuple, tally["TaisaGoukei"]))
    by_part = dict(map(tuple, tally["BuiGoukei"]))
    for index, r in enumerate(sheet.rows()):
        if r is None:
            paper.line(index, "　　　")
        else:
            label = "".join(WIDE[character] for character in NAMES[r].replace(" ", "", 1))
            paper.line(index, label, [cells.get((r, p)) for p in range(1, 12)], totals.get(r))
    paper.line(12, "合　計", [by_part.get(p) for p in range(1, 12)], tally["SouGoukei"])
    return [paper.lines()]


@dataclass
class Diameter:
    """What a sheet of diameters shows of one."""
    bars: dict
    weights: dict
    stock: int = 0
    installed: int = 0
    fittings: tuple = (0, 0, 0, 0)


def diameter_sheet(paper, diameters, with_weights=True, with_installed=True):
    sheet, pen = paper.sheet, paper.pen
    lengths = [f"{3.5 + column / 2:4.1f}" for column in range(18)] + ["13.0"] * sheet.with_13m
    sums = ["重量", "圧接", "ｶﾌﾟﾗ", "ＤＢ", "切断"] + ["取重"] * with_installed
    first_sum = 2 + len(lengths)
    last = first_sum + len(sums)

    def y(row, size=None):
        return TOP + 250 * row + ((250 - size * 20) / 2 if size else 0)

    def frame():
        for group in range(7):
            left = 500 + 2190 * group
            paper.verticals([(left, 3)], y(0), y(last))
            paper.verticals([(left + 450, 2)], y(1), y(last))
            if with_weights:
                paper.verticals([(left + 1200, 1)], y(1), y(first_sum))
        paper.verticals([(15830, 3)], y(0), y(last))
        for row in range(last + 1):
            paper.across(500, 15830, y(row), 3 if row in (0, last) else 2 if row in (2, first_sum) else 1)

    def diameter(left, r):
        of = diameters[r]
        pen.font(12, False)
        pen.text(left + 100, y(0, 12), NAMES[r])
        origin = " ".join(word for word in (sheet.grades[r], sheet.makers[r]) if word) if r < 12 else ""
        if origin:
            paper.shrunk(12, False, left + 660, y(0, 12), origin, 1500)
        pen.font(9, False)
        pen.text(left + 150, y(1, 9), "ｍ")
        paper.middle(left + 450, 750 if with_weights else 1740, y(1, 9), "本 数")
        if with_weights:
            paper.middle(left + 1200, 990, y(1, 9), "重 量")
        for row, label in enumerate(lengths + sums, 2):
            pen.text(left + 30, y(row, 9), label)
        pen.font(10, False)
        for column in range(sheet.with_13m, len(lengths)):
            if of.bars.get(column):
                end = 1180 if with_weights else 1800
                pen.text(left + end - 700, y(2 + column, 10), number(of.bars[column], 7))
            if with_weights and of.weights.get(column):
                pen.text(left + 1250, y(2 + column, 10), number(of.weights[column], 9))
        values = [of.stock, *of.fittings] + [of.installed] * with_installed
        for row, (label, value) in enumerate(zip(sums, values), first_sum):
            is_weight = label in ("重量", "取重")
            pen.font(11 if is_weight else 10, False)
            if value:
                x, characters = (940, 11) if is_weight else (1450, 7)
                pen.text(left + x, y(row, pen.size), number(value, characters))

    pages = [list(range(12, 18))] if sheet.thin else [list(range(7))]
    if not sheet.thin and any(diameters[r].stock > 0 or diameters[r].installed > 0 for r in range(7, 12)):
        pages.append(list(range(7, 12)))
    for page in pages:
        paper.new_page()
        frame()
        for group, r in enumerate(page):
            diameter(500 + 2190 * group, r)
    return paper.lines()


def pick(table, *key):
    """The rest of the indices and the value where the first indices are the key."""
    return [entry[len(key):] for entry in table if tuple(entry[:len(key)]) == key]


def by_row(table):
    return {r: value for r, value in table}


def by_cell(table):
    found = {r: {} for r in range(18)}
    for r, column, value in table:
        found[r][column] = value
    return found


def collected(bars, weights, stock, installed, fittings):
    return [Diameter(bars[r], weights[r], stock.get(r, 0), installed.get(r, 0),
                     tuple(kind.get(r, 0) for kind in fittings)) for r in range(18)]


FITTINGS = ("Assetu", "Neji", "Teichaku", "Setsudan")


def floor_sheets(sheet):
    tally, documents = sheet.tally, []
    weights = dict(map(tuple, tally["KaiGoukei"]))
    for floor in tally["KaiGyouKai"][:-1]:
        f = floor + 5
        if weights.get(f, 0) <= 0:
            continue
        name = {76: "Ｒ階", 77: "Ｐ階", 78: "階なし"}.get(floor, f"{floor}階")
        paper = FloorPaper(sheet, "階 別 合 計 数 量 表", 6500, weights[f], 4400, f"【{name}分】", False, SHEET_DATE,
                           (10200, 620), "階重量")
        cells, stock = {r: {} for r in range(18)}, {}
        for _, r, column, weight in pick(tally["KaiBuiTeiJyuuryo"], f):
            if column in sheet.columns():
                cells[r][column] = cells[r].get(column, 0) + weight
                stock[r] = stock.get(r, 0) + weight
        installed = by_row(pick(tally["KaiTaisaGoukei"], f)) if tally["SouTorituke"] else {}
        fittings = [by_row(pick(tally[kind + "Kai"], f)) for kind in FITTINGS]
        documents.append(diameter_sheet(paper, collected(by_cell(pick(tally["KaiHonsu"], f)), cells, stock, installed,
                                                         fittings)))
    return documents


def range_sheet(sheet, with_weights):
    tally = sheet.tally
    paper = FloorPaper(sheet, "階 別 合 計 数 量 表", 6500, tally["SouGoukei"], 4400, range_scope(sheet), False,
                       SHEET_DATE, (10200, 620))
    diameters = collected(by_cell(tally["SouHonsu"]), by_cell(tally["TaisaTeiGoukei"]), by_row(tally["TaisaGoukei"]),
                          by_row(tally["TaisaTorituke"]), [by_row(tally[kind + "Taisa"]) for kind in FITTINGS])
    return [diameter_sheet(paper, diameters, with_weights)]


def part_sheets(sheet):
    tally, documents = sheet.tally, []
    for part in range(1, 12):
        paper = FloorPaper(sheet, "部 位 別 合 計 数 量 表", 6500, tally["SouGoukei"], 4400, f"［{sheet.part(part)}］分",
                           False, SHEET_DATE, (10860, 460))
        stock = {r: weight for r, p, weight in tally["BuiTaisaGoukei"] if p == part}
        diameters = collected(by_cell(pick(tally["BuiHonsu"], part)), by_cell(pick(tally["BuiJyuuryo"], part)), stock, {},
                              [by_row(pick(tally[kind + "Bui"], part)) for kind in FITTINGS])
        documents.append(diameter_sheet(paper, diameters, with_installed=False))
    return documents


BLOCK_RULES = [500, 1100, 2000, *range(3050, 14601, 1050), 15700]


def floor_blocks(sheet):
    tally = sheet.tally
    paper = FloorPaper(sheet, "階・部位・径別 合 計 数 量 表", 4280, tally["SouGoukei"], 3800, list_scope(sheet), True,
                       LIST_DATE, (9600, 620))
    pen, body = paper.pen, TOP + 300
    by_floor, by_part = {}, {}
    for f, p, r, column, weight in tally["KaiBuiJyuuryo"]:
        if column in sheet.columns():
            for table, key in ((by_floor, (f, p)), (by_part, p)):
                cells = table.setdefault(key, {})
                cells[r] = cells.get(r, 0) + weight
    blocks = []
    floors = dict(map(tuple, tally["KaiGoukei"]))
    for floor in tally["KaiGyouKai"][:-1]:
        f = floor + 5
        if floors.get(f, 0) > 0:
            label = {0: "基礎", 76: "Ｒ階", 77: "Ｐ階", 78: "階無"}.get(floor, f"{'B' if floor < 0 else ''}{abs(floor)}Ｆ")
            lines = [(sheet.part(p), by_floor.get((f, p), {}), total) for p, total in pick(tally["KaiBuiGoukei"], f)]
            blocks.append((label, lines, (by_row(pick(tally["KaiTaisaGoukei"], f)), floors[f])))
    sums = {}
    for _, r, weight in tally["KaiTaisaGoukei"]:
        sums[r] = sums.get(r, 0) + weight
    lines = [(sheet.part(p), by_part.get(p, {}), total) for p, total in tally["BuiGoukei"]]
    blocks.append(("合  計", lines, (sums, tally["SouGoukei"])))

    def verticals(top, bottom):
        paper.verticals([(x, 3 if x in (500, 15700) else 1) for x in BLOCK_RULES], top, bottom)

    def table_head():
        verticals(TOP, body)
        for y in (TOP, body):
            paper.across(500, 15700, y, 3)
        pen.font(11, False)
        names = ["   " if r is None else f"{'DU'[r > 11]}{CODES[r]:2}" for r in sheet.rows()]
        for left, end, text in zip(BLOCK_RULES, BLOCK_RULES[1:], ["階", "部位", *names, "合 計"]):
            paper.middle(left, end - left, TOP + 40, text)

    def figures(y, weights, total):
        pen.font(8, False)
        for index, r in enumerate(sheet.rows()):
            if r is not None and weights.get(r):
                pen.text(2200 + 1050 * index, y + 35, number(weights[r], 9))
        if total:
            pen.text(14650, y + 35, number(total, 11))

    used = 24
    for label, lines, (sums, total) in blocks:
        if used >= 24:
            paper.new_page()
            table_head()
            used = 0
        top, bottom = body + 230 * used, body + 230 * (used + len(lines) + 1)
        verticals(top, bottom)
        for row in range(1, len(lines) + 1):
            paper.across(1100, 15700, top + 230 * row, 1)
        for y in (top, bottom):
            paper.across(500, 15700, y, 3)
        if lines:
            paper.shrunk(10, False, 550, top + 15, label, 540)
        for row, (part, weights, part_total) in enumerate(lines):
            if part:
                paper.shrunk(10, False, 1150, top + 230 * row + 15, part, 820)
            figures(top + 230 * row, weights, part_total)
        paper.shrunk(10, False, 600, bottom - 230 + 15, "合計", 820)
        figures(bottom - 230, sums, total)
        used += len(lines) + 1
    return [paper.lines()]


def all_parts(sheet):
    tally = sheet.tally
    paper = FloorPaper(sheet, "部位別合計数量表", 5900, tally["SouGoukei"], 4200, range_scope(sheet), True,
                       [(8500, 8400, 10800), (8300, 8200, 11000)], label_face=PROPORTIONAL, block_stays=True)
    pen = paper.pen
    paper.new_page()
    weights = {(r, p): weight for r, p, weight in tally["BuiTaisaGoukei"]}
    welds = {(r, p): count for p, r, count in tally["AssetuBui"]}
    weights |= {(r, 12): weight for r, weight in tally["TaisaGoukei"]}
    welds |= {(r, 12): count for r, count in tally["AssetuTaisa"]}
    for band in range(3):
        top = TOP + 205 * 14 * band
        for left in range(500, 10900, 2600):
            paper.verticals([(left, 3)], top, top + 205 * 14)
            paper.verticals([(left + 1100, 2)], top + 205, top + 205 * 14)
        paper.verticals([(10900, 3)], top, top + 205 * 14)
        for row, width in ((0, 3), (1, 2), (2, 2), (13, 2), (14, 3)):
            paper.across(500, 10900, top + 205 * row, width)
        for group in range(4):
            left, r = 500 + 2600 * group, sheet.rows()[4 * band + group]
            pen.font(10, False)
            paper.middle(left, 2600, top + 2.5, "    " if r is None else NAMES[r])
            if r is None:
                continue
            pen.font(9, False)
            paper.middle(left, 1100, top + 205 + 12.5, "部　位")
            paper.middle(left + 1110, 900, top + 205 + 12.5, "重 量")
            pen.text(left + 2590 - 30 - pen.width("圧　接"), top + 205 + 12.5, "圧　接")
            for part in range(1, 13):
                y = top + 205 * (1 + part) + 2.5
                name = "合　計" if part == 12 else sheet.part(part)
                if name:
                    paper.shrunk(10, False, left + 50, y, name, 1000)
                pen.font(10, False)
                if weights.get((r, part)):
                    pen.text(left + 1110, y, number(weights[r, part], 9))
                if welds.get((r, part)):
                    pen.text(left + 2090, y, number(welds[r, part], 5))
    return [paper.lines()]


FLOOR_FORMS = {
    "kai-goukei": floor_list, "kai-kakukai": floor_sheets, "kai-meisai": lambda sheet: range_sheet(sheet, True),
    "kai-meisai-honsu": lambda sheet: range_sheet(sheet, False), "kai-bui-futo": floor_blocks,
}
PART_FORMS = {"bui-goukei": part_list, "bui-zenbui": all_parts, "bui-kakubui": part_sheets}
