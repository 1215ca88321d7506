#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Reads the figures of every report form back from the paper and compares them with the tally they came from.

usage: paper_totals.py RBTALLY SITE
"""
import json
import re
import sys

import floorpart_totals
import golden

ROW_TOLERANCE = 1  # twips; texts of one row stand on one Y


def rows_of(trace):
    """The texts of the page by their row, from left to right."""
    rows = {}
    for line in trace.splitlines():
        word, *fields = line.split("\t")
        if word == "text":
            rows.setdefault(float(fields[1]), []).append((float(fields[0]), fields[2]))
    return {y: [text for _, text in sorted(texts)] for y, texts in rows.items()}


def figures(texts):
    return [int(text.replace("Kg", "").replace(",", "").strip()) for text in texts]


def row_with(rows, label):
    found = [texts for texts in rows.values() if any(re.sub(r"[\s　]", "", text) == label for text in texts)]
    return found[0] if found else None


def whole(weight):
    """A weight as the mask prints it: halves away from zero."""
    return int(abs(weight) + 0.5) * (-1 if weight < 0 else 1)


def ulbon_sum(tally, percent):
    total = 0
    for row in range(12, 18):
        weight = tally["UlbonWeight"][row] + tally["SpiralUlbonByDia"][row]
        total += int(weight + weight * percent / 100 + 0.5)
    return total


def total_weight(rows):
    text = next(text for texts in rows.values() for text in texts if text.startswith("総重量"))
    return int("".join(re.findall(r"\d+", text)))


def comparison(kind, tally, options):
    """What the forms of a kind print: the rows of the diameters, the total row, Ulbon, spirals, 総重量."""
    percent = int(options.get("--percent", 0))
    with_ulbon = options.get("--body", "1") == "1"
    hides_cuts = options.get("--start-mode") in ("1", "3")

    def cells(stock, installed, welds, cuts):
        weights = {"a": [stock, installed, stock - installed], "b": [stock], "c": [installed]}[kind]
        return [whole(weight) for weight in weights] + [welds] + ([] if hides_cuts else [cuts])

    rows = [cells(tally["StockWeightByDia"][d], tally["InstalledWeightByDia"][d], tally["WeldCount"][d],
                  tally["CutCount"][d]) for d in range(12)]
    total = cells(tally["TotalStockWeight"], tally["TotalInstalledWeight"], tally["TotalWeldCount"],
                  tally["TotalCutCount"])
    ulbon = ulbon_sum(tally, percent)
    grand = tally["TotalInstalledWeight"] if kind == "c" else tally["TotalStockWeight"]
    if with_ulbon:
        grand += ulbon + tally["SpiralTotal"]
    return rows, total, ulbon if with_ulbon else 0, tally["SpiralTotal"] if with_ulbon else 0, whole(grand)


def check_comparison(form, trace, tally, options):
    rows = rows_of(trace)
    diameters, total, ulbon, spirals, grand = comparison(form.split("-")[1], tally, options)
    labels = ["D10", "D13", "D16", "D19", "D22", "D25", "D29", "D32", "D35", "D38", "D41", "D51"]
    for label, expected in zip(labels, diameters):
        yield label, figures(row_with(rows, label)[2:]), expected
    yield "total", figures((row_with(rows, "合計") or row_with(rows, "異形合計"))[1:]), total
    yield "総重量", total_weight(rows), grand
    welds = sum(tally["UlbonWeldCount"][12:18])
    printed = row_with(rows, "ウルボン合計")
    yield "Ulbon", printed and figures(printed[1:]), [ulbon, welds] if ulbon > 0 else None
    printed = row_with(rows, "スパイラル合計")
    yield "spirals", printed and figures(printed[1:]), [whole(spirals)] if spirals > 0 else None


def check_ulbon(trace, tally, options):
    rows = rows_of(trace)
    percent = int(options.get("--percent", 0))
    for row, label in enumerate(["U6", "U7", "U9", "U11", "U12", "U16"], 12):
        weight = tally["UlbonWeight"][row] + tally["SpiralUlbonByDia"][row]
        raised = int(weight + weight * percent / 100 + 0.5)
        yield label, figures(row_with(rows, label)[1:]), [raised, tally["UlbonWeldCount"][row]]
    welds = sum(tally["UlbonWeldCount"][12:18])
    yield "total", figures(row_with(rows, "合計")[1:]), [ulbon_sum(tally, 0), welds]
    yield "総重量", total_weight(rows), ulbon_sum(tally, 0)


def pages_of(trace):
    return [page for page in trace.split("\npage\t")[1:]]


def split_by(texts, label):
    """The texts of a row from each occurrence of its label on, without the labels: one entry a diameter."""
    cells = []
    for text in texts:
        if text.strip() == label:
            cells.append([])
        elif cells:
            cells[-1].append(text)
    return cells


def listed(trace, lengths, sums):
    """What stands below each diameter: ("D10", {"6.0": [bars, weight], "重量": [n], ...})."""
    for page in pages_of(trace):
        rows = rows_of(page)
        names = [text for texts in rows.values() for text in texts if re.fullmatch(r"D \d\d", text)]
        below = [{} for _ in names]
        for label in lengths + sums:
            found = [texts for texts in rows.values() if any(text.strip() == label for text in texts)]
            for index, cells in enumerate(split_by(found[0], label) if names else []):
                below[index][label] = figures(cells)
        yield from zip((name.replace(" ", "") for name in names), below)


def check_list(form, trace, tally, options, settings):
    lengths = [f"{3.5 + 0.5 * column:.1f}" for column in range(18)] + ["13.0"] * settings["13m"]
    landscape, with_weights = "a4y" in form, not form.endswith("count")
    sums = {"重量": tally["StockWeightByDia"], "取重": tally["InstalledWeightByDia"], "圧接": tally["WeldCount"],
            "ｶﾌﾟﾗ": tally["ThreadCount"], "ＤＢ": tally["PlateCount"], "切断": tally["CutCount"]}
    if options.get("--installed") != "1" or not landscape:
        del sums["取重"]
    if not landscape:
        del sums["ｶﾌﾟﾗ"], sums["ＤＢ"]
    codes = ["D10", "D13", "D16", "D19", "D22", "D25", "D29", "D32", "D35", "D38", "D41", "D51"]
    bars, weights = ({(d, l): n for d, l, n in tally[name]} for name in ("BarCount", "StockWeight"))
    diameters = [d for d in range(12) if settings["empty"] or tally["StockWeightByDia"][d]]
    sheet = list(listed(trace, lengths, list(sums)))
    yield "diameters", [name for name, _ in sheet], [codes[d] for d in diameters]
    for d, (name, below) in zip(diameters, sheet):
        for column, label in enumerate(lengths):
            cell = [bars.get((d, column), 0)] + [whole(weights.get((d, column), 0))] * with_weights
            yield f"{name} {label}", below[label], [figure for figure in cell if figure]
        for label, values in sums.items():
            yield f"{name} {label}", below[label], [whole(values[d])] if values[d] else []
    for page in pages_of(trace):
        yield "総重量", total_weight(rows_of(page)), whole(tally["TotalStockWeight"])


def check_purchase(trace, plan):
    """The lines of the sheet, and their sum at its end; every page tells what is lost."""
    cells = [texts for page in pages_of(trace) for texts in rows_of(page).values()]
    lines = [texts for texts in cells if re.fullmatch(r"D\d\d", texts[0])]
    expected = [[f"D{line['diameter']}", line["stock"], line["planned"], line["kept"], line["bars"]]
                for line in plan["purchase"]]
    yield "lines", [[texts[0], *figures(texts[2:6])] for texts in lines], expected
    for line, texts in zip(plan["purchase"], lines):
        yield f"weight of {texts[0]}", texts[6].strip(), f"{line['tableKg']:,.1f}"
        yield f"yen of {texts[0]}", figures(texts[7:]), [] if line["yen"] is None else [whole(line["yen"])]
    total = next(texts for texts in cells if texts[0] == "合計")
    sums = [sum(line[word] for line in plan["purchase"]) for word in ("planned", "kept", "bars")]
    yield "sum", figures([text for text in total[1:] if text.strip()][:3]), sums
    losses = [texts[0].split()[-2] for texts in cells if "ロス" in texts[0]]
    told = [f"{plan['figures'][word]['lossPercent']:.3f}" for word in ("schedule", "perRow", "plan")]
    yield "losses", losses, told * len(pages_of(trace))
    whole_site = [texts[1].split()[1] for texts in cells if "ロス" in texts[0]]
    told = [f"{plan['figures'][word]['TotalStockWeight']:,.0f}" for word in ("schedule", "perRow", "plan")]
    yield "weights of the whole site", whole_site, told * len(pages_of(trace))


def check_shop(trace, plan):
    """Every pattern with its repetitions, contents, rest and cuts, in order; the marks are the ends of the pieces."""
    texts = [text for page in pages_of(trace) for row in rows_of(page).values() for text in row]
    head = r"\s*\d+\s+(残材|定尺)\s+(\d+) mm\s+x (\d+) 本\s+(\S+)\s+残 (\d+) mm\s+切断 (\d+)"
    printed = [match.groups() for match in map(re.compile(head).fullmatch, texts) if match]
    patterns = [pattern for group in plan["groups"] for pattern in group["patterns"]]
    yield "patterns", printed, [
        ("残材" if of["rest"] else "定尺", str(of["stock"]), str(of["bars"]),
         "+".join(f"{cut}x{count}" for cut, count in of["pieces"]), str(of["left"]), str(of["cuts"]))
        for of in patterns]
    marks = [[int(mark.removeprefix("端切り:")) for mark in text.split()[1:]] for text in texts if text.startswith("  墨")]
    yield "marks", marks, [marks_of(of, plan["options"]) for of in patterns]


def marks_of(pattern, options):
    """From the bar's end, whose trim is marked and cut off first; but not of a bar that is used whole."""
    whole_bar = pattern["pieces"] == [[pattern["stock"], 1]]
    at = 0 if whole_bar else options["trim"]
    marks = [at] if at > 0 else []
    for cut in [cut for cut, count in pattern["pieces"] for _ in range(count)]:
        at += cut
        marks.append(at)
        at += options["kerf"]
    return marks


