# SPDX-License-Identifier: MIT
"""Pages as sets of inked points, to tell whether two of them show the same."""
import subprocess

RESOLUTION = 50  # points to the inch
DARK = 160  # of 255


class PagePicture:
    def __init__(self, width, height, ink):
        self.width, self.height, self.ink = width, height, ink

    @staticmethod
    def of(pdf):
        """The first page of a PDF file."""
        data = subprocess.run(["pdftoppm", "-gray", "-r", str(RESOLUTION), "-singlefile", pdf], capture_output=True,
                              check=True).stdout
        kind, width, height = data.split(maxsplit=3)[:3]
        assert kind == b"P5", "pdftoppm does not write grey pictures"
        width, height = int(width), int(height)
        points = data[-width * height:]
        return PagePicture(width, height, {divmod(at, width) for at, grey in enumerate(points) if grey < DARK})

    def turned_left(self):
        """A quarter turn: what was on top is on the left."""
        return PagePicture(self.height, self.width, {(self.width - 1 - x, y) for y, x in self.ink})

    def found_in(self, other):
        """The share of this page's ink that stands on ink of the other page or right beside it."""
        if not self.ink:
            return 0.0
        around = [(y, x) for y in (0, -1, 1) for x in (0, -1, 1)]
        return sum(any((y + dy, x + dx) in other.ink for dy, dx in around) for y, x in self.ink) / len(self.ink)

    def likeness(self, other):
        return min(self.found_in(other), other.found_in(self))
