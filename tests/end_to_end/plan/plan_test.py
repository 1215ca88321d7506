#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Random pieces, sites and options, planned by the command line and judged by a second road.

usage: plan_test.py RBTALLY [ROUNDS [SEED]]"""

import copy
import csv
import io
import json
import os
import random
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "recount"))
import bulk_recount as bulk
import plan_judge
import recount_test as recount

COLUMNS = [3500 + 500 * i for i in range(18)]


def random_options(rng, of_site):
    options = {"kerf": rng.choice([0, 0, 3, 7]), "trim": rng.choice([0, 0, 20]), "plus": rng.choice([0, 0, 10, 50]),
               "mix": rng.choice([0, 0, 0, 1, 2, 3]), "maxLengths": rng.choice([0, 0, 0, 1, 2, 4]),
               "usable": rng.choice([1000, 300, 0]), "scope": "site", "welded": "plan", "aim": "steel"}
    if of_site:
        options["scope"] = rng.choice(["site", "site", "floor", "3..5/-2..2", "0/1..2/78", "-5..78"])
        options["welded"] = rng.choice(["plan", "keep"])
        if rng.random() < 0.5:
            options["trim"] = options["kerf"] = 0
    return options


def words_of(options):
    names = {"maxLengths": "--max-lengths"}
    return [f"{names.get(name, '--' + name)}={value}" for name, value in options.items()]


def scope_of(options, floor):
    """(place, name) of the group's scope; nothing where the floor is in none."""
    text, floor = options["scope"], 78 if floor is None else floor
    if text == "site":
        return 0, "site"
    if text == "floor":
        return floor, str(floor)
    for place, name in enumerate(text.split("/")):
        low, high = name.split("..") if ".." in name else (name, name)
        if int(low) <= floor <= int(high):
            return place, name
    return None


