"""The measurements of the U/Pb and FLEX paths: simulated, reckoned, and told in docs/example-uranium-lead.md."""
import math

from make_start_kit_base import Random, exponential, mean_of
from make_start_kit_defaults import (DEFAULT_FILE, DWELL, LEAD_TO_204, MERCURY, MERCURY_TO_204, STANDARDS, URANIUM_238_235,
                                     default_file, ratio_75)
from make_start_kit_reckon import FLEX_PAIRS, RATIOS, URANIUM_PAIRS, Drift, Reckoned, counting_error

DOC = "docs/example-uranium-lead.md"
# Decay constants per year: Jaffey et al. 1971 for uranium, Le Roux and Glendenin 1963 for thorium.
LAMBDA_238, LAMBDA_235, LAMBDA_232 = 1.55125e-10, 9.8485e-10, 4.9475e-11

# ---- what was measured ---------------------------------------------------------------------------------------------------


class Zircon:
    """True ratios, and the cps of U238 at the start of the ablation."""

    def __init__(self, name, ratio_68, ratio_76, ratio_82, age, uranium, thorium_to_uranium):
        self.name, self.age, self.uranium, self.thorium_to_uranium = name, age, uranium, thorium_to_uranium
        self.true = {"6/8": ratio_68, "7/5": ratio_75(ratio_68, ratio_76), "8/2": ratio_82,
                     "38/2": 1.0 / thorium_to_uranium, "7/6": ratio_76}


def reference(name, uranium, thorium_to_uranium):
    _, _, ratio_68, ratio_82, ratio_76, age, _ = next(row for row in STANDARDS if row[0] == name)
    return Zircon(name, ratio_68, ratio_76, ratio_82, age, uranium, thorium_to_uranium)


def concordant(name, age, uranium, thorium_to_uranium):
    """A zircon whose ratios all follow from one age in Ma."""
    ratio_68, ratio_75_, ratio_82 = (exponential(constant * age * 1e6) - 1.0 for constant in (LAMBDA_238, LAMBDA_235, LAMBDA_232))
    return Zircon(name, ratio_68, ratio_75_ / ratio_68 / URANIUM_238_235, ratio_82, age, uranium, thorium_to_uranium)


ZIRCONS = {zircon.name: zircon for zircon in (
    reference("91500", 900000, 0.35), reference("GJ-1", 1400000, 0.06), concordant("zircon-A", 500, 1300000, 0.6),
    concordant("zircon-B", 1500, 700000, 0.45), concordant("test-01", 1200, 800000, 0.4))}
SESSION = ("91500", "GJ-1", "zircon-A", "zircon-B", "91500", "zircon-A", "zircon-B", "91500", "zircon-A", "zircon-B", "GJ-1",
           "91500")
REFERENCES = {row[0] for row in STANDARDS}

# The instrument: lead comes out lower than it is against uranium and thorium, by a factor that falls along the session; 207/206 comes
# out low throughout; the deeper the pit, the more lead in proportion.
FACTOR_START, FACTOR_STEP = 1.18, -0.004  # true / measured 206/238 of file k: start + step x k
MASS_BIAS_76 = 0.995
SESSION_DEPTH, TEST_DEPTH = 0.0006, 0.0012  # rise of lead over uranium a slice, relative to the middle of the selection
DECAY, FLICKER = 0.004, 0.02
LEAD_GAS_204 = 3.0                          # cps of Pb204 in the gas
BLANK = (5, 45)
SESSION_SLICES, SESSION_SIGNAL, SESSION_LASER = 140, (61, 120), (51, 130)
TEST_FILE, TEST_SLICES, TEST_SIGNAL, TEST_LASER = "test-01-no-Hg-235-232.csv", 150, (60, 125), (49, 135)
TEST_HEADS = ("Pb204", "Pb206", "Pb207", "Pb208", "U238")
# Slices of the test that a particle spoilt: (isotope, slice): times its signal.
TEST_OUTLIERS = {("Pb206", 74): 1.35, ("Pb207", 92): 1.6, ("U238", 109): 1.4}

