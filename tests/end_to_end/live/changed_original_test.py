#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Sites of real Jet files that other programs change meanwhile: every tally is of the file as it stands, and what was
saved here stays.

usage: changed_original_test.py RBTALLY
"""
import os
import pathlib
import sys
import tempfile
import unittest

import live_root

PROGRAM = ""
DOUBLED = "UPDATE 加工テーブル SET 合計 = 2 * 合計, 伸総計 = 2 * 伸総計"
NUMBER_OF_ROWS = "SELECT count(*) FROM 加工テーブル"


class LiveSite(unittest.TestCase):
    """One in Jet 4, and the store that it is made from."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="rbtally-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.source = live_root.Source(PROGRAM, self.folder, rows=60)
        self.live = live_root.jet_root(self.source, 4, self.folder / "live")
        self.twins = 0

    def twin(self):
        """The figures of a site that is taken into the store as it stands now."""
        self.twins += 1
        return live_root.imported_twin(self.live, self.folder / f"twin{self.twins}")

    def overwrite(self, name=live_root.SITE):
        """Another program saves the file: under the same name, in the same place on the disk."""
        written = self.folder / "written"
        self.source.to_jet(4, name, written)
        with open(self.live.data / name, "r+b") as file:
            file.write(written.read_bytes())
            file.truncate()

    def replace(self, name=live_root.SITE):
        """Another program puts a new file under the name."""
        written = self.live.data / "written"
        self.source.to_jet(4, name, written)
        written.replace(self.live.data / name)

    def change(self, statement, file=live_root.SITE):
        """Another program changes a file, and nothing but that file."""
        before = live_root.snapshot(self.live.folder)
        self.source.execute(statement, file)
        self.overwrite(file)
        self.assertEqual(live_root.changes(before, live_root.snapshot(self.live.folder)),
                         [f"DATA/{file} is another"])


