#!/usr/bin/env python3
"""Makes the scenarios of this folder and the tables of tests/data/refinement that they read.

    tests/scenarios/refinement/make_scenarios.py           writes them
    tests/scenarios/refinement/make_scenarios.py --check   compares byte for byte

The tables hold an ablation whose rise and fall have ratios of their own. What the refinement of a selection that takes
in some of these slices must tell is reckoned here, pair by pair. The program has no part in it.
"""
import math
import sys
from decimal import ROUND_HALF_UP, Decimal
from pathlib import Path

HERE = Path(__file__).resolve().parent
TABLES = HERE.parent.parent / "data" / "refinement"

SLICES, BLANK, PLATEAU = 60, (2, 9), (17, 44)
# Blank, signal on the plateau, share of its scatter.
COLUMNS = {"U238": (10, 60000, 0.010), "U235": (3, 440, 0.030), "Th232": (8, 26000, 0.012), "Pb208": (30, 1500, 0.025),
           "Pb207": (14, 640, 0.030), "Pb206": (22, 9600, 0.015), "Pb204": (60, 70, 0.080), "Hg202": (150, 160, 0.080)}
# Slices of the rise and of the fall: share of the signal, and what lead does there beside uranium.
RISE = {12: (0.06, 0.60), 13: (0.20, 0.70), 14: (0.45, 0.80), 15: (0.75, 0.88), 16: (0.92, 0.94)}
FALL = {45: (0.90, 1.07), 46: (0.70, 1.14), 47: (0.48, 1.22), 48: (0.28, 1.35), 49: (0.12, 1.50), 50: (0.05, 1.70)}


def noises(state):
    """About normal, few beyond 2: sums of twelve numbers of a small generator."""
    while True:
        total = 0
        for _ in range(12):
            state = (state * 1103515245 + 12345) % 2147483648
            total += state / 2147483648
        yield (total - 6) * 0.7


def table(columns=tuple(COLUMNS)):
    noise = noises(20047)
    cells = {name: [] for name in COLUMNS}
    for t in range(1, SLICES + 1):
        share, lead = (1, 1) if PLATEAU[0] <= t <= PLATEAU[1] else RISE.get(t) or FALL.get(t) or (0, 1)
        for name, (blank, signal, scatter) in COLUMNS.items():
            cps = blank * (1 + 0.1 * next(noise))
            if share and not name.startswith(("Pb204", "Hg")):
                # Lead moves against uranium, and Pb207 a little on its own.
                factor = lead if name.startswith("Pb") else 1
                factor *= lead ** 0.2 if name == "Pb207" else 1
                cps += signal * share * factor * (1 + scatter * next(noise))
            cells[name].append(round(cps))
    return {name: cells[name] for name in columns}


def file_of(cells):
    lines = [",".join(cells)] + [",".join(str(c[t]) for c in cells.values()) for t in range(SLICES)]
    return "".join(line + "\n" for line in lines)


def F(number, places=4):
    step = Decimal(1).scaleb(-places)
    part = abs(number / float(step)) % 1
    assert abs(part - 0.5) > 1e-6, number  # else the last bit would decide
    text = str(Decimal(repr(number)).quantize(step, ROUND_HALF_UP))
    return text[1:] if text.startswith("-") and not text.strip("-0.") else text


def normal(z, above):
    """Abramowitz and Stegun (1964), formula 26.2.16."""
    u = 1 / (1 + 0.33267 * abs(z))
    tail = math.exp(-z * z / 2) / math.sqrt(6.283186) * (0.4361836 * u - 0.1201676 * u**2 + 0.937298 * u**3)
    return 1 - tail if above else tail