FLEX_FILE, FLEX_SLICES, FLEX_BLANK, FLEX_SIGNAL, FLEX_RISE = "0-FLEX-UT19-50.xl", 130, (4, 28), (45, 124), 31
# Solution: head, dwell time in s, gas blank in cps, cps of the solution.
FLEX = (("ThO248", 0.02, 8, 42000), ("UO254", 0.02, 10, 61000), ("Zr91", 0.02, 150, 88000), ("Ca43", 0.02, 900, 12500),
        ("Sm147", 0.02, 15, 27500), ("Pt195", 0.02, 40, 9200), ("Pt198", 0.02, 12, 2004), ("U238", 0.01, 25, 530000),
        ("Th230", 0.02, 4, 71000), ("Th232", 0.01, 20, 410000), ("U233", 0.02, 4, 96000), ("U235", 0.02, 6, 3846))


def mercury_of(k):
    """cps of Hg202 in the gas during file k; it is slowly swept out."""
    return 430.0 - 10.0 * k


def gas_blank(mercury):
    gas = {"Hg202": mercury, "Pb204": LEAD_GAS_204 + mercury * MERCURY[204] / MERCURY[202], "Th232": 6.0, "U235": 1.0, "U238": 12.0}
    gas.update({f"Pb{mass}": LEAD_GAS_204 * ratio for mass, ratio in LEAD_TO_204.items()})
    return gas


def laser_shape(t, laser):
    """Signal as a part of the full one: rise of two slices, slow decay, washout behind the last slice."""
    first, last = laser
    if t < first + 2:
        return {first: 0.35, first + 1: 0.85}.get(t, 0.0)
    shape = exponential(-DECAY * (min(t, last) - first))
    return shape * exponential(-1.4 * (t - last)) if t > last else shape


def solution_shape(t, first):
    return {first: 0.15, first + 1: 0.6, first + 2: 0.93}.get(t, 0.0 if t < first else 1.0)


