#!/usr/bin/env python3
"""Makes the master files that tests/unit/batch compares with.

    tools/make_golden_master.py           writes them to tests/data/batch/
    tools/make_golden_master.py --check   compares byte for byte

A session of four files, two of them standards, step by step: the new list, its standards saved, the factors, its samples
saved, one of them once more. The figures of each save are those that tests/unit/batch/session.hpp gives the program, the
file's fields are reckoned here with decimal numbers. The program has no part in it.
"""
import sys
from decimal import ROUND_HALF_EVEN, Decimal
from pathlib import Path

from golden_records import text, write_or_check

ROOT = Path(__file__).resolve().parent.parent
FOLDER = ROOT / "tests" / "data" / "batch"
FIELDS = 70
RATIOS = ["06/38", "07/35", "07/06"]
ISOTOPES = ["U238", "U235", "Th232", "Pb208", "Pb207", "Pb206", "Pb204", "Hgused"]

TITLES = ["No.", "Type", "Standard", "Status"]
for group in ["CF", "CF.er", "Mea.", "Cor.", "M.er", "C.er"]:
    TITLES += [f"{group} {ratio}" for ratio in RATIOS]
TITLES += ["Date", "Blank", "Selection", "Average", "error x times", "Rejection", "U235", "Hg corr. / Hg isot. used"]
TITLES += ["Pb corr."]
TITLES += [f"{isotope} cps" for isotope in ISOTOPES] + [f"{isotope} err" for isotope in ISOTOPES]
TITLES += [f"BLK {isotope}" for isotope in ISOTOPES] + [f"BLe {isotope}" for isotope in ISOTOPES]
assert len(TITLES) == 63

LIST = [
    ("001_915.csv", "Std", "91500"),
    ("002_unknown.csv", "", ""),
    ("003, second spot.csv", "", "GJ-1"),      # an unknown whose name holds a standard's abbreviation
    ("004_915.csv", "Std", "91500"),
]
FACTORS = [("1.01234", "1.1"), ("1.05", "1.3"), ("0.98765", "0.9"), ("1", "1.2")]


def bare(number):
    """A number as the file shows it: no exponent, no zeros at its end, never -0."""
    shown = f"{number.normalize():f}"
    return "0" if shown == "-0" else shown


def rounded(number, places):
    return Decimal(number).quantize(Decimal(1).scaleb(-places), ROUND_HALF_EVEN)


def header(files, samples_done, standards, standards_done):
    counters = "/".join(f"{count:04}" for count in (files, samples_done, standards, standards_done))
    return [text(counters)] + [text(title) for title in TITLES] + [text("")] * (FIELDS - 64)


def new_line(number, name, kind, standard):
    return [text(name), text(str(number)), text(kind), text(standard)] + [text("")] * (FIELDS - 4)


def saved(lines, number, ratios, errors, words, signals, sample=False):
    """The lines with the results of a file on line `number`. words: fields 24 to 26 and 28, and field 27 behind them."""
    line = list(lines[number])
    for k in range(3):
        line[11 + k] = bare(rounded(ratios[k], 5))
        line[17 + k] = bare(rounded(errors[k], 5))
    if sample:
        for measured, factor, corrected in ((11, 5, 14), (13, 7, 16)):
            line[corrected] = bare(rounded(Decimal(line[measured]) * Decimal(line[factor]), 5))
    blank, selection, average, times, rejection = words
    line[23:29] = [text("7 Jan. 2009"), text(blank), text(selection), text(average), times, text(rejection)]
    for group, first in zip(signals, (32, 40, 48, 56)):
        line[first:first + 8] = [bare(rounded(value, 0)) for value in group]
    return lines[:number] + [line] + lines[number + 1:]


def counted(lines, *counters):
    return [header(*counters)] + lines[1:]


def signals(cps, step):
    """Means as they are given, and the other three groups of eight from simple rules."""
    return [cps, [f"{k * step}.5" for k in range(1, 9)], [f"{k}.25" for k in range(1, 9)], [f"{k}.75" for k in range(1, 9)]]


NEW = [header(4, 0, 2, 0)] + [new_line(k, *row) for k, row in enumerate(LIST, 1)]

# Line 1: means. Ties go to the even digit, and what rounds to nothing has no sign.
FIRST = counted(saved(NEW, 1, ["0.179125", "1.850235", "0.074875"], ["0.0005", "0.012345", "0.000004"],
                      ["5 to 40", "60 to 160", "mean", "2", "no"],
                      signals(["1000.5", "7.5", "0.5", "1.5", "2.5", "12345.678", "-0.5", "12"], 1)), 4, 0, 2, 1)
# Line 4: medians, outliers rejected.
STANDARDS = counted(saved(FIRST, 4, ["0.18", "1.9", "0.07"], ["0.1", "0.2", "0.3"],
                          ["5 to 40", "61 to 161", "median", "2", "3 / 101, rejected by 2.5 s.d."],
                          signals(["8", "7", "6", "5", "4", "3", "2", "1"], 2)), 4, 0, 2, 2)

ACCEPTED = [list(line) for line in STANDARDS]
for number, (factor68, factor76) in enumerate(FACTORS, 1):
    ACCEPTED[number][5] = factor68
    ACCEPTED[number][7] = factor76
ACCEPTED = counted(ACCEPTED, 4, 2, 2, 2)

# Line 2: value at the start of the laser and 12 slices, 207/206 the mean. 0.0978049 x 1.05 would be 0.1027, and
# 0.0601149 x 1.3 would be 0.07815: the products are those of the figures in the file.
SAMPLE = counted(saved(ACCEPTED, 2, ["0.0978049", "0.8", "0.0601149"], ["0.001", "0.02", "0.0003"],
                       ["5 to 40", "62 to 162",
                        "Tzero intercept at 12 steps after start laser, but Pb/Pb = mean", "1", "no"],
                       signals(["8", "7", "6", "5", "4", "3", "2", "1"], 3), sample=True), 4, 3, 2, 2)
# Line 3: value at the start of the selection, nothing averaged.
DONE = counted(saved(SAMPLE, 3, ["0.054", "0.4", "0.0533"], ["0.004", "0.05", "0.006"],
                     ["5 to 40", "63 to 163", "Tzero intercept at start selection", "3", "no"],
                     signals(["80", "70", "60", "50", "40", "30", "20", "10"], 4), sample=True), 4, 4, 2, 2)
# Line 3 once more, with means.
AGAIN = saved(DONE, 3, ["0.055", "0.41", "0.0534"], ["0.003", "0.04", "0.005"],
              ["5 to 40", "64 to 164", "mean", "3", "no"],
              signals(["81", "71", "61", "51", "41", "31", "21", "11"], 5), sample=True)


def file_of(lines):
    assert all(len(line) == FIELDS for line in lines)
    return [",".join(line) for line in lines] + [""]


FILES = {
    "1-new.msf": file_of(NEW),
    "2-first-standard.msf": file_of(FIRST),
    "3-standards-done.msf": file_of(STANDARDS),
    "4-factors.msf": file_of(ACCEPTED),
    "5-first-sample.msf": file_of(SAMPLE),
    "6-all-done.msf": file_of(DONE),
    "7-saved-again.msf": file_of(AGAIN),
}


if __name__ == "__main__":
    sys.exit(write_or_check(FOLDER, FILES))
