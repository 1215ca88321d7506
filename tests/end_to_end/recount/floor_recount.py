# SPDX-License-Identifier: MIT
"""Recounts the floor and part tallies by a second road: sparse tables, each sum worked out from the cells by itself.
Weights are ten-thousandths of a kilogram."""

import math
from collections import Counter

from bulk_recount import (DEFORMED, INT_MAX, INT_MIN, UNIT_WEIGHT, RunTimeFault, anchor_shape, bar_weight, currency,
                          diameter_index, form_passes, not_anchor_shape, stock_index, ulbon_index, whole)

SPECIALS = {76: 1, 77: 2, 78: 4}
NAMED_LABELS = {0: "基礎階", 76: "Ｒ　階", 77: "ＰＨ階", 78: "階なし"}
FITTINGS = {"Assetu": "圧接", "Neji": "ネジ数", "Teichaku": "定着板数", "Setsudan": "切断"}
THIN_ROWS = list(enumerate(["U 6", "U 7", "U 9", "U11", "U12", "U16"], 12))


class Refused(Exception):
    """Wrong usage: the floors cannot be asked for."""


class Extent:
    """The floors of a schedule."""

    def __init__(self, rows):
        floors = [r["階"] for r in rows if r["階"] is not None and -5 <= r["階"] <= 78]
        numbered = [f for f in floors if f <= 75]
        self.any = bool(floors)
        span = numbered or floors or [0]
        self.low, self.high = min(span), max(span)
        self.foundation = 0 in floors
        self.below = self.foundation or self.low < 0

    def all_floors(self):
        if not self.below:
            return self.low, self.high
        return 0, self.low if self.low < 0 and self.high <= 0 else self.high


def asked_range(extent, asked):
    """The range of the boxes; what is refused leaves as `Refused`."""
    if asked is None:
        if not extent.any:
            raise RunTimeFault("invalid use of null")
        return extent.all_floors()
    start, end = asked
    if end < start and asked != extent.all_floors():
        raise Refused
    if extent.any and asked != extent.all_floors():
        if extent.below and start < 76 and not extent.low <= start <= extent.high:
            raise Refused
        if (extent.high < end < 76) or (start == 0 and end < extent.low):
            raise Refused
    return asked


def fill(rows):
    """What the screens' load makes of the schedule."""
    for r in rows:
        r["階"] = 78 if r["階"] is None else r["階"]
        r["部位"] = 0 if r["部位"] is None else r["部位"]


def kind_passes(mask, kind):
    if mask == 0:
        return kind == 2
    return bool((mask & 1 and (kind is None or kind <= 1)) or (mask & 2 and kind == 4) or (mask & 4 and kind == 3)
                or (mask & 8 and kind == 5))


def special_passes(floor, mask):
    return bool(SPECIALS.get(floor, 0) & mask)


def floor_passes(floor, start, end, low, mask):
    if start >= 76:
        return floor == start if start in (end, 78) else start <= floor <= end
    if special_passes(floor, mask):
        return True
    if start == 0:
        return floor == 0 or (end != 0 and low <= floor <= end)
    return start <= floor <= end and (start > 0 or floor != 0)


def part_passes(floor, box, start, end, mask):
    if start >= 76:
        return floor == start
    if special_passes(floor, mask):
        return True
    return floor == 0 if box == 0 and floor == 0 else start <= floor <= end and (box == 0 or floor != 0)


def part_start(extent, start, end):
    if start != 0 or not extent.below:
        return start
    return 0 if end == 0 and extent.foundation else extent.low


def select(rows, sel, on_floor):
    """Rows of the statement, and what its probes found."""
    chosen = [r for r in rows if None not in (r["太さ"], r["伸定尺"], r["本数"]) and on_floor(r["階"])
              and form_passes(sel["forms"], r["予備3"]) and kind_passes(sel["kinds"], r["予備2"])]
    hoops = any(r["形状No"] == 87 for r in chosen)
    if hoops and sel["hoops"] == 2:
        chosen = [r for r in chosen if r["形状No"] == 87]
    plates = any(anchor_shape(r["形状No"]) for r in chosen)
    if plates and sel["plates"] == 1:
        chosen = [r for r in chosen if not_anchor_shape(r["形状No"])]
    if plates and sel["plates"] == 2:
        chosen = [r for r in chosen if anchor_shape(r["形状No"])]
    return chosen, hoops, plates