class Measurement:
    """One simulated file: its heads, true rates, and the counts made from them."""

    def __init__(self, seed, name, heads, slices, blank, selection, gas, dwell, shape, rate, flicker, pairs, outliers=None):
        """rate(head, t) is the cps at full signal; shape(t) the part of it that is there at slice t."""
        self.name, self.blank, self.selection, self.gas, self.dwell, self.pairs = name, blank, selection, gas, dwell, pairs
        self.rate, self.outliers = rate, outliers or {}
        self.true_cps = lambda head, t: shape(t) * rate(head, t)
        random = Random(seed)
        self.table = {head: [0] for head in heads}
        for t in range(1, slices + 1):
            # The flicker is common to all isotopes of a slice, so ratios are free of it.
            strength = 1.0 + flicker * random.normal()
            for head in heads:
                cps = gas[head] + strength * self.true_cps(head, t) * self.outliers.get((head, t), 1.0)
                milliseconds = round(1000 * dwell[head])
                self.table[head].append(random.poisson(cps * dwell[head]) * 1000 // milliseconds)
        self.all_slices = Reckoned(self.table, pairs, blank, selection)
        self.rejected = {t for _, t in self.outliers}
        self.kept = Reckoned(self.table, pairs, blank, selection, self.rejected)

    def built_in(self, ratio):
        """The mean of a ratio over the selection as it was built in, without noise."""
        a, b = self.pairs[RATIOS.index(ratio)]
        return mean_of([self.rate(a, t) / self.rate(b, t) for t in self.kept.slices])

    def tolerance(self, ratio):
        pair = self.pairs[RATIOS.index(ratio)]
        return counting_error(self.true_cps, self.gas, self.dwell, pair, self.blank, self.kept.slices)

    def faults(self):
        wrong = []
        for ratio, got in self.kept.ratios.items():
            (limit, bias), want = self.tolerance(ratio), self.built_in(ratio)
            off = got.mean / want - 1.0 - bias
            if abs(off) > limit:
                wrong.append(f"{self.name}, {ratio}: {got.mean:.6f}, built in {want:.6f}, {100 * off:+.2f} % of {100 * limit:.2f} %")
        return wrong

    def text(self, before=()):
        """The file: lines before the heads, the heads, a line a slice."""
        columns = list(self.table.values())
        lines = [*before, ",".join(self.table)]
        lines += [",".join(str(column[t]) for column in columns) for t in range(1, len(columns[0]))]
        return "".join(text + "\r\n" for text in lines)


def zircon_rate(zircon, factor, depth, selection):
    middle = (selection[0] + selection[1]) / 2.0

    def rate(head, t):
        uranium, thorium = zircon.uranium, zircon.uranium * zircon.thorium_to_uranium
        lead = (1.0 + depth * (t - middle)) / factor
        rates = {"U238": uranium, "U235": uranium / URANIUM_238_235, "Th232": thorium,
                 "Pb206": uranium * zircon.true["6/8"] * lead, "Pb208": thorium * zircon.true["8/2"] * lead}
        rates["Pb207"] = rates["Pb206"] * zircon.true["7/6"] * MASS_BIAS_76
        return rates.get(head, 0.0)
    return rate


def factor_of(k):
    return FACTOR_START + FACTOR_STEP * k


def session_name(k):
    zircon, before = SESSION[k - 1], SESSION[:k]
    return f"{k:03d}-std-{zircon}.csv" if zircon in REFERENCES else f"{k:03d}-{zircon}-{before.count(zircon)}.csv"


def session_file(k):
    rate = zircon_rate(ZIRCONS[SESSION[k - 1]], factor_of(k), SESSION_DEPTH, SESSION_SIGNAL)
    return Measurement(20090107000 + k, session_name(k), tuple(DWELL), SESSION_SLICES, BLANK, SESSION_SIGNAL,
                       gas_blank(mercury_of(k)), DWELL, lambda t: laser_shape(t, SESSION_LASER), rate, FLICKER, URANIUM_PAIRS)


def test_file():
    rate = zircon_rate(ZIRCONS["test-01"], factor_of(0), TEST_DEPTH, TEST_SIGNAL)
    return Measurement(238206, TEST_FILE, TEST_HEADS, TEST_SLICES, BLANK, TEST_SIGNAL, gas_blank(mercury_of(0)), DWELL,
                       lambda t: laser_shape(t, TEST_LASER), rate, FLICKER, URANIUM_PAIRS, TEST_OUTLIERS)


def flex_file():
    gas, dwell, cps = ({row[0]: row[k] for row in FLEX} for k in (2, 1, 3))
    return Measurement(1950, FLEX_FILE, tuple(gas), FLEX_SLICES, FLEX_BLANK, FLEX_SIGNAL, gas, dwell,
                       lambda t: solution_shape(t, FLEX_RISE), lambda head, _: cps[head], 0.01, FLEX_PAIRS)


def flex_text(measurement):
    """With a line of remarks before the heads and the time in the first column."""
    lines = measurement.text().split("\r\n")[:-1]
    sweep = sum(row[1] for row in FLEX) + 0.001 * len(FLEX)
    timed = ["Time [sec]," + lines[0]] + [f"{t * sweep:.3f},{line}" for t, line in enumerate(lines[1:], 1)]
    return "".join(line + "\r\n" for line in ["Solution UT19-50, simulated; intensities in cps", *timed])


# ---- files, tables, checks -----------------------------------------------------------------------------------------------

class Made:
    """Everything of the two paths: files (name -> text), the tables of the document, the faults of the check."""

    def __init__(self):
        self.session = {k: session_file(k) for k in range(1, len(SESSION) + 1)}
        self.test, self.flex = test_file(), flex_file()
        self.files = {DEFAULT_FILE: default_file(), TEST_FILE: self.test.text(), FLEX_FILE: flex_text(self.flex)}
        self.files.update({m.name: m.text() for m in self.session.values()})
        self.drift = {}
        for ratio in ("6/8", "7/6"):
            self.drift[ratio] = Drift({k: m.all_slices.ratios[ratio].mean for k, m in self.session.items()},
                                      {k: ZIRCONS[name].true[ratio] for k, name in enumerate(SESSION, 1) if name in REFERENCES})
        self.tables = {"standards": standards_table(), "zircons": zircons_table(), "instrument": instrument_table(),
                       "session": self.session_table(), "means": self.means_table(), "errors": self.errors_table(),
                       "more": self.more_table(), "drift": self.drift_table(), "samples": self.samples_table(),
                       "test": self.test_table(), "flex-cps": self.flex_cps_table(), "flex": ratio_table(self.flex, self.flex.kept)}

    def faults(self):
        wrong = [text for m in (*self.session.values(), self.test, self.flex) for text in m.faults()]
        wrong += [text for m in self.session.values() for text in lead_faults(m)]
        wrong += self.sample_faults()
        found = self.test.all_slices.outliers(("6/8", "7/6"))
        if set(found) != self.test.rejected:
            wrong.append(f"{TEST_FILE}: outliers at {found}, built in at {sorted(self.test.rejected)}")
        size = sum(len(text) for text in self.files.values())
        if size > 400000:
            wrong.append(f"the files of the U/Pb and FLEX paths hold {size} bytes")
        lines = {TEST_FILE: 1 + TEST_SLICES, FLEX_FILE: 2 + FLEX_SLICES, DEFAULT_FILE: 77 + 2 * len(STANDARDS) + 9,
                 **{m.name: 1 + SESSION_SLICES for m in self.session.values()}}
        wrong += [f"{name}: not {n} lines" for name, n in lines.items() if self.files[name].count("\r\n") != n]
        return wrong

    def sample_faults(self):
        """Corrected samples must be true within the counting error of the sample and of the standards."""
        wrong = []
        for ratio, drift in self.drift.items():
            limits = {k: m.tolerance(ratio)[0] for k, m in self.session.items()}
            of_standards = max(limits[k] for k in drift.factors)
            for k, got in drift.corrected.items():
                off = got / ZIRCONS[SESSION[k - 1]].true[ratio] - 1.0
                if abs(off) > limits[k] + of_standards:
                    wrong.append(f"{session_name(k)}, {ratio} corrected for the drift: {100 * off:+.2f} %")
        return wrong

    def session_table(self):
        return table(("No.", "file", "Hg202 of the gas, cps", "true / measured 206/238"),
                     [(k, f"`{m.name}`", f"{mercury_of(k):.0f}", f"{factor_of(k):.3f}") for k, m in self.session.items()])

    def means_table(self):
        return table(("file", *RATIOS), [(f"`{m.name}`", *(f"{m.all_slices.ratios[r].mean:.6f}" for r in RATIOS))
                                         for m in self.session.values()])

    def errors_table(self):
        return table(("file", *(f"{r}: 2 s.e." for r in RATIOS), "6/8: median", "7/6: median"),
                     [(f"`{m.name}`", *(f"{m.all_slices.ratios[r].error:.6f}" for r in RATIOS),
                       *(f"{m.all_slices.ratios[r].median:.6f}" for r in ("6/8", "7/6"))) for m in self.session.values()])

    def more_table(self):
        def row(m):
            ratio = m.all_slices.ratios["6/8"]
            return (f"`{m.name}`", m.all_slices.signal_on, f"{ratio.slope:.8f}", f"{ratio.at_start:.6f}",
                    f"{m.all_slices.lead_204(m.table, MERCURY_TO_204[202]):.4f}", f"{m.all_slices.cps['Pb204']:.4f}",
                    " ".join(map(str, m.all_slices.outliers(("6/8", "7/6")))) or "none")
        return table(("file", "signal on", "6/8: slope a slice", "6/8: line at slice 61", "Pb204, Hg corrected, cps", "not corrected, cps",
                      "outliers"), [row(m) for m in self.session.values()])

    def drift_table(self):
        return table(("ratio", "intercept", "slope", "built in"),
                     [(r, f"{d.intercept:.5f}", f"{d.slope:.5f}", built) for (r, d), built in zip(
                         self.drift.items(), (f"{FACTOR_START} {FACTOR_STEP} x No.", f"{1 / MASS_BIAS_76:.5f}"))])

    def samples_table(self):
        def row(k):
            zircon = ZIRCONS[SESSION[k - 1]]
            age = math.log(1.0 + self.drift["6/8"].corrected[k]) / LAMBDA_238 / 1e6
            return (f"`{session_name(k)}`", *(f"{v:.5f}" for r in ("6/8", "7/6") for v in (self.drift[r].corrected[k], zircon.true[r])),
                    f"{age:.1f}", zircon.age)
        return table(("file", "206/238", "true", "207/206", "true", "206/238 age, Ma", "true"),
                     [row(k) for k in self.drift["6/8"].corrected])

    def test_table(self):
        rows = [(title, *(f"{v:.6f}" for r in ("6/8", "7/6") for v in (
            reckoned.ratios[r].mean, reckoned.ratios[r].error, reckoned.ratios[r].median)))
                for title, reckoned in (("all slices", self.test.all_slices), ("without the three", self.test.kept))]
        rows.append(("built in", f"{self.test.built_in('6/8'):.6f}", "", "", f"{self.test.built_in('7/6'):.6f}", "", ""))
        return table(("", *(f"{r}: {what}" for r in ("6/8", "7/6") for what in ("mean", "2 s.e.", "median"))), rows)

    def flex_cps_table(self):
        return table(("head", "dwell, ms", "gas blank, cps", "solution, cps", "mean net cps"),
                     [(name, f"{1000 * dwell:.0f}", gas, cps, f"{self.flex.kept.cps[name]:.2f}") for name, dwell, gas, cps in FLEX])


def lead_faults(m):
    """Mass 204 less its mercury must leave the lead of the gas: three standard uncertainties of both counts."""
    slices, blanks = len(m.kept.slices), m.blank[1] - m.blank[0] + 1
    k = MERCURY_TO_204[202]
    limit = 3.0 * (m.gas["Pb204"] / m.dwell["Pb204"] / slices + m.gas["Hg202"] / m.dwell["Hg202"] / blanks / k / k) ** 0.5
    got = m.all_slices.lead_204(m.table, k)
    return [] if abs(got - LEAD_GAS_204) <= limit else [f"{m.name}, Pb204: {got:.2f} cps, built in {LEAD_GAS_204} +- {limit:.2f}"]


def ratio_table(measurement, reckoned):
    def row(name, pair):
        ratio = reckoned.ratios[name]
        return (name, " / ".join(pair), f"{measurement.built_in(name):.6f}", f"{ratio.mean:.6f}", f"{ratio.error:.6f}", f"{ratio.median:.6f}")
    return table(("shown as", "ratio", "built in", "mean", "2 s.e.", "median"),
                 [row(name, pair) for name, pair in zip(RATIOS, measurement.pairs)])


def table(heads, rows):
    def line(cells):
        return "| " + " | ".join(map(str, cells)) + " |"
    return [line(heads), line(["---"] + ["--:"] * (len(heads) - 1))] + [line(row) for row in rows]


def standards_table():
    return table(("zircon", "in file names", "206/238", "207/235", "208/232", "207/206", "age, Ma", "source"),
                 [(name, abbreviation, ratio_68, f"{ratio_75(ratio_68, ratio_76):.5f}", ratio_82, ratio_76, age, source)
                  for name, abbreviation, ratio_68, ratio_82, ratio_76, age, source in STANDARDS])


def zircons_table():
    return table(("zircon", "age, Ma", "U238, cps", "206/238", "207/235", "208/232", "238/232", "207/206"),
                 [(z.name, z.age, z.uranium, *(f"{z.true[r]:.5f}" for r in RATIOS)) for z in ZIRCONS.values()])


def instrument_table():
    gas = gas_blank(mercury_of(1))
    return table(("isotope", "dwell, ms", "gas blank of file 1, cps"),
                 [(name, f"{1000 * dwell:.0f}", f"{gas[name]:.1f}") for name, dwell in DWELL.items()])
