#!/usr/bin/env python3
"""Makes tests/scenarios/export and the small tables of tests/data/export that these read.

    tools/make_export_scenarios.py           writes them
    tools/make_export_scenarios.py --check   compares byte for byte

Every text that must come out of a table is reckoned here from its counts. The program has no part in it.
"""
import math
import statistics
import sys
from decimal import ROUND_HALF_EVEN, ROUND_HALF_UP, Decimal
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
SCENARIOS = ROOT / "tests" / "scenarios" / "export"
TABLES = ROOT / "tests" / "data" / "export"

SLICES, BLANK, SIGNAL, BEAM = 30, (2, 6), (14, 25), 9
HG202_204 = 4.3607  # of the kit's default file, as the next two
ERROR_TIMES = 2
OUTLIER_LIMIT = 3
SMALLEST_NET = 0.01

# Column: blank, signal, size of their scatter. The ratios drift with time, so that the T-zero values differ from the means.
URANIUM = {"U238": (12, 52000, 700), "U235": (3, 380, 9), "Th232": (9, 26000, 400), "Pb208": (30, 1500, 40),
           "Pb207": (14, 620, 17), "Pb206": (22, 9400, 150), "Pb204": (60, 71, 8), "Hg202": (150, 160, 25),
           "Si29": (800, 90000, 900)}
SPOILT = {("Pb206", 17): 3100, ("Pb207", 21): 500}  # a particle: outliers of 206/238 and of 207/206
SOLUTION = {"ThO248": (5, 40000, 500), "UO254": (4, 300, 7), "Zr91": (20, 16000, 300), "Ca43": (700, 9000, 120),
            "Sm147": (1, 2200, 60), "Pt195": (2, 6000, 90), "Pt198": (0, 1700, 50)}
FULL_GROUP = ("U238", "U235", "Th232", "Pb208", "Pb207", "Pb206", "Pb204", "Hg20x")


def scatter(slice_, column, size):
    """Whole numbers between -size and size, without a pattern that a ratio could cancel."""
    return (slice_ * slice_ * (7 + 2 * column) + 13 * slice_ * (column + 3) + 5 * column) % (2 * size + 1) - size


