#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Random schedules, full of nulls and odd codes, tallied by the command line and recounted by a second road.

usage: recount_test.py RBTALLY [ROUNDS [SEED]]"""

import json
import os
import random
import shutil
import sqlite3
import subprocess
import sys
import tempfile
from decimal import Decimal
from pathlib import Path

import bulk_recount as bulk
import floor_recount as floors
import group_recount as group

SHAPES = [None, 0, 1, 1, 1, 2, 3, 11, 21, 87, 87, 138, 139, 140, 141, 142, 143, 144, 145, 146, 147, 161, 162, 163,
          164, 166, 169, 170, 175, 176, 177, 178, 201, 250]


# Floors of sites with and without basements, foundation and special floors; codes that are no floor.
SITES = [[None, -1, 0, 1, 2, 76, 78], [1, 2, 5], [-5, -2, -1, 1, 3], [-3, -2, -1], [-2, 0], [0], [0, 1, 75], [76, 77, 78], [78], [3, 4, 77],
         [-6, 79, 90], [None, -6, 1, 79]]


def pick(rng, *weighted):
    return rng.choices([v for v, _ in weighted], [w for _, w in weighted])[0]


def random_row(rng, number, tame, site_floors):
    diameter = pick(rng, (rng.choice(bulk.DEFORMED), 70), (rng.choice(bulk.ULBON), 25), (None, 2),
                    (0 if not tame else 13, 1), (14 if not tame else 16, 1))
    deformed = diameter in bulk.DEFORMED
    stock = pick(rng, (rng.choice(bulk.STOCK_METRES), 85), (None, 3), (12.5, 3 if deformed or not tame else 0),
                 (0.0, 5 if deformed or not tame else 0), (3.6, 2 if deformed or not tame else 0))
    row = {
        "行No": pick(rng, (number, 90), (max(number - 1, 0), 8), (None, 2)),
        "頁": pick(rng, (number // 20 + 1, 98), (None, 2)), "行": pick(rng, (number % 20 + 1, 98), (None, 2)),
        "階": rng.choice(site_floors), "部位": pick(rng, (rng.choice([None, 0, 1, 2, 2, 3, 3, 5, 10, 11, 12]), 99),
                                               (5 if tame else -1, 1)),
        "名称": rng.choice([None, "柱主筋", "縦ｽﾘｯﾄ筋　", "横ｽﾘｯﾄ筋　", "縦ｽﾘｯﾄ筋"]),
        "太さ": diameter, "形状No": rng.choice(SHAPES),
        "本数": pick(rng, (rng.randint(1, 40), 95), (None, 5)),
        "ヶ所": pick(rng, (rng.randint(1, 30), 95), (None, 5)),
        "合計": pick(rng, (rng.randint(1, 900), 95), (None, 5)),
        "伸切寸": pick(rng, (rng.randint(200, 12999), 60), (rng.choice(bulk.STOCK_MM), 35), (None, 5)),
        "伸定尺": stock, "伸本定": pick(rng, (1, 50), (rng.randint(2, 9), 45), (None, 5)),
        "伸総計": pick(rng, (rng.randint(1, 400), 95), (None, 5)),
        "圧接": pick(rng, (None, 20), (0, 30), (rng.randint(1, 50), 50)),
        "圧接太さ": pick(rng, (None, 20), (0, 50), (rng.choice(bulk.DEFORMED), 30), (14 if not tame else 0, 1)),
        "ネジ数": rng.choice([None, 0, 3, 8]), "定着板数": rng.choice([None, 7]),
        "切断": rng.choice([None, 0, 5, 12]), "予備2": rng.choice([None, 0, 1, 2, 3, 3, 4, 5]),
        "予備3": None, "予備5": None, "登録名": None,
    }
    if tame and diameter in bulk.ULBON and diameter != 16 and row["部位"] == 3:
        row["部位"] = 5  # a slit bar of a thin diameter without stock length would end the tally
    if tame and diameter == 16 and stock not in bulk.STOCK_METRES:
        row["予備2"] = None
    for i in range(1, 11):
        row[f"寸法{i}"] = rng.choice([None, "", "150", "1200", "R40"])
    return row


def random_range(rng, site_floors):
    """All floors, two of the site, or any two."""
    codes = [f for f in site_floors if f is not None and -5 <= f <= 78] or [1]
    return pick(rng, (None, 40), (tuple(sorted(rng.choices(codes, k=2))), 40),
                (tuple(sorted(rng.choices(range(-5, 79), k=2))), 10), (tuple(rng.choices(codes + [0], k=2)), 10))


def bound_at(rng, row):
    """A bound to ask for; none leaves it to the schedule."""
    known = row["頁"] is not None and row["行"] is not None
    return (row["頁"], row["行"]) if known and rng.random() < 0.7 else None


def write_rows(path, rows):
    with sqlite3.connect(path) as db:
        db.execute('DELETE FROM "加工テーブル"')
        names = list(rows[0])
        marks = ",".join("?" * len(names))
        columns = ",".join(f'"{n}"' for n in names)
        db.executemany(f'INSERT INTO "加工テーブル" ({columns}) VALUES ({marks})', [list(r.values()) for r in rows])
    db.close()


def drop_columns(path, names):
    with sqlite3.connect(path) as db:
        for name in names:
            db.execute(f'ALTER TABLE "加工テーブル" DROP COLUMN "{name}"')
    db.close()


def write_spirals(path, rng):
    spirals = []
    if rng.random() < 0.7:
        for _ in range(rng.randint(0, 6)):
            material = rng.choice([1, 2, 3])
            dia = rng.choice(bulk.ULBON if material == 2 else bulk.DEFORMED)
            spirals.append((material, dia, rng.choice([None, rng.randint(0, 90_000_000)])))
    with sqlite3.connect(path) as db:
        db.execute('DELETE FROM "スパイラル"')
        db.executemany('INSERT INTO "スパイラル" VALUES (?,?,?)',
                       [(m, d, None if u is None else u / 10000) for m, d, u in spirals])
    db.close()
    return spirals


def write_settings(path, settings):
    lines = ["[kakou\\定尺チェック]", f"定尺={settings['stock_check']}", "[Kakou\\プラス]", f"長さ={settings['plus']}",
             "[Kakou\\定尺計算]", f"ロス優先={settings['loss_priority']}", "[Kakou\\重量集計]", f"溶接フープの圧接数={settings['hoop_welds']}", f"定尺取付書換={settings['cap']}",
             f"階別集計定取={settings['installed']}",
             "[Jyuryo\\定尺]", f"定尺13有無={settings['use_13m']}"]
    Path(path).write_text("\n".join(lines) + "\n", encoding="utf-8")


def write_limits(path, text, limits):
    """Stock limits before all other keys of their section: of equal keys the first counts."""
    lines = "".join(f"D{d}最小値={low}\r\nD{d}最大値={high}\r\n" for d, (low, high) in limits.items())
    text = text.replace("\r\n", "\n").replace("\n", "\r\n").replace("[加工帳]\r\n", "[加工帳]\r\n" + lines)
    Path(path).write_bytes(text.encode("cp932"))


def differences(expected, document):
    found = []
    for name, value in expected.items():
        actual = document.get(name)
        if name in bulk.CURRENCY_FIELDS:
            value, actual = in_units(value, False), in_units(actual, True)
        elif name not in ("kind", "StockWarningText", "HasHoopRows", "HasAnchorPlateRows"):
            value, actual = as_floats(value), as_floats(actual)
        if value != actual:
            found.append(f"{name}: recounted {value}, tallied {actual}")
    return found


def in_units(value, decimal):
    """Currency fields as ten-thousandths; of [d, l, w] only w is one."""
    if isinstance(value, list):
        if value and isinstance(value[0], list):
            return [[int(v[0]), int(v[1]), in_units(v[2], decimal)] for v in value]
        return [in_units(v, decimal) for v in value]
    return int(Decimal(value) * 10000) if decimal else value


def as_floats(value):
    return [as_floats(v) for v in value] if isinstance(value, list) else float(value)


class Round:
    def __init__(self, rbtally, root, rng):
        self.rbtally, self.root, self.rng = rbtally, Path(root), rng
        self.steel = (self.root / "pristine.INI").read_text("cp932")

    def run(self):
        rng = self.rng
        tame = rng.random() < 0.9
        site_floors = rng.choice(SITES)
        rows = [random_row(rng, n, tame, site_floors) for n in range(rng.choice([1, 5, 40, 400]))]
        shutil.copy(self.root / "pristine.MDB", self.root / "DATA/GENBA001.MDB")
        write_rows(self.root / "DATA/GENBA001.MDB", rows)
        old_layout = rng.random() < 0.1
        if old_layout:
            absent = ["ネジ数", "定着板数", "切断"]
            drop_columns(self.root / "DATA/GENBA001.MDB", absent)
            for row in rows:
                for name in absent:
                    del row[name]
        spirals = write_spirals(self.root / "DATA/HIROI001.mdb", rng)
        settings = {"hoop_welds": rng.choice([0, 1]), "cap": rng.choice([0, 0, 1]), "use_13m": rng.choice([0, 1]),
                    "stock_check": rng.choice([0, 1]), "plus": rng.choice([0, 0, 10, 250]),
                    "loss_priority": rng.choice([0, 1]), "installed": rng.choice([0, 1, 2])}
        write_settings(self.root / "settings.ini", settings)
        limits = {d: (rng.choice([3500, 3500, 4000, 4500]), rng.choice([12000, 12000, 9000, 11250]))
                  for d in bulk.DEFORMED}
        write_limits(self.root / "DATA/STEEL.INI", self.steel, limits)
        sel = {"kinds": rng.choice([15, 15, 8] + list(range(1, 16))), "forms": rng.choice([15, 15, 0] + list(range(1, 15))),
               "ulbon": rng.choice([0, 1, 1]), "calc": rng.choice([0, 1, 2, 2]), "hoops": rng.choice([0, 0, 1, 2]),
               "plates": rng.choice([0, 0, 1, 2]), "start_mode": rng.choice([-1, -1, 0, 1, 2, 3, 4])}
        sel["shapes"] = tuple(sorted(rng.choice([(0, 250), (1, 200), (rng.randint(0, 200), rng.randint(0, 200))])))
        ends = sorted(rng.choices(range(len(rows)), k=2))
        sel["from"], sel["to"] = (bound_at(rng, rows[n]) for n in ends)
        sel["floors"] = random_range(rng, site_floors)
        sel["special"], sel["uplift"] = rng.choice([0, 7, rng.randint(0, 7)]), rng.choice([0, 0, 10, 7.5, -3])
        bulk.prepare(rows, sel["start_mode"])
        return (self.compare_kinds(rows, spirals, sel, settings, limits, old_layout)
                or self.compare_floors(rows, sel, settings))

    def compare_kinds(self, rows, spirals, sel, settings, limits, old_layout):
        def engine(plus):
            return group.Engine(limits, plus, settings["loss_priority"])

        positions = [word for name in ("from", "to") if sel[name]
                     for word in (f"--{name}", "{}/{}".format(*sel[name]))]

        plus = settings["plus"]
        # In a run that asks the engine nothing, the shape tally knows no allowance.
        shape_plus = 0 if settings["stock_check"] else plus
        found = self.compare("bulk", sel, [], lambda: bulk.recount(rows, spirals, sel, settings))
        found = found or self.compare("page", sel, positions,
                                      lambda: group.recount_page(rows, sel, settings))
        if old_layout:
            return found  # the group statements name the columns that old files lack
        found = found or self.compare("shape", sel, ["--shapes", "{}-{}".format(*sel["shapes"])],
                                      lambda: group.recount_shape(rows, sel, settings, engine(shape_plus)))
        return found or self.compare("page-shape", sel, positions,
                                     lambda: group.recount_page_shape(rows, sel, settings, engine(plus)))

    def compare_floors(self, rows, sel, settings):
        floors.fill(rows)
        extent = floors.Extent(rows)
        # Narrow masks leave too little to count: most rounds take all.
        sel = {**sel, "kinds": self.rng.choice([sel["kinds"], 15, 15, 0]),
               "forms": self.rng.choice([sel["forms"], 15, 15])}
        more = ["--special", str(sel["special"]), "--uplift", str(sel["uplift"])]
        if sel["floors"] is not None:
            more += ["--floors={}..{}".format(*sel["floors"])]
        return (self.compare("floor", sel, more, lambda: floors.recount_floor(rows, sel, settings, extent),
                             floors.differences)
                or self.compare("part", sel, more, lambda: floors.recount_part(rows, sel, settings, extent),
                                floors.differences))

    def compare(self, kind, sel, more, recount, compare=differences):
        command = [self.rbtally, "tally", kind, *more, "--root", str(self.root), "--format", "json",
                   "--start-mode", str(sel["start_mode"]), "--kinds", str(sel["kinds"]), "--forms", str(sel["forms"]),
                   "--ulbon", str(sel["ulbon"]), "--calc", str(sel["calc"]), "--hoops", str(sel["hoops"]),
                   "--plates", str(sel["plates"])]
        done = subprocess.run(command, capture_output=True, text=True, check=False,
                              env=environment(self.root))
        try:
            expected = recount()
        except floors.Refused:
            if done.returncode == 2 and not done.stdout:
                return []
            return [f"the floors are to be refused, tally exits {done.returncode}", " ".join(command)]
        except bulk.RunTimeFault as fault:
            if done.returncode == 1 and str(fault) in done.stderr and not done.stdout:
                return []
            return [f"recount faults with '{fault}', tally exits {done.returncode}: {done.stderr}", " ".join(command)]
        if done.returncode != 0:
            return [f"tally exits {done.returncode}: {done.stderr}", " ".join(command)]
        found = compare(expected, json.loads(done.stdout, parse_float=Decimal))
        return found + [" ".join(command)] if found else []


def environment(folder):
    return {**os.environ, "RBK_SETTINGS": str(folder / "settings.ini"), "XDG_CACHE_HOME": str(folder / "cache")}


def main():
    rbtally = os.path.abspath(sys.argv[1])
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 100
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else 20261121
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder) / "rbk"
        subprocess.run([rbtally, "demo", str(root), "--rows", "50"], check=True, stdout=subprocess.DEVNULL,
                       env=environment(Path(folder)))
        shutil.copy(root / "DATA/GENBA001.MDB", root / "pristine.MDB")
        shutil.copy(root / "DATA/STEEL.INI", root / "pristine.INI")
        for number in range(rounds):
            found = Round(rbtally, root, random.Random(seed + number)).run()
            if found:
                print(f"schedule {seed + number} differs:", *found, sep="\n  ")
                sys.exit(1)
    print(f"{rounds} schedules agree")


if __name__ == "__main__":
    main()