class Round:
    def __init__(self, rbtally, root, seed):
        self.rbtally, self.root, self.rng = rbtally, Path(root), random.Random(seed)
        self.steel = (self.root / "pristine.INI").read_text("cp932")
        self.settings = {"hoop_welds": 1, "cap": 0, "use_13m": 0, "stock_check": 0, "plus": 0, "loss_priority": 0,
                         "installed": 0}

    def plan(self, words):
        """The result, and the one line of a refusal."""
        recount.write_settings(self.root / "settings.ini", self.settings)
        self.command = [self.rbtally, "plan", *words]
        done = subprocess.run(self.command, capture_output=True, text=True, check=False, timeout=300,
                              env={**os.environ, "RBK_ROOT": str(self.root), "RBK_SETTINGS": str(self.root / "settings.ini")})
        return done.returncode, done.stdout, done.stderr

    def write(self, name, rows):
        path = self.root / name
        path.write_text("".join(",".join("" if v is None else str(v) for v in row) + "\n" for row in rows), encoding="utf-8")
        return str(path)

    def offer(self, options, diameters, lengths, kinds):
        """Words for lengths, prices, lots and rest bars, and what they come to: allowed lengths or nothing, rests."""
        rng, words, allowed = self.rng, [], None
        money = rng.random() < 0.3
        chosen = lengths if lengths and rng.random() < 0.8 else None
        if money or (chosen and rng.random() < 0.5):
            chosen = chosen or COLUMNS
            lot = rng.random() < 0.2
            lines = [(d, mm, rng.choice([80000, 91500, 120300]) if money or rng.random() < 0.5 else None,
                      rng.choice([None, 100, 500]) if lot else None) for d in diameters for mm in chosen]
            words.append("--lengths-file=" + self.write("lengths.csv", [("diameter", "length", "price", "min_kg"), *lines]))
            allowed = {d: {} for d in diameters}
            for d, mm, price, least in lines:
                allowed[d][mm] = price, least or 0
            options["aim"] = "money" if money else "steel"
        elif chosen:
            words.append("--lengths=" + ",".join(map(str, chosen)))
            allowed = {d: {mm: (None, 0) for mm in chosen} for d in diameters}
        rests = []
        if rng.random() < 0.4:
            rests = [(rng.choice(diameters), rng.choice(kinds), rng.randint(600, 9000), rng.randint(0, 4)) for _ in range(5)]
            words.append("--rests=" + self.write("rests.csv", [("diameter", "kind", "length", "count"), *rests]))
        return words, allowed, rests

    # -- pieces of a file ----------------------------------------------------------------------------------

    def pieces(self):
        rng = self.rng
        options = random_options(rng, False)
        step = rng.choice([1, 10, 50])
        diameters = rng.sample([0, 10, 16, 25, 51], rng.choice([1, 2]))
        lengths = sorted(rng.sample(COLUMNS, rng.randint(0, 6)) + [12000])
        words, allowed, rests = self.offer(options, diameters, sorted(set(lengths)), [1, 2])
        if allowed is None:
            words.append("--lengths=12000,9000")
            allowed = {d: {9000: (None, 0), 12000: (None, 0)} for d in diameters}
        task = plan_judge.Task(options, allowed, rests, False)
        lines = [("length", "count", "diameter", "kind")]
        for _ in range(rng.choice([0, 1, 3, 12, 40])):
            d, kind = rng.choice(diameters), rng.choice([0, 1, 2])
            cut = rng.choice([rng.randint(300 // step, 11900 // step) * step, rng.choice(sorted(allowed[d]))])
            if not any(task.per_bar(mm, cut) for mm in allowed[d]):
                continue
            n = rng.choice([0, 1, 2, 7, 40, 900])
            lines.append((cut, n, d, kind))
            if n:
                task.add((0, "site", d, max(1, kind), False), cut, (0, len(lines), n, 0, 0))
        self.settings["plus"] = rng.choice([0, 10, -5])
        if rng.random() < 0.3:
            options["plus"] = max(0, self.settings["plus"])
        given = words_of(options)
        if options["plus"] == max(0, self.settings["plus"]) and rng.random() < 0.5:
            given = [w for w in given if not w.startswith("--plus")]
        return self.judge(task, ["--pieces=" + self.write("pieces.csv", lines), *words, *given])

    # -- a site --------------------------------------------------------------------------------------------

    def site_rows(self):
        rng = self.rng
        rows = [recount.random_row(rng, n, True, [None, -2, 0, 1, 2, 3, 5, 77, 78]) for n in range(rng.choice([5, 40, 150]))]
        for row in rows:
            if rng.random() < 0.7 and row["伸定尺"] and row["伸切寸"] and row["伸切寸"] > row["伸定尺"] * 1000:
                row["伸切寸"] = rng.randint(300, int(row["伸定尺"] * 1000) or 300)
            if rng.random() < 0.7 and row["伸定尺"] and row["伸切寸"] and row["合計"]:
                per_bar = max(1, int(row["伸定尺"] * 1000 // row["伸切寸"]))
                row["伸総計"] = -(-row["合計"] // per_bar) + rng.choice([0, 0, 0, 1, -1])
        shutil.copy(self.root / "pristine.MDB", self.root / "DATA/GENBA001.MDB")
        recount.write_rows(self.root / "DATA/GENBA001.MDB", rows)
        recount.write_spirals(self.root / "DATA/HIROI001.mdb", rng)
        return rows

    def site(self):
        rng = self.rng
        rows = self.site_rows()
        self.settings |= {"cap": rng.choice([0, 0, 1]), "use_13m": rng.choice([0, 1]), "plus": rng.choice([0, 10, 250])}
        limits = {d: (rng.choice([3500, 4000, 4500]), rng.choice([12000, 9000, 11250])) for d in bulk.DEFORMED}
        recount.write_limits(self.root / "DATA/STEEL.INI", self.steel, limits)
        sel = {"kinds": rng.choice([15, 15, 15, 7, 8]), "forms": rng.choice([15, 15, 3]), "ulbon": rng.choice([0, 1]),
               "calc": 2, "hoops": rng.choice([0, 0, 1, 2]), "plates": rng.choice([0, 0, 1]), "start_mode": -1}
        bulk.prepare(rows, -1)
        taken = bulk.select(rows, sel, {})
        steel = [r for r in taken if r["予備2"] != 2 and bulk.diameter_index(r["太さ"]) >= 0
                 and not (sel["hoops"] == 1 and r["形状No"] == 87)]
        options = random_options(rng, True)
        lengths = sorted(set(rng.sample(COLUMNS, rng.randint(2, 8)) + [12000] + ([13000] if self.settings["use_13m"] else [])))
        words, allowed, rests = self.offer(options, bulk.DEFORMED, lengths, [1, 2, 3, 4, 5])
        if allowed is None:
            allowed = self.default_lengths(limits, steel)
        task = plan_judge.Task(options, allowed, rests, True)
        for r in steel:
            self.sort_row(task, r)
        selection = [f"--{name}={sel[name]}" for name in ("kinds", "forms", "ulbon", "hoops", "plates")]
        try:
            whole = bulk.recount(rows, [], sel, self.settings)
        except bulk.RunTimeFault as fault:
            status, out, err = self.plan([*selection, *words, *words_of(options), "--format=json"])
            return [] if status == 1 and str(fault) in err and not out else [f"no fault '{fault}': {status} {err}"]
        schedule = [whole["TotalStockWeight"] / 10000, whole["TotalInstalledWeight"] / 10000, whole["LossRatePercent"]]
        return self.judge(task, [*selection, *words, *words_of(options)], self.tally_of(taken, sel, task), schedule)

    def default_lengths(self, limits, steel):
        allowed = {}
        for d in bulk.DEFORMED:
            mm = {m for m in COLUMNS if limits[d][0] <= m <= limits[d][1]} | ({13000} if self.settings["use_13m"] else set())
            mm |= {round(r["伸定尺"] * 1000) for r in steel if r["太さ"] == d and self.in_sums(r)}
            allowed[d] = {m: (None, 0) for m in sorted(mm)}
        return allowed

    def in_sums(self, r):
        column = bulk.stock_index(r["伸定尺"]) if r["伸定尺"] is not None else -1
        return 0 <= column < (19 if self.settings["use_13m"] else 18)

    def sort_row(self, task, r):
        o = task.options
        steel = (r["太さ"], max(1, r["予備2"] or 0), r["形状No"] == 87)
        scope = scope_of(o, r["階"])
        own = round((r["伸定尺"] or 0) * 1000)
        bars = max(0, r["伸総計"] or 0)
        reason = None
        if not self.in_sums(r):
            reason = "column"
        elif (r["合計"] or 0) < 1 or (r["伸切寸"] or 0) < 1:
            reason = "empty"
        elif r["伸切寸"] > own + o["plus"]:
            reason = "joined"
        elif o["welded"] == "keep" and (r["圧接"] or 0) > 0:
            reason = "welded"
        elif scope is None:
            reason = "scope"
        elif not any(task.per_bar(mm, r["伸切寸"]) for mm in task.allowed[steel[0]]):
            reason = "long"
        if reason:
            task.kept.append((r["頁"], r["行"], reason, steel, own, bars))
        else:
            task.add((*scope, *steel), r["伸切寸"], (r["頁"], r["行"], r["合計"], own, bars))

    def tally_of(self, taken, sel, task):
        """The three figures of the tally when the planned rows buy these bars instead of their own."""
        def figures(bought):
            tally = bulk.Tally(sel, self.settings)
            for r in taken:
                tally.row(r)
            for key, cut, row in task.planned:
                d, l = bulk.diameter_index(key[2]), bulk.stock_index(row[3] / 1000)
                tally.stock[d][l] -= bulk.currency(bulk.bar_weight(d, l) * row[4])
            for (diameter, mm), bars in bought.items():
                d, l = bulk.diameter_index(diameter), bulk.stock_index(mm / 1000)
                tally.stock[d][l] += bulk.currency(bulk.bar_weight(d, l) * bars)
            tally.close()
            return [tally.grid["TotalStockWeight"] / 10000, tally.grid["TotalInstalledWeight"] / 10000,
                    tally.grid["LossRatePercent"]]

        return figures

    def judge(self, task, words, tally=None, schedule=None):
        rng = self.rng
        advise = rng.choice([0, 0, 0, 2, 3])
        words = [*words, "--format=json", "--effort=" + rng.choice(["full", "full", "greedy"])]
        words += [f"--advise={advise}"] if advise else []
        if rng.random() < 0.1:
            words.append("--time-limit=" + rng.choice(["0", "0.01"]))
        status, out, err = self.plan(words)
        if status == 1:
            return self.judge_refusal(task, err)
        if status != 0:
            return [f"exit status {status}: {err}"]
        doc = json.loads(out)
        if doc["stopped"]:
            advise = -1 if advise else 0
        try:
            if advise == -1:
                doc.pop("advice", None)
                advise = 0
            plan_judge.judge(task, doc, tally, schedule, advise)
        except plan_judge.Fault as fault:
            return [str(fault)]
        if not doc["stopped"] and rng.random() < 0.3 and self.plan(words)[1] != out:
            return ["the same again gives other bytes"]
        return self.judge_csv(words, doc) if rng.random() < 0.2 else []

    def judge_csv(self, words, doc):
        if doc["stopped"]:
            return []
        _, out, _ = self.plan([w.replace("--format=json", "--format=csv") for w in words])
        expected = [[g["scope"], str(g["diameter"]), str(g["kind"]), str(int(g["hoop"])), str(p["stock"]), str(int(p["rest"])),
                     str(p["bars"]), "+".join(f"{c}x{n}" for c, n in p["pieces"]), str(p["used"]), str(p["left"]), str(p["cuts"])]
                    for g in doc["groups"] for p in g["patterns"]]
        return [] if list(csv.reader(io.StringIO(out)))[1:] == expected else ["the CSV is not the patterns"]

    @staticmethod
    def judge_refusal(task, err):
        lots = any(least for lengths in task.allowed.values() for _, least in lengths.values())
        if lots and "no length can fill its least lot" in err:
            return []
        if task.options["maxLengths"] and task.options["trim"] and "lengths do not hold every piece" in err:
            return []
        return [f"refused: {err}"]


def spoil_each(doc, spoil=()):
    """The document again and again, one number, text or flag of it changed: (where, spoilt)."""
    def places(value, path):
        if isinstance(value, dict):
            for name, item in value.items():
                yield from places(item, (*path, name))
        elif isinstance(value, list):
            for index, item in enumerate(value):
                yield from places(item, (*path, index))
        elif value is not None:
            yield path

    for path in places(doc, spoil):
        spoilt = copy.deepcopy(doc)
        holder = spoilt
        for step in path[:-1]:
            holder = holder[step]
        old = holder[path[-1]]
        holder[path[-1]] = (not old) if isinstance(old, bool) else old + 1 if isinstance(old, (int, float)) else old + "x"
        yield path, spoilt


def judge_the_judge(rbtally, root):
    """A sound plan spoilt in one place at a time: the judge must see each, but for what may differ."""
    one = Round(rbtally, root, 1)
    options = {"kerf": 3, "trim": 20, "plus": 10, "mix": 2, "maxLengths": 0, "usable": 300, "scope": "site", "welded": "plan",
               "aim": "steel"}
    task = plan_judge.Task(options, {16: {6000: (90000, 0), 9000: (None, 0), 12000: (None, 0)}}, [(16, 1, 3000, 2)], False)
    rows = [("length", "count", "diameter"), (2340, 17, 16), (1210, 9, 16), (4100, 6, 16)]
    for line, (cut, n, d) in enumerate(rows[1:], 2):
        task.add((0, "site", d, 1, False), cut, (0, line, n, 0, 0))
    lengths = one.write("lengths.csv", [("diameter", "length", "price", "min_kg"), (16, 6000, 90000, None), (16, 9000, None, None),
                                        (16, 12000, None, None)])
    rests = one.write("rests.csv", [("diameter", "kind", "length", "count"), (16, 1, 3000, 2)])
    words = ["--pieces=" + one.write("pieces.csv", rows), f"--lengths-file={lengths}", f"--rests={rests}", *words_of(options)]
    doc = json.loads(one.plan([*words, "--format=json", "--advise=2"])[1])
    plan_judge.judge(task, doc, advise=2)
    for path, spoilt in spoil_each(doc):
        if path[-1] == "method" or "advice" in path:
            continue
        if "prices" in path or path[-2:] == ("bound", "cost"):
            continue  # a price may be higher where nothing is worth too much by it
        try:
            plan_judge.judge(task, spoilt, advise=2)
        except plan_judge.Fault:
            continue
        sys.exit(f"the judge lets {path} pass")


def main():
    rbtally = os.path.abspath(sys.argv[1])
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 100
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else 20261122
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder) / "rbk"
        subprocess.run([rbtally, "demo", str(root), "--sites", "1", "--rows", "50"], check=True, stdout=subprocess.DEVNULL,
                       env={**os.environ, "RBK_SETTINGS": str(Path(folder) / "settings.ini")})
        shutil.copy(root / "DATA/GENBA001.MDB", root / "pristine.MDB")
        shutil.copy(root / "DATA/STEEL.INI", root / "pristine.INI")
        judge_the_judge(rbtally, root)
        for number in range(rounds):
            one = Round(rbtally, root, seed + number)
            found = one.site() if number % 2 else one.pieces()
            if found:
                print(f"plan {seed + number} breaks its contract:", *found, " ".join(one.command), sep="\n  ")
                sys.exit(1)
    print(f"{rounds} plans keep their contract")


if __name__ == "__main__":
    main()
