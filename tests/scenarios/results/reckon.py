"""The figures of the results panel, reckoned from a table without any code of the program.

Where the expectations of the scenarios beside this file come from. Each step is written out plainly, one list for one
column. A run prints the expectations of the cases at the end of the file:

    python3 reckon.py ../../data/results/panel.csv
"""

import csv
import math
import sys
from decimal import ROUND_HALF_EVEN, ROUND_HALF_UP, Decimal

LAMBDA_238 = 1.55125e-10
LAMBDA_235 = 9.8485e-10
RATIOS = {"6_8": ("Pb206", "U238"), "7_5": ("Pb207", "U235"), "8_2": ("Pb208", "Th232"), "38_2": ("U238", "Th232"),
          "7_6": ("Pb207", "Pb206")}
STATE = {"6_8": "68", "7_5": "75", "8_2": "82", "38_2": "382", "7_6": "76"}
ORDER = list(RATIOS)
DWELL = {"U238": 0.01, "U235": 0.05, "Th232": 0.01, "Pb208": 0.02, "Pb207": 0.05, "Pb206": 0.02}
POISSON = {"68": ("U238", "Pb206"), "75": ("U235", "Pb207"), "82": ("Th232", "Pb208"), "382": ("Th232", "U238"),
           "76": ("Pb206", "Pb207")}
SIGNALS = {"U238": "238", "U235": "235", "Th232": "232", "Pb208": "208", "Pb207": "207", "Pb206": "206",
           "Pb204": "204"}


def fixed(number, places):
    text = str(Decimal(repr(number)).quantize(Decimal(1).scaleb(-places), ROUND_HALF_UP))
    return text.lstrip("-") if float(text) == 0 else text


def grouped(number):
    whole = int(Decimal(repr(number)).quantize(Decimal(1), ROUND_HALF_UP))
    return f"{whole:,}" if whole else ""


def even(number, places=0):
    text = str(Decimal(repr(number)).quantize(Decimal(1).scaleb(-places), ROUND_HALF_EVEN))
    return text.rstrip("0").rstrip(".") if "." in text else text


def read(path):
    with open(path, newline="") as file:
        rows = list(csv.reader(file))
    return {head: [None] + [float(row[i]) for row in rows[1:]] for i, head in enumerate(rows[0])}