def tally_of(site, options):
    """What the forms of the site are drawn from."""
    if site.family == "list":
        changes = [word for name, value in zip(site.options[::2], site.options[1::2]) for word in (name, value)
                   if name in ("--percent", "--set")]
        return json.loads(site.run("detail", "bulk", "--format", "json", *changes))
    if site.family in ("floors", "parts"):
        given = [word for name, value in options.items() for word in (name, value)
                 if name in ("--floors", "--special", "--kinds", "--uplift")]
        return json.loads(site.run("tally", site.family.removesuffix("s"), "--format", "json", *given))
    if site.family == "plan":
        return json.loads(site.run("plan", *site.options, "--format", "json"))
    start_mode = ["--start-mode", options["--start-mode"]] if "--start-mode" in options else []
    return json.loads(site.run("tally", "bulk", "--format", "json", *start_mode))


def checks_of(site, form, trace, tally, options):
    text = site.world.settings.read_text(encoding="utf-8") if site.world.settings.exists() else ""
    if site.family in ("floors", "parts"):
        return floorpart_totals.checks_of(form, trace, tally, options, "定尺13有無=1" in text)
    if site.family == "plan":
        return check_shop(trace, tally) if form == "plan-shop" else check_purchase(trace, tally)
    if site.family == "list":
        settings = {"13m": "定尺13有無=1" in text, "empty": "重量の無い太さの印字=1" in text}
        return check_list(form, trace, tally, options, settings)
    return check_ulbon(trace, tally, options) if form == "ulbon" else check_comparison(form, trace, tally, options)


def main():
    program, name = sys.argv[1:]
    failures = compared = 0
    for site in golden.sites(program, [name]):
        options = dict(zip(site.options[::2], site.options[1::2]))
        tally = tally_of(site, options)
        for form in site.forms():
            for what, printed, expected in checks_of(site, form, site.trace(form), tally, options):
                compared += 1
                if printed != expected:
                    failures += 1
                    print(f"{form}, {what}: {printed} on paper, {expected} in the tally", file=sys.stderr)
    if compared == 0:
        print("nothing was compared", file=sys.stderr)
    return 1 if failures or compared == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
