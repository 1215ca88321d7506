#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Sites of real Jet files, worked on where they are, against their imported twins: whatever the program can do gives
the same figures and files, and the files of others stay as they are.

usage: same_figures_test.py RBTALLY
"""
import pathlib
import sys
import tempfile
import unittest

import live_root

PROGRAM = ""


class LiveSite(unittest.TestCase):
    """Each test in Jet 3 and in Jet 4, over databases of one content."""

    maxDiff = 4000
    version = 0

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="rbtally-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.source = live_root.Source(PROGRAM, self.folder)
        # Weighs by stock lengths of a table, so that each database of the family is read.
        self.source.execute("INSERT INTO 固定定尺テーブル (太さ, 開始切り寸, 終了切り寸, 材質, 定尺) "
                            "VALUES (19, 4000, 4500, 1, 9000)", "MTTeijyaku.mdb")

    def roots(self, settings=""):
        live = live_root.jet_root(self.source, self.version, self.folder / "live")
        twin = live_root.imported_twin(live, self.folder / "twin")
        for root in (live, twin):
            (root.home / "settings.ini").write_text(settings, encoding="utf-8")
            root.commands = 0  # from now on both have the same clock
        return live, twin

    def compare(self, live, twin):
        before = live_root.snapshot(live.folder)
        for words in live_root.everything(PROGRAM):
            in_place, imported = live.run(*words), twin.run(*words)
            line = " ".join(words)
            self.assertEqual(in_place.output, imported.output, line)
            self.assertEqual(in_place.errors, imported.errors, line)
            self.assertEqual(in_place.status, imported.status, line)
            self.assertEqual(live_root.changes(before, live_root.snapshot(live.folder)), [], line)
        written = sorted(path.name for path in twin.out.iterdir())
        self.assertGreater(len(written), 30)
        self.assertEqual(sorted(path.name for path in live.out.iterdir()), written)
        for name in written:
            self.assertEqual((live.out / name).read_bytes(), (twin.out / name).read_bytes(), name)

    def every_command(self):
        self.compare(*self.roots())

    def every_command_with_other_settings(self):
        self.compare(*self.roots("[Kakou\\定尺]\nテーブル有無=1\n[Jyuryo\\定尺]\n定尺13有無=1\n"
                                 "[Kakou\\重量集計]\n定尺取付書換=1\n"))

    def the_commands_do_give_figures(self):
        """What is equal is not nothing."""
        live, _ = self.roots()
        self.assertGreater(live.tally()["TotalStockWeight"], 1000)
        live.must("save", "bulk", "--name", "一")
        self.assertEqual(len(live.saved()), 1)


class LiveSiteOfJet3(LiveSite):
    version = 3

    def test_every_command_gives_what_it_gives_on_the_imported_twin(self):
        self.every_command()

    def test_every_command_gives_the_same_under_other_settings(self):
        self.every_command_with_other_settings()


class LiveSiteOfJet4(LiveSite):
    version = 4

    def test_every_command_gives_what_it_gives_on_the_imported_twin(self):
        self.every_command()

    def test_every_command_gives_the_same_under_other_settings(self):
        self.every_command_with_other_settings()

    def test_what_is_compared_is_not_nothing(self):
        self.the_commands_do_give_figures()


if __name__ == "__main__":
    PROGRAM = sys.argv.pop(1)
    unittest.main()