class Panel:
    def __init__(self, table, blank=(2, 7), selection=(12, 21), **settings):
        self.table, self.blank, self.selection = table, blank, selection
        self.times, self.kind, self.tzero, self.delay = 2, 0, 0, 3
        self.hg, self.hg_ratio, self.beam, self.calculated = None, 4.3607, None, None
        self.flags, self.former = {}, {}
        self.limit, self.tested, self.line_test = 2, [], False
        self.__dict__.update(settings)
        self.reckon()

    def slices(self):
        return range(self.selection[0], self.selection[1] + 1)

    def counted(self):
        return [t for t in self.slices() if self.flags.get(t, 0) < 1]

    def has(self, name):
        return name in self.table

    def reckon(self):
        low, upp = self.blank
        n_blank = upp - low + 1
        self.blank_mean, self.blank_sd, self.net = {}, {}, {}
        for name, raw in self.table.items():
            mean = sum(raw[low:upp + 1]) / n_blank or 0.0001
            self.blank_mean[name] = mean
            self.blank_sd[name] = math.sqrt(sum((x - mean) ** 2 for x in raw[low:upp + 1]) / (n_blank - 1)) or 0.0001
            self.net[name] = [None] + [x - mean if x - mean > 0 else 0.01 for x in raw[1:]]
        last = len(self.table["U238"]) - 1
        if self.calculated:
            for t in range(upp, last + 1):
                self.net["U235"][t] = self.net["U238"][t] / self.calculated
        if self.hg:
            for t in range(upp, last + 1):
                self.net["Pb204"][t] = self.table["Pb204"][t] - self.blank_mean[self.hg] / self.hg_ratio
        selected, counted = list(self.slices()), self.counted()
        n, good = len(selected), len(counted)
        self.cps = {name: sum(net[t] for t in counted) / n for name, net in self.net.items()}
        self.cps_sd = {name: math.sqrt(sum((net[t] - self.cps[name]) ** 2 for t in selected) / (n - 1)) or 0.0001
                       for name, net in self.net.items()}
        if self.beam is None:
            heads = list(self.table)[2:]
            total = [0] + [sum(self.table[h][t] for h in heads) for t in range(1, last + 1)] + [0] * 9
            threshold = sum(total[low:upp + 1]) / (upp - low)
            starts = [t for t in range(upp, last - 4) if all(x > threshold for x in total[t:t + 10])]
            self.beam = starts[0] if starts else 0
        self.ratio = {}
        for key, (a, b) in RATIOS.items():
            if self.has(a) and self.has(b):
                self.ratio[key] = {t: self.net[a][t] / self.net[b][t] for t in selected}
        if self.has("U235"):
            self.ratio["8_5"] = {t: self.net["U238"][t] / self.net["U235"][t] for t in selected}
        self.mean = {k: sum(r[t] for t in counted) / good for k, r in self.ratio.items()}
        self.sd = {k: math.sqrt(sum((r[t] - self.mean[k]) ** 2 for t in counted) / (good - 1))
                   for k, r in self.ratio.items()}
        self.error = {k: self.shown(self.sd[k], self.mean[k], good) for k in self.ratio}
        self.median = {}
        places = dict(self.former)
        for key in ORDER:
            if key not in self.ratio:
                continue
            left = sorted(self.ratio[key].values())
            for t in selected:
                if self.flags.get(t, 0) != 1:
                    places[t] = left.pop(0)
            middle = self.selection[0] + n // 2
            self.median[key] = places[middle] if n % 2 else (places[middle - 1] + places[middle]) / 2
        self.places = places
        self.skew = {k: good * sum((r[t] - self.mean[k]) ** 3 for t in counted) / (
            (good - 1) * (good - 2) * self.sd[k] ** 3) for k, r in self.ratio.items() if k in ORDER}
        self.fit(counted, good)
        self.age68 = math.log(1 + self.mean["6_8"]) / LAMBDA_238
        self.age75 = math.log(1 + self.mean["7_5"]) / LAMBDA_235 if "7_5" in self.ratio else 0.0

    def fit(self, counted, n):
        self.slope, self.intercept, self.r, self.value, self.residual, self.value_error = {}, {}, {}, {}, {}, {}
        at = {0: self.selection[0], 1: self.beam, 2: self.beam + self.delay}[self.tzero]
        for key in ORDER:
            if key not in self.ratio:
                continue
            y = [self.ratio[key][t] for t in counted]
            mx, my = sum(counted) / n, sum(y) / n
            sxx = sum((t - mx) ** 2 for t in counted)
            sxy = sum((t - mx) * (v - my) for t, v in zip(counted, y))
            syy = sum((v - my) ** 2 for v in y)
            self.slope[key] = sxy / sxx
            self.intercept[key] = my - mx * self.slope[key]
            self.r[key] = sxy / math.sqrt(sxx * syy)
            self.value[key] = self.intercept[key] + at * self.slope[key]
            self.residual[key] = math.sqrt(sum((v - self.intercept[key] - t * self.slope[key]) ** 2
                                               for t, v in zip(counted, y)) / (n - 1))
            self.value_error[key] = self.shown(self.residual[key], self.value[key], n)

    def shown(self, sd, value, n):
        error = self.times * sd
        if self.kind in (1, 3):
            error = error / value * 100
        if self.kind in (2, 3):
            error /= math.sqrt(n - 1)
        return error

    def outliers(self):
        """Slice: in how many of the tested ratios it lies beyond the limit."""
        found = {}
        for t in self.slices():
            for key in self.tested:
                value = self.ratio[key][t]
                if self.line_test:
                    off, spread = value - self.intercept[key] - t * self.slope[key], self.residual[key]
                else:
                    off, spread = value - self.mean[key], self.sd[key]
                if abs(off) > self.limit * spread:
                    found[t] = found.get(t, 0) + 1
        return found

    def labels(self):
        out = {}
        for key in ORDER + ["8_5"]:
            if key in self.ratio:
                out["lbl" + key] = fixed(self.mean[key], 3) + "  ± " + fixed(self.error[key], 3)
        for number, key in enumerate(ORDER, 1):
            if key not in self.ratio:
                continue
            out["lblMed" + key] = fixed(self.median[key], 3)
            out["lblTz" + key] = fixed(self.value[key], 3) + "  ± " + fixed(self.value_error[key], 3)
            out[f"lblSkew{number}"] = fixed(self.skew[key], 1)
            out[f"lblLR{number}b"] = fixed(self.slope[key], 3)
            out[f"lblLR{number}r"] = fixed(self.r[key], 3)
            a, b = POISSON[STATE[key]]
            observed = math.hypot(self.cps_sd[a] / self.cps[a], self.cps_sd[b] / self.cps[b])
            counting = math.sqrt(abs(1 / (DWELL[a] * self.cps[a]) + 1 / (DWELL[b] * self.cps[b])))
            out["lblExPo" + STATE[key]] = fixed(observed / counting, 1) + " x"
        hg = self.hg or next((f"Hg{m}" for m in range(202, 197, -1) if self.has(f"Hg{m}")), None)
        for name, mass in SIGNALS.items():
            out["lbl" + mass] = grouped(self.cps[name]) if self.has(name) else "n. d."
            if self.has(name):
                out[f"lbl{mass}LoD"] = self.margin(name)
        out["lblAver(8)"] = grouped(self.cps[hg]) if hg else "n. d."
        if hg:
            out["lbl20xLoD"] = self.margin(hg)
        out["lblAge06_38"] = even(self.age68 / 1e6)
        out["lblAge07_35"] = even(self.age75 / 1e6)
        if "7_5" in self.ratio:
            out["lblConcord1"] = even(self.age68 / self.age75, 2)
        return out

    def margin(self, name):
        times = even(self.cps[name] / (self.blank_mean[name] + 3 * self.blank_sd[name]))
        return ">100" if float(times) > 100 else times

    def colour(self):
        x = self.age75 / self.age68
        for least, most, colour in ((-1, 0.84999999, "255 0 0"), (0.85, 0.89999, "255 128 128"),
                                    (0.9, 0.94999, "255 192 192"), (0.95, 1.04999, "255 255 255"),
                                    (1.05, 1.09999, "192 192 255"), (1.10001, 1.14999, "128 128 255"),
                                    (1.15000001, 99, "0 0 255")):
            if least <= x <= most:
                return colour
        return None

    def expectations(self, only=None):
        lines = [f'expect frm2_UP.{name} text "{text}"' for name, text in self.labels().items()
                 if only is None or name.startswith(only)]
        if only is None:
            lines.append(f"expect frm2_UP.lblConcord1 back {self.colour()}")
        return lines


def main():
    table = read(sys.argv[1])
    print("# Means and T-zero values with two standard deviations.")
    print("\n".join(Panel(table).expectations()))
    found = Panel(table, tested=["6_8", "8_2", "7_6"])
    print("# Outliers rejected, after one drawing with all slices.")
    print("\n".join(Panel(table, flags=found.outliers(), former=found.places).expectations()))
    if "Hg202" in table:
        print("# Pb204 less the Hg of the blank.")
        print("\n".join(Panel(table, hg="Hg202").expectations()))


if __name__ == "__main__":
    main()
