#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The window program on real Jet files: it asks once, tells once, shows every screen, sees what another program changes,
and leaves the files of others as they are. With a folder for pictures what it asks and tells is left there.

usage: window_test.py RBTALLY RBTALLY1 [FOLDER]
"""
import contextlib
import pathlib
import sys
import tempfile

import live_root

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import windows_test  # pylint: disable=wrong-import-position

QUESTION, READING = "データベースの取り込み", "データベースの読み取り"


class World:
    """What a walk through the windows has to know of a root."""

    def __init__(self, root):
        self.root, self.folder, self.environment = root.folder, root.folder.parent, root.environment


@contextlib.contextmanager
def walk(root, program, pictures):
    with windows_test.walk_on(windows_test.SMALL, World(root), program, pictures) as walking:
        yield walking


def databases(snapshot):
    """Other files are those by which the programs of the family hand over to each other."""
    return {name: state for name, state in snapshot.items() if not name.upper().endswith(".INI")}


def expect_untouched(before, root, when):
    told = live_root.changes(before, databases(live_root.snapshot(root.folder)))
    assert not told, (when, told)


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    pictures = pathlib.Path(sys.argv[3]).resolve() if len(sys.argv) == 4 else None
    with tempfile.TemporaryDirectory(prefix="rbtally-") as folder:
        folder = pathlib.Path(folder)
        source = live_root.Source(sys.argv[1], folder, rows=400)
        root = live_root.jet_root(source, 4, folder / "live")
        before = databases(live_root.snapshot(root.folder))
        with walk(root, sys.argv[2], pictures) as first:
            first.desk.expect_active(QUESTION)
            first.look("live-question")
            first.desk.press("Return")
            first.desk.expect_active(READING)
            first.look("live-notice")
            first.desk.press("Return")
            first.menu_opens()
            first.each_screen_opens_and_comes_back()
            first.the_exit_ends_the_program()
        expect_untouched(before, root, "after the first walk")
        # Nothing is asked or told a second time; a change between two screens goes unseen.
        with walk(root, sys.argv[2], pictures) as second:
            second.desk.expect_active(windows_test.MENU)
            source.execute("UPDATE 加工テーブル SET 合計 = 2 * 合計, 伸総計 = 2 * 伸総計")
            source.to_jet(4, live_root.SITE, root.data / "written")
            (root.data / "written").replace(root.data / live_root.SITE)
            before = databases(live_root.snapshot(root.folder))
            second.each_screen_opens_and_comes_back()
            second.the_exit_ends_the_program()
        expect_untouched(before, root, "after the second walk")


if __name__ == "__main__":
    main()
