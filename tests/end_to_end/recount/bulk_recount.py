# SPDX-License-Identifier: MIT
"""Recounts the bulk tally by a second road: rows straight from the file, exact decimals for Currency, no code shared
with the engine. What both agree on was worked out twice."""

import math
from fractions import Fraction

DEFORMED = [10, 13, 16, 19, 22, 25, 29, 32, 35, 38, 41, 51]
ULBON = [6, 7, 9, 11, 12, 16]
UNIT_WEIGHT = [0.56, 0.995, 1.56, 2.25, 3.04, 3.98, 5.04, 6.23, 7.51, 8.95, 10.5, 15.9,
               0.235, 0.315, 0.5, 0.71, 0.98, 1.56]
STOCK_METRES = [3.5 + 0.5 * i for i in range(18)] + [13.0]
STOCK_MM = [int(m * 1000) for m in STOCK_METRES[:18]]
INT_MIN, INT_MAX = -(2**31), 2**31 - 1


class RunTimeFault(Exception):
    """The tally ends with the runtime's own words."""


def diameter_index(code):
    return DEFORMED.index(code) if code in DEFORMED else -1


def ulbon_index(code):
    return 12 + ULBON.index(code) if code in ULBON else -1


def stock_index(metres):
    return STOCK_METRES.index(metres) if metres in STOCK_METRES else -1


def currency(x):
    """Ten-thousandths of a double: one multiplication, halves to even."""
    return round(x * 10000.0)


def whole(units):
    """Fix(x + 0.5) on ten-thousandths, as ten-thousandths."""
    shifted = units + 5000
    return int(math.trunc(Fraction(shifted, 10000))) * 10000


def bar_weight(d, l):
    """Three significant figures, halves to even, in exact arithmetic."""
    exact = Fraction(str(STOCK_METRES[l])) * Fraction(str(UNIT_WEIGHT[d]))
    exponent = 0
    while exact >= 10 ** (exponent + 1):
        exponent += 1
    while exact < 10**exponent:
        exponent -= 1
    scaled = exact / Fraction(10) ** (exponent - 2)
    return float(round(scaled) * Fraction(10) ** (exponent - 2))


def prepare(rows, start_mode):
    """What the load and one activation make of the schedule, row by row."""
    straight = {1} if start_mode in (1, 3, 4) else {1, 138, 139, 140, 143}
    form_a = start_mode not in (1, 3, 4)
    for r in rows:
        classify_form(r, straight, form_a)
        r["予備5"] = "".join(text(r[f"寸法{i}"]) + "," for i in range(1, 11))
        classify_kind(r)
    for r in rows:
        row_pass(r, start_mode)


def text(value):
    return "" if value is None else str(value)


def classify_form(r, straight, form_a):
    r["予備3"] = 0
    cut, per_bar, shape, kind = r["伸切寸"], r["伸本定"], r["形状No"], r["予備2"]
    if cut is None or shape is None:
        return
    threaded_above_200 = shape > 200 and kind == 4
    if cut in STOCK_MM:
        if per_bar is None:
            return
        if per_bar == 1:
            if shape in straight:
                r["予備3"] = 1
            if shape not in straight or (form_a and threaded_above_200):
                r["予備3"] = 2
        else:
            if shape in straight:
                r["予備3"] = 3
            if shape != 1:
                r["予備3"] = 4
    else:
        if shape in straight or (form_a and threaded_above_200):
            r["予備3"] = 3
        if shape not in straight:
            r["予備3"] = 4


def between(value, low, high):
    return value is not None and low <= value <= high


def classify_kind(r):
    shape = r["形状No"]
    if between(shape, 138, 143) or between(shape, 162, 163) or between(shape, 166, 177):
        r["予備2"] = 4
    if r["予備2"] is None or r["予備2"] == 0:
        r["予備2"] = 1
    if r["太さ"] in (6, 7, 9, 11, 12):
        r["予備2"] = 2
    if r["太さ"] is not None and r["圧接"] is not None and r["圧接"] > 0 and r["圧接太さ"] == 0:
        r["圧接太さ"] = r["太さ"]


