#!/usr/bin/env python3
"""The figures of drift_session.scn, reckoned from its measured ratios in exact fractions.

Each standard gives expected / measured; a least-squares line over the position in the list gives the factor of every
file. Prints a line a figure, to be compared with the scenario by eye. Shares no code with the program.
"""
from fractions import Fraction as F
from math import sqrt

EXPECTED = {"GJ-1": (F("0.0977"), F("0.0601")), "91500": (F("0.1792"), F("0.0749"))}
# position: name, measured 206/238, 207/235, 207/206; "X" is not in the table of standards
STANDARDS = {1: ("91500", "0.1600", "1.60", "0.0700"), 4: ("GJ-1", "0.0900", "0.72", "0.0570"),
             7: ("91500", "0.1750", "1.75", "0.0730"), 10: ("X", "1.0100", "1.20", "0.9900")}
LINES = 11


def line(points):
    n = len(points)
    sx, sy = sum(x for x, _ in points), sum(y for _, y in points)
    sxx, syy = sum(x * x for x, _ in points), sum(y * y for _, y in points)
    sxy = sum(x * y for x, y in points)
    slope = (n * sxy - sx * sy) / (n * sxx - sx * sx)
    r = float(n * sxy - sx * sy) / sqrt((n * sxx - sx * sx) * (n * syy - sy * sy))
    return slope, (sy - slope * sx) / n, r


points = {"68": [], "75": [], "76": []}
for place, (name, *measured) in STANDARDS.items():
    r68, r75, r76 = map(F, measured)
    if name in EXPECTED:
        r68, r76 = EXPECTED[name][0] / r68, EXPECTED[name][1] / r76
    for ratio, y in (("68", r68), ("75", r75), ("76", r76)):
        points[ratio].append((place, y))
everything = [float(y) for ratio in points.values() for _, y in ratio]
print("least and greatest", repr(min(everything)), repr(max(everything)))
for ratio, of_ratio in points.items():
    slope, intercept, r = line(of_ratio)
    print(ratio, "A", repr(float(intercept)), "B", repr(float(slope)), "r", repr(r), "shown", f"{float(slope):.4f} {r:.4f}")
    if ratio != "75":
        print("   factors", [float(round(intercept + i * slope, 5)) for i in range(1, LINES + 1)])