class Changes(LiveSite):
    def test_a_file_that_was_overwritten_between_two_tallies_is_seen(self):
        before = self.live.tally()
        self.change(DOUBLED)
        after = self.live.tally()
        self.assertEqual(after["TotalStockWeight"], self.twin().tally()["TotalStockWeight"])
        self.assertGreater(after["TotalStockWeight"], before["TotalStockWeight"])

    def test_a_file_that_was_replaced_between_two_tallies_is_seen(self):
        self.live.tally()
        self.source.execute(DOUBLED)
        self.replace()
        self.assertEqual(self.live.tally(), self.twin().tally())

    def test_a_change_within_one_tick_of_the_file_times_is_seen(self):
        """Of the same size and the same time as before, as where the disk counts times coarsely."""
        state = (self.live.data / live_root.SITE).stat()
        before = self.live.tally()
        self.source.execute("UPDATE 加工テーブル SET 合計 = 合計 + 1, 伸総計 = 伸総計 + 1")
        self.overwrite()
        os.utime(self.live.data / live_root.SITE, ns=(state.st_atime_ns, state.st_mtime_ns))
        self.assertEqual((self.live.data / live_root.SITE).stat().st_size, state.st_size)
        after = self.live.tally()
        self.assertNotEqual(after, before)
        self.assertEqual(after, self.twin().tally())

    def test_a_file_that_got_an_older_time_is_seen(self):
        """As from a backup."""
        self.live.tally()
        self.source.execute(DOUBLED)
        self.replace()
        live_root.settle(self.live)
        self.assertEqual(self.live.tally(), self.twin().tally())

    def test_rows_that_came_and_went_are_seen(self):
        self.live.tally()
        self.change("DELETE FROM 加工テーブル WHERE 行No > 30")
        self.assertEqual(self.live.tally(), self.twin().tally())
        self.change("INSERT INTO 加工テーブル SELECT * FROM 加工テーブル")
        self.assertEqual(self.live.tally(), self.twin().tally())

    def test_another_layout_of_the_schedule_is_seen(self):
        self.live.tally()
        self.source.execute("ALTER TABLE 加工テーブル DROP COLUMN 定着板数")
        self.overwrite()
        self.assertEqual(self.live.tally(), self.twin().tally())

    def test_the_other_databases_are_looked_at_each_on_its_own(self):
        self.live.tally()
        work = {path.name: path.stat().st_ino for path in self.live.data.iterdir() if ".work" in path.name}
        self.change("UPDATE T_SD SET SD名 = 'SD999'", "SORANO.MDB")
        self.change("UPDATE スパイラル SET 全重量 = 4711 WHERE rowid = 1", "HIROI001.mdb")
        trace = self.live.out / "a.trace"
        self.live.must("report", "taihi-a-a4t", "--trace", trace)
        self.assertIn("SD999", trace.read_text(encoding="utf-8"))
        twin = self.twin()
        self.assertEqual(self.live.tally(), twin.tally())
        self.assertEqual(self.live.must("names", "--format", "json"), twin.must("names", "--format", "json"))
        site_copy = live_root.SITE + ".work"
        self.assertEqual((self.live.data / site_copy).stat().st_ino, work[site_copy])
        self.assertNotEqual((self.live.data / "SORANO.MDB.work").stat().st_ino, work["SORANO.MDB.work"])

    def test_the_stock_lengths_follow_their_table(self):
        (self.live.home / "settings.ini").write_text("[Kakou\\定尺]\nテーブル有無=1\n", encoding="utf-8")
        words = "stock", "4200", "10", "19", "--format", "json"
        before = self.live.must(*words)
        self.change("INSERT INTO 固定定尺テーブル (太さ, 開始切り寸, 終了切り寸, 材質, 定尺) "
                    "VALUES (19, 4000, 4500, 1, 9000)", "MTTeijyaku.mdb")
        after = self.live.must(*words)
        self.assertNotEqual(after, before)
        self.assertIn(b'"StockLengthM": 9 ', after)

    def test_a_file_that_becomes_one_of_the_store_is_worked_on_as_such(self):
        self.live.tally()
        self.live.must("import", self.live.data / live_root.SITE, self.live.data / live_root.SITE)
        figures = self.live.tally()
        self.assertEqual(figures, self.twin().tally())

    def test_a_file_that_nobody_changed_is_not_taken_anew(self):
        live_root.settle(self.live)
        self.live.tally()
        self.live.tally()
        before = live_root.snapshot(self.live.data)
        self.live.tally()
        self.assertEqual(live_root.snapshot(self.live.data), before)

    def test_a_file_that_only_got_another_time_is_not_taken_anew(self):
        self.live.must("save", "bulk", "--name", "一")
        numbers = [path.stat().st_ino for path in sorted(self.live.data.iterdir()) if ".work" in path.name]
        os.utime(self.live.data / live_root.SITE)
        self.live.tally()
        self.assertEqual([path.stat().st_ino for path in sorted(self.live.data.iterdir()) if ".work" in path.name],
                         numbers)
        self.assertEqual(len(self.live.saved()), 1)


