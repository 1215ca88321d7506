# SPDX-License-Identifier: MIT
"""What the sheets of floors and parts must say, worked out from the JSON of their tally, and what they say."""
import re

LINE = 390           # height of a row of the lists
TABLE_TOP = 2937.5
NAMES = ["D 10", "D 13", "D 16", "D 19", "D 22", "D 25", "D 29", "D 32", "D 35", "D 38", "D 41", "D 51",
         "U  6", "U  7", "U  9", "U 11", "U 12", "U 16"]
SUMS = ["重量", "圧接", "ｶﾌﾟﾗ", "ＤＢ", "切断", "取重"]


def documents(trace):
    """The pages of each document, each page its texts as (x, y, text)."""
    found = []
    for line in trace.splitlines():
        word, *fields = line.split("\t")
        if word == "document":
            found.append([])
        elif word == "page":
            found[-1].append([])
        elif word == "text":
            found[-1][-1].append((float(fields[0]), float(fields[1]), fields[2]))
    return found


def figure(text):
    return int(text.replace(",", "")) if re.fullmatch(r" *[\d,]+", text) else None


def rows(page, top, height):
    """The texts of each row of a table, by X; rows without texts are left out."""
    found = {}
    for x, y, text in page:
        if y >= top and text.strip(" "):
            found.setdefault(int((y - top) // height), {})[x] = text
    return [found[row] for row in sorted(found)]


def sums(table, *places):
    """A sparse table summed over the indices that are not among the places."""
    total = {}
    for *index, value in table:
        key = tuple(index[place] for place in places)
        total[key] = total.get(key, 0) + value
    return total


def total_weight(page, label):
    text = next(text for _, _, text in page if text.startswith(label))
    found = re.search(r"(?:(\d+) t )?(\d+) Kg", text)
    return int(found[1] or 0) * 1000 + int(found[2])


def list_cells(parts, total):
    cells = {1400.0 + 1150 * i: weight for i, weight in enumerate(parts) if weight}
    return cells | ({14150.0: total} if total else {})


def check_list(trace, expected, grand):
    """`expected`: label, parts, total of each line."""
    pages = documents(trace)[0]
    lines = [row for page in pages for row in rows(page, TABLE_TOP + LINE, LINE)]
    yield "lines", [row[600.0] for row in lines], [label for label, _, _ in expected]
    for row, (label, parts, total) in zip(lines, expected):
        yield label, {x: figure(text) for x, text in row.items() if x != 600.0}, list_cells(parts, total)
    for page in pages:
        yield "総重量", total_weight(page, "総重量"), grand


def check_floor_list(trace, tally):
    yield from check_list(trace, [(row[0], row[1:12], row[12]) for row in tally["KaiGyou"]], tally["SouGoukei"])


WIDE = str.maketrans("DU 0123456789", "ＤＵ　０１２３４５６７８９")


def check_part_list(trace, tally, thin):
    listed = {row[0]: row for row in tally["BuiGyou"]}
    labels = [name.replace(" ", "", 1) if name[0] == "D" or name[2] != " " else name.replace("  ", " ") for name in NAMES]
    shown = labels[12:] if thin else labels[:12]
    lines = [(label.translate(WIDE), listed[label][1:12], listed[label][12]) for label in shown]
    lines += [("　　　", [], 0)] * (12 - len(shown))
    yield from check_list(trace, [*lines, ("合　計", listed["合計"][1:12], listed["合計"][12])], tally["SouGoukei"])


def check_blocks(trace, tally, first_column, thin):
    """Floors with weight by part and diameter, then all floors; only the columns in use are summed."""
    used = [cell for cell in tally["KaiBuiJyuuryo"] if first_column <= cell[3] < first_column + 18]
    cells, all_floors = sums(used, 0, 1, 2), sums(used, 1, 2)
    first = 12 if thin else 0

    def line(weights, total):
        shown = {2200.0 + 1050 * (r - first): weight for (r,), weight in weights.items() if weight}
        return shown | ({14650.0: total} if total else {})

    expected = []
    floors = dict(map(tuple, tally["KaiGoukei"]))
    by_part = {(f, p): weight for f, p, weight in tally["KaiBuiGoukei"]}
    for floor in tally["KaiGyouKai"][:-1]:
        f = floor + 5
        if floors.get(f, 0) <= 0:
            continue
        for p in range(1, 12):
            if by_part.get((f, p)):
                weights = {(r,): w for (f2, p2, r), w in cells.items() if (f2, p2) == (f, p)}
                expected.append(line(weights, by_part[f, p]))
        expected.append(line({(r,): w for f2, r, w in tally["KaiTaisaGoukei"] if f2 == f}, floors[f]))
    for p, total in tally["BuiGoukei"]:
        expected.append(line({(r,): w for (p2, r), w in all_floors.items() if p2 == p}, total))
    expected.append(line(sums(tally["KaiTaisaGoukei"], 1), tally["SouGoukei"]))
    lines = [row for page in documents(trace)[0] for row in rows(page, TABLE_TOP + 300, 230)]
    printed = [{x: figure(text) for x, text in row.items() if figure(text) is not None} for row in lines]
    yield "blocks", printed, expected
    yield "総重量", total_weight(documents(trace)[0][0], "総重量"), tally["SouGoukei"]


def check_sheet(pages, figures, lengths, first_column, with_weights, with_installed, first_row):
    """`figures`: of a row, the bars and weights by column, then the sums in the order of their rows."""
    for number, page in enumerate(pages):
        names = [(x - 100, text) for x, _, text in page if text in NAMES]
        yield "diameters", [text for _, text in names], NAMES[first_row + 7 * number:][:len(names)]
        for left, name in names:
            bars, weights, below = figures[NAMES.index(name)]
            group = [(x, y, text) for x, y, text in page if left <= x < left + 2190]
            found = rows(group, TABLE_TOP + 500, 250)
            labels = lengths + SUMS[:6 if with_installed else 5]
            yield f"{name} rows", [row[left + 30] for row in found], labels
            for label, row in zip(labels, found):
                if label in SUMS:
                    expected = [below[SUMS.index(label)]]
                else:
                    column = lengths.index(label)
                    expected = [bars.get(column, 0)] + [weights.get(column, 0)] * with_weights
                    if column < first_column:
                        expected = []
                printed = [figure(text) for x, text in sorted(row.items()) if x != left + 30]
                yield f"{name} {label}", printed, [value for value in expected if value]


def by_row(table, *key):
    """Row -> value of a sparse table whose first indices are the key."""
    return {index[len(key)]: index[-1] for index in table if tuple(index[:len(key)]) == key}


def by_cell(table, *key):
    found = {}
    for *index, value in table:
        if tuple(index[:len(key)]) == key:
            found.setdefault(index[len(key)], {})[index[len(key) + 1]] = value
    return found


def figures_of(bars, weights, below):
    return [(bars.get(r, {}), weights.get(r, {}), [of.get(r, 0) for of in below]) for r in range(18)]


def check_range(trace, tally, settings, with_weights, thin):
    below = [by_row(tally[name]) for name in ("TaisaGoukei", "AssetuTaisa", "NejiTaisa", "TeichakuTaisa",
                                              "SetsudanTaisa", "TaisaTorituke")]
    figures = figures_of(by_cell(tally["SouHonsu"]), by_cell(tally["TaisaTeiGoukei"]), below)
    pages = documents(trace)[0]
    yield "pages", len(pages), 2 if not thin and any(row in below[0] for row in range(7, 12)) else 1
    yield from check_sheet(pages, figures, settings["lengths"], settings["first"], with_weights, True, 12 * thin)
    for page in pages:
        yield "総重量", total_weight(page, "総重量"), tally["SouGoukei"]


def check_floors(trace, tally, settings, thin):
    stock = [cell for cell in tally["KaiBuiTeiJyuuryo"] if settings["first"] <= cell[3] < settings["first"] + 18]
    cells, rows_of_floor = sums(stock, 0, 2, 3), sums(stock, 0, 2)
    floors = dict(map(tuple, tally["KaiGoukei"]))
    printed = [floor for floor in tally["KaiGyouKai"][:-1] if floors.get(floor + 5, 0) > 0]
    sheets = documents(trace)
    yield "documents", len(sheets), len(printed)
    for floor, pages in zip(printed, sheets):
        f = floor + 5
        weights = {}
        for (f2, r, c), weight in cells.items():
            if f2 == f:
                weights.setdefault(r, {})[c] = weight
        installed = by_row(tally["KaiTaisaGoukei"], f) if tally["SouTorituke"] else {}
        below = [{r: w for (f2, r), w in rows_of_floor.items() if f2 == f}]
        below += [by_row(tally[name], f) for name in ("AssetuKai", "NejiKai", "TeichakuKai", "SetsudanKai")]
        figures = figures_of(by_cell(tally["KaiHonsu"], f), weights, [*below, installed])
        yield from check_sheet(pages, figures, settings["lengths"], settings["first"], True, True, 12 * thin)
        yield f"階重量 {floor}", total_weight(pages[0], "階重量"), floors[f]


def check_parts(trace, tally, settings, asked, thin):
    parts = [asked] if asked else list(range(1, 12))
    sheets = documents(trace)
    yield "documents", len(sheets), len(parts)
    for part, pages in zip(parts, sheets):
        below = [{r: w for r, p, w in tally["BuiTaisaGoukei"] if p == part}]
        below += [by_row(tally[name], part) for name in ("AssetuBui", "NejiBui", "TeichakuBui", "SetsudanBui")]
        figures = figures_of(by_cell(tally["BuiHonsu"], part), by_cell(tally["BuiJyuuryo"], part), below)
        yield from check_sheet(pages, figures, settings["lengths"], settings["first"], True, False, 12 * thin)
        yield f"総重量 {part}", total_weight(pages[0], "総重量"), tally["SouGoukei"]


def check_all_parts(trace, tally, thin):
    page = documents(trace)[0][0]
    weights = {(r, p): w for r, p, w in tally["BuiTaisaGoukei"]}
    welds = {(p, r): n for p, r, n in tally["AssetuBui"]}
    names = [(x, y, text) for x, y, text in page if text in NAMES]
    yield "diameters", [text for _, _, text in names], NAMES[12:] if thin else NAMES[:12]
    for x, y, name in names:
        r, left = NAMES.index(name), 500 + (x - 500) // 2600 * 2600
        group = [text for text in page if left <= text[0] < left + 2600 and y + 300 < text[1] < y + 14 * 205 - 100]
        found = [{x2 - left: figure(text) for x2, text in row.items() if figure(text) is not None}
                 for row in rows(group, y - 2.5 + 410, 205)]
        expected = [{1110.0: weights.get((r, p)), 2090.0: welds.get((p, r))} for p in range(1, 12)]
        expected += [{1110.0: by_row(tally["TaisaGoukei"]).get(r), 2090.0: by_row(tally["AssetuTaisa"]).get(r)}]
        yield name, found, [{x2: value for x2, value in line.items() if value} for line in expected]
    yield "総重量", total_weight(page, "総重量"), tally["SouGoukei"]


def checks_of(form, trace, tally, options, with_13m):
    thin = options.get("--kinds") == "0"
    lengths = [f"{3.5 + 0.5 * column:4.1f}" for column in range(18)] + ["13.0"] * with_13m
    settings = {"lengths": lengths, "first": int(with_13m)}
    if form == "kai-goukei":
        return check_floor_list(trace, tally)
    if form == "kai-bui-futo":
        return check_blocks(trace, tally, settings["first"], thin)
    if form == "kai-kakukai":
        return check_floors(trace, tally, settings, thin)
    if form.startswith("kai-meisai"):
        return check_range(trace, tally, settings, form == "kai-meisai", thin)
    if form == "bui-goukei":
        return check_part_list(trace, tally, thin)
    if form == "bui-zenbui":
        return check_all_parts(trace, tally, thin)
    return check_parts(trace, tally, settings, int(options.get("--part", 0)), thin)