class Search:
    """The tables that outlive a search are kept here, so that one search may follow another."""

    def __init__(self, cells):
        net = {}
        for name, counts in cells.items():
            blank = counts[BLANK[0] - 1:BLANK[1]]
            mean = sum(blank) / len(blank)
            net[name] = [None] + [c - mean if c > mean else 0.01 for c in counts]
        self.u235 = "U235" in cells
        ratio = lambda a, b: [None] + [p / q for p, q in zip(net[a][1:], net[b][1:])]
        self.r68, self.r76 = ratio("Pb206", "U238"), ratio("Pb207", "Pb206")
        self.r75 = ratio("Pb207", "U235") if self.u235 else [0.0] * (SLICES + 1)
        self.sorted2, self.normal2 = [0.0] * 6001, [0.0] * 6001
        self.steps = 0

    @staticmethod
    def moments(values):
        mean = sum(values) / len(values)
        return mean, math.sqrt(sum((v - mean) ** 2 for v in values) / (len(values) - 1))

    def measures(self, low, upp, method, plot):
        n = upp - low + 1
        first, second = self.r68[low:upp + 1], (self.r76 if plot else self.r75)[low:upp + 1]
        (m1, s1), (m2, s2) = self.moments(first), self.moments(second)
        if method == 1:
            skew = lambda values, m, s: n * sum((v - m) ** 3 for v in values) / ((n - 1) * (n - 2) * s**3)
            return skew(first, m1, s1), skew(second, m2, s2)
        one = [normal((v - m1) / s1, v > m1) for v in sorted(first)]
        self.sorted2[low:upp + 1] = sorted(second)
        if plot == 0:
            zs = [(v - m2) / s2 if self.u235 else (w - m1) / s1 for v, w in zip(sorted(second), sorted(first))]
            self.normal2[low:upp + 1] = [normal(z, v > m2) for z, v in zip(zs, sorted(second))]
        else:  # one entry, behind the interval
            v = self.sorted2[upp + 1]
            self.normal2[upp + 1] = normal((v - m2) / s2, v > m2)
        far = lambda shares: sum(((k + 1) / n - p) ** 2 for k, p in enumerate(shares))
        return far(one), far(self.normal2[low:upp + 1])

    def run(self, low, upp, method, plot, steps):
        reference = self.measures(low, upp, method, plot)
        best, record, proposal, smallest = None, 0, ["", ""], [1e7, 1e7]
        shown = [False, False]
        for d1 in range(-steps, steps + 1):
            for d2 in range(-steps, steps + 1):
                pair = max(1, low + d1), min(SLICES, upp + d2)
                values = self.measures(*pair, method, plot)
                gains = [(abs(r) - abs(v)) / abs(r) for r, v in zip(reference, values)]
                assert pair == (low, upp) or sum(gains) <= 0 or abs(sum(gains) - record) > 1e-9
                if min(gains) > 1e-12 and sum(gains) > record and F(sum(gains) * 50, 0) != "0":
                    record, best = sum(gains), values
                    shown = [pair[0] != low, pair[1] != upp]
                    for k in (0, 1):
                        if shown[k]:
                            proposal[k] = pair[k]
                for k in (0, 1):
                    if abs(values[k]) < abs(smallest[k]):
                        smallest[k] = values[k]
        self.steps = steps
        return {"reference": reference, "smallest": smallest, "best": best, "improve": F(-record * 50, 0) + " %",
                "captions": [str(p) if s else None for p, s in zip(proposal, shown)], "texts": proposal,
                "limits": [int(p) if s else start for p, s, start in zip(proposal, shown, (low, upp))],
                "last": (max(1, low + steps), min(SLICES, upp + steps))}


UP = "frm2_UP."
EXPLAIN = {0: "reduction of residual error", 1: "reduction of skewness"}


def opened(path):
    return ["start 1", f'copy data/refinement/{path} {path}', f'answer open "{path}"', "click frm1_Settings.mnuFile(0)",
            f"mark {UP}pict1 left shift {BLANK[0]}", f"mark {UP}pict1 right shift {BLANK[1]}"]


