#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Random sites, companies, names and dates, their report forms drawn by the command line and by a second road.

usage: redraw_test.py RBTALLY [ROUNDS [SEED]]
"""
import difflib
import json
import random
import shlex
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))
import scenario  # noqa: E402
from detail_redraw import FORMS as LISTS, List, Wanted  # noqa: E402
from floorpart_redraw import FLOOR_FORMS, PART_FORMS, FloorSheet  # noqa: E402
from report_redraw import Sheet, redraw  # noqa: E402

COMPARISONS = [f"taihi-{kind}-{paper}" for kind in "abc" for paper in ("a4t", "a4y", "b5y")]
GRADES = ["", "SD295A", "SD295B", "SD345", "SD390", "SD490", "SD590", "SD685", "SR235", "SR295", "SD785", ""]
DIAMETERS = ["SD10", "SD13", "SD16", "SD19", "SD22", "SD25", "SD29", "SD32", "SD35", "SD38", "SD41", "SD51"]
COMPANY = ["会社名", "名称1", "名称2", "住所1", "住所2", "住所3", "TEL1", "TEL2", "TEL3", "FAX1", "FAX2", "郵便番号1",
           "郵便番号2", "MAIL1", "MAIL2"]
MESSAGE = "全角で２文字以上"


def words(rng, length):
    wide, narrow = "見本町再開発業務棟及び駐車場新築工事（仮称）第一工区みほん鉄筋ＡＢ１２", "ABCabc0123-.ｶﾅ"
    return "".join(rng.choice(wide if rng.random() < 0.8 else narrow) for _ in range(length))


def random_company(rng):
    texts = {}
    for key in COMPANY:
        kind = rng.random()
        if kind < 0.3:
            continue
        length = 1 if kind < 0.36 else rng.randint(2, 24)
        if key.startswith(("会社名", "名称", "住所")):
            texts[key] = words(rng, length if key[0] != "名" else rng.randint(1, 12))
        else:
            texts[key] = "".join(rng.choice("0123456789-") for _ in range(length))
    return texts


class Round:
    def __init__(self, program, folder, rng, number):
        self.rng, self.world = rng, scenario.World(program, folder)
        self.forms = ["ulbon", *(COMPARISONS[(number * 3 + i) % len(COMPARISONS)] for i in range(3))]

    def schedule(self):
        rng = self.rng
        for _ in range(rng.choice([0, 1, 3, 8, 8])):
            ulbon = rng.random() < 0.3
            diameter = rng.choice([6, 7, 9, 11, 12, 16] if ulbon else [10, 13, 16, 19, 22, 25, 29, 32, 35, 38, 41, 51])
            bars = rng.choice([1, 7, 120, 3456, 23456])
            self.world.row([f"太さ={diameter}", f"予備2={2 if ulbon else 1}", f"本数={bars}", f"合計={bars}",
                            f"伸総計={bars}", f"伸切寸={rng.randint(300, 8100)}", f"圧接={rng.choice([0, 3, 1234567])}",
                            f"伸定尺={0 if ulbon else rng.choice([3.5, 4.0, 6.0, 8.0, 12.0, 13.0])}",
                            f"切断={rng.randint(0, 99)}"])
        for material, diameter in ((1, 10), (2, 9), (3, 13)):
            if rng.random() < 0.4:
                self.world.spiral([f"材質={material}", f"径={diameter}", f"全重量={rng.uniform(0.1, 900):.4f}"])

    def head(self):
        """What the heads of all forms tell, and the codes of the grades."""
        rng = self.rng
        codes = [rng.randint(0, 11) for _ in DIAMETERS]
        texts = {
            "client": rng.choice(["", words(rng, rng.randint(1, 16))]), "short_name": words(rng, rng.randint(1, 24)),
            "long_name": rng.choice(["", words(rng, rng.randint(1, 60)), words(rng, rng.randint(18, 40))]),
            "name_break": rng.choice([50, rng.randint(0, 40), rng.randint(10, 20)]),
            "grades": [GRADES[code] for code in codes], "company": random_company(rng),
            "name_whole": rng.random() < 0.4, "address2_whole": rng.random() < 0.4, "western": rng.random() < 0.5}
        return texts, codes

    def site(self):
        rng = self.rng
        texts, codes = self.head()
        sheet = Sheet(**texts, tally={})
        sheet.sub_project = rng.choice(["", words(rng, rng.randint(1, 45)), words(rng, 22), words(rng, 23)])
        sheet.body, sheet.percent = rng.choice([0, 1, 1]), rng.choice([0, 0, 5, 250])
        sheet.date = self.date(sheet.western)
        self.take(sheet, codes)
        return sheet

    def date(self, western):
        rng = self.rng
        return (rng.choice(["2026", "26"] if western else ["8", "08", "30", "31"]), str(rng.randint(1, 12)),
                rng.choice(["1", "01", "30"]))

    def take(self, sheet, codes):
        """Writes the head into the files of the site."""
        rng, world = self.rng, self.world
        world.execute("SORANO.MDB", "UPDATE T_取引先 SET 会社名=? WHERE 会社コード=1", (sheet.client,))
        columns = ["取引先コード", "工事名", "長い工事名", "工事名区切り文字数", *DIAMETERS]
        world.execute("SORANO.MDB", "UPDATE 工事テーブル SET " + ", ".join(f"{name}=?" for name in columns),
                      (1 if sheet.client else 0, sheet.short_name, sheet.long_name or rng.choice(["", None]),
                       None if sheet.name_break == 50 and rng.random() < 0.5 else sheet.name_break, *codes))
        for section, setting in (("重量集計", f"日付表記={1 if sheet.western else rng.choice([0, 2])}"),
                                 ("自社名登録", f"自社名印刷={int(sheet.name_whole)}"),
                                 ("自社名登録", f"住所２印刷={int(sheet.address2_whole)}")):
            world.setting(["Kakou", section, setting])

    def wanted(self):
        """What is asked of the purchase lists, by settings and by options, and the options."""
        rng, world = self.rng, self.world
        wanted = Wanted(title=rng.choice([1, 2, 3, 3]), own_title=words(rng, rng.choice([1, rng.randint(2, 14)])),
                        with_13m=rng.random() < 0.5, keeps_empty=rng.random() < 0.4, installed=rng.random() < 0.5,
                        date_right=rng.random() < 0.5, memos_above=rng.random() < 0.5,
                        memos=[rng.choice(["", words(rng, rng.randint(1, 60))]) for _ in range(3)])
        options = [word for number, memo in enumerate(wanted.memos, 1) for word in (f"--memo{number}", memo)]
        for told, section, key, option, names in (
                (wanted.installed, "加工帳", "重量集計明細", "--installed", "01"),
                (wanted.memos_above, "加工帳", "明細書メモ印刷位置", "--memo-position", "01"),
                (wanted.date_right, "重量集計", "日付印字位置", "--date-position", ("centre", "right"))):
            by_option = rng.random() < 0.5
            world.setting(["Kakou", section, f"{key}={int(told != by_option)}"])
            options += [option, names[told]] if by_option else []
        for application, section, setting in (
                ("Jyuryo", "定尺", f"定尺13有無={int(wanted.with_13m)}"),
                ("Kakou", "重量集計", f"重量の無い太さの印字={int(wanted.keeps_empty)}"),
                ("Kakou", "重量集計", f"数量表タイトル={wanted.title}")):
            world.setting([application, section, setting])
        return wanted, options

    def steel_ini(self, company, own_title):
        sections = {"データ": {"選択ＤＢ名": "GENBA001.MDB"}, "加工帳": {"数量表印字タイトル": own_title}, "自社名": company}
        lines = [line for section, texts in sections.items()
                 for line in (f"[{section}]", *(f"{key}={text}" for key, text in texts.items()))]
        self.world.file(["DATA/STEEL.INI", "".join(line + r"\r\n" for line in lines)])

    def changes(self):
        rng = self.rng
        changes = ["--percent", rng.choice(["10", "0", "12.5"])] if rng.random() < 0.4 else []
        for _ in range(rng.choice([0, 0, 2])):
            row = rng.choice(["D10", "D22", "D51"])
            cell = rng.choice(["3.5", "12.0", "weld", "thread", "plate", "cut"])
            changes += ["--set", f"{row}/{cell}={rng.choice([0, 3, 1234])}"]
        return changes

    def command(self, *parts):
        self.world.run(shlex.join(["rbtally", *parts]))
        if self.world.status != 0:
            raise scenario.Mismatch(f"{shlex.join(parts)} ends with {self.world.stderr}")

    def run(self):
        self.schedule()
        sheet = self.site()
        wanted, list_options = self.wanted()
        self.steel_ini(sheet.company, wanted.own_title)
        start_mode = self.rng.choice([-1, -1, 1, 3, 4])
        sheet.hides_cuts = start_mode in (1, 3)
        self.command("tally", "bulk", "--format", "json", "--start-mode", str(start_mode))
        sheet.tally = json.loads(self.world.stdout)
        common = ["--start-mode", str(start_mode)]
        dated = [*common, "--date", "/".join(sheet.date)]
        for form in self.forms:
            yield from self.differences(form, redraw(form, sheet), "--subproject", sheet.sub_project, "--body",
                                        str(sheet.body), "--percent", str(sheet.percent), *dated)
        changes = self.changes()
        self.command("detail", "bulk", "--format", "json", *changes, *common)
        wanted.tally = json.loads(self.world.stdout)
        for form in LISTS:
            yield from self.differences(form, List(form, sheet, wanted).draw(), *changes, *list_options, *dated)

    def differences(self, form, page, *options):
        file = self.world.folder / "trace"
        self.command("report", form, *options, "--trace", str(file))
        told = sum(MESSAGE in line for line in self.world.stderr)
        if told != page.pen.messages:
            yield f"{form}: {told} messages of short texts, {page.pen.messages} by the second road"
        yield from difflib.unified_diff(page.lines(), file.read_text(encoding="utf-8").splitlines(),
                                        f"{form}, second road", f"{form}, rbtally", n=0, lineterm="")


class FloorRound(Round):
    """A site with floors and parts, and the forms of these."""

    def __init__(self, program, folder, rng, number):
        super().__init__(program, folder, rng, number)
        floors, parts = list(FLOOR_FORMS), list(PART_FORMS)
        self.forms = [floors[number % 5], floors[(number + 2) % 5], parts[number % 3]]

    def schedule(self):
        rng = self.rng
        lowest = rng.choice([-2, 0, 1])
        numbered = list(range(lowest, lowest + rng.choice([1, 3, 8, 24])))
        floors = [numbered[0], numbered[-1], *(rng.choice([*numbered, 76, 77, 78]) for _ in range(rng.randint(0, 40)))]
        for floor in floors:
            thin = rng.random() < 0.3
            diameter = rng.choice([6, 7, 9, 11, 12, 16] if thin else [10, 13, 16, 19, 22, 25, 29, 32, 35, 38, 41, 51])
            bars, kind = rng.choice([1, 7, 120, 3456]), 2 if thin else rng.choice([1, 4])
            self.world.row([f"太さ={diameter}", f"予備2={kind}", f"階={floor}", f"部位={rng.randint(0, 12)}",
                            f"本数={bars}", f"合計={bars}", f"伸総計={bars}", f"伸切寸={rng.randint(300, 8100)}",
                            f"伸定尺={0 if thin else rng.choice([3.5, 4.0, 6.0, 8.0, 12.0, 13.0])}",
                            f"圧接={rng.choice([0, 3, 12345])}", f"ネジ数={rng.choice([0, 2])}",
                            f"切断={rng.randint(0, 99)}"])
        return numbered

    def site(self, numbered):
        rng, world = self.rng, self.world
        texts, codes = self.head()
        parts = [words(rng, rng.choice([0, 1, 2, 3, 5, 9])) for _ in range(10)]
        makers = [rng.choice(["", words(rng, rng.randint(1, 8))]) for _ in DIAMETERS]
        sheet = FloorSheet(**texts, makers=makers, parts=parts, date=(), start=numbered[0], end=numbered[-1],
                           special=rng.randint(0, 7), thin=rng.random() < 0.3, with_13m=rng.random() < 0.5)
        sheet.date = self.date(sheet.western)
        self.take(sheet, codes)
        self.steel_ini(sheet.company, "")
        columns = [found[1] for found in world.execute("SORANO.MDB", "PRAGMA table_info(工事テーブル)")]
        behind = columns[columns.index("SD51") + 1:][:12]
        world.execute("SORANO.MDB", "UPDATE 工事テーブル SET " + ", ".join(f"{name}=?" for name in behind), makers)
        for number, name in enumerate(parts, 1):
            world.execute("SORANO.MDB", "UPDATE 部位名テーブル SET 部位名=? WHERE 番号=?", (name, number))
        world.setting(["Kakou", "重量集計", f"階別集計定取={rng.randint(0, 1)}"])
        world.setting(["Jyuryo", "定尺", f"定尺13有無={int(sheet.with_13m)}"])
        return sheet

    def run(self):
        sheet = self.site(self.schedule())
        selection = ["--floors", f"{sheet.start}..{sheet.end}", "--special", str(sheet.special), "--kinds",
                     "0" if sheet.thin else "15", "--uplift", self.rng.choice(["0", "0", "10"])]
        for form in self.forms:
            kind, draw = ("floor", FLOOR_FORMS[form]) if form in FLOOR_FORMS else ("part", PART_FORMS[form])
            self.command("tally", kind, "--format", "json", *selection)
            sheet.tally = json.loads(self.world.stdout)
            file = self.world.folder / "trace"
            file.unlink(missing_ok=True)
            self.command("report", form, *selection, "--date", "/".join(sheet.date), "--trace", str(file))
            drawn = file.read_text(encoding="utf-8").splitlines() if file.exists() else []
            again = [line for document in draw(sheet) for line in document]
            yield from difflib.unified_diff(again, drawn, f"{form}, second road", f"{form}, rbtally", n=0, lineterm="")


def main():
    program, *numbers = sys.argv[1:]
    rounds, seed = [int(number) for number in numbers] + [30, 20261121][len(numbers):]
    for number in range(rounds):
        with tempfile.TemporaryDirectory(prefix="rbtally-") as folder:
            kind = FloorRound if number % 3 == 2 else Round
            found = list(kind(program, folder, random.Random(seed + number), number // 3 if number % 3 == 2 else number).run())
        if found:
            print(f"site {seed + number} differs:", *found, sep="\n  ")
            return 1
    print(f"{rounds} sites agree")
    return 0


if __name__ == "__main__":
    sys.exit(main())
