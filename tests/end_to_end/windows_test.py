#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The window program on a real screen with a window manager: what the keyboard does to windows, where windows stand,
which one has the focus, what is told while another program holds the site. Keys go to the screen, not to a widget. With a
folder for pictures one of each form is left there.

usage: windows_test.py RBTALLY RBTALLY1 [FOLDER]
"""
import contextlib
import pathlib
import sqlite3
import subprocess
import sys
import tempfile
import time

import scenario
from desk import Desk

MENU, BULK, PAGES, SHAPES, PAGE_SHAPES, FLOORS, PARTS, SETTINGS = (
    "重量集計メニュー", "重量集計", "頁行別重量集計", "形状重量集計", "頁行別形状重量集計", "階別集計", "部位別集計", "その他設定")
KINDS, FORMS, PREVIEW, CARD = "材質の選択", "材料の変更", "印刷プレビュー", "キー一覧"
LIST, ATTENTION = "材料明細表", "注意"
# Boxes without a title of their own bear the program's.
NOTICE = "重量集計"
SCREENS = {"F1": BULK, "F3": PAGES, "F5": SHAPES, "F7": PAGE_SHAPES, "F8": FLOORS, "F9": PARTS}
# What brings a screen to its result, and the questions that it may ask on the way.
TALLIES = {PAGES: ["Return"] * 4, SHAPES: ["Return"] * 2, PAGE_SHAPES: ["Return"] * 4, FLOORS: ["F2", "F1"],
           PARTS: ["F2", "F1"]}
QUESTIONS = ("Ｒ階集計", "Ｐ階集計", "階無し集計", "部位集計")
# A window of its own for a while, as a sibling program has.
SIBLING = "#!/bin/sh\ntimeout 1 xev >/dev/null 2>&1\nexit 0\n"
SIBLINGS = {"F4": "KAKOU/rbweldcnt.exe", "1": "KAKOU/rbcutcnt.exe", "2": "KAKOU/rbstockfit.exe"}
# A small screen, and a large one whose letters are half as large again.
SMALL, LARGE = (1366, 768), (1920, 1080)
SCALE = {"QT_SCALE_FACTOR": "1.5"}


class Walk:
    def __init__(self, desk, world, program, pictures):
        self.desk, self.world, self.pictures = desk, world, pictures
        self.program = subprocess.Popen([program, "--root", str(world.root)], env=desk.environment,
                                        stderr=subprocess.PIPE, text=True)

    def look(self, name):
        if self.pictures:
            self.desk.picture(self.pictures / f"{self.desk.size[0]}-{name}.png")

    def expect_place(self, title):
        left, top, right, bottom = self.desk.place(title)
        width, height = self.desk.size
        assert left >= 0 and top >= 0 and right <= width and bottom <= height, (title, left, top, right, bottom)
        middle = (left + right) / 2
        assert abs(middle - width / 2) <= 8, f"{title} does not stand in the middle: {left} to {right}"

    def menu_opens(self):
        self.desk.expect_active(MENU)
        self.expect_place(MENU)
        self.look("menu")
        self.desk.press("shift+F1")
        self.desk.expect_active(CARD)
        self.look("keys")
        self.desk.press("Escape")
        self.desk.expect_active(MENU)

    def bring_result(self, title):
        self.desk.press(*TALLIES.get(title, []))
        self.desk.until(f"{title} has its result", lambda: self.desk.active_title() in (title, *QUESTIONS))
        while self.desk.active_title() in QUESTIONS:
            self.look("question")
            self.desk.press("Return")
            time.sleep(0.3)
        self.desk.expect_active(title)

    def each_screen_opens_and_comes_back(self):
        for key, title in SCREENS.items():
            self.desk.press(key)
            self.desk.expect_active(title)
            self.expect_place(title)
            self.look(f"screen-{key}")
            self.bring_result(title)
            self.expect_place(title)
            self.look(f"result-{key}")
            self.desk.press("F1")
            self.expect_place(title)
            self.look(f"panel-{key}")
            self.desk.press("Escape", "Escape")
            self.desk.expect_gone(title)
            self.desk.expect_active(MENU)

    def the_menu_beside_the_bulk_screen_takes_nothing(self):
        self.desk.press("F1")
        self.desk.expect_active(BULK)
        for key in ("F3", "F4", "Escape"):
            self.desk.activate(MENU)
            self.desk.press(key)
            self.desk.expect_active(BULK)
            assert set(self.desk.titles().values()) == {MENU, BULK}, self.desk.titles()
        self.desk.activate(MENU)
        left, top, _, bottom = self.desk.place(MENU)
        self.desk.click(left + 6, bottom - 8)
        self.desk.expect_active(BULK)
        assert top < bottom

    def the_list_stands_in_place_of_the_screen_that_opened_it(self):
        """In the bulk screen: its list is raised, corrected, looked at on paper, left; and once more from the screen."""
        self.desk.press("F5")
        self.desk.expect_active(LIST)
        self.expect_place(LIST)
        assert BULK not in self.desk.titles().values(), self.desk.titles()
        self.look("list")
        for key, mode in (("F1", "percent"), ("F2", "correction")):
            self.desk.press(key)
            self.desk.expect_active(ATTENTION)
            self.desk.press("Return")
            self.desk.expect_active(LIST)
            self.desk.press("1", "0")
            self.look(f"list-{mode}")
            self.desk.press("Return" if key == "F1" else "Escape")
        self.desk.press("F4")
        self.look("list-print-panel")
        self.desk.press("F1")
        self.desk.expect_active(PREVIEW)
        self.look("list-preview")
        self.desk.press("Escape")
        self.desk.expect_active(LIST)
        self.desk.press("Escape")
        self.desk.expect_active(BULK)
        assert LIST not in self.desk.titles().values(), self.desk.titles()
        self.look("list-left")
        self.desk.press("F5")
        self.desk.expect_active(LIST)
        self.desk.press("Escape")
        self.desk.expect_active(BULK)

    def dialogs_open_over_the_bulk_screen(self):
        self.desk.press("F1")
        self.look("print-panel")
        self.desk.press("Escape", "F3", "1", "0", "Return")
        self.look("uplift")
        self.desk.press("F4", "F2")
        self.look("ulbon-view")
        self.desk.press("Escape")
        self.desk.expect_active(BULK)
        self.desk.press("F1", "F8", "F1")
        self.desk.expect_active(PREVIEW)
        self.look("preview")
        self.desk.press("Escape")
        self.desk.expect_active(BULK)
        self.desk.press("F1", "F7")
        self.desk.expect_active(SETTINGS)
        self.expect_place(SETTINGS)
        self.look("settings")
        self.desk.press("Escape")
        self.desk.expect_active(BULK)

    def enter_goes_through_the_date_to_the_next_control(self):
        """Tab leads round from the print button to the memo; behind the day stands the choice of kinds."""
        self.desk.press(*(["Tab"] * 6))  # the print buttons, then the memo
        self.look("memo")
        self.desk.press("Tab", "Return", "Return", "Return")
        self.look("after-the-day")
        self.desk.press("Return")
        self.desk.expect_active(KINDS)
        self.look("kinds")
        self.desk.press("Tab", "Tab", "Tab", "Tab", "Tab", "Return")
        self.desk.expect_active(BULK)

    def the_choice_of_forms_opens_before_the_work_begins(self):
        """The focus is still on the choice of kinds; behind it stand the hoops and the choice of forms."""
        self.desk.press("Tab", "Tab", "Return")
        self.desk.expect_active(FORMS)
        self.look("forms")
        self.desk.press("Escape")
        self.desk.expect_active(BULK)
        self.look("forms-chosen")

    def the_bulk_screen_is_left(self):
        self.desk.press("Escape", "Escape")
        self.desk.expect_gone(BULK)
        self.desk.expect_active(MENU)

    def a_held_site_is_waited_for_and_told(self):
        """Keys that are pressed during the wait are dropped. Giving up leads back to the menu, which asks for itself."""
        with self.world.held():
            self.desk.press("F3", "F5")
            self.desk.expect_active(NOTICE)
            self.look("notice")
            self.desk.press("Escape")
            self.desk.expect_gone(NOTICE)
            self.desk.expect_active(NOTICE)
            self.look("notice-of-the-menu")
        self.desk.press("Return")
        self.desk.expect_active(MENU)
        self.desk.press("F3")
        self.desk.expect_active(PAGES)
        with self.world.held():
            self.desk.press(*TALLIES[PAGES])
            self.desk.expect_active(NOTICE)
        self.desk.press("Return")
        self.desk.expect_gone(NOTICE)
        self.desk.expect_active(PAGES)
        self.look("after-the-notice")
        self.desk.press("Escape")
        self.desk.expect_gone(PAGES)
        self.desk.expect_active(MENU)

    def the_menu_is_active_again_after_a_sibling(self):
        for key in SIBLINGS:
            self.desk.press(key)
            self.desk.expect_gone(MENU)
            self.desk.until(f"the menu is back after {key}", lambda: MENU in self.desk.titles().values())
            self.desk.expect_active(MENU)

    def the_exit_ends_the_program(self):
        self.desk.press("Escape")
        assert self.program.wait(timeout=20) == 0, self.program.stderr.read()

    def a_start_on_a_held_site_can_be_given_up(self):
        self.desk.expect_active(NOTICE)
        self.look("notice-of-the-start")
        self.desk.press("Escape")
        assert self.program.wait(timeout=20) == 1, self.program.stderr.read()


class Site(scenario.World):
    """A demonstration site, with siblings that open a window for a while."""

    def __init__(self, program, folder):
        super().__init__(program, folder)
        self.root = self.folder / "own"
        subprocess.run([self.program, "demo", str(self.root), "--sites", "1", "--rows", "400"], env=self.environment,
                       check=True)
        for name in SIBLINGS.values():
            sibling = self.root / name
            sibling.parent.mkdir(exist_ok=True)
            sibling.write_text(SIBLING, encoding="utf-8")
            sibling.chmod(0o755)

    @contextlib.contextmanager
    def held(self):
        """The schedule as another program holds it while it writes."""
        other = sqlite3.connect(self.root / "DATA" / "GENBA001.MDB", isolation_level=None)
        other.execute("BEGIN EXCLUSIVE")
        try:
            yield
        finally:
            other.execute("ROLLBACK")
            other.close()


@contextlib.contextmanager
def walk_on(size, world, program, pictures, scale=None):
    desk = Desk(world.environment | {"RBK_ROOT": str(world.root), "XDG_RUNTIME_DIR": str(world.folder)} | (scale or {}), size)
    walk = Walk(desk, world, program, pictures)
    try:
        yield walk
    except BaseException:
        walk.look("failed")
        raise
    finally:
        walk.program.kill()
        walk.program.wait()
        desk.close()


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    program = sys.argv[2]
    pictures = pathlib.Path(sys.argv[3]).resolve() if len(sys.argv) == 4 else None
    with tempfile.TemporaryDirectory() as folder:
        world = Site(sys.argv[1], folder)
        with walk_on(SMALL, world, program, pictures) as walk:
            walk.menu_opens()
            walk.each_screen_opens_and_comes_back()
            walk.the_menu_beside_the_bulk_screen_takes_nothing()
            walk.the_list_stands_in_place_of_the_screen_that_opened_it()
            walk.dialogs_open_over_the_bulk_screen()
            walk.enter_goes_through_the_date_to_the_next_control()
            walk.the_choice_of_forms_opens_before_the_work_begins()
            walk.the_bulk_screen_is_left()
            walk.the_menu_is_active_again_after_a_sibling()
            walk.a_held_site_is_waited_for_and_told()
            walk.the_exit_ends_the_program()
        with walk_on(LARGE, world, program, pictures, SCALE) as walk:
            walk.menu_opens()
            walk.each_screen_opens_and_comes_back()
            walk.the_exit_ends_the_program()
        with world.held(), walk_on(SMALL, world, program, pictures) as walk:
            walk.a_start_on_a_held_site_can_be_given_up()


if __name__ == "__main__":
    main()
