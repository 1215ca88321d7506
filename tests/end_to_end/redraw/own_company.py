# SPDX-License-Identifier: MIT
"""The own-company block, drawn a second time from the values of STEEL.INI as they were typed."""

from pen import FONT

POSTAL = "〒"
BUFFERS = {"会社名": 80, "住所": 80, "名称": 20, "TEL": 30, "FAX": 30, "郵便番号": 30, "MAIL": 40}


def read(company, key):
    """What a buffer takes, its last byte ending the text; of a label half as many characters as it has bytes."""
    kind = key.rstrip("123")
    held = company.get(key, "").encode("cp932")[:BUFFERS[kind] - 1].decode("cp932", "ignore")
    return held[:len(held.encode("cp932")) // 2] if kind == "名称" else held


def address_size(text):
    for over, size in ((18, 8), (16, 9), (15, 10), (13, 11)):
        if len(text) > over:
            return size
    return 12


class Block:
    LINES = ("住所1", "住所2", "住所3", "TEL1", "TEL2", "TEL3", "FAX1", "FAX2", "MAIL1", "MAIL2")

    def __init__(self, company, name_whole, address2_whole, label_face=FONT):
        self.value = {key: read(company, key) for key in
                      ("会社名", "名称1", "名称2", "郵便番号1", "郵便番号2", *self.LINES)}
        self.name_whole, self.address2_whole, self.label_face = name_whole, address2_whole, label_face

    def draw(self, pen, x, y):
        self._visit(pen, x, y)

    def bottom(self, y):
        """Nothing of the block stands lower."""
        return self._visit(None, 0, y)

    def _visit(self, pen, x, y):
        lines = 1 + sum(1 for key in self.LINES if self.value[key])
        self.pen, self.x, self.foot = pen, x, 0
        self.y = y - 300 if lines >= 11 else y + (8 - lines) * 100
        self.step = self._name()
        self._addresses()
        self._contacts()
        self._second_office()
        return self.foot

    def _reach(self, size):
        self.foot = max(self.foot, self.y + size * 20)

    def _down(self, twips_a_point, more=0):
        self.y += self.step * twips_a_point + 10 + more

    def _name(self):
        name = self.value["会社名"]
        x, box = (self.x, 4320) if self.value["名称1"] or self.value["名称2"] else (self.x + 960, 3360)
        fitting = [size for size in (14, 13, 12, 11) if size * 10 * len(name.encode("cp932")) <= box]
        size = fitting[0] if fitting else 10
        self._reach(max(size, 11) if self.name_whole else size)
        if self.pen and self.name_whole:
            self.pen.font(max(size, 11), True)
            self.pen.text(x, self.y, name)
        elif self.pen:
            self.pen.font(size, True)
            self.pen.spread(x, self.y, name, self.pen.gap(box, name))
        return size

    def _postal(self, key):
        self._reach(10)
        if self.pen:
            self.pen.font(10, False)
            self.pen.text(self.x - 100, self.y, POSTAL + self.value[key])

    def _address(self, label, text, whole=False, at_most=10):
        size = min(address_size(text), at_most)
        self._reach(size)
        if not self.pen:
            return
        self.pen.font(size, False)
        self.pen.face = self.label_face
        self.pen.text(self.x, self.y, label)
        self.pen.face = FONT
        if whole:
            self.pen.text(self.x + 960, self.y, text)
        else:
            self.pen.spread(self.x + 960, self.y, text, self.pen.gap(3360, text))

    def _number(self, key):
        self._reach(10)
        if self.pen:
            self.pen.font(10, False)
            self.pen.text(self.x - 350 + 1560, self.y, key[:3])
            self.pen.spread(self.x - 350 + 2060, self.y, self.value[key], self.pen.gap(2260, self.value[key]))

    def _mail(self, key):
        self._reach(8)
        if self.pen:
            self.pen.font(8, False)
            self.pen.text(self.x + 1560, self.y, "E-mail: ")
            self.pen.text(self.x + 2210, self.y, self.value[key])

    def _addresses(self):
        value = self.value
        self.postal_drawn = bool(value["郵便番号1"] and value["住所1"] and not value["名称1"])
        if value["住所1"]:
            self._down(20)
            self._address(value["名称1"], value["住所1"], at_most=12)
            self.step = 10
        if self.postal_drawn:
            self._postal("郵便番号1")
        if value["住所2"]:
            self._down(20)
            self._address("", value["住所2"], self.address2_whole)
            if value["郵便番号2"] and not value["名称1"]:
                self._postal("郵便番号1")  # the second one asks, the first one stands there

    def _contacts(self):
        value = self.value
        if value["TEL1"]:
            self._down(18)
            self._number("TEL1")
            if value["郵便番号1"] and not self.postal_drawn:
                self._postal("郵便番号1")
        for key in ("TEL2", "FAX1"):
            if value[key]:
                self._down(16)
                self._number(key)
        if value["MAIL1"]:
            self._down(14)
            self._mail("MAIL1")

    def _second_office(self):
        value = self.value
        labelled = bool(value["名称2"].strip(" "))
        if value["名称2"] or value["住所3"]:
            self._down(14, 40)
            self._address(value["名称2"], value["住所3"])
            self.step = 10
        if value["郵便番号2"] and not labelled and value["住所3"]:
            self._postal("郵便番号2")
        if value["TEL3"]:
            self._down(18)
            self._number("TEL3")
            if value["郵便番号2"] and labelled:
                self._postal("郵便番号2")
        if value["FAX2"]:
            self._down(16)
            self._number("FAX2")
        if value["MAIL2"]:
            self._down(14, 50)
            self._mail("MAIL2")
