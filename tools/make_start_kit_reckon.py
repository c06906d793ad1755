"""What must come out of a measurement of the U/Pb or FLEX path, reckoned from its counts; shares no code with the program.

A table is a dict: column head -> list of cps, index 0 unused. Slices are counted from 1, intervals inclusive.
"""
import math
import statistics

from make_start_kit_base import mean_of, total_of

RATIOS = ("6/8", "7/5", "8/2", "38/2", "7/6")
# Numerator and denominator of each ratio on the two paths, in the order of RATIOS.
URANIUM_PAIRS = (("Pb206", "U238"), ("Pb207", "U235"), ("Pb208", "Th232"), ("U238", "Th232"), ("Pb207", "Pb206"))
FLEX_PAIRS = (("Pt195", "ThO248"), ("Sm147", "UO254"), ("Ca43", "Zr91"), ("ThO248", "Zr91"), ("Sm147", "Pt195"))
SMALLEST_NET = 0.01  # cps; a net value of 0 or below becomes this
ERROR_TIMES = 2      # errors are two standard errors
OUTLIER_SD = 3.0


class Ratio:
    """Mean, s.d., error, median and line of one ratio over the slices of the selection that count."""

    def __init__(self, slices, values):
        n = len(values)
        self.mean = mean_of(values)
        self.sd = math.sqrt(total_of([(v - self.mean) ** 2 for v in values]) / (n - 1))
        self.error = ERROR_TIMES * self.sd / math.sqrt(n - 1)
        self.median = statistics.median(values)
        middle = mean_of(slices)
        self.slope = (total_of([(t - middle) * v for t, v in zip(slices, values)])
                      / total_of([(t - middle) ** 2 for t in slices]))
        self.at_start = self.mean + self.slope * (slices[0] - middle)


class Reckoned:
    """Results of one table for a blank and a selected interval, (first slice, last slice) each."""

    def __init__(self, table, pairs, blank, selection, rejected=()):
        self.blank = {name: mean_of(column[blank[0]:blank[1] + 1]) for name, column in table.items()}
        self.slices = [t for t in range(selection[0], selection[1] + 1) if t not in rejected]
        net = {name: [max_net(v - self.blank[name]) for v in column] for name, column in table.items()}
        self.cps = {name: mean_of([net[name][t] for t in self.slices]) for name in table}
        self.series = {name: [net[a][t] / net[b][t] for t in self.slices]
                       for name, (a, b) in zip(RATIOS, pairs) if a in net and b in net}
        self.ratios = {name: Ratio(self.slices, values) for name, values in self.series.items()}
        self.signal_on = beam_start(table, blank)

    def outliers(self, names):
        """Slices at which one of these ratios lies more than three s.d. from its mean."""
        return [t for k, t in enumerate(self.slices)
                if any(abs(self.series[n][k] - self.ratios[n].mean) > OUTLIER_SD * self.ratios[n].sd for n in names)]

    def lead_204(self, table, mercury_to_204):
        """Mean of mass 204 less the mercury that the gas blank of Hg202 tells; the blank of mass 204 itself stays in."""
        return mean_of([table["Pb204"][t] for t in self.slices]) - self.blank["Hg202"] / mercury_to_204


def max_net(value):
    return value if value > 0.0 else SMALLEST_NET


def beam_start(table, blank):
    """First of ten slices in a row, from the end of the blank on, whose total beats the blank; the first two columns don't count."""
    columns = list(table.values())[2:]
    totals = [sum(column[t] for column in columns) for t in range(len(columns[0]))]
    threshold = sum(totals[blank[0]:blank[1] + 1]) / (blank[1] - blank[0])
    return next(t for t in range(blank[1], len(totals)) if all(v > threshold for v in totals[t:t + 10]))


def line(xs, ys):
    """Intercept and slope of the least squares line."""
    x_mean, y_mean = mean_of(xs), mean_of(ys)
    slope = (total_of([(x - x_mean) * (y - y_mean) for x, y in zip(xs, ys)]) / total_of([(x - x_mean) ** 2 for x in xs]))
    return y_mean - slope * x_mean, slope


class Drift:
    """Factors expected / measured of the standards over their positions, a line through them, the samples times the line."""

    def __init__(self, measured, expected):
        """Position -> measured mean of all files; position -> expected ratio of the standards."""
        at = sorted(expected)
        self.factors = {k: expected[k] / measured[k] for k in at}
        self.intercept, self.slope = line(at, [self.factors[k] for k in at])
        self.corrected = {k: v * (self.intercept + k * self.slope) for k, v in measured.items() if k not in expected}


def counting_error(true_cps, gas, dwell, pair, blank, slices):
    """(3 standard uncertainties of the mean ratio by counting alone, its bias), both relative.

    True net cps is a function of head and slice. A ratio of counts comes out too high by the relative variance of its denominator.
    """
    squares, bias = 0.0, 0.0
    for name in pair:
        floor = gas[name] / (dwell[name] * (blank[1] - blank[0] + 1))  # variance of the blank mean
        relative = [((true_cps(name, t) + gas[name]) / dwell[name]) / true_cps(name, t) ** 2 for t in slices]
        inverse = mean_of([1.0 / true_cps(name, t) for t in slices])
        squares += total_of(relative) / len(slices) ** 2 + floor * inverse * inverse
        bias = mean_of(relative)  # of the last one, the denominator
    return 3.0 * math.sqrt(squares), bias