def counted(number):
    if not INT_MIN <= number <= INT_MAX:
        raise RunTimeFault("overflow")
    return number


def raised(count, ratio):
    return counted(math.trunc(count * (ratio + 1.0) + 0.5))


class Walk:
    """The rows of a selection by floor, part, diameter row and column."""

    def __init__(self, rows, sel, settings, deformed_weight):
        self.sel, self.settings, self.deformed_weight = sel, settings, deformed_weight
        self.bars, self.weight = Counter(), Counter()
        self.fittings = {name: Counter() for name in FITTINGS}
        for r in rows:
            self.row(r)

    def row(self, r):
        thin = r["予備2"] == 2
        d = ulbon_index(r["太さ"]) if thin else diameter_index(r["太さ"])
        c = 0 if thin and r["伸定尺"] == 0 else stock_index(r["伸定尺"])
        if d < 0 or c < 0:
            return
        if r["部位"] < 0:
            raise RunTimeFault("subscript out of range")
        part = r["部位"] if 1 <= r["部位"] <= 10 else 11
        place = (r["階"] + 5, part)
        hoop = r["形状No"] == 87
        if not (self.sel["hoops"] == 1 and hoop):
            self.bars[place + (d, c)] += r["伸総計"] or 0
            self.add_weight(r, place, d, c, thin)
            if not (hoop and self.settings["hoop_welds"] == 0):
                thicker = not thin and r["圧接太さ"] is not None and r["太さ"] < r["圧接太さ"]
                self.fit("Assetu", r, place, diameter_index(r["圧接太さ"]) if thicker else d)
        if r["予備2"] == 4:
            self.fit("Neji", r, place, d)
        self.fit("Teichaku", r, place, d)
        elsewhere = not thin and r["部位"] == 2 and r["圧接太さ"]
        self.fit("Setsudan", r, place, diameter_index(r["圧接太さ"]) if elsewhere else d)

    def add_weight(self, r, place, d, c, thin):
        cell = place + (d, c)
        if not thin and self.deformed_weight == "stock":
            self.weight[cell] += currency(bar_weight(d, c) * (r["伸総計"] or 0))
        elif thin or self.deformed_weight == "installed":
            if r["合計"] is not None and r["伸切寸"] is not None:
                product = (r["合計"] * UNIT_WEIGHT[d]) * (r["伸切寸"] / 1000)
                self.weight[cell] = currency(self.weight[cell] / 10000 + product)

    def fit(self, name, r, place, d):
        count = r.get(FITTINGS[name])
        if count is None:
            return
        if d < 0:
            raise RunTimeFault("subscript out of range")
        self.fittings[name][place + (d,)] += count


def summed(cells, key):
    """The cells added up under `key(*index)`."""
    sums = Counter()
    for index, value in cells.items():
        sums[key(*index)] += value
    return sums


def stock_weight(d, c, bars):
    return whole(currency(bars * bar_weight(d, c)))


def run_of_columns(settings):
    return range(1, 19) if settings["use_13m"] == 1 else range(18)


def listed_floors(start, end, low, mask):
    floors = [0] if start == 0 else []
    if start != 0 or end != 0:
        floors += [f for f in range(low if start == 0 else start, end + 1) if f != 0]
    if start < 76:
        floors += [f for f in SPECIALS if mask & SPECIALS[f] and f not in floors]
    return floors


def floor_label(floor):
    return NAMED_LABELS.get(floor) or f"{abs(floor)}{'Ｂ' if floor < 0 else ''}階"


