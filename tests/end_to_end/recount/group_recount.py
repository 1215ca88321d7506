# SPDX-License-Identifier: MIT
"""Recounts the tallies by page and by shape, and the choice of stock lengths, by a second road."""

import math

import bulk_recount as bulk
from bulk_recount import RunTimeFault, checked, currency, diameter_index, stock_index, ulbon_index, whole

NOTHING = {"SpiralWeight": [0] * 3, "SpiralUlbonByDia": [0] * 18, "SpiralKinds": 0, "SpiralTotal": 0}


def int32(value):
    if not bulk.INT_MIN <= value <= bulk.INT_MAX:
        raise RunTimeFault("overflow")
    return value


def quotient(a, b):
    if b == 0:
        raise RunTimeFault("division by zero")
    return int(math.trunc(a / b))


def bars_for(count, pieces):
    if pieces == 0:
        raise RunTimeFault("division by zero")
    return count // pieces + (1 if count % pieces else 0)


class Engine:
    """One group of equal pieces: (stock bars, metres)."""

    def __init__(self, limits, plus, loss_priority):
        self.limits, self.plus, self.loss_priority = limits, plus, loss_priority

    def bounds(self, dia):
        if not 6 <= dia <= 51:
            raise RunTimeFault("subscript out of range")
        dia = 10 if dia in (6, 7, 9, 11, 12) else dia
        return self.limits.get(dia, (0, 0))

    def choose(self, cut, count, dia):
        cut = min(cut, 12000)
        total = int32(cut * count)
        half = cut // 500
        rest = cut - half * 500
        low, high = self.bounds(dia)
        if low / 500 <= half and rest == 0:
            return self.final(cut, count, half / 2)
        if total <= low + self.plus:
            return self.final(cut, 1, low / 1000)
        if total <= high + self.plus:
            h = total // 500
            return self.final(cut, 1, (h + 1) / 2 if total - (h * 500 + self.plus) >= 1 else h / 2)
        return self.search(cut, count, low, high)

    def final(self, cut, bars, metres):
        if cut == 0:
            raise RunTimeFault("division by zero")
        return bars, metres

    def search(self, cut, count, low, high):
        loss, waste = [5000.0] * 21, [2147483647.0] * 21
        s, k = low, round(low / 500 - 6)
        hit = None
        while True:
            if not 0 <= k <= 20:
                raise RunTimeFault("subscript out of range")
            if cut == 0:
                raise RunTimeFault("division by zero")
            loss[k] = (self.plus + s) % cut
            fit = (self.plus + s) // cut
            if self.loss_priority == 1 and s >= cut:
                left = count % fit
                waste[k] = (count // fit) * loss[k] + ((fit - left) * cut if left else 0)
            if loss[k] <= self.plus and (self.loss_priority != 1 or (fit and count % fit == 0)):
                hit = fit
                break
            if s == high:
                break
            s, k = s + 500, k + 1
            if k > 18:
                break
        if hit is not None:
            return self.final(cut, bars_for(count, hit), s / 1000)
        if cut > s:
            h = cut - self.plus
            return self.final(cut, count, (quotient(h, 500) + (1 if math.fmod(h, 500) else 0)) * 500 / 1000)
        values = waste if self.loss_priority == 1 else loss
        best, chosen = round(values[1]), 0
        for i in range(1, 20):
            if values[i] <= best:
                best, chosen = round(values[i]), i
        metres = (chosen + 6) * 0.5
        return self.final(cut, bars_for(count, int((metres * 1000 + self.plus) // cut)), metres)


def rank(value):
    """Ascending, nulls first; texts without regard to letter case."""
    if value is None:
        return (0, 0)
    return (1, value.lower() if isinstance(value, str) else value)


def total(rows, name):
    values = [r[name] for r in rows if r[name] is not None]
    return sum(values) if values else None


def groups(rows, names):
    """(first row, all rows) of each group, ascending by the names as listed."""
    found = {}
    for r in rows:
        found.setdefault(tuple(rank(r[n]) for n in names), []).append(r)
    return [(members[0], members) for _, members in sorted(found.items())]


class GroupTally(bulk.Tally):
    """What the two shape tallies share."""

    def __init__(self, sel, settings, engine):
        super().__init__(sel, settings)
        self.engine = engine
        self.ulbon_threads, self.ulbon_plates = [0] * 20, [0] * 20

    def welded(self, r, row_of):
        own = row_of(r["太さ"])
        return row_of(r["圧接太さ"]) if r["圧接太さ"] is not None and r["圧接太さ"] > r["太さ"] else own

    def drops_welds(self, r):
        return self.settings["hoop_welds"] == 0 and r["形状No"] == 87

    def ulbon_groups(self, rows, names):
        for first, members in groups(rows, names):
            u = checked(ulbon_index(first["太さ"]))
            at = self.welded(first, ulbon_index)
            if first["伸切寸"] is not None:
                self.ulbon_m[u] += first["伸切寸"] / 1000 * total(members, "合計")
            self.ulbon_kg[u] = self.ulbon_m[u] * bulk.UNIT_WEIGHT[u]
            if not self.drops_welds(first):
                bulk.add(self.ulbon_welds, at, total(members, "圧接") or 0)
            self.ulbon_threads[u] += total(members, "ネジ数") or 0
            self.ulbon_plates[u] += total(members, "定着板数") or 0

    def main_groups(self, rows, weight):
        held, key, count = None, None, 0
        names = ["太さ", "圧接太さ", "形状No", "伸切寸", "予備5", "伸定尺"]
        for first, members in groups(rows, names):
            this = [first["太さ"], first["形状No"], first["伸切寸"], first["予備5"]]
            if self.settings["stock_check"]:
                this.append(first["伸定尺"])
            pieces = total(members, "合計")
            if diameter_index((held or first)["太さ"]) < 0:
                # The branch of thin bars reads a field that the statement does not give.
                checked(ulbon_index(first["太さ"]))
                raise RunTimeFault("field not found")
            if held is not None and this != key:
                self.flush(held, count, weight)
            if this != key:
                held, key, count = first, this, pieces
            else:
                count += pieces
            d = checked(diameter_index(first["太さ"]))
            at = self.welded(first, diameter_index)
            if not self.drops_welds(first):
                bulk.add(self.welds, at, total(members, "圧接") or 0)
            self.threads[d] += total(members, "ネジ数") or 0
            self.plates[d] += total(members, "定着板数") or 0
        if held is not None:
            self.flush(held, count, weight)

    def flush(self, held, count, weight):
        d, cut = diameter_index(held["太さ"]), held["伸切寸"]
        if not cut:
            raise RunTimeFault("division by zero")
        if self.settings["stock_check"]:
            fit = quotient(round(held["伸定尺"] * 1000 + self.engine.plus), cut)
            bars, metres = (bars_for(count, fit), held["伸定尺"]) if fit else (0, 0.0)
        else:
            bars, metres = self.engine.choose(cut, count, held["太さ"])
        l = checked(stock_index(metres), 19)
        self.bars[d][l] += bars
        self.stock[d][l] += currency(weight(d, l) * bars)
        self.length[d][l] += cut / 1000 * count

    def cut_groups(self, rows):
        for part in (5, 2):
            for first, members in groups([r for r in rows if r["部位"] == part], ["太さ", "圧接太さ"]):
                dia, at = first["太さ"], first["圧接太さ"]
                if at not in (None, 0):
                    dia = max(dia, at) if part == 5 else at
                cuts = total(members, "切断")
                if cuts is not None:
                    bulk.add(self.cuts, diameter_index(dia), cuts)

    def finish(self, kind, high_strength):
        self.settings = {**self.settings, "use_13m": 0, "cap": 0}
        self.high_strength = high_strength
        self.grid.update(NOTHING)
        self.close()
        self.grid.update(kind=kind, UlbonThreadCount=self.ulbon_threads[:18], UlbonPlateCount=self.ulbon_plates[:18])
        return self.grid


def kind_of_group(mask, kind):
    if kind is None or kind == 2:
        return False
    return mask == 15 or bulk.kind_passes(mask, kind)


def counted(r):
    return (r["太さ"] is not None and r["太さ"] > 0 and r["合計"] is not None and r["合計"] > 0
            and r["形状No"] is not None)


def recount_shape(rows, sel, settings, engine):
    a, b = sel["shapes"]
    tally = GroupTally(sel, settings, engine)
    hoops, plates = sel["hoops"], sel["plates"]

    def in_range(r):
        return bulk.between(r["形状No"], a, b)

    def without_hoops(r):
        return bulk.between(r["形状No"], a, 86) or bulk.between(r["形状No"], 88, b)

    by_mode = [in_range, without_hoops, lambda r: r["形状No"] == 87]
    names = ["太さ", "圧接太さ", "形状No", "伸切寸", "予備5"]
    tally.ulbon_groups([r for r in rows if counted(r) and r["予備2"] == 2 and by_mode[hoops](r)], names)
    probed = [r for r in rows if in_range(r) and kind_of_group(sel["kinds"], r["予備2"])]
    asks = sel["start_mode"] not in (1, 3)
    tally.grid["HasHoopRows"] = asks and any(r["形状No"] == 87 for r in probed)
    tally.grid["HasAnchorPlateRows"] = asks and any(bulk.anchor_shape(r["形状No"]) for r in probed)
    base = [r for r in rows if counted(r) and r["伸定尺"] is not None and kind_of_group(sel["kinds"], r["予備2"])]
    main, cuts = base, base
    if tally.grid["HasHoopRows"]:
        main = cuts = [r for r in base if by_mode[hoops](r)]
    else:
        main = [r for r in base if in_range(r)]
    if tally.grid["HasAnchorPlateRows"] and plates:
        keep = bulk.not_anchor_shape if plates == 1 else bulk.anchor_shape
        main, cuts = [r for r in main if keep(r["形状No"])], [r for r in cuts if keep(r["形状No"])]
    tally.main_groups(main, bulk.bar_weight)
    tally.cut_groups(cuts)
    return tally.finish("shape", 1 if any(r["予備2"] == 3 for r in rows) else 0)


def table_weight(d, l):
    """The table of twelve rows by eighteen columns: 13.0 m reads the next row's first value."""
    if l < 18:
        return bulk.bar_weight(d, l)
    return bulk.bar_weight(checked(d + 1, 12), 0)


def lines_between(rows, sel, ordered_by=("行No",)):
    """Line numbers of the range: the one asked for, else from the first to the last row of the schedule."""
    def number(position):
        last = 0
        for r in rows:
            if (r["頁"], r["行"]) == position:
                last = r["行No"] or 0
        return last

    # null stands before every number
    ends = sorted(rows, key=lambda r: [(r[name] is not None, r[name] or 0) for name in ordered_by])
    first, last = ((r["頁"] or 0, r["行"] or 0) for r in (ends[0], ends[-1]))
    return number(sel["from"] or first), number(sel["to"] or last)


def recount_page_shape(rows, sel, settings, engine):
    a, b = lines_between(rows, sel)
    tally = GroupTally(sel, settings, engine)
    mask = 13 if sel["kinds"] == 11 else sel["kinds"]
    hoop = [lambda s: True, lambda s: s != 87, lambda s: s == 87][sel["hoops"]]
    here = [r for r in rows if counted(r) and bulk.between(r["行No"], a, b) and hoop(r["形状No"])]
    names = ["太さ", "圧接太さ", "形状No", "伸切寸", "予備5", "伸定尺"]
    tally.ulbon_groups([r for r in here if r["予備2"] == 2 and (r["本数"] or 0) > 0], names)
    main = [r for r in here if r["伸定尺"] is not None and kind_of_group(mask, r["予備2"])]
    asks = sel["start_mode"] not in (1, 3)
    tally.grid["HasHoopRows"] = asks and any(r["形状No"] == 87 for r in main)
    tally.grid["HasAnchorPlateRows"] = asks and any(
        r["形状No"] == 0 or bulk.anchor_shape(r["形状No"]) for r in main)
    if sel["plates"]:
        keep = bulk.not_anchor_shape if sel["plates"] == 1 else bulk.anchor_shape
        main = [r for r in main if keep(r["形状No"])]
    tally.main_groups(main, table_weight)
    tally.cut_groups(main)
    return tally.finish("page-shape", 0)


class PageTally(bulk.Tally):
    """By rows like the bulk tally, but a row without a column keeps its length apart."""

    def __init__(self, sel, settings):
        super().__init__({**sel, "calc": None}, {**settings, "use_13m": 0, "cap": 0})
        self.apart = [0.0] * 12

    def unstocked(self, r, d, wd, deformed):
        if r["太さ"] > 0 and not deformed:
            if not self.hoop_left_out(r):
                u = checked(ulbon_index(r["太さ"]))
                self.ulbon_kg[u] += bulk.metres(r) * bulk.UNIT_WEIGHT[u]
                self.ulbon_m[u] += bulk.metres(r)
                if self.welds_count(r) and r["圧接"] is not None:
                    bulk.add(self.ulbon_welds, u, r["圧接"])
        elif r["太さ"] > 0:
            if not self.hoop_left_out(r) and self.welds_count(r) and r["圧接"] is not None:
                bulk.add(self.welds, wd, r["圧接"])
            self.counts(r, d, True)
            if r["予備2"] == 3:
                self.high_strength += 1
            self.apart[d] += bulk.metres(r)
        self.warning = f" {bulk.text(r['頁'])}頁の{bulk.text(r['行'])}行目の定尺を確認"


def recount_page(rows, sel, settings):
    a, b = lines_between(rows, sel, ("行No", "頁", "行"))
    tally = PageTally(sel, settings)
    mask = sel["kinds"]

    def base(r):
        return (r["太さ"] is not None and r["伸定尺"] is not None and r["本数"] is not None
                and bulk.between(r["行No"], a, b) and bulk.form_passes(sel["forms"], r["予備3"]))

    asks = sel["start_mode"] not in (1, 3)
    anchor = asks and bulk.probe(rows, base, mask, lambda r: bulk.anchor_shape(r["形状No"]))
    hoop = asks and bulk.probe(rows, base, mask, lambda r: r["形状No"] == 87)
    tally.grid.update(HasHoopRows=hoop, HasAnchorPlateRows=anchor)

    def closing(r):
        if hoop and sel["hoops"] == 2 and r["形状No"] != 87:
            return False
        if anchor and sel["plates"] == 1:
            return bulk.not_anchor_shape(r["形状No"])
        return not (anchor and sel["plates"] == 2) or bulk.anchor_shape(r["形状No"])

    for r in rows:
        if mask == 8:
            taken = (base(r) and r["予備2"] == 5) or (r["予備2"] == 2 and closing(r))
        else:
            taken = base(r) and bulk.kind_passes(mask, r["予備2"]) and closing(r)
        if taken:
            tally.row(r)
    tally.grid.update(NOTHING)
    tally.close()
    return add_apart(tally)


def add_apart(tally):
    """Lengths without a column join the installed weights of their diameters."""
    grid = tally.grid
    installed = [w + currency(tally.apart[d] * bulk.UNIT_WEIGHT[d])
                 for d, w in enumerate(grid["InstalledWeightByDia"])]
    total_installed = sum(whole(w) for w in installed)
    loss = 0.0
    if grid["TotalStockWeight"] and total_installed:
        loss = (grid["TotalStockWeight"] - total_installed) / 10000 / (total_installed / 10000) * 100
    grid.update(kind="page", InstalledWeightByDia=installed, TotalInstalledWeight=total_installed,
                LossRatePercent=loss)
    return grid
