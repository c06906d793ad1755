#!/usr/bin/env python3
"""Makes the settings files that tests/scenarios/settings compares with.

    tools/make_golden_settings.py           writes them to tests/data/settings/
    tools/make_golden_settings.py --check   compares byte for byte

They are the kit's file with other values on the lines of the changed controls: a table of key and line as a person reads it
off the map of the window. The program has no part in it.
"""
import sys
from pathlib import Path

from golden_records import changed_lines, text, write_or_check

ROOT = Path(__file__).resolve().parent.parent
KIT = ROOT / "start-kit" / "Kolvar-default-h.set"
FOLDER = ROOT / "tests" / "data" / "settings"


# A field of text is saved as text, even when nobody touched it: the dwell time is a number in the kit.
UNTOUCHED = {29: ("setIS_Dwell", text("20"))}

# Every control of the window with another value than the kit's; line: (key, value).
CHANGED = {
    21: ("setSTDabbr_IS", text("glass A")),
    22: ("setCPS_IS", 0),            # counts
    23: ("setBLK_IS", 0),            # from a Blank File
    24: ("setSTCfile_IS", text("D:\\glasses\\other.stc")),
    25: ("setSTMfile_IS", text("other.stm")),
    26: ("setFormer_Sel_IS", 0),
    27: ("setDwellFromFile_IS", 0),  # uniform
    28: ("setDWEfile_IS", text("other.dwe")),
    29: ("setIS_Dwell", text("7.5 ms")),
    30: ("setISnum", 3),
    31: ("setIntSta", text("Ca43")),
    32: ("setCcIntSta", "1234.5"),
    33: ("setErIntSta", "0.25"),     # typed ".25"
    34: ("setIntSta2", text("Al27")),
    35: ("setCcIntSta2", 1000),      # typed "1e3 ppm"
    36: ("setErIntSta2", 0),         # typed "unknown"
    37: ("setMas2", "85.5"),
    38: ("setIntSta3", text("Si29")),
    39: ("setCcIntSta3", -12),       # typed " -12abc"
    40: ("setErIntSta3", 5),         # typed "5 6"
    41: ("setMass3", 300),           # the highest boundary that is taken
    42: ("setPeriod", 1),
    43: ("setLinearIS", 1),
    45: ("setRatio_ppmIS", 2),
    46: ("setShow_linesIS", 1),
    **{47 + k: (f"setRatioShow({k})", 0) for k in range(1, 7)},
    54: ("setShowMinMax", 1),
    55: ("setRejMinMax", 1),
    56: ("setShowGrubbs", 1),
    57: ("setRejGrubbs", 1),
    58: ("setShowSD", 1),
    59: ("setRejSD", 1),
    60: ("setSD_IS", "2.5"),
    61: ("setDataTable", 3),
    62: ("setMean_IS", 0),           # median
    63: ("setOneLine_IS", 1),        # two lines
    64: ("setTableFormat", 1),       # lines are time slices
    77: ("setTestBlank", 0),
    **{77 + k: (f"setRatBLK({k})", 3) for k in range(1, 7)},  # neither numerator nor denominator corrected
    183: ("setComments_IS", text('All "changed", second profile')),
}
NAMES = ["U238", "Th232", "Xe131", "", "Li7", "Mg25", "Al27", "Si29", "Ca43", "Sc45", "Ti49", "V51"]
CHANGED.update({65 + k: (f"ratioName({k})", text(name)) for k, name in enumerate(NAMES)})

FILES = {"untouched.set": UNTOUCHED, "all-changed.set": CHANGED}


if __name__ == "__main__":
    sys.exit(write_or_check(FOLDER, {name: changed_lines(KIT, 183, changes) for name, changes in FILES.items()}))