ONE_PLATE = {138, 140, 144, 145, 147, 161, 164, 165, 166, 167, 168, 169, 175, 176}
TWO_PLATES = {143, 146}


def row_pass(r, start_mode):
    if r["太さ"] in (6, 7, 9, 11, 12):
        r["予備2"] = 2
    elif r["予備2"] == 2 and r["太さ"] is not None and r["太さ"] != 16:
        r["予備2"] = 1
    if "定着板数" in r:
        per_bar = 1 if r["形状No"] in ONE_PLATE else 2 if r["形状No"] in TWO_PLATES else 0
        if start_mode in (1, 3) or per_bar == 0:
            r["定着板数"] = 0
        elif r["本数"] is None or r["ヶ所"] is None:
            r["定着板数"] = None
        else:
            r["定着板数"] = per_bar * r["本数"] * r["ヶ所"]
    if r["部位"] == 3 and r["名称"] in ("縦ｽﾘｯﾄ筋　", "横ｽﾘｯﾄ筋　"):
        r["予備2"] = 5


def anchor_shape(shape):
    return shape is not None and (
        shape in (138, 140, 161) or 143 <= shape <= 147 or 164 <= shape <= 169 or 175 <= shape <= 176)


def not_anchor_shape(shape):
    return shape is None or not anchor_shape(shape)


def form_passes(mask, form):
    if mask in (0, 15):
        return True
    return form is not None and 1 <= form <= 4 and bool(mask & (1 << (form - 1)))


def kind_passes(mask, kind):
    if mask in (0, 15) or kind == 2:
        return True
    deformed = kind is None or kind <= 1
    return bool((mask & 1 and deformed) or (mask & 2 and kind == 4) or (mask & 4 and kind == 3)
                or (mask & 8 and kind == 5))


def probe(rows, base, mask, extra):
    if mask == 8:  # ... AND (予備2=5) or 予備2=2 AND extra: the OR stands alone
        return any((base(r) and r["予備2"] == 5) or (r["予備2"] == 2 and extra(r)) for r in rows)
    return any(base(r) and kind_passes(mask, r["予備2"]) and extra(r) for r in rows)


def select(rows, sel, grid):
    """Rows of the statement, and the presence flags."""
    mask = sel["kinds"]

    def base(r):
        return (r["太さ"] is not None and r["伸定尺"] is not None and r["本数"] is not None
                and form_passes(sel["forms"], r["予備3"]))

    grid["HasHoopRows"] = grid["HasAnchorPlateRows"] = False
    if sel["start_mode"] not in (1, 3):
        grid["HasAnchorPlateRows"] = probe(rows, base, mask, lambda r: anchor_shape(r["形状No"]))
        grid["HasHoopRows"] = probe(rows, base, mask, lambda r: r["形状No"] == 87)

    def closing(r):
        if grid["HasHoopRows"] and sel["hoops"] == 2 and r["形状No"] != 87:
            return False
        if sel["plates"] == 1 and not not_anchor_shape(r["形状No"]):
            return False
        return not (sel["plates"] == 2 and not anchor_shape(r["形状No"]))

    if mask == 8:
        return [r for r in rows if (base(r) and r["予備2"] == 5) or (r["予備2"] == 2 and closing(r))]
    return [r for r in rows if base(r) and kind_passes(mask, r["予備2"]) and closing(r)]


def checked(index, size=20):
    if index < 0 or index >= size:
        raise RunTimeFault("subscript out of range")
    return index


def add(counts, index, value):
    total = counts[checked(index, len(counts))] + value
    if not INT_MIN <= total <= INT_MAX:
        raise RunTimeFault("overflow")
    counts[index] = total