def marked(low, upp):
    return [f"mark {UP}pict1 left {low}", f"mark {UP}pict1 right {upp}", *limits(low, upp)]


def limits(low, upp):
    return [f"expect SelLow {low}", f"expect SelUpp {upp}", f"expect SelN {upp - low + 1}"]


def shown_limits(low, upp):
    return [*limits(low, upp), f"expect SelNGood {upp - low + 1}", f'expect {UP}lblLow text "{low}"',
            f'expect {UP}lblUpp text "{upp}"', f'expect {UP}lblMeasSel text "{upp - low + 1}"']


def band(text, kind):
    return [f'type {UP}txtZizzRange "{text}"', f"choose {UP}comboBzz {kind}"]


def pairs(name, values):
    return [f'expect {UP}{name}{k} text "{F(v)}"' for k, v in zip(("68", "75"), values)]


def told(found, method):
    out = pairs("lblRMS", found["reference"]) + pairs("lblBest", found["best"])
    out += [f'expect {UP}lblZizzMin{k + 1} text "{F(v)}"' for k, v in enumerate(found["smallest"])]
    out += [f'expect {UP}lblImprove text "{found["improve"]}"', f'expect {UP}lblExplain text "{EXPLAIN[method]}"',
            f"expect {UP}lblExplain visible"]
    for name, caption in zip(("lblBestLow", "lblBestUpp"), found["captions"]):
        out += [f"expect {UP}{name} hidden"] if caption is None else [f"expect {UP}{name} visible",
                                                                       f'expect {UP}{name} text "{caption}"']
    return out


def waiting(found):
    return [f"expect {UP}cmdAccept visible", f"expect {UP}cmdZizeges hidden", f"expect {UP}cmdReject disabled",
            "expect ZizzRunning true", *limits(*found["last"])]


def idle():
    out = [f"expect {UP}cmdAccept hidden", f"expect {UP}cmdZizeges visible", f"expect {UP}cmdReject enabled",
           "expect ZizzRunning false", "expect AcceptBest false"]
    for name in ("lblRMS68", "lblRMS75", "lblZizzMin1", "lblZizzMin2", "lblBest68", "lblBest75", "lblImprove"):
        out.append(f'expect {UP}{name} text ""')
    return out + [f"expect {UP}{name} hidden" for name in ("lblBestLow", "lblBestUpp", "lblExplain")]


def nothing_found(method):
    return [f'expect {UP}lblImprove text "no"', f'expect {UP}lblExplain text "{EXPLAIN[method]}"',
            *(f"expect {UP}{name} hidden" for name in ("cmdAccept", "cmdZizeges", "lblBestLow", "lblBestUpp")),
            f"expect {UP}cmdReject enabled"]


def mean68(search, low, upp):
    return [f"expect Mean68 {search.moments(search.r68[low:upp + 1])[0]!r} within 1e-12"]