def table(columns, spoilt):
    out = {}
    for k, (name, (blank, signal, size)) in enumerate(columns.items()):
        cells = []
        for t in range(1, SLICES + 1):
            low = blank + scatter(t, k, min(blank // 3, 40))
            high = signal + scatter(t, k, size) - (t - BEAM) * (signal // (90 + 25 * k))
            cells.append((high if t >= BEAM else low) + spoilt.get((name, t), 0))
        out[name] = cells
    return out


def file_of(cells):
    lines = [",".join(cells)] + [",".join(str(c[t]) for c in cells.values()) for t in range(SLICES)]
    return "".join(line + "\n" for line in lines)


def safe(number, step):
    """Refuses a number so near to the middle between two roundings that the last bit decides."""
    part = abs(number / step) % 1
    assert abs(part - 0.5) > 1e-7 or number == round(number * 2) / 2, number
    return Decimal(repr(number))


def R(number):
    return str(int(safe(number, 1).quantize(Decimal(1), ROUND_HALF_EVEN)) + 0)


def whole(number):
    return str(int(safe(number, 1).quantize(Decimal(1), ROUND_HALF_UP)) + 0)


def F(number):
    return str(safe(number, 1e-4).quantize(Decimal("0.0001"), ROUND_HALF_UP))


def V(number):
    return F(number).rstrip("0").rstrip(".")


class Ratio:
    """Of the slices that count: mean, s.d., line through them, s.d. about the line. Without rejection also the median."""

    def __init__(self, all_slices, counted):
        self.slices = all_slices
        xs, ys = zip(*((t, all_slices[t]) for t in counted))
        self.mean, self.sd = statistics.fmean(ys), statistics.stdev(ys)
        self.median = statistics.median(all_slices.values())
        x0, n = statistics.fmean(xs), len(xs)
        self.slope = sum((x - x0) * (y - self.mean) for x, y in zip(xs, ys)) / sum((x - x0) ** 2 for x in xs)
        self.intercept = self.mean - self.slope * x0
        about = sum((y - self.intercept - self.slope * x) ** 2 for x, y in zip(xs, ys))
        self.residual = math.sqrt(about / (n - 1))

    def at(self, slice_):
        return self.intercept + self.slope * slice_


class Spot:
    def __init__(self, cells, pairs, mercury=None, limit=None):
        self.names = list(cells)
        blank = {n: c[BLANK[0] - 1:BLANK[1]] for n, c in cells.items()}
        self.blank = {n: statistics.fmean(b) or 0.0001 for n, b in blank.items()}
        self.blank_sd = {n: math.sqrt(sum((v - self.blank[n]) ** 2 for v in b) / (len(b) - 1)) or 0.0001
                         for n, b in blank.items()}
        net = {n: {t: max(c[t - 1] - self.blank[n], 0) or SMALLEST_NET for t in range(1, SLICES + 1)}
               for n, c in cells.items()}
        if mercury:  # from the raw signal: the blank of the Hg column alone is taken off
            for t in range(BLANK[1], SLICES + 1):
                net["Pb204"][t] = cells["Pb204"][t - 1] - self.blank[mercury] / HG202_204
        self.net = net
        selected = range(SIGNAL[0], SIGNAL[1] + 1)
        of = {k: {t: net[a][t] / net[b][t] for t in selected} for k, (a, b) in pairs.items()}
        first = {k: Ratio(v, selected) for k, v in of.items()}
        self.rejected = set()
        if limit:
            for k in ("68", "76"):
                self.rejected |= {t for t in selected if abs(of[k][t] - first[k].mean) > limit * first[k].sd}
        counted = [t for t in selected if t not in self.rejected]
        self.n, self.total = len(counted), len(selected)
        self.d = math.sqrt(self.n - 1)
        self.ratios = {k: Ratio(v, counted) for k, v in of.items()}
        # All selected slices divide the sum of those that count, and make the s.d.
        self.mean = {n: sum(c[t] for t in counted) / self.total for n, c in net.items()}
        self.sd = {n: math.sqrt(sum((c[t] - self.mean[n]) ** 2 for t in selected) / (self.total - 1)) or 0.0001
                   for n, c in net.items()}

    def groups(self, names):
        """Signals, their errors, their s.d., blanks, their s.d.; a name that is not measured stands for column 0."""
        tables = (self.mean, {n: v / self.d for n, v in self.sd.items()}, self.sd, self.blank, self.blank_sd)
        return [R(t[n]) if n in t else "0" for t in tables for n in names]


UP_PAIRS = {"68": ("Pb206", "U238"), "75": ("Pb207", "U235"), "82": ("Pb208", "Th232"), "382": ("U238", "Th232"),
            "76": ("Pb207", "Pb206")}
FLEX_PAIRS = {"68": ("Pt195", "ThO248"), "82": ("Ca43", "Zr91"), "382": ("ThO248", "Zr91"), "85": ("ThO248", "UO254")}
FILE = ["spot.csv", "7 Jan. 2009", "2 to 6", "14 to 25"]
GROUPS = ["[Blank corrected cps]", "[Std. error of cps]", "[Std. deviation of cps]", "[Blank cps]", "[Std. dev. of blank]"]
KINDS = ["[Isotope ratios]", "[Std. error of isot. ratios]", "[Std. deviation of isot. ratios]"]


def title(first, columns, ratios):
    places = {0: first}
    for k, words in enumerate(KINDS):
        places[columns + k * ratios] = words
    for k, words in enumerate(GROUPS):
        places[columns + 3 * ratios + 8 * k] = words
    return "\t".join(places.get(k, "") for k in range(max(places) + 1))


def heads(first, ratios, short, isotopes):
    out = first + ratios + [k + s for k in ("SE ", "SD ") for s in short]
    return "\t".join(out + [p + i for p in ("", "se ", "sd ", "blk ", "bSD ") for i in isotopes])


FULL_TITLE = title("KOLVAR  -  Export of LA-ICP-MS U/Pb data", 7, 5)
FULL_HEADS = heads(["File:", "Date:", "Blank:", "Selection:", "Average:", "error x times:", "Rejection:"],
                   ["Pb206/U238", "Pb207/U235", "Pb208/Th232", "U238/Th232", "Pb207/Pb206"],
                   ["206/238", "207/235", "208/232", "238/232", "207/206"], FULL_GROUP)
FLEX_TITLE = title("KOLVAR  -  Export of Solution-MS U & Th & Sm data", 6, 4)
FLEX_HEADS = heads(["File:", "Date:", "Blank:", "Selection:", "Rejection:", "error x times:"],
                   ["U233/U238", "Th230/Th232", "U238/Th232", "U238/U235"], ["233/238", "230/232", "238/232", "238/235"],
                   ["U238", "U235", "U233", "Th232", "Th230", "Sm147", "Ca43", "Pt195"])
MAJOR_HEADS = "\t".join(
    "Kolvar export,202,204Hg,204Pb,206,207,208,232,235,238,204m,204cPb,206cPb,207cPb,206,207,208,232,235,238,207/206,1s%,"
    "207*/206*,1s%,207/235,1s%,206/238,1s%,208*/232,1s%,208/232,1s%,,206/238fra,208/232".split(","))


def full(spot, method="mean", rejection="no", tzero=None, lead_mean=False, average="mean"):
    values, deviations = [], []
    for k, ratio in spot.ratios.items():
        averaged = tzero is None or (lead_mean and k == "76")
        values.append(getattr(ratio, average) if averaged else ratio.at(tzero))
        deviations.append(ERROR_TIMES * (ratio.sd if averaged else ratio.residual))
    fields = FILE + [method, str(OUTLIER_LIMIT), rejection] + [F(v) for v in values]
    fields += [F(v / spot.d) for v in deviations] + [F(v) for v in deviations]
    fields += spot.groups(["Hg202" if n == "Hg20x" else n for n in FULL_GROUP])
    return "".join(f + "\t" for f in fields)


def major(spot, tzero=None, lead_mean=False, as_deviations=False):
    order = ["Pb206", "Pb207", "Pb208", "Th232", "U235", "U238"]
    fields = ["spot.csv", R(spot.blank["Hg202"]), R(spot.blank["Hg202"] / HG202_204), "--204"]
    fields += [R(spot.blank[n]) for n in order] + [R(spot.mean["Pb204"]), "204cPb", "", ""]
    fields += [R(spot.mean[n]) for n in order]

    def result(k):
        ratio, averaged = spot.ratios[k], tzero is None or (lead_mean and k == "76")
        error = ERROR_TIMES * (ratio.sd if averaged else ratio.residual) / (1 if as_deviations else spot.d)
        return [V(ratio.mean if averaged else ratio.at(tzero)), F(error)]

    fields += result("76") + ["---", "-"] + result("75") + result("68") + ["---", "-"] + result("82")
    return "\t".join(fields + ["", "206/238fra", "208/232"])


def solution(spot, rejection="no"):
    ratios = list(spot.ratios.values())
    fields = FILE + [rejection, str(ERROR_TIMES)] + [F(r.mean) for r in ratios]
    fields += [F(ERROR_TIMES * r.sd / spot.d) for r in ratios] + [F(r.sd) for r in ratios]
    fields += spot.groups(["ThO248", "UO254", "Pt195", "Zr91", "Ca43", "Sm147", "Pt198", "no column"])
    return "".join(f + "\t" for f in fields)


def selected(spot):
    slices = range(SIGNAL[0], SIGNAL[1] + 1)
    lines = ["* * * * *  KolvAGE  -  Export of processed Laser-ICP-MS U/Pb data  (table contains only the selected time slices)",
             "Data are blank corrected cps and uncorrected isotope ratios", "Date:\t7 Jan. 2009", "Data File:\tspot.csv",
             "Blank time slices:\t2 to 6", "", "\t\tTime slices:\t" + "\t".join(map(str, slices)),
             "Isotopes\tBlank [cps]\tOutliers:\t" + "\t".join("rejected" if t in spot.rejected else "" for t in slices)]
    for name in spot.names[1:]:
        lines.append(f"{name}\t{whole(spot.blank[name])}\t\t" + "\t".join(whole(spot.net[name][t]) for t in slices))
    lines.append("ISOTOPE RATIOS")
    for name, ratio in zip(("Pb206/U238", "Pb207/U235", "Pb208/Th232", "U238/Th232", "Pb207/Pb206"), spot.ratios.values()):
        lines.append(f"{name}\t\t\t" + "\t".join(F(ratio.slices[t]) for t in slices))
    return "".join(line + "\r" for line in lines)


# ---- The scenarios

def quoted(text):
    for plain, written in (("\\", "\\\\"), ('"', '\\"'), ("\t", "\\t"), ("\r", "\\r"), ("\n", "\\n")):
        text = text.replace(plain, written)
    return f'"{text}"'


def clipboard(text):
    return "expect clipboard " + quoted(text)


def with_comma(line):
    """The same text on a machine whose decimal sign is a comma: only numbers change."""
    fields = [f.replace(".", ",") if f.lstrip("-").replace(".", "", 1).isdigit() else f for f in line.split("\t")]
    return "\t".join(fields).replace("at 4.5 steps", "at 4,5 steps").replace("by 2.5 s.d.", "by 2,5 s.d.")


MARKS = [f"mark frm2_UP.pict1 left shift {BLANK[0]}", f"mark frm2_UP.pict1 right shift {BLANK[1]}",
         f"mark frm2_UP.pict1 left {SIGNAL[0]}", f"mark frm2_UP.pict1 right {SIGNAL[1]}"]
START = ["start 1", "today 2009-01-07 14:03:22", "copy data/export/spot.csv spot.csv", 'answer open "spot.csv"',
         "click frm1_Settings.mnuFile(0)"] + MARKS
REJECT = ['type frm2_UP.txtSD "2.5"', "enter frm2_UP.txtSD", "click frm2_UP.cmdReject",
          'expect frm2_UP.lblOM text "2 / 12"']
REJECTION = "2 / 12, rejected by 2.5 s.d."
HEAD, LINE, FILE_BUTTON = "click frm2_UP.cmdCopyHead", "click frm2_UP.cmdCopy", "click frm2_UP.cmdApp"
REDRAW = ["click frm2_UP.chkLinReg", "click frm2_UP.chkLinReg"]
END = ["expect no message"]
REFUSED = ['expect message "Run-time error: %s, in copy_to_clpb\\n0_summary" title "KOLVAR"' % why
           for why in ("file can't be written", "disk full")]


def scenarios():
    cells = table(URANIUM, SPOILT)
    spot = Spot(cells, UP_PAIRS, "Hg202")
    kept = Spot(cells, UP_PAIRS, "Hg202", 2.5)
    assert len(kept.rejected) == 2 and kept.rejected == {17, 21}
    flex_cells = table(SOLUTION, {})
    flex = Spot(flex_cells, FLEX_PAIRS)
    tables = {"spot.csv": file_of(cells), "solution.csv": file_of(flex_cells)}

    out = {}
    out["all_data"] = ["# All data: title, heads and line; the line alone; what it leaves behind. Then the median."] + START + [
        'expect frm2_UP.cmdCopyHead text "Copy results with head"', 'expect frm2_UP.cmdCopy text "Copy results"',
        'expect frm2_UP.cmdApp text "Append SUMMARY file"', 'expect frm2_UP.cmdCopySel text "Copy selected time slices"',
        f"expect Err68 {ERROR_TIMES * spot.ratios['68'].sd / spot.d!r} within 1e-9",
        HEAD, clipboard(f"{FULL_TITLE}\r{FULL_HEADS}\r{full(spot)}"), LINE, clipboard(full(spot)),
        "# The errors of the screen hold the deviations until the next redraw.",
        f"expect Err68 {ERROR_TIMES * spot.ratios['68'].sd!r} within 1e-9",
        f"expect Err76 {ERROR_TIMES * spot.ratios['76'].sd!r} within 1e-9",
        "# A line of major data made of them.", "put setPasteDat 0", LINE, clipboard(major(spot, as_deviations=True))
    ] + REDRAW + [LINE, clipboard(major(spot)), "# The errors stay absolute whatever the screen shows.",
                  "put setPasteDat 1", "put setErr 3", "put setMean_UP 1"] + REDRAW + [
        LINE, clipboard(full(spot, "median", average="median")), "# No layout of another number.", "put setPasteDat 2",
        LINE, clipboard(""), HEAD, clipboard("\r")] + END

    tzero = ["# All data at T-zero: its three places, and lead that stays a mean."] + START + [
        f"expect BeamStart {BEAM}", "put setAver 1", "put setPbAver 0"] + REDRAW + [
        LINE, clipboard(full(spot, "Tzero intercept at start selection", tzero=SIGNAL[0])), "put setPbAver 1", LINE,
        clipboard(full(spot, "Tzero intercept at start selection, but Pb/Pb = mean", tzero=SIGNAL[0], lead_mean=True)),
        "put setTzero 1"] + REDRAW + [
        LINE, clipboard(full(spot, "Tzero intercept at start laser ,but Pb/Pb = mean", tzero=BEAM, lead_mean=True)),
        "put setPbAver 0", LINE, clipboard(full(spot, "Tzero intercept at start laser", tzero=BEAM)),
        "put setTzero 2", "put setDelay 4.5"] + REDRAW + [
        LINE, clipboard(full(spot, "Tzero intercept at 4.5 steps after start laser", tzero=BEAM + 4.5)),
        "put setPbAver 1", "put setMean_UP 1", LINE,
        clipboard(full(spot, "Tzero intercept at 4.5 steps after start laser, but Pb/Pb = mean", tzero=BEAM + 4.5,
                       lead_mean=True, average="median"))] + END
    out["t_zero"] = tzero

    out["major_data"] = ["# Major data have no title: two lines. Neither median nor kind of error shows in them."] + START + [
        "put setPasteDat 0", HEAD, clipboard(f"{MAJOR_HEADS}\r{major(spot)}"), LINE, clipboard(major(spot)),
        "put setMean_UP 1", LINE, clipboard(major(spot)), "# At T-zero, lead as a mean and then not.", "put setAver 1"
    ] + REDRAW + [LINE, clipboard(major(spot, SIGNAL[0], True)), "put setPbAver 0", LINE,
                  clipboard(major(spot, SIGNAL[0]))] + END

    out["rejected"] = ["# Rejected slices: the text of the rejection, the lowered signals, the marks of the slices."] + START + [
        "click frm2_UP.cmdCopySel", clipboard(selected(spot))] + REJECT + [
        LINE, clipboard(full(kept, rejection=REJECTION)), "click frm2_UP.cmdCopySel", clipboard(selected(kept)),
        "put setPasteDat 0"] + REDRAW + [LINE, clipboard(major(kept)),
        "# One slice alone has no standard error. The window can be used afterwards.",
        "put setPasteDat 1", "put SelNGood 1", "answer continue", HEAD,
        'expect message "Run-time error: division by zero, in copy_to_clpb" title "KOLVAR"', "expect window frm2_UP",
        "click frm2_UP.cmdReject", LINE, clipboard(full(spot))] + END

    out["solution"] = ["# The layout of solutions: fixed heads, and below them what the catalogue has put into the slots."] + [
        "start 3", "today 2009-01-07 14:03:22", "copy data/export/solution.csv spot.csv", 'answer open "spot.csv"',
        "click frm1_Settings.Command15"] + MARKS + [
        "expect ColHg 0", "expect frm2_UP.cmdCopySel hidden", HEAD, clipboard(f"{FLEX_TITLE}\r{FLEX_HEADS}\r{solution(flex)}"),
        LINE, clipboard(solution(flex)), "# Neither kind of average, nor the layout of the other path, counts here.",
        "put setMean_UP 1", "put setPasteDat 0", LINE, clipboard(solution(flex)), FILE_BUTTON,
        "expect file 0_summary text " + quoted(f"{FLEX_TITLE}\r\n{FLEX_HEADS}\r\n{solution(flex)}\r\n")] + END

    comma = ["# A machine with a decimal comma: every number with decimals has it, nothing else."] + START + [
        'decimal ","', LINE, clipboard(with_comma(full(spot))), "click frm2_UP.cmdCopySel",
        clipboard("\r".join(with_comma(line) for line in selected(spot).split("\r"))),
        "put setPasteDat 0"] + REDRAW + [LINE, clipboard(with_comma(major(spot))),
        "put setPasteDat 1", "put setAver 1", "put setPbAver 0", "put setTzero 2", "put setDelay 4.5"] + REDRAW + [
        FILE_BUTTON, "expect file 0_summary text " + quoted(f"{FULL_TITLE}\r\n{FULL_HEADS}\r\n" + with_comma(
            full(spot, "Tzero intercept at 4.5 steps after start laser", tzero=BEAM + 4.5)) + "\r\n"),
        "put setAver 0"] + REDRAW + REJECT + [
        LINE, clipboard(with_comma(full(kept, rejection=REJECTION))), "# What the screen shows keeps the point.",
        f"expect frm2_UP.lbl7_6 text \"{kept.ratios['76'].mean:.3f}  ± "
        f"{ERROR_TIMES * kept.ratios['76'].sd / kept.d:.3f}\""] + END
    out["decimal_comma"] = comma

    head, line = f"{FULL_TITLE}\r\n{FULL_HEADS}\r\n", f"{full(spot)}\r\n"
    out["summary_file"] = ["# The SUMMARY file beside the data: heads at its birth, then a line each time."] + START + [
        'clipboard "before"', FILE_BUTTON, "expect file 0_summary text " + quoted(head + line),
        "# An append leaves an empty clipboard, and no flag behind.", clipboard(""), "expect AppendSummary false",
        "expect NoHead false", FILE_BUTTON, "expect file 0_summary text " + quoted(head + line + line),
        "# Another layout goes under the old heads.", "put setPasteDat 0"] + REDRAW + [
        FILE_BUTTON, "expect file 0_summary text " + quoted(head + line + line + major(spot) + "\r\n"),
        HEAD, clipboard(f"{MAJOR_HEADS}\r{major(spot)}"),
        "# Is there a file? That is asked of the current folder. The one beside data elsewhere gets heads as long as there",
        "# is none here, and none as soon as there is.",
        "put setPasteDat 1", 'answer open "data/export/spot.csv"', "click frm2_UP.cmdNewFile", FILE_BUTTON,
        "expect file data/export/0_summary text " + quoted(line), "remove 0_summary", FILE_BUTTON, FILE_BUTTON,
        "expect file data/export/0_summary text " + quoted(line + head + line + head + line), "expect no file 0_summary"] + END

    out["summary_refused"] = ["# A SUMMARY file that can't be opened, and a disk that is full: told, and no flag stays."] + START + [
        "folder 0_summary", "answer continue", FILE_BUTTON, REFUSED[0],
        "expect window frm2_UP", "expect AppendSummary false", "expect NoHead false", HEAD,
        clipboard(f"{FULL_TITLE}\r{FULL_HEADS}\r{full(spot)}"), "remove 0_summary", FILE_BUTTON,
        "expect file 0_summary text " + quoted(head + line), "disk full", "answer continue", FILE_BUTTON,
        REFUSED[1], "disk free", "expect AppendSummary false", LINE,
        clipboard(full(spot)), FILE_BUTTON, "expect file 0_summary text " + quoted(head + line + line)] + END
    remark = "# Made by tools/make_export_scenarios.py, which reckons every text from the table on its own.\n"
    return tables, {name: remark + "\n".join(lines) + "\n" for name, lines in out.items()}


def main():
    tables, texts = scenarios()
    files = {TABLES / name: text for name, text in tables.items()}
    files |= {SCENARIOS / f"{name}.scn": text for name, text in texts.items()}
    stale = [str(path) for path, text in files.items() if not path.exists() or path.read_bytes() != text.encode()]
    if "--check" in sys.argv[1:]:
        print("\n".join("differs: " + path for path in stale) or "as written")
        return 1 if stale else 0
    for path, text in files.items():
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(text.encode())
    return 0


if __name__ == "__main__":
    sys.exit(main())
