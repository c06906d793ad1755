#!/usr/bin/env python3
"""Makes the default files that tests/scenarios/defaults compares with.

    tools/make_golden_defaults.py           writes them to tests/data/defaults_windows/
    tools/make_golden_defaults.py --check   compares byte for byte

They are the kit's file with other values on the lines of the changed controls: a table of key and line as a person reads it
off the two windows. The program has no part in it.
"""
import sys
from pathlib import Path

from golden_records import changed_lines, text, write_or_check

ROOT = Path(__file__).resolve().parent.parent
KIT = ROOT / "start-kit" / "KolvAge-default-b01.def"
FOLDER = ROOT / "tests" / "data" / "defaults_windows"
STANDARDS = 6                      # in the kit: a row for each from line 78 on, then a row of errors for each
FIRST_ROW = 78

# Without U235 there is no Wetherill diagram: the window shows the other one, and it is taken.
UNTOUCHED = {58: ("setConcordia", 1)}

# What both windows have, with another value than the kit's; line: (key, value).
COMMON = {
    33: ("setSTDabbr", text("ref")),
    34: ("Hg8_4", "1.5"),
    35: ("Hg9_4", "2.25"),
    36: ("Hg0_4", "3.5"),          # typed "3.5 x"
    37: ("Hg1_4", 0),              # typed "unknown"
    38: ("Hg2_4", 10),             # typed "1e1"
    39: ("Pb6_4", 19),
    40: ("Pb7_4", "15.7"),
    41: ("Pb8_4", "0.5"),          # typed ".5"
    42: ("UU8_5", "137.88"),
    43: ("dweU238", "0.02"),       # typed in ms: "20"
    44: ("dweU235", "0.00025"),    # "0.25"
    45: ("dweTh232", "0.0125"),    # "12.5 ms"
    46: ("dwePb208", "0.03"),      # "30"
    47: ("dwePb207", "0.057"),     # "57"
    48: ("dwePb206", 1),           # "1e3"
    49: ("dwePb204", 0),           # ""
    50: ("setLinear", 1),
    51: ("setLinearRatios", 1),
    52: ("set_68 ", 0),
    53: ("set_75 ", 0),
    54: ("set_082 ", 1),
    55: ("set_382 ", 1),
    56: ("set_76 ", 0),
    57: ("setLinReg ", 0),
    58: ("setConcordia", 1),
    60: ("setBzz_Prompt", 1),
    61: ("setZizzRange", "7.5"),
    62: ("setZizzType", 1),        # data
    63: ("setBzzPlot", 1),         # Tera-Wasserburg
    64: ("setBzzMethod", 1),       # Skewness
    65: ("setShowOL", 0),
    66: ("setOL_68", 0),
    67: ("setOL_75", 1),
    68: ("setOL_082", 1),
    69: ("setOL_382", 1),
    70: ("setOL_76", 0),
    71: ("setRej_Man", 1),         # Automatc
    72: ("setOL_SD", "2.5"),
    90: ("setAver", 1),            # Tzero intercept
    91: ("setMean_UP", 1),         # Median
    92: ("setTzero", 2),
    93: ("setDelay", 12),
    94: ("setPbAver", 0),
    95: ("setErr_times", 3),
    96: ("setErr ", 3),
    97: ("setPasteDat", 0),        # major data
    98: ("setComments ", text('All "changed", second line')),
}
MINERALS = ["titanite", "anatase", "cheralite", "baddeleyite", "pyrochlore", "epidote", "loparite", "apatite"]
COMMON.update({25 + k: (f"setMineral({k})", text(name)) for k, name in enumerate(MINERALS)})

URANIUM_LEAD = {
    3: ("Method", 3),
    **COMMON,
    59: ("setFormer_Sel", 0),
    73: ("setHg_corr", 0),
    74: ("setComm_Pb", 1),
    75: ("set235_Calc", 1),
    76: ("setNumSTD", 7),
    77: ("setPrefSTD", 2),         # Plesovice
}
# The third standard with every field changed, and a new one behind the last.
THIRD = ['"Plesovice","PLE",1.5,2.5,3.5,0.06,0.4,0.017,0.0533,338', "0.1,0.2,0.3,0.001,0.01,0.0001,0.00002,0.37"]
NEW = ["\"Own, 'new'\",\"type here\",1,1,1,1,1,1,1,1", "1,1,1,1,1,1,1,1"]

FLEX = {
    3: ("Method", 2),
    **COMMON,
    75: ("set235_Calc", '""'),     # emptied, whatever its box shows
}


def changed(changes):
    return changed_lines(KIT, 98, changes)


def with_standards(lines):
    first = FIRST_ROW - 1
    lines[first + 2] = THIRD[0]
    lines[first + STANDARDS + 2] = THIRD[1]
    lines.insert(first + 2 * STANDARDS, NEW[1])
    lines.insert(first + STANDARDS, NEW[0])
    return lines


def cut_in_a_row():
    """Ends within the third standard; what stands before differs from the kit's, to be seen if it were taken."""
    lines = changed(URANIUM_LEAD)[: FIRST_ROW + 2]
    return lines[:-1] + [lines[-1][: len(lines[-1]) // 2]]


def with_number_of_standards(count):
    lines = changed({76: ("setNumSTD", count)})
    names = [f'"standard {k}","s{k}",0,0,0,0.1,1,0.05,0.06,600' for k in range(1, count + 1)]
    errors = ["0,0,0,0,0,0,0,0"] * count
    return lines[: FIRST_ROW - 1] + names + errors + lines[FIRST_ROW - 1 + 2 * STANDARDS:]


FILES = {
    "untouched.def": changed(UNTOUCHED),
    "uranium-lead-all-changed.def": with_standards(changed(URANIUM_LEAD)),
    "flex-all-changed.def": changed(FLEX),
    "cut-in-a-row.def": cut_in_a_row(),
    "thirty.def": with_number_of_standards(30),
    "thirty-one.def": with_number_of_standards(31),
}


if __name__ == "__main__":
    sys.exit(write_or_check(FOLDER, FILES))
