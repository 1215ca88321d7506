# SPDX-License-Identifier: MIT
"""Judges a plan by its JSON alone: what it is made from is worked out anew, and every promise and figure is held
against exact arithmetic. Shares no code with the program."""

import math
from collections import defaultdict
from fractions import Fraction

UNIT = {0: Fraction(1), 10: Fraction("0.56"), 13: Fraction("0.995"), 16: Fraction("1.56"), 19: Fraction("2.25"),
        22: Fraction("3.04"), 25: Fraction("3.98"), 29: Fraction("5.04"), 32: Fraction("6.23"),
        35: Fraction("7.51"), 38: Fraction("8.95"), 41: Fraction("10.5"), 51: Fraction("15.9")}
MICRO = 1_000_000


class Fault(Exception):
    """The plan breaks its contract."""


def require(holds, *what):
    if not holds:
        raise Fault(" ".join(str(w) for w in what))


def near(actual, expected, what):
    require(isinstance(actual, (int, float)) and not isinstance(actual, bool), what, "is", actual)
    require(abs(actual - float(expected)) <= 1e-9 * max(1.0, abs(float(expected))), what, "is", actual, "not", float(expected))


def table_kg(diameter, mm):
    """To three figures, halves to even; without a diameter 1 kg/m as it is."""
    exact = UNIT[diameter] * mm / 1000
    if diameter == 0:
        return exact
    exponent = math.floor(math.log10(float(exact)))
    while exact >= Fraction(10) ** (exponent + 1):
        exponent += 1
    while exact < Fraction(10) ** exponent:
        exponent -= 1
    step = Fraction(10) ** (exponent - 2)
    return round(exact / step) * step


class Task:
    """What a plan is made from: options; allowed {diameter: {mm: (price, least kg)}}; rests [(diameter, kind, mm, n)];
    groups {(place, scope, diameter, kind, hoop): {cut: [(page, line, n, own mm, own bars)]}}; kept rows
    [(page, line, reason, (diameter, kind, hoop), mm, bars)]; planned rows in table order; whether there is a site."""

    def __init__(self, options, allowed, rests, site):
        self.options, self.allowed, self.rests, self.site = options, allowed, rests, site
        self.groups, self.kept, self.planned = defaultdict(dict), [], []

    def add(self, key, cut, row):
        self.groups[key].setdefault(cut, []).append(row)
        self.planned.append((key, cut, row))

    def per_bar(self, mm, cut):
        o = self.options
        room = mm - o["trim"] + o["plus"]
        n = 0 if room < cut else 1 + (room - cut) // (cut + o["kerf"])
        return max(n, 1 if cut == mm else 0)

    def fits(self, mm, pieces):
        o = self.options
        count = sum(n for _, n in pieces)
        used = sum(c * n for c, n in pieces) + o["kerf"] * (count - 1)
        return used <= mm - o["trim"] + o["plus"] or (count == 1 and pieces[0][0] == mm)

    def measures(self, mm, pieces):
        """used, left, cuts"""
        o = self.options
        count = sum(n for _, n in pieces)
        used = sum(c * n for c, n in pieces) + o["kerf"] * (count - 1)
        left = max(0, mm - o["trim"] - used - o["kerf"])
        if count == 1 and pieces[0][0] == mm:
            return used, left, 0
        return used, left, count - (1 if used >= mm - o["trim"] else 0) + (1 if o["trim"] > 0 else 0)

    def cost(self, diameter, mm):
        if self.options["aim"] == "steel":
            return Fraction(mm)
        return table_kg(diameter, mm) * self.allowed[diameter][mm][0] / 1000


def bars_alone(task, mm, cut, pieces):
    per_bar = task.per_bar(mm, cut)
    return math.ceil(pieces / per_bar) if per_bar else pieces


def cuts_alone(task, mm, cut, pieces):
    per_bar = max(1, task.per_bar(mm, cut))
    full, last = divmod(pieces, per_bar)
    cuts = full * task.measures(mm, [(cut, per_bar)])[2]
    return cuts + (task.measures(mm, [(cut, last)])[2] if last else 0)


def per_row_choice(task, diameter, cut, pieces):
    """The one length of least cost, the longer of equals."""
    best = None
    for mm in sorted(task.allowed[diameter]):
        if task.per_bar(mm, cut) == 0:
            continue
        cost = task.cost(diameter, mm) * bars_alone(task, mm, cut, pieces)
        if best is None or cost <= best[0]:
            best = cost, mm
    return best