class SavedTallies(LiveSite):
    def save_in_original(self, name, clock):
        """Another program keeps a tally in its own file."""
        self.source.must("save", "bulk", "--name", name, clock=clock)
        self.overwrite()

    def load(self, name, root=None):
        return (root or self.live).must("load", "bulk", name, "--format", "json")

    def names_of(self, root=None):
        return sorted(row["name"] for row in (root or self.live).saved())

    def test_those_saved_here_stay_over_a_changed_original(self):
        self.live.must("save", "bulk", "--name", "一", "--memo1", "北棟")
        self.live.must("save", "part", "--special", "7", "--name", "部位")
        kept = self.load("一"), self.live.must("load", "part", "部位", "--format", "json")
        self.change(DOUBLED)
        self.assertEqual(self.names_of(), ["一", "部位"])
        self.assertEqual((self.load("一"), self.live.must("load", "part", "部位", "--format", "json")), kept)
        self.live.must("save", "bulk", "--name", "二")
        self.assertNotEqual(self.load("二"), kept[0])

    def test_they_are_never_put_into_the_original(self):
        before = live_root.snapshot(self.live.folder)
        self.live.must("save", "bulk", "--name", "一")
        self.live.must("rename", "bulk", "一", "二")
        self.live.must("delete", "bulk", "二")
        self.assertEqual(live_root.changes(before, live_root.snapshot(self.live.folder)), [])

    def test_those_of_the_original_are_there_and_come_and_go_with_it(self):
        self.save_in_original("事務所", "2026-11-20T08:00:00")
        self.live.must("save", "bulk", "--name", "一")
        self.assertEqual(self.names_of(), ["一", "事務所"])
        self.change("DELETE FROM 重量集計名称")
        self.assertEqual(self.names_of(), ["一"])
        self.save_in_original("現場", "2026-11-20T08:00:01")
        self.assertEqual(self.names_of(), ["一", "現場"])
        self.assertEqual(self.load("現場"), self.load("現場", self.twin()))

    def test_one_that_the_original_has_by_now_under_its_moment_is_kept_as_a_second_copy(self):
        self.live.must("save", "bulk", "--name", "一")
        mine = self.live.saved()[0]
        here = self.load("一")
        # The same moment, other figures.
        self.source.execute(DOUBLED)
        moment = f"{mine['date'][:4]}-{mine['date'][4:6]}-{mine['date'][6:]}T" + \
                 ":".join(mine["time"][i:i + 2] for i in (0, 2, 4))
        self.save_in_original("一", moment)
        self.assertEqual(self.names_of(), ["一", "一(控え)"])
        self.assertEqual(self.load("一"), self.load("一", self.twin()))
        self.assertEqual(self.load("一(控え)"), here)
        self.assertNotEqual(self.load("一"), here)

    def test_a_second_copy_stays_over_further_changes(self):
        self.test_one_that_the_original_has_by_now_under_its_moment_is_kept_as_a_second_copy()
        here = self.load("一(控え)")
        self.change(DOUBLED)
        self.change("DELETE FROM 重量集計名称 WHERE 重量集計名称 = '一'")
        self.assertIn("一(控え)", self.names_of())
        self.assertEqual(self.load("一(控え)"), here)

    def test_a_copy_that_is_damaged_is_kept_and_told_of(self):
        self.live.must("save", "bulk", "--name", "一")
        work = self.live.data / (live_root.SITE + ".work")
        work.write_bytes(b"no database" * 1000)
        done = self.live.run("tally", "bulk", "--format", "json")
        kept = [path for path in self.live.data.iterdir()
                if path.name.startswith(work.name) and path.read_bytes() == b"no database" * 1000]
        self.assertEqual(len(kept), 1, self.live.names())
        self.assertIn(kept[0].name, done.errors)
        self.assertEqual(done.status, 0)
        self.assertEqual(done.json(), self.twin().tally())


class Marks(LiveSite):
    def test_marks_made_here_stay_over_a_changed_companion(self):
        """The list of names that a CSV file is made of takes the marks away; `names` marks none."""
        self.live.must("names", "--format", "json")
        before = live_root.snapshot(self.live.folder)
        self.live.must("export", "names", "--names", "1", "-o", self.live.out / "names.csv")
        self.assertEqual(live_root.changes(before, live_root.snapshot(self.live.folder)), [])
        self.change("UPDATE スパイラル SET 全重量 = 4711 WHERE rowid = 1", "HIROI001.mdb")
        self.assertEqual(self.live.must("names", "--format", "json"),
                         self.twin().must("names", "--format", "json"))


if __name__ == "__main__":
    PROGRAM = sys.argv.pop(1)
    unittest.main()