def metres(r):
    if r["伸切寸"] is None or r["合計"] is None:
        return 0.0
    return r["伸切寸"] / 1000 * r["合計"]


class Tally:
    def __init__(self, sel, settings):
        self.sel, self.settings = sel, settings
        self.grid = {}
        self.bars = [[0] * 19 for _ in range(19)]
        self.stock = [[0] * 19 for _ in range(20)]
        self.length = [[0.0] * 19 for _ in range(13)]
        self.welds, self.threads, self.plates, self.cuts = ([0] * 20, [0] * 19, [0] * 19, [0] * 19)
        self.ulbon_m, self.ulbon_kg, self.ulbon_welds = [0.0] * 20, [0.0] * 20, [0] * 20
        self.high_strength = 0
        self.warning = ""

    def hoop_left_out(self, r):
        return self.sel["hoops"] == 1 and r["形状No"] == 87

    def welds_count(self, r):
        return self.sel["hoops"] == 1 or not (r["形状No"] == 87 and self.settings["hoop_welds"] == 0)

    def row(self, r):
        if r["太さ"] is None:
            return
        d = wd = diameter_index(r["太さ"])
        if r["圧接太さ"] is not None and r["太さ"] < r["圧接太さ"]:
            wd = diameter_index(r["圧接太さ"])
        l = stock_index(r["伸定尺"]) if r["伸定尺"] is not None else -1
        deformed = r["予備2"] != 2 and d >= 0
        if l >= 0 and r["太さ"] != 0:
            if deformed:
                self.stocked(r, d, wd, l)
            elif self.sel["ulbon"] == 1 and not self.hoop_left_out(r):
                self.ulbon(r)
        else:
            self.unstocked(r, d, wd, deformed)

    def stocked(self, r, d, wd, l):
        if not self.hoop_left_out(r):
            if r["伸総計"] is not None:
                self.bars[d][l] += r["伸総計"]
                self.stock[d][l] += currency(bar_weight(d, l) * r["伸総計"])
            self.length[d][l] += metres(r)
            if self.welds_count(r) and r["圧接"] is not None:
                add(self.welds, wd, r["圧接"])
        self.counts(r, d, r["予備2"] == 4)
        if r["予備2"] == 3:
            self.high_strength += 1

    def counts(self, r, d, threads_count):
        if r.get("ネジ数") is not None and threads_count:
            self.threads[d] += r["ネジ数"]
        if r.get("定着板数") is not None:
            self.plates[d] += r["定着板数"]
        if r.get("切断") is not None:
            at = d
            if r["部位"] == 2 and r["圧接太さ"] not in (None, 0):
                at = diameter_index(r["圧接太さ"])
            if at >= 0:
                self.cuts[at] += r["切断"]

    def ulbon(self, r):
        u = checked(ulbon_index(r["太さ"]))
        self.ulbon_m[u] += metres(r)
        if self.welds_count(r) and r["圧接"] is not None:
            add(self.ulbon_welds, u, r["圧接"])
        self.ulbon_kg[u] = self.ulbon_m[u] * UNIT_WEIGHT[u]

    def unstocked(self, r, d, wd, deformed):
        if r["太さ"] > 0:
            if not deformed:
                if not self.hoop_left_out(r):
                    self.ulbon(r)
            else:
                kind, calc = r["予備2"], self.sel["calc"]
                plain = kind is None or kind < 2
                if ((calc == 1 and kind == 3) or (calc == 0 and plain)
                        or (calc == 2 and (kind == 3 or plain))):
                    if not self.hoop_left_out(r) and self.welds_count(r) and r["圧接"] is not None:
                        add(self.welds, wd, r["圧接"])
                    self.counts(r, d, True)
                if kind == 3:
                    self.high_strength += 1
        self.warning = f" {text(r['頁'])}頁の{text(r['行'])}行目の定尺を確認"
        if r["予備2"] != 2:
            self.length[checked(d, 13)][0] += metres(r)

    def spirals(self, spirals):
        """(材質, 径, 全重量 in ten-thousandths) rows."""
        weight, by_dia, kinds = [0, 0, 0], [0] * 18, 0
        if self.sel["hoops"] != 2 and self.sel["plates"] != 2:
            groups = {}
            for material, dia, units in spirals:
                key = (material, dia)
                groups[key] = groups.get(key, 0) + (units or 0)
            for (material, dia), units in sorted(groups.items(), key=lambda g: (g[0][0] or 0, g[0][1] or 0)):
                if material == 1 and self.sel["kinds"] & 1:
                    weight[0] += units
                elif material == 2 and self.sel["ulbon"] == 1:
                    weight[1] += units
                    by_dia[checked(ulbon_index(dia), 18)] += units
                elif material == 3 and self.sel["kinds"] & 4:
                    weight[2] += units
            weight = [whole(w) for w in weight]
            kinds = ((1 if weight[0] > 0 else 0) + (2 if self.sel["ulbon"] == 1 and weight[1] > 0 else 0)
                     + (4 if weight[2] > 0 else 0))
        self.grid.update(SpiralWeight=weight, SpiralUlbonByDia=by_dia, SpiralKinds=kinds, SpiralTotal=sum(weight))

    def close(self):
        columns = 19 if self.settings["use_13m"] == 1 else 18
        installed = [[0] * 19 for _ in range(20)]
        stock_dia, installed_dia = [0] * 12, [0] * 12
        for d in range(12):
            for l in range(columns):
                installed[d][l] = currency(self.length[d][l] * UNIT_WEIGHT[d])
                stock_dia[d] += whole(self.stock[d][l])
                installed_dia[d] += installed[d][l]
            if self.settings["cap"] == 1 and installed_dia[d] > stock_dia[d]:
                installed_dia[d] = stock_dia[d]
        total_stock = sum(whole(w) for w in stock_dia)
        total_installed = sum(whole(w) for w in installed_dia)
        loss = 0.0
        if total_stock != 0 and total_installed != 0:
            loss = ((total_stock - total_installed) / 10000) / (total_installed / 10000) * 100
        self.grid.update(
            kind="bulk", BarCount=sparse(self.bars), StockWeight=sparse(self.stock),
            InstalledWeight=sparse(installed), CutLengthM=sparse(self.length),
            StockWeightByDia=stock_dia, InstalledWeightByDia=installed_dia,
            WeldCount=self.welds[:18], ThreadCount=self.threads[:18], PlateCount=self.plates[:18],
            CutCount=self.cuts[:18], UlbonLengthM=self.ulbon_m[:18], UlbonWeight=self.ulbon_kg[:18],
            UlbonWeldCount=self.ulbon_welds[:18], UlbonThreadCount=[0] * 18, UlbonPlateCount=[0] * 18,
            TotalStockWeight=total_stock, TotalInstalledWeight=total_installed,
            TotalWeldCount=sum(self.welds[:12]), TotalThreadCount=sum(self.threads[:12]),
            TotalPlateCount=sum(self.plates[:12]), TotalCutCount=sum(self.cuts[:12]), LossRatePercent=loss,
            HighStrengthRowCount=self.high_strength, StockWarningText=self.warning)


def sparse(table):
    return [[d, l, v] for d, row in enumerate(table) for l, v in enumerate(row) if v != 0]


CURRENCY_FIELDS = {"StockWeight", "InstalledWeight", "StockWeightByDia", "InstalledWeightByDia", "SpiralWeight",
                   "SpiralUlbonByDia", "SpiralTotal", "TotalStockWeight", "TotalInstalledWeight"}


def recount(rows, spirals, sel, settings):
    """The fields of the JSON document, Currency in ten-thousandths."""
    tally = Tally(sel, settings)
    for r in select(rows, sel, tally.grid):
        tally.row(r)
    tally.spirals(spirals)
    tally.close()
    return tally.grid
