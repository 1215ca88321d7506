#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Reads the figures of every report form back from the paper and compares them with the tally they came from.

usage: paper_totals.py RBTALLY SITE
"""
import json
import re
import sys

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


def main():
    program, name = sys.argv[1:]
    failures = compared = 0
    for site in golden.sites(program, [name]):
        options = dict(zip(site.options[::2], site.options[1::2]))
        start_mode = ["--start-mode", options["--start-mode"]] if "--start-mode" in options else []
        tally = json.loads(site.run("tally", "bulk", "--format", "json", *start_mode))
        for form in golden.FORMS:
            trace = site.trace(form)
            checks = check_ulbon(trace, tally, options) if form == "ulbon" else check_comparison(
                form, trace, tally, options)
            for what, printed, expected in checks:
                compared += 1
                if printed != expected:
                    failures += 1
                    print(f"{form}, {what}: {printed} on paper, {expected} in the tally", file=sys.stderr)
    if compared == 0:
        print("nothing was compared", file=sys.stderr)
    return 1 if failures or compared == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