def list_row(label, cells, total):
    return [label] + [cells[p] // 10000 for p in range(1, 12)] + [total // 10000]


def floor_fittings(walk):
    tables = {}
    for name, cells in walk.fittings.items():
        tables[name + "Taisa"] = summed(cells, lambda f, p, d: (d,))
        tables[name + "Kai"] = summed(cells, lambda f, p, d: (f, d))
        tables[name + "KaiBui"] = summed(cells, lambda f, p, d: (p, f, d))
        tables[name + "KaiSou"] = summed(cells, lambda f, p, d: (f,))
    return tables


class FloorCells:
    """Bars and weights once raised and rounded."""

    def __init__(self, walk, ratio, run, installed):
        self.run, self.ratio = run, ratio
        self.by_part = Counter(walk.bars)
        self.by_floor = summed(walk.bars, lambda f, p, d, c: (f, d, c))
        self.total = summed(walk.bars, lambda f, p, d, c: (d, c))
        if ratio:
            self.raise_bars()
        self.shown, self.stock = Counter(walk.weight), Counter()
        for f, p, d, c in set(walk.bars) | set(walk.weight):
            if c in run:
                self.round_cell((f, p, d, c), installed)

    def raise_bars(self):
        for index in self.by_part:
            if index[3] in self.run:
                self.by_part[index] = raised(self.by_part[index], self.ratio)
        parts = summed(self.by_part, lambda f, p, d, c: (f, d, c))
        for index in self.by_floor:
            _, d, c = index
            if c in self.run:
                self.by_floor[index] = parts[index] if d < 12 else raised(self.by_floor[index], self.ratio)
        self.total = summed({i: n for i, n in self.by_floor.items() if i[2] in self.run}, lambda f, d, c: (d, c))

    def round_cell(self, index, installed):
        _, _, d, c = index
        if d >= 12:
            kilograms = math.trunc(self.shown[index] / 10000 * (self.ratio + 1.0) + 0.5)
            self.shown[index] = self.stock[index] = kilograms * 10000
            return
        self.stock[index] = stock_weight(d, c, self.by_part[index])
        self.shown[index] = whole(self.shown[index]) if installed else self.stock[index]


def recount_floor(rows, sel, settings, extent):
    start, end = asked_range(extent, sel["floors"])
    mask = sel["special"]
    low = extent.low if extent.any else start
    chosen, hoops, plates = select(rows, sel, lambda f: floor_passes(f, start, end, low, mask))
    installed = settings["installed"] == 1
    walk = Walk(chosen, sel, settings, "installed" if installed else "none")
    run = run_of_columns(settings)
    cells = FloorCells(walk, sel["uplift"] / 100.0, run, installed)
    shown = {i: w for i, w in cells.shown.items() if i[3] in run}
    by_column = {(d, c): stock_weight(d, c, n) for (d, c), n in cells.total.items() if d < 12 and c in run}
    by_column.update(summed({i: w for i, w in cells.stock.items() if i[2] >= 12}, lambda f, p, d, c: (d, c)))
    by_diameter = summed(by_column, lambda d, c: (d,))
    by_cell, by_floor = summed(shown, lambda f, p, d, c: (f, p)), summed(shown, lambda f, p, d, c: (f,))
    by_part = summed(shown, lambda f, p, d, c: (p,))
    total = sum(shown.values())
    second = (lambda table: table) if installed else (lambda table: {})
    floors = listed_floors(start, end, low, mask)
    listed = [list_row(floor_label(f), {p: by_cell[f + 5, p] for p in range(12)}, by_floor[f + 5,]) for f in floors]
    listed.append(list_row("合　計", {p: by_part[p,] for p in range(12)}, total))
    counts = {"KaiBuiHonsu": {(p, f, d, c): n for (f, p, d, c), n in cells.by_part.items()},
              "KaiHonsu": cells.by_floor, "SouHonsu": cells.total, **floor_fittings(walk)}
    weights = {"KaiBuiJyuuryo": cells.shown, "KaiBuiTeiJyuuryo": cells.stock, "KaiBuiGoukei": by_cell,
               "KaiGoukei": by_floor, "BuiGoukei": by_part,
               "KaiTaisaGoukei": summed(shown, lambda f, p, d, c: (f, d)), "TaisaTeiGoukei": by_column,
               "TaisaGoukei": by_diameter, "KaiBuiTorituke": second(by_cell), "KaiTorituke": second(by_floor),
               "BuiTorituke": second(by_part), "TaisaTorituke": second(summed(shown, lambda f, p, d, c: (d,)))}
    plain = {"kind": "floor", "SouGoukei": total / 10000, "SouTeiGoukei": sum(by_diameter.values()) / 10000,
             "SouTorituke": total / 10000 if installed else 0, "KaiGyouSuu": len(listed), "KaiGyou": listed,
             "KaiGyouKai": floors + [0], "HoopAri": hoops, "TeiAri": plates}
    return counts, weights, plain


def raised_fittings(walk, ratio):
    tables = {}
    for name, cells in walk.fittings.items():
        tables[name + "Bui"] = summed(cells, lambda f, p, d: (p, d))
        tables[name + "Taisa"] = summed(cells, lambda f, p, d: (d,))
    if ratio:
        tables = {name: {i: raised(n, ratio) for i, n in table.items()} for name, table in tables.items()}
    return tables


def recount_part(rows, sel, settings, extent):
    box, end = asked_range(extent, sel["floors"])
    start = part_start(extent, box, end)
    chosen, hoops, plates = select(rows, sel, lambda f: part_passes(f, box, start, end, sel["special"]))
    walk = Walk([{**r, "階": 0} for r in chosen], sel, settings, "stock")
    run, ratio = run_of_columns(settings), sel["uplift"] / 100.0
    bars = {(p, d, c): n for (_, p, d, c), n in walk.bars.items()}
    weight = Counter({(p, d, c): w for (_, p, d, c), w in walk.weight.items()})
    for index in set(bars) | set(weight):
        p, d, c = index
        if c not in run:
            continue
        if ratio:
            bars[index] = raised(bars.get(index, 0), ratio)
            weight[index] = currency(weight[index] / 10000 * (ratio + 1.0))
        weight[index] = whole(weight[index]) if d >= 12 else stock_weight(d, c, bars.get(index, 0))
    shown = {i: w for i, w in weight.items() if i[2] in run}
    by_cell, by_part = summed(shown, lambda p, d, c: (d, p)), summed(shown, lambda p, d, c: (p,))
    by_diameter, total = summed(shown, lambda p, d, c: (d,)), sum(shown.values())

    def rows_of(diameters):
        return [list_row(label, {p: by_cell[d, p] for p in range(12)}, by_diameter[d,]) for d, label in diameters]

    listed = rows_of(THIN_ROWS) + [["   "] + [0] * 12] if sel["kinds"] == 0 else []
    listed += rows_of((d, f"D{code}") for d, code in enumerate(DEFORMED))
    listed.append(list_row("合計", {p: by_part[p,] for p in range(12)}, total))
    counts = {"BuiHonsu": bars, "TaisaHonsu": summed({i: n for i, n in bars.items() if i[2] in run},
                                                     lambda p, d, c: (d, c)), **raised_fittings(walk, ratio)}
    weights = {"BuiJyuuryo": weight, "BuiTaisaGoukei": by_cell, "BuiGoukei": by_part, "TaisaGoukei": by_diameter}
    plain = {"kind": "part", "SouGoukei": total / 10000, "BuiGyou": listed, "HoopAri": hoops, "TeiAri": plates}
    return counts, weights, plain


def entries(table, scale):
    """A sparse table of the document."""
    return {tuple(row[:-1]): int(row[-1] * scale) for row in table}


def differences(expected, document):
    counts, weights, plain = expected
    found = []
    named = [(counts, 1), (weights, 10000)]
    for tables, scale in named:
        for name, table in tables.items():
            recounted = {i: n for i, n in table.items() if n != 0}
            tallied = entries(document[name], scale)
            if recounted != tallied:
                odd = sorted(recounted.items() ^ tallied.items())[:4]
                found.append(f"{name}: differs at {odd}")
            if list(tallied) != sorted(tallied):
                found.append(f"{name}: out of order")
    for name, value in plain.items():
        if document[name] != value:
            found.append(f"{name}: recounted {value}, tallied {document[name]}")
    missing = set(document) - set(counts) - set(weights) - set(plain)
    return found + [f"not recounted: {sorted(missing)}"] if missing else found
