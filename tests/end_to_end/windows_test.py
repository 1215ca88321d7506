#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The window program on a real screen with a window manager: what the keyboard does to windows, where windows stand,
which one has the focus. Keys go to the screen, not to a widget. With a folder for pictures one of each form is left there.

usage: windows_test.py RBTALLY RBTALLY1 [FOLDER]
"""
import pathlib
import subprocess
import sys
import tempfile

import scenario
from desk import Desk

MENU, BULK, PAGES, SHAPES, PAGE_SHAPES, SETTINGS = (
    "重量集計メニュー", "重量集計", "頁行別重量集計", "形状重量集計", "頁行別形状重量集計", "その他設定")
KINDS, FORMS, PREVIEW, CARD = "材質の選択", "材料の変更", "印刷プレビュー", "キー一覧"
LIST, ATTENTION = "材料明細表", "注意"
SCREENS = {"F1": BULK, "F3": PAGES, "F5": SHAPES, "F7": PAGE_SHAPES}
# A window of its own for a while, as a sibling program has.
SIBLING = "#!/bin/sh\ntimeout 1 xev >/dev/null 2>&1\nexit 0\n"
SIBLINGS = {"F4": "KAKOU/rbweldcnt.exe", "1": "KAKOU/rbcutcnt.exe", "2": "KAKOU/rbstockfit.exe"}


class Walk:
    def __init__(self, desk, world, program, pictures):
        self.desk, self.pictures = desk, pictures
        self.program = subprocess.Popen([program, "--root", str(world.root)], env=desk.environment,
                                        stderr=subprocess.PIPE, text=True)

    def look(self, name):
        if self.pictures:
            self.desk.picture(self.pictures / f"{name}.png")

    def expect_place(self, title):
        left, top, right, bottom = self.desk.place(title)
        width, height = Desk.SIZE
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

    def each_screen_opens_and_comes_back(self):
        for key, title in SCREENS.items():
            self.desk.press(key)
            self.desk.expect_active(title)
            self.expect_place(title)
            self.look(f"screen-{key}")
            if key != "F1":
                self.desk.press(*(["Return"] * (2 if title == SHAPES else 4)))
                self.look(f"result-{key}")
                self.desk.press("F1")
                self.look(f"panel-{key}")
                self.desk.press("Escape")
            self.desk.press("Escape")
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
        self.desk.press("Escape", "Escape")
        self.desk.expect_gone(BULK)
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


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    pictures = pathlib.Path(sys.argv[3]).resolve() if len(sys.argv) == 4 else None
    with tempfile.TemporaryDirectory() as folder:
        world = scenario.World(sys.argv[1], folder)
        subprocess.run([world.program, "demo", str(world.folder / "own"), "--sites", "1", "--rows", "400"],
                       env=world.environment, check=True)
        world.root = world.folder / "own"
        for name in SIBLINGS.values():
            sibling = world.root / name
            sibling.parent.mkdir(exist_ok=True)
            sibling.write_text(SIBLING, encoding="utf-8")
            sibling.chmod(0o755)
        desk = Desk(world.environment | {"RBK_ROOT": str(world.root), "XDG_RUNTIME_DIR": folder})
        walk = Walk(desk, world, sys.argv[2], pictures)
        try:
            walk.menu_opens()
            walk.each_screen_opens_and_comes_back()
            walk.the_menu_beside_the_bulk_screen_takes_nothing()
            walk.the_list_stands_in_place_of_the_screen_that_opened_it()
            walk.dialogs_open_over_the_bulk_screen()
            walk.enter_goes_through_the_date_to_the_next_control()
            walk.the_menu_is_active_again_after_a_sibling()
            walk.the_exit_ends_the_program()
        except BaseException:
            walk.look("failed")
            raise
        finally:
            walk.program.kill()
            walk.program.wait()
            desk.close()


if __name__ == "__main__":
    main()