def lightest_of_two(task, diameter, cut, pieces):
    """The least table weight of a cut from two lengths that costs no more than the per-row rule."""
    most = per_row_choice(task, diameter, cut, pieces)[0]
    lengths = [(task.per_bar(mm, cut), task.cost(diameter, mm), table_kg(diameter, mm)) for mm in task.allowed[diameter]
               if task.per_bar(mm, cut)]
    weights = []
    for per_bar, cost, weight in lengths:
        for other_per_bar, other_cost, other_weight in lengths:
            for bars in range(pieces // per_bar + 1):
                others = -(-(pieces - bars * per_bar) // other_per_bar)
                if bars * cost + others * other_cost <= most:
                    weights.append(bars * weight + others * other_weight)
    return min(weights)


class Sums:
    def __init__(self):
        self.bars, self.steel, self.table, self.cuts = 0, Fraction(0), Fraction(0), 0
        self.bought = defaultdict(int)

    def buy(self, diameter, mm, bars):
        self.bars += bars
        self.steel += UNIT[diameter] * mm * bars / 1000
        self.table += table_kg(diameter, mm) * bars
        self.bought[diameter, mm] += bars


def most_worth(items, capacity):
    """By capacity, what a content is worth: items (room, count, price)."""
    worth = [0] * (capacity + 1)
    for room, count, price in items:
        count, bundle = min(count, capacity // room if room else 0), 1
        while count > 0 and price > 0:
            n = min(bundle, count)
            count -= n
            bundle *= 2
            if room * n > capacity:
                break
            worth[room * n:] = list(map(max, worth[room * n:], [w + price * n for w in worth[:capacity + 1 - room * n]]))
    return worth


def judge_prices(task, key, group, cuts, cost):
    diameter, kind, hoop = key[2:]
    prices = group["bound"]["prices"]
    require([p[0] for p in prices] == sorted(cuts), key, "prices are of", [p[0] for p in prices])
    require(all(isinstance(p[1], int) and p[1] >= 0 for p in prices), key, "a price is no whole number of at least 0")
    o = task.options
    items = [(cut + o["kerf"], sum(r[2] for r in cuts[cut]), price) for cut, price in prices]
    rests = defaultdict(int)
    for d, k, mm, n in task.rests:
        if (d, k) == (diameter, kind) and not hoop:
            rests[mm] += n

    def room(mm):
        return max(0, mm - o["trim"] + o["plus"] + o["kerf"])

    worths = most_worth(items, max(room(mm) for mm in [*task.allowed[diameter], *rests]))

    def worth(mm):
        return max([worths[room(mm)]] + [price for cut, price in prices if cut == mm])

    costs = {mm: task.cost(diameter, mm) for mm in task.allowed[diameter]}
    for mm, of in costs.items():
        require(worth(mm) <= of * MICRO, key, "a content of", mm, "is worth more than the bar")
    proven = Fraction(sum(n * price for _, n, price in items) - sum(n * worth(mm) for mm, n in rests.items()), MICRO)
    if all(of.denominator == 1 for of in costs.values()):
        step = math.gcd(*(int(of) for of in costs.values()))
        proven = -(-proven // step) * step
    bound = Fraction(str(group["bound"]["cost"]))
    require(bound <= max(0, proven) + Fraction(1, MICRO), key, "the prices prove", float(proven), "not", float(bound))
    require(bound <= cost + Fraction(1, MICRO), key, "the bound is above the cost")
    return bound


def judge_patterns(task, key, group, cuts):
    diameter, kind, hoop = key[2:]
    made, bought, rests, sums, usable, lefts = defaultdict(int), defaultdict(int), defaultdict(int), Sums(), Fraction(0), defaultdict(int)
    places = []
    for p in group["patterns"]:
        require(list(p) == ["stock", "rest", "bars", "pieces", "used", "left", "cuts"], key, "pattern", list(p))
        pieces = [tuple(x) for x in p["pieces"]]
        require(pieces and p["bars"] >= 1 and all(n >= 1 for _, n in pieces), key, "an empty pattern")
        require([c for c, _ in pieces] == sorted({c for c, _ in pieces}, reverse=True), key, "pieces do not fall")
        require(task.fits(p["stock"], pieces), key, "an overfilled bar", p)
        require(not task.options["mix"] or len(pieces) <= task.options["mix"], key, "a mixed bar", p)
        require((p["used"], p["left"], p["cuts"]) == task.measures(p["stock"], pieces), key, "measures of", p,
                "are", task.measures(p["stock"], pieces))
        places.append((p["rest"], p["stock"], pieces))
        for cut, n in pieces:
            made[cut] += n * p["bars"]
        sums.cuts += p["cuts"] * p["bars"]
        if p["left"] >= task.options["usable"] and p["left"] > 0:
            lefts[p["left"]] += p["bars"]
            usable += UNIT[diameter] * p["left"] * p["bars"] / 1000
        if p["rest"]:
            require(not hoop, key, "a rest bar for hoops")
            rests[p["stock"]] += p["bars"]
        else:
            require(p["stock"] in task.allowed[diameter], key, p["stock"], "may not be bought")
            bought[p["stock"]] += p["bars"]
            sums.buy(diameter, p["stock"], p["bars"])
    require(all(a > b for a, b in zip(places, places[1:])), key, "patterns out of order")
    require(dict(made) == {cut: sum(r[2] for r in rows) for cut, rows in cuts.items()}, key, "pieces made", dict(made))
    return bought, rests, sums, usable, lefts


def judge_promises(task, key, cuts, cost, sums):
    diameter = key[2]
    if task.options["maxLengths"] or any(least for _, least in task.allowed[diameter].values()):
        return
    per_row = sum(per_row_choice(task, diameter, cut, sum(r[2] for r in rows))[0] for cut, rows in cuts.items())
    require(cost <= per_row, key, "costs", float(cost), "the per-row rule", float(per_row))
    schedule, schedule_cost = Sums(), Fraction(0)
    for cut, rows in cuts.items():
        for row in rows:
            if row[3] not in task.allowed[diameter] or task.per_bar(row[3], cut) == 0:
                return
            bars = max(row[4], bars_alone(task, row[3], cut, row[2]))
            schedule.buy(diameter, row[3], bars)
            schedule_cost += task.cost(diameter, row[3]) * bars
    if task.options["aim"] == "money":
        require(cost <= schedule_cost, key, "costs more than the schedule")
        return
    require(sums.steel <= schedule.steel, key, "more steel than the schedule")
    if sums.table > schedule.table:
        # Where the schedule costs more than the per-row rule there may be no plan below both.
        require(schedule_cost > per_row and sum(lightest_of_two(task, diameter, cut, sum(r[2] for r in rows))
                                                for cut, rows in cuts.items()) > schedule.table,
                key, "more table weight than the schedule")


def percent(most, least):
    return (most / least - 1) * 100 if least else 0


def judge_figures(name, actual, expected, installed, tally):
    near(actual["bars"], expected.bars, f"{name} bars")
    near(actual["steelKg"], expected.steel, f"{name} steelKg")
    near(actual["tableKg"], expected.table, f"{name} tableKg")
    near(actual["cuts"], expected.cuts, f"{name} cuts")
    near(actual["lossPercent"], percent(expected.steel, installed), f"{name} lossPercent")
    keys = ["TotalStockWeight", "TotalInstalledWeight", "LossRatePercent"]
    require(list(actual)[:8] == keys + ["bars", "steelKg", "tableKg", "lossPercent", "cuts"], name, list(actual))
    if tally is None:
        require(all(actual[k] is None for k in keys), name, "has a tally")
        return
    for key, value in zip(keys, tally(expected.bought)):
        near(actual[key], value, f"{name} {key}")


def judge_purchase(task, doc, bought):
    lines = defaultdict(lambda: [0, 0])
    for (steel, mm), bars in bought.items():
        lines[steel, mm][0] += bars
    for _, _, _, steel, mm, bars in task.kept:
        if mm > 0 and bars > 0:
            lines[steel, mm][1] += bars
    expected = [(steel, mm, *lines[steel, mm]) for steel, mm in sorted(lines)]
    actual = [((p["diameter"], p["kind"], p["hoop"]), p["stock"], p["planned"], p["kept"]) for p in doc["purchase"]]
    require(actual == expected, "purchase is", actual, "not", expected)
    for p in doc["purchase"]:
        require(list(p) == ["diameter", "kind", "hoop", "stock", "planned", "kept", "bars", "tableKg", "yen"], list(p))
        require(p["bars"] == p["planned"] + p["kept"], "bars of", p)
        weight = table_kg(p["diameter"], p["stock"]) * p["bars"]
        near(p["tableKg"], weight, "purchase tableKg")
        price, least = task.allowed.get(p["diameter"], {}).get(p["stock"], (None, 0))
        if p["planned"]:
            require(weight >= least, "the lot of", p, "is below", least)
        if price is None:
            require(p["yen"] is None or p["stock"] not in task.allowed.get(p["diameter"], {}), "yen of", p)
        else:
            near(p["yen"], weight * price / 1000, "yen")


def judge_advice(task, doc, count):
    require(("advice" in doc) == (count > 0), "advice asked for", count)
    installed = defaultdict(Fraction)
    for key, cut, row in task.planned:
        installed[key[2:]] += UNIT[key[2]] * cut * row[2] / 1000
    require([(a["diameter"], a["kind"], a["hoop"]) for a in doc.get("advice", [])] == (sorted(installed) if count else []),
            "advice for other steels")
    for a in doc.get("advice", []):
        last = None
        for point in a["curve"]:
            require(list(point) == ["count", "lengths", "steelKg", "lossPercent"], list(point))
            require(1 <= point["count"] <= count and len(point["lengths"]) <= point["count"], "advice", point)
            require(point["lengths"] == sorted(point["lengths"]) and set(point["lengths"]) <= set(task.allowed[a["diameter"]]), point)
            near(point["lossPercent"], percent(Fraction(str(point["steelKg"])), installed[a["diameter"], a["kind"], a["hoop"]]), "advice")
            # For money it is the cost that must not rise, which the advice does not tell.
            falls = last is None or point["steelKg"] <= last["steelKg"] or task.options["aim"] == "money"
            require(falls and (last is None or point["count"] > last["count"]), "the curve rises", a)
            last = point


def judge(task, doc, tally=None, schedule=None, advise=0):
    """`tally(bought)` gives the three figures with these bars of {(diameter, mm): bars}; `schedule` those of the site."""
    fields = ["kind", "stopped", "options", "groups", "kept", "short", "purchase", "rests", "figures", "bound"]
    require([f for f in doc if f != "advice"] == fields, "fields", list(doc))
    require(doc["kind"] == "plan" and doc["stopped"] in ("", "time", "cancel"), doc["kind"], doc["stopped"])
    require(doc["options"] == task.options and list(doc["options"]) == list(task.options), "options", doc["options"])
    keys = sorted(task.groups)
    actual = [(g["scope"], g["diameter"], g["kind"], g["hoop"]) for g in doc["groups"]]
    require(actual == [key[1:] for key in keys], "groups are", actual, "not", [key[1:] for key in keys])
    require([tuple(k) for k in doc["kept"]] == [row[:3] for row in task.kept], "kept is", doc["kept"], "not",
            [row[:3] for row in task.kept])
    short = [[r[0], r[1], bars_alone(task, r[3], cut, r[2])] for _, cut, r in task.planned
             if r[3] and r[4] < bars_alone(task, r[3], cut, r[2])]
    require(doc["short"] == short, "short is", doc["short"], "not", short)
    bought, used_rests, plan, usable, patterns = defaultdict(int), defaultdict(int), Sums(), Fraction(0), 0
    rest_lefts, bounds, plan_cost, installed = defaultdict(int), Fraction(0), Fraction(0), Fraction(0)
    for key, group in zip(keys, doc["groups"]):
        cuts, diameter, steel = task.groups[key], key[2], key[2:]
        require(list(group) == ["scope", "diameter", "kind", "hoop", "lengths", "pieces", "patterns", "method", "cost", "steelKg",
                                "tableKg", "installedKg", "lossPercent", "bound"], key, list(group))
        require(group["lengths"] == sorted(task.allowed[diameter]), key, "lengths", group["lengths"])
        expected = [[cut, sum(r[2] for r in cuts[cut]), [list(r[:3]) for r in cuts[cut]]] for cut in sorted(cuts, reverse=True)]
        require(group["pieces"] == expected, key, "pieces", group["pieces"], "not", expected)
        require(group["method"] in ("schedule", "perRow", "greedy", "columns"), group["method"])
        of_group, rests, sums, of_usable, lefts = judge_patterns(task, key, group, cuts)
        cost = sum((task.cost(diameter, mm) * bars for mm, bars in of_group.items()), Fraction(0))
        of_installed = sum(UNIT[diameter] * cut * r[2] / 1000 for cut, rows in cuts.items() for r in rows)
        near(group["cost"], cost, f"{key} cost")
        near(group["steelKg"], sums.steel, f"{key} steelKg")
        near(group["tableKg"], sums.table, f"{key} tableKg")
        near(group["installedKg"], of_installed, f"{key} installedKg")
        near(group["lossPercent"], percent(sums.steel, of_installed), f"{key} lossPercent")
        bound = judge_prices(task, key, group, cuts, cost)
        judge_promises(task, key, cuts, cost, sums)
        steel_aim = task.options["aim"] == "steel"
        bounds += bound * UNIT[diameter] / 1000 if steel_aim else bound
        plan_cost += sums.steel if steel_aim else cost
        installed += of_installed
        for mm, bars in of_group.items():
            bought[steel, mm] += bars
            plan.buy(diameter, mm, bars)
        plan.cuts += sums.cuts
        usable += of_usable
        patterns += len(group["patterns"])
        for mm, bars in rests.items():
            used_rests[steel[:2], mm] += bars
        for mm, bars in lefts.items():
            rest_lefts[steel, mm] += bars
    for (steel, mm), bars in used_rests.items():
        there = sum(n for d, k, of, n in task.rests if ((d, k), of) == (steel, mm))
        require(bars <= there, bars, "rest bars of", steel, mm, "there are", there)
    if task.options["maxLengths"]:
        for steel in {s for s, _ in bought}:
            lengths = [mm for s, mm in bought if s == steel]
            require(len(lengths) <= task.options["maxLengths"], steel, "buys", lengths)
    judge_purchase(task, doc, bought)
    expected = [[*steel, mm, n] for (steel, mm), n in sorted(rest_lefts.items())]
    require([list(r.values()) for r in doc["rests"]] == expected, "rests are", doc["rests"], "not", expected)
    judge_all_figures(task, doc, plan, installed, tally, schedule)
    of_plan = doc["figures"]["plan"]
    near(of_plan["patterns"], patterns, "patterns")
    near(of_plan["lengths"], len({mm for _, mm in bought}), "lengths")
    near(of_plan["usableKg"], usable, "usableKg")
    judge_bound(task, doc["bound"], bounds, plan_cost, installed)
    judge_advice(task, doc, advise)


def judge_all_figures(task, doc, plan, installed, tally, schedule):
    figures = doc["figures"]
    require(list(figures) == ["schedule", "perRow", "plan"], list(figures))
    per_row, own = Sums(), Sums()
    for key, cuts in task.groups.items():
        for cut, rows in cuts.items():
            pieces = sum(r[2] for r in rows)
            _, mm = per_row_choice(task, key[2], cut, pieces)
            per_row.buy(key[2], mm, bars_alone(task, mm, cut, pieces))
            per_row.cuts += cuts_alone(task, mm, cut, pieces)
            for r in rows if task.site else []:
                own.buy(key[2], r[3], max(r[4], bars_alone(task, r[3], cut, r[2])))
                own.cuts += cuts_alone(task, r[3], cut, r[2])
    if task.site:
        judge_figures("schedule", figures["schedule"], own, installed, lambda _: schedule)
    else:
        require(figures["schedule"] is None, "a schedule without a site")
    judge_figures("perRow", figures["perRow"], per_row, installed, tally)
    judge_figures("plan", figures["plan"], plan, installed, tally)


def judge_bound(task, bound, cost, plan_cost, installed):
    require(list(bound) == ["cost", "planCost", "gapPercent", "lossPercent"], list(bound))
    near(bound["cost"], cost, "bound cost")
    near(bound["planCost"], plan_cost, "planCost")
    if cost > 0 or plan_cost == 0:
        near(bound["gapPercent"], percent(plan_cost, cost), "gapPercent")
    if task.options["aim"] == "money":
        require(bound["lossPercent"] is None, "a loss in money")
    else:
        near(bound["lossPercent"], percent(cost, installed), "bound lossPercent")
