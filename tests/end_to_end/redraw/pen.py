# SPDX-License-Identifier: MIT
"""A pen that writes down what it draws, and the number masks of the reports. Twips in single precision."""
import struct
from decimal import ROUND_HALF_UP, Decimal

FONT = "ＭＳ ゴシック"


def single(x):
    return struct.unpack("f", struct.pack("f", x))[0]


def byte_length(text):
    return len(text.encode("cp932"))


def shown(x):
    """Two decimals, without zeros at the end."""
    return f"{x:.2f}".rstrip("0").rstrip(".")


class Pen:
    def __init__(self, paper_code, orientation):
        self.lines = [f"document\tPDF\t{paper_code}\t{orientation}", "page\t1"]
        self.y = 0.0  # of the line after the last text
        self.size, self.bold, self.rule_width = 10.0, False, 1
        self.face = FONT
        self.messages = 0
        self._font = None

    def font(self, size, bold=None):
        self.size = float(size)
        self.bold = self.bold if bold is None else bold

    def height(self):
        return self.size * 20

    def width(self, text):
        return single(byte_length(text) * self.size * 10)

    def text(self, x, y, text):
        font = f"font\t{self.face}\t{shown(self.size)}\t{int(self.bold)}"
        if font != self._font:
            self.lines.append(font)
        self._font = font
        escaped = text.replace("\\", "\\\\").replace("\t", "\\t").replace("\n", "\\n")
        y = single(y)
        self.lines.append(f"text\t{shown(single(x))}\t{shown(y)}\t{escaped}")
        self.y = single(y + self.height())

    def rule(self, x1, y1, x2, y2):
        places = "\t".join(shown(single(place)) for place in (x1, y1, x2, y2))
        self.lines.append(f"line\t{places}\t{self.rule_width}")

    def ruled(self, place, y, text):
        """A text over its rule: X, and the rule's ends."""
        x, left, right = place
        self.text(x, y, text)
        self.rule(left, self.y, right, self.y)

    def gap(self, width, text):
        """What spreads the text over the width; a text of one character has none, and that is told."""
        if len(text) > 1:
            return single(single(width - self.width(text)) / (len(text) - 1))
        self.messages += 1
        return 0.0

    def spread(self, x, y, text, gap):
        x = single(x)
        for character in text:
            self.text(x, y, character)
            x = single(x + single(self.width(character) + gap))


def rounded(x, places=0):
    """Halves away from zero."""
    return Decimal(x).quantize(Decimal(1).scaleb(-places), ROUND_HALF_UP)


def right(text, characters):
    return (" " * characters + text)[-characters:]


def count(x, characters):
    return right(f"{int(rounded(x)):,}", characters)


def weight(x, characters=11):
    return count(x, characters) + " Kg"


def total_weight(x):
    whole = int(rounded(x))
    return right(f"{whole // 1000} t {whole % 1000:03} Kg" if x >= 1000 else f"{whole} Kg", 14)
