#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Sites of real Jet files among neighbours and in trouble: other programs that hold or write them, folders without
rights, damage, no room.

usage: trouble_test.py RBTALLY
"""
import fcntl
import os
import pathlib
import resource
import shutil
import subprocess
import sys
import tempfile
import threading
import unittest

import live_root

PROGRAM = ""


class LiveSite(unittest.TestCase):
    rows = 200

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="rbtally-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.source = live_root.Source(PROGRAM, self.folder, self.rows)
        self.live = live_root.jet_root(self.source, 4, self.folder / "live")
        self.site = self.live.data / live_root.SITE

    def right(self):
        return live_root.imported_twin(self.live, self.folder / "twin").tally()

    def assert_untouched(self, before):
        self.assertEqual(live_root.changes(before, live_root.snapshot(self.live.folder)), [])


class Neighbours(LiveSite):
    def test_a_database_that_another_program_has_open_is_read(self):
        right = self.right()
        before = live_root.snapshot(self.live.folder)
        lock = self.live.data / "GENBA001.ldb"
        with open(lock, "wb") as other, open(self.site, "rb") as database:
            other.write(b"\0" * 64)
            other.flush()
            fcntl.lockf(other, fcntl.LOCK_EX)
            fcntl.flock(database, fcntl.LOCK_EX)
            self.assertEqual(self.live.tally(), right)
            self.live.must("save", "bulk", "--name", "一")
            self.assertEqual(lock.read_bytes(), b"\0" * 64)
        lock.unlink()
        self.assert_untouched(before)

    def test_several_programs_at_once_on_a_cold_site_all_give_its_figures(self):
        right = self.right()
        before = live_root.snapshot(self.live.folder)
        children = [self.live.start(["tally", "bulk", "--format", "json"]) for _ in range(6)]
        for child in children:
            done = self.live.end(child)
            self.assertEqual((done.status, done.errors), (0, ""))
            self.assertEqual(done.json(), right)
        self.assert_untouched(before)

    def test_several_programs_at_once_over_a_changed_original_all_give_figures_of_now_and_lose_no_save(self):
        self.live.must("save", "bulk", "--name", "一")
        self.source.execute("UPDATE 加工テーブル SET 合計 = 2 * 合計, 伸総計 = 2 * 伸総計")
        self.source.to_jet(4, live_root.SITE, self.folder / "written")
        shutil.copyfile(self.folder / "written", self.site)
        right = self.right()
        children = [self.live.start(["tally", "bulk", "--format", "json"]) for _ in range(4)]
        children += [self.live.start(["save", "bulk", "--name", f"同時{n}"]) for n in range(3)]
        done = [self.live.end(child) for child in children]
        for tally in done[:4]:
            self.assertEqual((tally.status, tally.errors), (0, ""))
            self.assertEqual(tally.json(), right)
        self.assertEqual([save.status for save in done[4:]], [0, 0, 0], [save.errors for save in done[4:]])
        self.assertEqual(sorted(row["name"] for row in self.live.saved()), ["一", "同時0", "同時1", "同時2"])

    def test_a_file_that_is_written_now_and_then_gives_figures_of_one_state(self):
        """Each state is whole: the doubled one, and the one before. Where a reading takes as long as the file rests,
        the program may say so; when nobody writes any more it reads the last state."""
        states = []
        written = []
        for number in range(2):
            written.append(self.folder / f"state{number}")
            self.source.to_jet(4, live_root.SITE, written[number])
            shutil.copyfile(written[number], self.site)
            states.append(live_root.imported_twin(self.live, self.folder / f"twin{number}").tally())
            self.source.execute("UPDATE 加工テーブル SET 合計 = 2 * 合計, 伸総計 = 2 * 伸総計")
        self.assertNotEqual(states[0], states[1])
        done = threading.Event()

        def write():
            number = 0
            while not done.wait(0.15):
                number += 1
                beside = self.folder / "beside"
                shutil.copyfile(written[number % 2], beside)
                os.replace(beside, self.site)

        other = threading.Thread(target=write)
        other.start()
        try:
            told = [self.live.run("tally", "bulk", "--format", "json") for _ in range(20)]
        finally:
            done.set()
            other.join()
        for tally in told:
            if tally.status == 0:
                self.assertEqual(tally.errors, "")
                self.assertIn(tally.json(), states)
            else:
                self.assertEqual(tally.status, 1)
                self.assertIn("keeps changing while it is read", tally.errors)
        self.assertTrue(any(tally.status == 0 for tally in told))
        shutil.copyfile(written[1], self.site)
        self.assertEqual(self.live.tally(), states[1])


class Rights(LiveSite):
    """A folder in which nobody may write: the superuser may, so another user meets it."""

    def setUp(self):
        super().setUp()
        self.right_figures = self.right()
        self.before_rights = live_root.snapshot(self.live.folder)
        # Everybody may read; the user's own folders are the user's.
        self.folder.chmod(0o755)
        for path in [self.live.folder, *self.live.folder.rglob("*")]:
            path.chmod(0o555 if path.is_dir() else 0o444)
        self.addCleanup(self.give_back)
        if os.geteuid() == 0:
            self.live.user = live_root.NOBODY
            for path in (self.live.home, self.live.out):
                os.chown(path, live_root.NOBODY, live_root.NOBODY)
            self.live.program = self.reachable_program()
        self.before = live_root.snapshot(self.live.folder)

    def give_back(self):
        for path in [self.live.folder, *self.live.folder.rglob("*")]:
            path.chmod(0o755 if path.is_dir() else 0o644)

    def reachable_program(self):
        program = pathlib.Path(PROGRAM).resolve()
        copy = self.folder / "program" / "bin" / "rbtally"
        for file in (program, *(program.parent.parent / "lib" / "rbtally").glob("*.so")):
            target = copy.parent.parent / file.relative_to(program.parent.parent)
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(file, target)
        copy.chmod(0o755)
        return copy

    def test_a_site_in_a_folder_that_may_not_be_written_is_worked_on_below_the_users_own(self):
        self.assertEqual(self.live.tally(), self.right_figures)
        self.assertEqual(live_root.snapshot(self.live.folder), self.before)

    def test_what_is_saved_then_is_there_the_next_time(self):
        self.live.must("save", "bulk", "--name", "一")
        self.assertEqual([row["name"] for row in self.live.saved()], ["一"])
        self.assertEqual(live_root.snapshot(self.live.folder), self.before)

    def test_two_sites_of_one_name_in_two_folders_never_meet(self):
        self.live.must("save", "bulk", "--name", "一")
        other = self.folder / "elsewhere"
        shutil.copytree(self.live.folder, other)
        done = self.live.run("list", "--format", "json", "--root", other)
        self.assertEqual((done.status, done.errors), (0, ""))
        self.assertEqual(done.json(), [])
        for path in [other, *other.rglob("*")]:
            path.chmod(0o755 if path.is_dir() else 0o644)

    def test_a_change_of_the_original_is_seen(self):
        self.live.tally()
        self.give_back()
        self.source.execute("UPDATE 加工テーブル SET 合計 = 2 * 合計, 伸総計 = 2 * 伸総計")
        self.source.to_jet(4, live_root.SITE, self.folder / "written")
        shutil.copyfile(self.folder / "written", self.site)
        for path in [*self.live.folder.rglob("*"), self.live.folder]:
            path.chmod(0o555 if path.is_dir() else 0o444)
        self.assertEqual(self.live.tally(), live_root.imported_twin(self.live, self.folder / "twin2").tally())

    def test_without_preparation_nothing_is_written_where_it_could_be(self):
        self.give_back()
        if self.live.user is not None:
            for path in [self.live.folder, *self.live.folder.rglob("*")]:
                os.chown(path, live_root.NOBODY, live_root.NOBODY)
        before = live_root.snapshot(self.live.folder)
        done = self.live.run("tally", "bulk", "--format", "json", "--no-prepare")
        self.assertEqual((done.status, done.json()), (0, self.right_figures))
        self.assertEqual(live_root.snapshot(self.live.folder), before)


class Room(LiveSite):
    """No file may grow beyond a size, as on a disk that is full."""

    def limited(self, size, *words):
        clock = self.live.environment | {"RBK_CLOCK": "2026-11-21T09:00:00"}
        child = subprocess.run([PROGRAM, *words], env=clock, capture_output=True, timeout=120, check=False,
                               restore_signals=False,  # the program is told, not ended
                               preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (size, size)))
        return live_root.Done(self.live, child, child.stdout, child.stderr)

    def test_without_room_is_a_fault_that_names_the_file_and_the_next_one_goes_on(self):
        before = live_root.snapshot(self.live.folder)
        for size in (0, 4096, 20000):
            told = self.limited(size, "tally", "bulk")
            self.assertEqual(told.status, 1)
            self.assertIn(".work", told.errors)
            self.assert_untouched(before)
            self.assertEqual([name for name in self.live.names() if name.startswith(live_root.SITE + ".")
                              and name != live_root.SITE + ".work" and "-" not in name], [])
        self.assertEqual(self.live.tally(), self.right())

    def test_without_room_over_a_changed_original_what_was_saved_stays(self):
        self.live.must("save", "bulk", "--name", "一")
        kept = self.live.must("load", "bulk", "一", "--format", "json")
        self.source.execute("UPDATE 加工テーブル SET 合計 = 2 * 合計, 伸総計 = 2 * 伸総計")
        self.source.to_jet(4, live_root.SITE, self.folder / "written")
        shutil.copyfile(self.folder / "written", self.site)
        told = self.limited(20000, "tally", "bulk")
        self.assertEqual(told.status, 1)
        self.assertEqual(told.output, b"")
        self.assertEqual(self.live.must("load", "bulk", "一", "--format", "json"), kept)
        self.assertEqual(self.live.tally(), self.right())


class Damage(LiveSite):
    def test_a_damaged_site_is_refused_and_named_and_nothing_is_left(self):
        before = live_root.snapshot(self.live.folder)
        sound = self.site.read_bytes()
        self.site.write_bytes(sound[:len(sound) // 8192 * 4096])
        told = self.live.run("tally", "bulk")
        self.assertEqual((told.status, told.output), (1, b""))
        self.assertIn(live_root.SITE, told.errors)
        self.assertEqual(len(told.errors.splitlines()), 1)
        self.site.write_bytes(sound)
        self.assertNotIn(live_root.SITE + ".work", self.live.names())
        self.assertEqual(self.live.tally(), self.right())
        self.assertEqual([told for told in live_root.changes(before, live_root.snapshot(self.live.folder))
                          if live_root.SITE not in told], [])

    def test_a_site_that_gets_damaged_is_refused_though_a_sound_copy_is_there(self):
        """A figure of yesterday is a wrong order."""
        self.live.must("save", "bulk", "--name", "一")
        sound = self.site.read_bytes()
        self.site.write_bytes(sound[:len(sound) // 8192 * 4096])
        told = self.live.run("tally", "bulk")
        self.assertEqual((told.status, told.output), (1, b""))
        self.site.write_bytes(sound)
        self.assertEqual([row["name"] for row in self.live.saved()], ["一"])

    def test_a_site_that_has_gone_is_missing_though_its_copy_is_there(self):
        self.live.tally()
        away = self.folder / "away"
        self.site.rename(away)
        told = self.live.run("tally", "bulk")
        self.assertEqual((told.status, told.output), (1, b""))
        self.assertIn(live_root.SITE, told.errors)

    def test_a_copy_of_another_file_under_the_name_is_not_taken_for_its_own(self):
        self.live.tally()
        self.live.tally("--site", live_root.SECOND_SITE)
        shutil.copyfile(self.live.data / (live_root.SECOND_SITE + ".work"),
                        self.live.data / (live_root.SITE + ".work"))
        done = self.live.run("tally", "bulk", "--format", "json")
        self.assertEqual(done.status, 0)
        self.assertEqual(done.json(), self.right())


if __name__ == "__main__":
    PROGRAM = sys.argv.pop(1)
    unittest.main()