def scenarios(cells, no_u235):
    out = {}
    both = Search(cells).run(14, 47, 0, 0, 3)
    assert None not in both["captions"]
    out["both_limits"] = ("Slices of the rise and of the fall are in the selection; 10 % of its 34 slices are 3.", [
        *opened("ablation.csv"), *marked(14, 47), *band("10", 0), f"click {UP}cmdZizeges", "expect ZizzSteps 3",
        *told(both, 0), *waiting(both), f"click {UP}cmdAccept", *shown_limits(*both["limits"]),
        *mean68(Search(cells), *both["limits"]), *idle(), "expect no message"])

    upper = Search(cells).run(23, 46, 0, 0, 2)
    assert upper["captions"][0] is None and upper["captions"][1] is not None and upper["texts"][0] != ""
    out["one_sided"] = ("Only the upper limit is proposed; the lower one goes back to where the search began, whatever "
                        "a pair that\n# was better for a while has left in its hidden caption.", [
        *opened("ablation.csv"), *marked(23, 46), *band("2", 1), f"click {UP}cmdZizeges", *told(upper, 0),
        f'expect {UP}lblBestLow text "{upper["texts"][0]}"', *waiting(upper), f"click {UP}cmdAccept", *shown_limits(*upper["limits"]),
        *mean68(Search(cells), *upper["limits"]), *idle(), "expect no message"])

    out["rejected_before"] = ("Outliers that are rejected count again before the search.", [
        *opened("ablation.csv"), *marked(14, 47), *band("10", 0), f'type {UP}txtSD "2"', f"enter {UP}txtSD",
        f"click {UP}cmdReject", "expect RejectOn true", f'expect {UP}cmdReject text "Restore rejection"',
        f"scroll {UP}VScroll2 1", f"click {UP}cmdZizeges", "expect RejectOn false",
        f'expect {UP}cmdReject text "Reject outliers"', f'expect {UP}lblReject text "No. of outliers:"',
        f"expect {UP}lblReject visible", f"expect {UP}lblOM visible", *told(both, 0), *waiting(both),
        "expect no message"])

    out["overridden"] = ("A click that does not accept starts from the limits that the user had marked.", [
        *opened("ablation.csv"), *marked(14, 47), *band("10", 0), f"click {UP}cmdZizeges", *waiting(both),
        f"mark {UP}pict1 left 18", *shown_limits(18, 47), *mean68(Search(cells), 18, 47), *idle(), "expect no message"])

    out["taken_at_once"] = ("The box takes the proposal without another click; the results are those of it.", [
        *opened("ablation.csv"), *marked(14, 47), *band("10", 0), f"click {UP}chkBzzPrompt", "expect setBzz_Prompt 1",
        f"click {UP}cmdZizeges", *shown_limits(*both["limits"]), *mean68(Search(cells), *both["limits"]), *idle(),
        f'expect {UP}lblMed6_8 text "{F(median(Search(cells).r68, both["limits"]), 3)}"', "expect no message"])

    skew = Search(cells).run(13, 45, 1, 0, 2)
    assert skew["best"] and None not in skew["captions"]
    lead = Search(cells).run(13, 45, 1, 1, 2)
    assert lead["best"] and lead["best"] != skew["best"]
    out["skewness"] = ("The smallest skewness, of 207/235 and of 207/206 beside 206/238.", [
        *opened("ablation.csv"), *marked(13, 45), *band("2", 1), f'choose {UP}Combo8 "Skewness"',
        "expect setBzzMethod 1", f"click {UP}cmdZizeges", *told(skew, 1), *waiting(skew), f"mark {UP}pict1 left 13",
        *idle(), f'choose {UP}Combo7 "Tera-Wasserburg"', "expect setBzzPlot 1", f"click {UP}cmdZizeges",
        *told(lead, 1), *waiting(lead), f"click {UP}cmdAccept", *shown_limits(*lead["limits"]), *idle(),
        "expect no message"])

    twice = Search(cells)
    first = twice.run(14, 47, 0, 1, 3)
    second = twice.run(14, 47, 0, 1, 3)
    assert first["reference"][1] != second["reference"][1]
    lines = [*opened("ablation.csv"), *marked(14, 47), *band("3", 1), f"choose {UP}Combo7 1", f"click {UP}cmdZizeges"]
    for found in (first, second):
        lines += told(found, 0) if found["best"] else nothing_found(0) + pairs("lblRMS", found["reference"])
        if found is first:
            lines += [f"mark {UP}pict1 right 47", *shown_limits(14, 47), *idle(), f"click {UP}cmdZizeges"]
    lines += [f"expect NormP2({t}) {twice.normal2[t]!r} within 1e-9" for t in (10, 44, 47, 50, 51)]
    out["lead_ratios"] = ("In the diagram of 207/206 one probability is made in a pass, the one behind the selection; "
                          "the others are left\n# from passes before, so that the same search tells other figures "
                          "when it is made again.", [*lines, "expect no message"])

    none = Search(cells).run(18, 43, 0, 0, 0)
    assert none["best"] is None
    out["no_proposal"] = ("A band of no slices tries the limits themselves, which gain nothing. The next click starts "
                          "from them.", [
        *opened("ablation.csv"), *marked(18, 43), *band("0", 1), f"click {UP}cmdZizeges", "expect ZizzSteps 0",
        *pairs("lblRMS", none["reference"]), *nothing_found(0), *limits(18, 43),
        f"mark {UP}pict1 right 42", *shown_limits(18, 42), *idle(), "expect no message"])

    lost = Search(cells).run(*CLEAN, 0, 0, 1)
    assert lost["best"] is None and lost["last"] != CLEAN, lost
    out["nothing_better"] = ("No pair is better: the last one tried stays in force until the next click, which puts "
                             "back what was marked.\n# 1 % of so few slices is the floor, 1 slice.", [
        *opened("ablation.csv"), *marked(*CLEAN), *band("1", 0), f"click {UP}cmdZizeges", "expect ZizzSteps 1",
        *pairs("lblRMS", lost["reference"]), *nothing_found(0), *limits(*lost["last"]),
        f"mark {UP}pict1 left shift {BLANK[0]}", *shown_limits(*CLEAN), *idle(), "expect no message"])

    ten = Search(cells).run(20, 29, 0, 0, 4)
    out["second_run_refused"] = ("The length of the selection is held against the band of the search before: the first "
                                 "is never too wide.", [
        *opened("ablation.csv"), *marked(20, 29), *band("4", 1), f"click {UP}cmdZizeges", "expect ZizzSteps 4",
        *(told(ten, 0) if ten["best"] else nothing_found(0)), f"mark {UP}pict1 left 20", *shown_limits(20, 29), *idle(),
        *band("1", 1), f"click {UP}cmdZizeges",
        'expect message "The time interval is too short for the selected boundary optimaztion!" title ""',
        *nothing_found(0), *limits(20, 29), "expect ZizzSteps 4",
        # Twelve slices are enough for it.
        f"mark {UP}pict1 right 31", *shown_limits(20, 31), *idle(), f"click {UP}cmdZizeges", "expect ZizzSteps 1",
        "expect no message"])

    stand_in = Search(no_u235).run(14, 47, 0, 0, 3)
    assert stand_in["best"]
    out["without_u235"] = ("Without U235 the list has one entry, and it is the first: 206/238 stands in for "
                           "207/235.", [
        *opened("no-u235.csv"), *marked(14, 47), f'expect {UP}Combo7 items "Tera-Wasserburg"', f"expect {UP}Combo7 value 0",
        "expect setBzzPlot 0", *band("3", 1), f"click {UP}cmdZizeges", *told(stand_in, 0), *waiting(stand_in),
        f"click {UP}cmdAccept", *shown_limits(*stand_in["limits"]), *idle(), "expect no message"])
    return out


CLEAN = (18, 43)


def median(ratio, limits):
    values = sorted(ratio[limits[0]:limits[1] + 1])
    return (values[(len(values) - 1) // 2] + values[len(values) // 2]) / 2


def main():
    cells = table()
    no_u235 = table(tuple(n for n in COLUMNS if n != "U235"))
    files = {TABLES / "ablation.csv": file_of(cells), TABLES / "no-u235.csv": file_of(no_u235)}
    for name, (remark, lines) in scenarios(cells, no_u235).items():
        head = f"# Made by make_scenarios.py beside it, which reckons every figure from the table on its own.\n# {remark}\n"
        files[HERE / f"{name}.scn"] = head + "\n".join(lines) + "\n"
    if "--check" in sys.argv:
        wrong = [str(p) for p, text in files.items() if not p.exists() or p.read_text(encoding="utf-8") != text]
        sys.exit("differ: " + ", ".join(wrong) if wrong else 0)
    for path, text in files.items():
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
